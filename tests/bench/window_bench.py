# SPDX-FileCopyrightText: 2026 Morvane-Projekt
# SPDX-License-Identifier: MIT

"""What the program's window costs beside a bare window of Qt Quick, as seen by the X server.

Both programs run by turns in one sitting, on displays that are alike and have no window manager,
without a session bus and with one. Nothing in the programs takes part in the measurement:

start-up  From just before the process is started until the X server reports, by its Damage
          extension, the drawing after which a pixel in the middle of the window no longer is the
          colour of the root window. The report is taken on arrival, within some tenths of a
          millisecond.
at rest   The same until the last drawing of the first second.
memory    The high-water mark of resident memory, and after a second also what is no file's.
idle      Context switches of all threads while nothing happens and the window has the keyboard.
drag      The pointer first goes over the slider slowly, to learn what each value looks like and
          where it begins, and then pixel by pixel at the pace of a mouse. A value counts as drawn
          if its number was seen on the screen.
"""

import argparse
import contextlib
import os
import pathlib
import select
import shutil
import statistics
import subprocess
import sys
import tempfile
import time

try:
    from Xlib import X, display
    from Xlib.ext import damage, xtest
except ImportError:
    sys.exit("window_bench: cannot measure without the Python module Xlib (python3-xlib)")

sys.path.insert(0, str(pathlib.Path(__file__).parents[1] / "e2e"))

from servers import Servers, StartError

DEADLINE = 20.0
"""Seconds after which an awaited event counts as missing."""

WIDTH, HEIGHT = 1280, 1024
ROOT_COLOUR = 0xFF00FF
INSIDE = (430, 305)
"""A point within either window: both are 860 x 610 or larger and lie in the corner."""

STARTUP_GOAL = 1.25
MEMORY_GOAL = 1.2

SETTLING = 3.0

ACCENT = bytes((0xFF, 0x7A, 0x00))
"""The filled part of the slider, in the byte order of the screen."""
PANEL_WIDTH = 280
STEPS = 64 - 8
MOUSE_INTERVAL = 1 / 125


class CannotMeasure(Exception):
    """Says what is missing."""


class Desktop:
    """An X server, an empty home and, if wanted, a session bus. Use it in a `with` block."""

    def __init__(self, with_bus):
        self._with_bus = with_bus
        self._servers = Servers()

    def __enter__(self):
        self._folder = pathlib.Path(tempfile.mkdtemp(prefix="morvane-bench-"))
        try:
            self._open()
        except BaseException:
            self.__exit__()
            raise
        return self

    def __exit__(self, *_):
        self._servers.stop()
        shutil.rmtree(self._folder, ignore_errors=True)

    def _open(self):
        home = self._folder / "home"
        home.mkdir()
        runtime = self._folder / "runtime"
        runtime.mkdir(mode=0o700)
        self.environment = {
            "PATH": os.environ.get("PATH", os.defpath),
            "HOME": str(home),
            "XDG_RUNTIME_DIR": str(runtime),
            "LC_ALL": "C.UTF-8",
            "DBUS_SESSION_BUS_ADDRESS": "disabled:",
        }
        self.environment["DISPLAY"] = self._servers.start_x_server(
            f"{WIDTH}x{HEIGHT}", self.environment
        )
        if self._with_bus:
            self.environment["DBUS_SESSION_BUS_ADDRESS"] = self._servers.start_session_bus(
                self.environment
            )

        self.display = display.Display(self.environment["DISPLAY"])
        if not self.display.has_extension("DAMAGE") or not self.display.has_extension("XTEST"):
            raise CannotMeasure("the X server lacks the extensions DAMAGE and XTEST")
        self.display.damage_query_version()
        self.root = self.display.screen().root
        self.root.change_attributes(
            background_pixel=ROOT_COLOUR, event_mask=X.SubstructureNotifyMask
        )
        self.root.clear_area()
        self.point_at(WIDTH - 1, HEIGHT - 1)
        self.root.damage_create(damage.DamageReportRawRectangles)
        self.display.sync()

    def events(self, until):
        """Yields what the X server reports until then, with the time at which it arrived."""
        while True:
            if not self.display.pending_events():
                left = until - time.monotonic()
                if left <= 0:
                    return
                select.select([self.display.fileno()], [], [], left)
            now = time.monotonic()
            for _ in range(self.display.pending_events()):
                yield now, self.display.next_event()

    def drawings(self, until):
        """The times of what was drawn until then."""
        for now, event in self.events(until):
            if self.is_drawing(event):
                yield now

    def is_drawing(self, event):
        return event.type == self.display.extension_event.DamageNotify

    def picture(self, x, y, width, height):
        """The pixels, each of four bytes: blue, green, red and one that means nothing."""
        return bytes(self.root.get_image(x, y, width, height, X.ZPixmap, 0xFFFFFFFF).data)

    def shows_window(self):
        blue, green, red = self.picture(*INSIDE, 1, 1)[:3]
        return (red << 16 | green << 8 | blue) != ROOT_COLOUR

    def point_at(self, x, y):
        """Moves the pointer; returns when it was asked to."""
        now = time.monotonic()
        xtest.fake_input(self.display, X.MotionNotify, x=x, y=y)
        self.display.flush()
        return now

    def press(self, pressed):
        xtest.fake_input(self.display, X.ButtonPress if pressed else X.ButtonRelease, 1)
        self.display.flush()


class Run:
    """One run of a program. Use it in a `with` block, which ends it."""

    def __init__(self, desktop, program):
        self._desktop = desktop
        self.program = program
        self._window = None
        self._started = time.monotonic()
        try:
            self._process = subprocess.Popen(
                [program],
                env=desktop.environment,
                stdin=subprocess.DEVNULL,
                stdout=subprocess.DEVNULL,
                stderr=subprocess.DEVNULL,
            )
        except OSError as error:
            raise CannotMeasure(f"{program} does not start: {error.strerror}") from error

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self._process.terminate()
        self._process.wait()
        end = time.monotonic() + DEADLINE
        while self._desktop.shows_window() and time.monotonic() < end:
            time.sleep(0.01)
        self._desktop.display.sync()
        for _ in self._desktop.events(time.monotonic()):
            pass

    def first_frame(self):
        """Waits for it; returns the seconds since the start."""
        for now, event in self._desktop.events(self._started + DEADLINE):
            if event.type == X.MapNotify:
                self._window = event.window
            if self._desktop.is_drawing(event) and self._desktop.shows_window():
                return now - self._started
        raise CannotMeasure(f"no window of {self.program} within {DEADLINE:.0f} s")

    def last_drawing(self, seconds):
        """The last drawing of the coming seconds, in seconds since the start; None if none."""
        last = None
        for now in self._desktop.drawings(time.monotonic() + seconds):
            last = now - self._started
        return last

    def take_keyboard(self):
        if self._window is None:
            raise CannotMeasure(f"the window of {self.program} was not reported")
        self._window.set_input_focus(X.RevertToParent, X.CurrentTime)
        self._desktop.display.sync()

    def peak_memory(self):
        return self._kibibytes("status", "VmHWM:")

    def anonymous_memory(self):
        return self._kibibytes("status", "RssAnon:")

    def _kibibytes(self, file, field):
        for line in self._read(file).splitlines():
            if line.startswith(field):
                return int(line.split()[1])
        raise CannotMeasure(f"the system does not tell {field} of a process")

    def _read(self, file):
        try:
            return pathlib.Path(f"/proc/{self._process.pid}/{file}").read_text(encoding="utf-8")
        except OSError as error:
            raise CannotMeasure(f"{self.program} has ended early, or {error}") from error

    def switches(self):
        """The context switches of every thread so far, by thread."""
        counts = {}
        for task in os.listdir(f"/proc/{self._process.pid}/task"):
            with contextlib.suppress(FileNotFoundError):
                path = pathlib.Path(f"/proc/{self._process.pid}/task/{task}/status")
                counts[task] = sum(
                    int(line.split()[1])
                    for line in path.read_text(encoding="utf-8").splitlines()
                    if "voluntary_ctxt_switches:" in line
                )
        if self._process.poll() is not None:
            raise CannotMeasure(f"{self.program} has ended early")
        return counts


def switched(before, after):
    """Context switches between two counts. A thread that has ended was awake at least once."""
    ended = len(before.keys() - after.keys())
    return ended + sum(count - before.get(task, 0) for task, count in after.items())


FIELDS = (
    "first frame",
    "picture at rest",
    "peak at first frame",
    "peak after 1 s",
    "no file's after 1 s",
)


def one_round(desktop, program):
    """Starts the program once; returns one number for each of the fields."""
    with Run(desktop, program) as run:
        first = run.first_frame()
        peak = run.peak_memory()
        last = run.last_drawing(1.0)
        return (
            first * 1000,
            (first if last is None else last) * 1000,
            peak / 1024,
            run.peak_memory() / 1024,
            run.anonymous_memory() / 1024,
        )


def measured_rounds(programs, desktops, rounds):
    """The numbers of every round, one list a program. Who is first changes from round to round."""
    results = [[] for _ in programs]
    order = list(zip(programs, desktops, results))
    for number in range(rounds + 1):
        for program, desktop, result in order:
            measured = one_round(desktop, program)
            # The first round is to warm up.
            if number:
                result.append(measured)
        order.reverse()
    return results


def measured_idling(programs, desktops, seconds):
    """Context switches of each program. All idle at the same time, each on its own desktop."""
    with contextlib.ExitStack() as stack:
        runs = [stack.enter_context(Run(*pair)) for pair in zip(desktops, programs)]
        for run in runs:
            run.first_frame()
            run.take_keyboard()
        time.sleep(SETTLING)
        before = [run.switches() for run in runs]
        time.sleep(seconds)
        after = [run.switches() for run in runs]
    return [switched(*counts) for counts in zip(before, after)]


class Slider:
    """The slider of the length, found by the colour of its filled part."""

    def __init__(self, desktop):
        self._desktop = desktop
        rows = []
        for y in range(HEIGHT):
            row = desktop.picture(0, y, PANEL_WIDTH, 1)
            pixels = [row[4 * x : 4 * x + 3] for x in range(PANEL_WIDTH)]
            if ACCENT in pixels:
                begin = pixels.index(ACCENT)
                end = begin
                while end < PANEL_WIDTH and pixels[end] == ACCENT:
                    end += 1
                if end - begin > 4:
                    rows.append((y, begin, end))
            if rows and y > rows[-1][0]:
                break
        if not rows or len(rows) > 6:
            raise CannotMeasure("the slider is not where it was looked for")
        self.y, self._left, filled = rows[len(rows) // 2]
        self._knob = filled + 9

    def number(self):
        """The part of the screen on which the chosen number stands."""
        return self._desktop.picture(self._left, self.y - 38, PANEL_WIDTH - self._left, 24)

    def take(self):
        """Presses the button on the knob and drags it to the left end."""
        self._desktop.point_at(self._knob, self.y)
        self._desktop.press(True)
        self.to_left_end(self._knob)

    def to_left_end(self, begin):
        for x in range(begin, 0, -1):
            self._desktop.point_at(x, self.y)
            time.sleep(MOUSE_INTERVAL)
        self.rest()

    def rest(self, quiet=0.3):
        """Waits until nothing is drawn any more; returns when something was for the last time."""
        last = None
        end = time.monotonic() + DEADLINE
        while time.monotonic() < end:
            seen = list(self._desktop.drawings(time.monotonic() + quiet))
            if not seen:
                return last
            last = seen[-1]
        raise CannotMeasure("the picture does not come to rest")

    def learn(self):
        """Goes over the slider slowly; returns where each number begins, in order."""
        begins = {self.number(): 0}
        for x in range(PANEL_WIDTH):
            self._desktop.point_at(x, self.y)
            self.rest(quiet=0.04)
            begins.setdefault(self.number(), x)
            if len(begins) > STEPS:
                break
        if len(begins) != STEPS + 1:
            raise CannotMeasure(f"the slider has {len(begins) - 1} steps, not {STEPS}")
        return begins

    def drag(self, begins):
        """From one end to the other like a mouse. Returns the times from the move that called for
        a number to its first sight, and that from the last move until rest."""
        moves = sorted(begins.values())
        moved = {}
        sights = {}
        last = 0.0
        due = time.monotonic()
        for x in range(moves[1] - 4, moves[-1] + 1):
            moved[x] = self._desktop.point_at(x, self.y)
            due += MOUSE_INTERVAL
            for last in self._desktop.drawings(due):
                sights.setdefault(self.number(), last)
        for last in self._desktop.drawings(time.monotonic() + 0.5):
            sights.setdefault(self.number(), last)
        last = self.rest() or last
        lags = [sights[n] - moved[x] for n, x in begins.items() if x in moved and n in sights]
        return lags, max(0.0, last - moved[moves[-1]])


def measured_drag(desktop, program):
    with Run(desktop, program) as run:
        run.first_frame()
        run.last_drawing(1.0)
        slider = Slider(desktop)
        slider.take()
        begins = slider.learn()
        slider.to_left_end(PANEL_WIDTH)
        result = slider.drag(begins)
        desktop.press(False)
        desktop.point_at(WIDTH - 1, HEIGHT - 1)
        return result


def print_rounds(program, bare):
    """The medians over all rounds, beside one another."""
    goals = (STARTUP_GOAL, None, MEMORY_GOAL, MEMORY_GOAL, None)
    units = ("ms", "ms", "MiB", "MiB", "MiB")
    print(f"  {'median':<20}  {'program':>12}  {'bare window':>12}  {'ratio':>5}  goal")
    for field, unit, goal, *values in zip(FIELDS, units, goals, zip(*program), zip(*bare)):
        medians = [statistics.median(value) for value in values]
        ratio = medians[0] / medians[1]
        verdict = f"{goal:.2f} {'met' if ratio <= goal else 'missed'}" if goal else ""
        columns = "  ".join(f"{median:8.1f} {unit:<3}" for median in medians)
        print(f"  {field:<20}  {columns}  {ratio:5.2f}  {verdict}".rstrip())


def main():
    parser = argparse.ArgumentParser(description="measures the program's window beside a bare one")
    parser.add_argument("program")
    parser.add_argument("bare")
    parser.add_argument("--rounds", type=int, default=15)
    parser.add_argument("--idle-seconds", type=float, default=30.0)
    parser.add_argument("--starts-only", action="store_true", help="neither idle nor drag")
    options = parser.parse_args()

    programs = (options.program, options.bare)
    for with_bus in (False, True):
        with Desktop(with_bus) as first, Desktop(with_bus) as second:
            desktops = (first, second)
            title = "With a session bus" if with_bus else "Without a session bus"
            print(f"{title}, {options.rounds} rounds", flush=True)
            print_rounds(*measured_rounds(programs, desktops, options.rounds))
            if options.starts_only:
                continue
            switches = measured_idling(programs, desktops, options.idle_seconds)
            print(
                f"  context switches in {options.idle_seconds:.0f} s of idling: "
                f"{switches[0]}, of the bare window {switches[1]}",
                flush=True,
            )

    if options.starts_only:
        return
    with Desktop(False) as desktop:
        lags, rest = measured_drag(desktop, options.program)
    print("Dragging the length from 8 to 64, pixel by pixel, 125 moves a second")
    print(f"  steps seen on the screen: {len(lags)} of {STEPS}", end="")
    print(", every step was drawn" if len(lags) == STEPS else "")
    if lags:
        print(
            f"  from the move to its number: median {statistics.median(lags) * 1000:.1f} ms, "
            f"longest {max(lags) * 1000:.1f} ms"
        )
    print(f"  from the last move until nothing changes any more: {rest * 1000:.1f} ms")


if __name__ == "__main__":
    try:
        main()
    except (CannotMeasure, StartError) as reason:
        sys.exit(f"window_bench: cannot measure: {reason}")
