# SPDX-FileCopyrightText: 2026 Morvane-Projekt
# SPDX-License-Identifier: MIT

"""A desktop of its own for the program under test: X server, window manager, buses, empty home."""

import ctypes
import os
import pathlib
import shutil
import subprocess
import tempfile
import time

from servers import Servers

DEADLINE = 20.0
"""Seconds after which an awaited event counts as missing. Passing tests never wait this long."""

RATINGS = ("Schwach", "Mittel", "Gut", "Stark")

KEY_CODES = {"F10": "76"}
"""Keys whose names xdotool does not find alone: with xkb-data 2.48 it adds Alt to this one."""

PROGRAM = os.environ["MORVANE_PROGRAM"]
ARTIFACTS = pathlib.Path(os.environ["MORVANE_ARTIFACTS"])


def until(condition, what, deadline=DEADLINE):
    """Returns the first true result of `condition`, or fails after the deadline naming `what`."""
    end = time.monotonic() + deadline
    while True:
        result = condition()
        if result:
            return result
        if time.monotonic() > end:
            raise AssertionError(f"nothing came of this within {deadline:.0f} s: {what}")
        time.sleep(0.02)


class Desktop:
    """Starts everything on creation; `close` ends exactly what was started."""

    def __init__(self):
        self._servers = Servers()
        self._folder = pathlib.Path(tempfile.mkdtemp(prefix="morvane-e2e-"))
        self.home = self._folder / "home"
        self.home.mkdir()
        runtime = self._folder / "runtime"
        runtime.mkdir(mode=0o700)
        # AT-SPI in this very process has to find the same buses, hence the real environment.
        for name in ("WAYLAND_DISPLAY", "DISPLAY", "AT_SPI_BUS_ADDRESS", "QT_QPA_PLATFORM"):
            os.environ.pop(name, None)
        os.environ.update(
            HOME=str(self.home),
            XDG_RUNTIME_DIR=str(runtime),
            XDG_CACHE_HOME=str(self._folder / "cache-of-the-tools"),
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
        # Another server that ends at this moment can take a display's name along with it.
        for _ in range(5):
            os.environ["DISPLAY"] = self._servers.start_x_server("2600x1800")
            manager = self._servers.start(["openbox"])
            if until(lambda: self._window_manager_runs() or manager.poll(), "a window manager") is True:
                return
        raise AssertionError("no display stays")

    @staticmethod
    def _window_manager_runs():
        answer = output("xprop", "-root", "_NET_SUPPORTING_WM_CHECK")
        return "window id" in answer

    def screenshot(self, name):
        ARTIFACTS.mkdir(parents=True, exist_ok=True)
        file = ARTIFACTS / f"{name}.png"
        subprocess.run(["import", "-window", "root", str(file)], check=True)
        return file

    def close(self):
        self._servers.stop()
        shutil.rmtree(self._folder, ignore_errors=True)


class Program:
    """The program under test. Use it in a `with` block, which ends it.

    `under` is a command that turns into the program named after it.
    """

    def __init__(
        self,
        desktop,
        preload=None,
        with_display=True,
        variables=None,
        program=PROGRAM,
        under=(),
    ):
        self.desktop = desktop
        environment = {**os.environ, **(variables or {})}
        environment.pop("XDG_CACHE_HOME", None)
        if preload:
            environment["LD_PRELOAD"] = preload
            # In the sanitizer build, another library in front of the sanitizer's is intended.
            environment["ASAN_OPTIONS"] = ":".join(
                [os.environ.get("ASAN_OPTIONS", ""), "verify_asan_link_order=0"]
            )
        if not with_display:
            environment.pop("DISPLAY")
        self.process = subprocess.Popen(
            [*under, program],
            env=environment,
            stdin=subprocess.DEVNULL,
            stdout=subprocess.PIPE,
            stderr=subprocess.PIPE,
            text=True,
        )

    def __enter__(self):
        return self

    def __exit__(self, *_):
        if self.process.poll() is None:
            self.process.terminate()
        self.process.communicate()

    def ended(self):
        """Waits for the end; returns the exit status and what was written to standard error."""
        _, errors = self.process.communicate(timeout=DEADLINE)
        return self.process.returncode, errors

    def window(self):
        """The X window, once it is on the screen."""
        found = until(
            lambda: output(
                "xdotool", "search", "--onlyvisible", "--pid", str(self.process.pid)
            ).split(),
            "a visible window",
        )
        return found[-1]

    def accessible(self):
        """The root of the program's accessible objects."""
        import pyatspi
        from gi.repository import Atspi

        def application():
            desktop = pyatspi.Registry.getDesktop(0)
            for child in desktop:
                if child is not None and child.get_process_id() == self.process.pid:
                    # Not everything that changes is told, so nothing may be remembered.
                    child.set_cache_mask(Atspi.Cache.NONE)
                    return child
            return None

        return until(application, "the program on the accessibility bus")

    def value(self):
        """The secret on show: the label in front of its rating."""
        labels = [a.name for a in everything(self.accessible()) if role_name(a) == "label"]
        ratings = [i for i, name in enumerate(labels) if name in RATINGS]
        return labels[ratings[-1] - 1] if ratings else None

    def history(self):
        """The secrets in the history box, newest first."""
        names = [a.name for a in everything(self.accessible())]
        return names[names.index("Diese Sitzung") + 1 : names.index("Menü")]

    def activate(self):
        """Returns once the window has the keyboard, which the window manager gives it."""
        window = self.window()
        until(lambda: output("xdotool", "getactivewindow").strip() == window, "an active window")

    def place(self, accessible):
        """The middle of an accessible object, as a point of the screen."""
        import pyatspi

        box = accessible.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
        return box.x + box.width // 2, box.y + box.height // 2

    def middle(self, name, role=None):
        """The place of the control of this name once it has come to rest."""
        control = self.find(
            lambda a: a.name == name
            and (role_name(a) == role if role else role_name(a) != "label"),
            f"the control {name}",
        )
        places = []

        def at_rest():
            places.append(self.place(control))
            return len(places) > 2 and places[-1] == places[-2] == places[-3]

        until(at_rest, f"the control {name} at rest")
        return places[-1]

    def click(self, name, role=None):
        """Clicks the control of this name with the real pointer."""
        point(*self.middle(name, role))
        subprocess.run(["xdotool", "click", "1"], check=True)

    def key(self, *chords):
        """Presses keys on the real keyboard, one after the other."""
        key(*chords)

    def press(self, name):
        """Presses the button, or throws the switch, of this name through its accessible action."""
        control = self.find(
            lambda a: a.name == name and "Action" in a.get_interfaces(), f"the control {name}"
        )
        actions = control.queryAction()
        names = [actions.getName(i) for i in range(actions.nActions)]
        actions.doAction(names.index("Toggle" if "Toggle" in names else "Press"))

    def slide(self, name, value):
        """Sets the slider of this name."""
        slider = self.find(
            lambda a: a.name == name and "Value" in a.get_interfaces(), f"the slider {name}"
        )
        slider.queryValue().currentValue = value

    def picture(self, file):
        """Writes a picture of the window once it has come to rest."""
        window = self.window()
        file.parent.mkdir(parents=True, exist_ok=True)
        seen = []

        def at_rest():
            subprocess.run(["import", "-silent", "-window", window, "-strip", str(file)], check=True)
            seen.append(output("identify", "-format", "%#", str(file)))
            return len(seen) > 2 and seen[-1] == seen[-2] == seen[-3]

        until(at_rest, "a window that has come to rest")

    def find(self, predicate, what):
        """The first showing accessible object for which `predicate` holds."""
        root = self.accessible()
        return until(lambda: first(root, predicate), what)


def output(*command):
    """Standard output of `command`, or what it wrote before it failed."""
    return subprocess.run(
        command, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True, check=False
    ).stdout


def key(*keys):
    """Presses keys on the real keyboard, one after the other."""
    codes = (KEY_CODES.get(name, name) for name in keys)
    subprocess.run(["xdotool", "key", *codes], check=True)


def point(x, y):
    """Moves the real pointer there."""
    subprocess.run(["xdotool", "mousemove", str(x), str(y)], check=True)


def qt_version():
    """The version of Qt that the program runs with, as numbers."""
    library = ctypes.CDLL("libQt6Core.so.6")
    library.qVersion.restype = ctypes.c_char_p
    return tuple(map(int, library.qVersion().decode().split(".")))


def role_name(accessible):
    """The name of its role, which is the same in all versions of AT-SPI."""
    import pyatspi

    # AT-SPI 2.46 names this role "push button", 2.56 "button"; the number is the same.
    if accessible.getRole() == pyatspi.ROLE_PUSH_BUTTON:
        return "button"
    return accessible.getRoleName()


def everything(accessible):
    """All showing accessible objects below `accessible`, in reading order."""
    found = []
    first(accessible, found.append)  # which never yields true
    return found


def first(accessible, predicate):
    """Depth-first search below `accessible` for a showing object."""
    import pyatspi
    from gi.repository import GLib

    try:
        if accessible.getState().contains(pyatspi.STATE_SHOWING) and predicate(accessible):
            return accessible
        children = list(accessible)
    except (GLib.Error, ValueError):  # gone while it was looked at
        return None
    for child in children:
        if child is not None:
            found = first(child, predicate)
            if found is not None:
                return found
    return None
