# SPDX-FileCopyrightText: 2026 Morvane-Projekt
# SPDX-License-Identifier: MIT

"""A Wayland desktop for the program under test: sway with a headless output, and D-Bus."""

import contextlib
import json
import os
import shutil
import socket
import struct
import subprocess
import time

from desktop import ARTIFACTS, Desktop, Program, output, role_name, wait_for

APPLICATION = "de.morvane.Morvane"

WIDTH, HEIGHT = 1280, 900
"""The output's size in logical pixels, the same at every scale."""

CONFIGURATION = f"""
xwayland disable
output * mode --custom {WIDTH}x{HEIGHT}
for_window [app_id="{APPLICATION}"] floating enable
"""

LEFT_BUTTON = 0x110
"""BTN_LEFT of linux/input-event-codes.h."""

KEYMAP = b"""
xkb_keymap {
    xkb_keycodes { include "evdev+aliases(qwertz)" };
    xkb_types { include "complete" };
    xkb_compat { include "complete" };
    xkb_symbols { include "pc+de+inet(evdev)" };
};
\0"""

MODIFIERS = {"shift": (42, 1), "ctrl": (29, 4), "alt": (56, 8)}
"""For each modifier: its key code and its bit in the modifier mask."""

KEYS = {
    "Escape": 1,
    "BackSpace": 14,
    "Tab": 15,
    "Return": 28,
    "space": 57,
    "F10": 68,
    "Home": 102,
    "Up": 103,
    "Left": 105,
    "Right": 106,
    "End": 107,
    "Down": 108,
    "Delete": 111,
    **{letter: 2 + place for place, letter in enumerate("1234567890")},
    **{letter: 16 + place for place, letter in enumerate("qwertzuiop")},
    **{letter: 30 + place for place, letter in enumerate("asdfghjkl")},
    **{letter: 44 + place for place, letter in enumerate("yxcvbnm")},
}
"""Linux key codes, for the layout of a German keyboard."""


def window_nodes(tree):
    """The nodes of the program's windows in sway's tree."""
    found, nodes = [], [tree]
    while nodes:
        node = nodes.pop()
        nodes += node["nodes"] + node["floating_nodes"]
        if node.get("app_id") == APPLICATION:
            found.append(node)
    return found


class WaylandDesktop(Desktop):
    """Starts all processes of the desktop on creation; `close` ends these processes only."""

    display_server = "sway"
    _input = None

    def _start_display(self):
        os.environ["QT_QPA_PLATFORM"] = "wayland"
        disable_leak_detection()
        self._folder.chmod(0o711)  # the compositor can run as another user
        folder = self._folder / "sway"
        folder.mkdir(mode=0o700)
        configuration = folder / "config"
        configuration.write_text(CONFIGURATION, encoding="ascii")
        command = ["sway", "--config", str(configuration)]
        if os.geteuid() == 0:  # sway refuses to run as root
            for path in (folder, configuration):
                shutil.chown(path, "nobody", "nogroup")
            command[:0] = ["setpriv", "--reuid=nobody", "--regid=nogroup", "--clear-groups"]
        self._servers.start(
            command,
            cwd=folder,
            env={
                "HOME": str(folder),
                "PATH": os.environ["PATH"],
                "WLR_BACKENDS": "headless",
                "WLR_LIBINPUT_NO_DEVICES": "1",
                "WLR_RENDERER": "pixman",
                "XDG_RUNTIME_DIR": str(folder),
            },
        )
        os.environ["SWAYSOCK"] = wait_for(
            lambda: find_socket(folder, "sway-ipc.*"), "the socket of sway's IPC"
        )
        os.environ["WAYLAND_DISPLAY"] = wait_for(
            lambda: find_socket(folder, "wayland-?"), "the compositor's socket"
        )
        wait_for(lambda: self._output()["rect"]["width"] == WIDTH, "the output's size")
        self._input = VirtualInput(os.environ["WAYLAND_DISPLAY"])

    def close(self):
        if self._input is not None:
            self._input.close()
        super().close()

    def tree(self):
        """Sway's tree of outputs, workspaces and windows."""
        return json.loads(output("swaymsg", "--raw", "--type", "get_tree"))

    def window_nodes(self):
        return window_nodes(self.tree())

    def visible_window(self, process):
        """The node of the visible window of a process."""
        return wait_for(
            lambda: next(
                (n for n in self.window_nodes() if n["pid"] == process.pid and n["visible"]),
                None,
            ),
            "a visible window",
        )

    def command(self, *words):
        """Runs a command of sway."""
        subprocess.run(["swaymsg", "--quiet", "--", *words], check=True)

    def focus(self, node):
        self.command(f"[con_id={node['id']}]", "focus")

    def kill(self, node):
        """Sends the window a request to close."""
        self.command(f"[con_id={node['id']}]", "kill")

    def set_scale(self, factor):
        """Changes the output's scale and resolution, so that its logical size stays the same."""
        mode = f"{round(WIDTH * factor)}x{round(HEIGHT * factor)}"
        self.command("output", "*", "mode", "--custom", mode, "scale", str(factor))
        wait_for(
            lambda: self._output()["scale"] == factor and self._output()["rect"]["width"] == WIDTH,
            f"a scale of {factor}",
        )

    @staticmethod
    def _output():
        answer = output("swaymsg", "--raw", "--type", "get_outputs")
        return json.loads(answer)[0] if answer else {"rect": {"width": 0}}

    def move(self, x, y):
        """Moves the pointer to a point in logical pixels."""
        self._input.move(x, y)

    def press(self, button=LEFT_BUTTON):
        self._input.button(button, True)

    def release(self, button=LEFT_BUTTON):
        self._input.button(button, False)

    def click(self, x, y):
        self.move(x, y)
        self.press()
        self.release()

    def key(self, *combinations):
        """Presses key combinations such as "Tab" or "ctrl+shift+r", one after the other."""
        for combination in combinations:
            self._input.press_key(*combination.split("+"))

    def held_key(self, combination):
        """Holds a key combination until the end of a `with` block."""
        return self._input.held_key(*combination.split("+"))

    def screenshot(self, name, node=None):
        """Saves an image of the output or of one window."""
        ARTIFACTS.mkdir(parents=True, exist_ok=True)
        file = ARTIFACTS / f"{name}.png"
        region = ["-g", "{x},{y} {width}x{height}".format(**node["rect"])] if node else []
        subprocess.run(["grim", *region, str(file)], check=True)
        return file


class WaylandProgram(Program):
    """The program under test on a Wayland desktop; the end of a `with` block ends the program."""

    def window(self):
        """Sway's node of the window; waits until the window is visible."""
        return self.desktop.visible_window(self.process)

    def ensure_keyboard_focus(self):
        """Gives the window the keyboard focus; waits until the program has received the focus."""
        import pyatspi

        self.desktop.focus(self.window())
        # Qt ignores a shortcut that arrives while no window is active.
        self.find(
            lambda a: role_name(a) == "frame" and a.getState().contains(pyatspi.STATE_ACTIVE),
            "an active window",
        )

    def centre_of(self, accessible):
        """The centre of an accessible object in logical pixels of the output."""
        import pyatspi

        extents = accessible.queryComponent().getExtents(pyatspi.WINDOW_COORDS)
        node = self.window()
        return (
            node["rect"]["x"] + node["window_rect"]["x"] + extents.x + extents.width // 2,
            node["rect"]["y"] + node["window_rect"]["y"] + extents.y + extents.height // 2,
        )

    def click(self, name, role=None):
        self.desktop.click(*self.stable_centre(name, role))

    def key(self, *combinations):
        self.desktop.key(*combinations)


class VirtualInput:
    """A virtual pointer and a virtual keyboard, because a headless compositor has no input devices.

    This class implements Wayland's wire protocol, because no package of Debian 12 moves the pointer
    of a headless compositor. The devices exist for the whole run, because a window loses the
    keyboard focus when the last keyboard is removed. The protocol numbers its requests and events;
    comments beside the numbers contain the names.
    """

    DISPLAY = 1

    def __init__(self, address):
        self._socket = socket.socket(socket.AF_UNIX, socket.SOCK_STREAM)
        self._socket.connect(address)
        self._last_object = self.DISPLAY
        self._globals = {}
        self._registry = self._new_object()
        self._request(self.DISPLAY, 1, self._registry)  # get_registry
        self._synchronize()
        seat = self._bind("wl_seat")
        pointers = self._bind("zwlr_virtual_pointer_manager_v1")
        keyboards = self._bind("zwp_virtual_keyboard_manager_v1")
        self._pointer = self._new_object()
        self._request(pointers, 0, seat, self._pointer)  # create_virtual_pointer
        self._keyboard = self._new_object()
        self._request(keyboards, 0, seat, self._keyboard)  # create_virtual_keyboard
        with os.fdopen(os.memfd_create("keymap"), "wb") as keymap:
            keymap.write(KEYMAP)
            keymap.flush()
            xkb_v1 = 1  # wl_keyboard.keymap_format
            self._request(  # keymap
                self._keyboard, 0, xkb_v1, len(KEYMAP), descriptor=keymap.fileno()
            )
        self._synchronize()

    def close(self):
        self._socket.close()

    def move(self, x, y):
        # motion_absolute
        self._request(self._pointer, 1, now(), round(x), round(y), WIDTH, HEIGHT)
        self._send_pointer_frame()

    def button(self, code, pressed):
        self._request(self._pointer, 2, now(), code, int(pressed))  # button
        self._send_pointer_frame()

    def _send_pointer_frame(self):
        self._request(self._pointer, 4)  # frame
        self._synchronize()

    def press_key(self, *names):
        """Presses and releases the last key while the keys before it, the modifiers, are held."""
        with self.held_key(*names):
            pass

    @contextlib.contextmanager
    def held_key(self, *names):
        """Holds the modifiers and then the last key until the end of a `with` block."""
        *held, last = names
        bits = 0
        for name in held:
            code, bit = MODIFIERS[name]
            bits |= bit
            self._key(code, True, bits)
        self._key(KEYS[last], True, bits)
        yield
        self._key(KEYS[last], False, bits)
        for name in reversed(held):
            code, bit = MODIFIERS[name]
            bits &= ~bit
            self._key(code, False, bits)
        self._synchronize()

    def _key(self, code, pressed, bits):
        self._request(self._keyboard, 1, now(), code, int(pressed))  # key
        # The compositor does not derive the modifiers' state from the keys of a virtual keyboard.
        self._request(self._keyboard, 2, bits, 0, 0, 0)  # modifiers

    def _new_object(self):
        self._last_object += 1
        return self._last_object

    def _bind(self, interface):
        if interface not in self._globals:
            raise AssertionError(f"the compositor does not offer {interface}")
        new_object = self._new_object()
        name = interface.encode() + b"\0"
        padded = name + b"\0" * (-len(name) % 4)
        self._request(  # bind
            self._registry, 0, self._globals[interface], len(name), padded, 1, new_object
        )
        return new_object

    def _request(self, target, opcode, *arguments, descriptor=None):
        body = b"".join(
            argument if isinstance(argument, bytes) else struct.pack("=I", argument)
            for argument in arguments
        )
        message = struct.pack("=II", target, (len(body) + 8) << 16 | opcode) + body
        if descriptor is None:
            self._socket.sendall(message)
        else:
            socket.send_fds(self._socket, [message], [descriptor])

    def _synchronize(self):
        """Waits until the compositor has processed every request."""
        callback = self._new_object()
        self._request(self.DISPLAY, 0, callback)  # sync
        while True:
            sender, opcode, body = self._event()
            if sender == callback:
                return
            if sender == self.DISPLAY and opcode == 0:  # error
                message = body[12:].rstrip(b"\0").decode(errors="replace")
                raise AssertionError(f"the compositor reports an error: {message}")
            if sender == self._registry and opcode == 0:  # global
                name, length = struct.unpack_from("=II", body)
                self._globals[body[8 : 8 + length - 1].decode()] = name

    def _event(self):
        sender, word = struct.unpack("=II", self._read(8))
        return sender, word & 0xFFFF, self._read((word >> 16) - 8)

    def _read(self, size):
        data = b""
        while len(data) < size:
            part = self._socket.recv(size - len(data))
            if not part:
                raise AssertionError("the compositor has closed the connection")
            data += part
        return data


def disable_leak_detection():
    """Turns LeakSanitizer off in sanitizer builds."""
    # Qt does not release its Wayland objects before the process ends, and the graphics driver that
    # Qt loads and unloads leaks memory. The tests on X11 find the leaks of the program itself.
    os.environ["ASAN_OPTIONS"] = ":".join([os.environ.get("ASAN_OPTIONS", ""), "detect_leaks=0"])


def now():
    """The time stamp of an input event, in milliseconds."""
    return time.monotonic_ns() // 1_000_000 & 0xFFFFFFFF


def find_socket(folder, pattern):
    """The path of a socket in a folder, or None."""
    return next((str(path) for path in folder.glob(pattern) if path.is_socket()), None)
