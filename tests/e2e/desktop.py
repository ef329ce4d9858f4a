# SPDX-FileCopyrightText: 2026 Morvane-Projekt
# SPDX-License-Identifier: MIT

"""An X11 desktop for the program under test: X server, window manager, buses, home folder."""

import ctypes
import os
import pathlib
import shutil
import subprocess
import tempfile
import time

from servers import Servers

DEADLINE = 20.0
"""Seconds after which `wait_for` fails. Passing tests never wait this long."""

RATINGS = ("Schwach", "Mittel", "Gut", "Stark")

KEY_CODES = {"F10": "76"}
"""Key codes that replace names for xdotool. With xkb-data 2.48, the name F10 also presses Alt."""

TERMINATED = "Morvane wurde durch das Signal 15 beendet.\n"
"""What the program writes to standard error when a test terminates the program."""

PROGRAM = os.environ["MORVANE_PROGRAM"]
ARTIFACTS = pathlib.Path(os.environ["MORVANE_ARTIFACTS"])


def wait_for(condition, description, deadline=DEADLINE):
    """Returns the first true result of `condition`; fails after the deadline."""
    end = time.monotonic() + deadline
    while True:
        result = condition()
        if result:
            return result
        if time.monotonic() > end:
            raise AssertionError(f"no result after {deadline:.0f} s of waiting for {description}")
        time.sleep(0.02)


class Desktop:
    """Starts all processes of the desktop on creation; `close` ends these processes only."""

    display_server = "Xvfb"

    def __init__(self):
        self._servers = Servers()
        self._folder = pathlib.Path(tempfile.mkdtemp(prefix="morvane-e2e-"))
        self.home = self._folder / "home"
        self.home.mkdir()
        runtime = self._folder / "runtime"
        runtime.mkdir(mode=0o700)
        # pyatspi in the process of the test connects to the buses that this environment names.
        for name in ("WAYLAND_DISPLAY", "DISPLAY", "AT_SPI_BUS_ADDRESS", "QT_QPA_PLATFORM"):
            os.environ.pop(name, None)
        os.environ.update(
            HOME=str(self.home),
            XDG_RUNTIME_DIR=str(runtime),
            XDG_CACHE_HOME=str(self._folder / "test-tools-cache"),
            QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1",
            LC_ALL="C.UTF-8",
        )
        try:
            self._start_display()
            os.environ["DBUS_SESSION_BUS_ADDRESS"] = self._servers.start_session_bus()
        except BaseException:
            self.close()
            raise

    def _start_display(self):
        # An ending X server removes its socket, even if a new server uses the same number.
        for _ in range(5):
            os.environ["DISPLAY"] = self._servers.start_x_server("2600x1800")
            manager = self._servers.start(["openbox"])
            started = wait_for(
                lambda: self._has_window_manager() or manager.poll(), "a window manager"
            )
            if started is True:
                return
        raise AssertionError("no X server accepted a window manager in 5 attempts")

    @staticmethod
    def _has_window_manager():
        answer = output("xprop", "-root", "_NET_SUPPORTING_WM_CHECK")
        return "window id" in answer

    def kill_display_server(self):
        self._servers.kill(self.display_server)

    def screenshot(self, name):
        ARTIFACTS.mkdir(parents=True, exist_ok=True)
        file = ARTIFACTS / f"{name}.png"
        subprocess.run(["import", "-window", "root", str(file)], check=True)
        return file

    def close(self):
        self._servers.stop()
        shutil.rmtree(self._folder, ignore_errors=True)


class Program:
    """The program under test; the end of a `with` block ends the program.

    `wrapper` is the beginning of a command to which the program's path is appended. The command
    executes the program without a new process, so that the process id is that of the program.
    """

    def __init__(
        self,
        desktop,
        preload=None,
        with_display=True,
        variables=None,
        program=PROGRAM,
        wrapper=(),
        close_fds=True,
    ):
        self.desktop = desktop
        environment = {**os.environ, **(variables or {})}
        environment.pop("XDG_CACHE_HOME", None)
        if preload:
            environment["LD_PRELOAD"] = preload
            # AddressSanitizer by default rejects libraries that are loaded before its own library.
            environment["ASAN_OPTIONS"] = ":".join(
                [os.environ.get("ASAN_OPTIONS", ""), "verify_asan_link_order=0"]
            )
        if not with_display:
            environment.pop("DISPLAY")
        self.process = subprocess.Popen(
            [*wrapper, program],
            env=environment,
            stdin=subprocess.DEVNULL,
            stdout=subprocess.PIPE,
            stderr=subprocess.PIPE,
            text=True,
            close_fds=close_fds,
        )

    def __enter__(self):
        return self

    def __exit__(self, *_):
        if self.process.poll() is None:
            self.process.terminate()
        self.process.communicate()

    def wait_for_exit(self):
        """Returns the exit status and the text on standard error."""
        _, errors = self.process.communicate(timeout=DEADLINE)
        return self.process.returncode, errors

    def window(self):
        """The id of the program's X window; waits until the window is visible."""
        found = wait_for(
            lambda: output(
                "xdotool", "search", "--onlyvisible", "--pid", str(self.process.pid)
            ).split(),
            "a visible window",
        )
        return found[-1]

    def accessible(self):
        """The root of the program's accessibility tree."""
        import pyatspi
        from gi.repository import Atspi

        def application():
            desktop = pyatspi.Registry.getDesktop(0)
            for child in desktop:
                if child is not None and child.get_process_id() == self.process.pid:
                    # Qt does not report every change, so cached properties can be out of date.
                    child.set_cache_mask(Atspi.Cache.NONE)
                    return child
            return None

        return wait_for(application, "the program on the accessibility bus")

    def secret(self):
        """The shown secret, whose label precedes the label of the rating; None without a secret."""
        labels = [a.name for a in showing_objects(self.accessible()) if role_name(a) == "label"]
        ratings = [i for i, name in enumerate(labels) if name in RATINGS]
        return labels[ratings[-1] - 1] if ratings else None

    def history(self):
        """The secrets in the history box, newest first."""
        names = [a.name for a in showing_objects(self.accessible())]
        return names[names.index("Diese Sitzung") + 1 : names.index("Menü")]

    def ensure_keyboard_focus(self):
        """Waits until the window manager has given the window the keyboard focus."""
        window = self.window()
        wait_for(lambda: output("xdotool", "getactivewindow").strip() == window, "an active window")

    def centre_of(self, accessible):
        """The centre of an accessible object in screen coordinates."""
        import pyatspi

        box = accessible.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
        return box.x + box.width // 2, box.y + box.height // 2

    def stable_centre(self, name, role=None):
        """The centre of the control of this name, once the control has stopped moving."""
        control = self.find(
            lambda a: a.name == name
            and (role_name(a) == role if role else role_name(a) != "label"),
            f"the control {name}",
        )
        centres = []

        def is_stable():
            centres.append(self.centre_of(control))
            return len(centres) > 2 and centres[-1] == centres[-2] == centres[-3]

        wait_for(is_stable, f"the control {name} to stop moving")
        return centres[-1]

    def click(self, name, role=None):
        """Clicks the control of this name with the X server's pointer."""
        move_pointer(*self.stable_centre(name, role))
        subprocess.run(["xdotool", "click", "1"], check=True)

    def key(self, *combinations):
        """Presses key combinations such as "Tab" or "ctrl+r", one after the other."""
        key(*combinations)

    def press(self, name):
        """Presses the button or toggles the switch of this name through its accessible action."""
        control = self.find(
            lambda a: a.name == name and "Action" in a.get_interfaces(), f"the control {name}"
        )
        actions = control.queryAction()
        names = [actions.getName(i) for i in range(actions.nActions)]
        actions.doAction(names.index("Toggle" if "Toggle" in names else "Press"))

    def set_slider(self, name, value):
        """Sets the value of the slider of this name."""
        slider = self.find(
            lambda a: a.name == name and "Value" in a.get_interfaces(), f"the slider {name}"
        )
        slider.queryValue().currentValue = value

    def save_screenshot(self, file):
        """Writes an image of the window once three images in a row are the same."""
        window = self.window()
        file.parent.mkdir(parents=True, exist_ok=True)
        checksums = []

        def is_stable():
            subprocess.run(
                ["import", "-silent", "-window", window, "-strip", str(file)], check=True
            )
            checksums.append(output("identify", "-format", "%#", str(file)))
            return len(checksums) > 2 and checksums[-1] == checksums[-2] == checksums[-3]

        wait_for(is_stable, "a window that does not change any more")

    def find(self, predicate, description):
        """Waits for an accessible object that is showing and matches the predicate; returns it."""
        root = self.accessible()
        return wait_for(lambda: find_first(root, predicate), description)


def output(*command):
    """The standard output of a command, even if the command fails."""
    return subprocess.run(
        command, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True, check=False
    ).stdout


def key(*combinations):
    """Presses key combinations such as "Tab" or "ctrl+r" on the X server's keyboard, in order."""
    codes = (KEY_CODES.get(name, name) for name in combinations)
    subprocess.run(["xdotool", "key", *codes], check=True)


def move_pointer(x, y):
    """Moves the X server's pointer to this point of the screen."""
    subprocess.run(["xdotool", "mousemove", str(x), str(y)], check=True)


def qt_version():
    """The version of the installed Qt, as a tuple of numbers."""
    library = ctypes.CDLL("libQt6Core.so.6")
    library.qVersion.restype = ctypes.c_char_p
    return tuple(map(int, library.qVersion().decode().split(".")))


def role_name(accessible):
    """The name of the object's role, the same in all versions of AT-SPI."""
    import pyatspi

    # AT-SPI 2.46 calls this role "push button" and 2.56 calls it "button".
    if accessible.getRole() == pyatspi.ROLE_PUSH_BUTTON:
        return "button"
    return accessible.getRoleName()


def showing_objects(accessible):
    """`accessible` and its descendants that are showing, in reading order."""
    found = []
    find_first(accessible, found.append)  # append returns None, so the search visits all objects
    return found


def find_first(accessible, predicate):
    """The first object in depth-first order that is showing and matches the predicate, or None."""
    import pyatspi
    from gi.repository import GLib

    try:
        if accessible.getState().contains(pyatspi.STATE_SHOWING) and predicate(accessible):
            return accessible
        children = list(accessible)
    except (GLib.Error, ValueError):  # the object was removed during the search
        return None
    for child in children:
        if child is not None:
            found = find_first(child, predicate)
            if found is not None:
                return found
    return None
