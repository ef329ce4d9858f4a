# SPDX-FileCopyrightText: 2026 Morvane-Projekt
# SPDX-License-Identifier: MIT

"""Compares the program's window with a bare Qt Quick window by means of the X server's events.

Both programs run alternately on two identical displays without a window manager, first without and
then with a session bus. The programs contain no code for these measurements:

first frame  The time from the start of the process until the first drawing after which a pixel in
             the middle of the window no longer has the colour of the root window. The X server's
             DAMAGE extension reports drawings within a few tenths of a millisecond.
last frame   The time from the start of the process until the last drawing in the second that
             follows the first frame.
memory       The peak of resident memory at the first frame and one second later, and the anonymous
             resident memory one second after the first frame.
idle         The context switches of all threads while the window has the keyboard focus and no
             input arrives.
drag         The pointer first moves slowly over the slider, while the benchmark records the image
             of each number above the slider and the pointer position at which the image appears.
             The pointer then moves pixel by pixel at the speed of a mouse. A number counts as
             drawn if the recorded image was on the screen.
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
    from Xlib import X
    from Xlib.display import Display
    from Xlib.ext import damage, xtest
except ImportError:
    sys.exit("window_bench: cannot measure without the Python module Xlib (python3-xlib)")

sys.path.insert(0, str(pathlib.Path(__file__).parents[1] / "e2e"))

from servers import Servers, StartError

DEADLINE = 20.0
"""Seconds after which a missing event is an error."""

WIDTH, HEIGHT = 1280, 1024
ROOT_COLOUR = 0xFF00FF
INSIDE = (430, 305)
"""A point inside both windows, which are at least 860 x 610 and in the screen's top left corner."""

STARTUP_GOAL = 1.25
MEMORY_GOAL = 1.2
"""The highest acceptable ratios of the program's results to the results of the bare window."""

SETTLING_TIME = 3.0
"""Seconds between the first frame and the measurement of the idle program."""

ACCENT = bytes((0xFF, 0x7A, 0x00))
"""The colour of the slider's filled part, in the byte order of the screen."""
PANEL_WIDTH = 280
STEPS = 64 - 8
"""The steps of the slider from the shortest to the longest password."""
MOUSE_INTERVAL = 1 / 125
"""Seconds between two movements of a mouse."""


class MeasurementError(Exception):
    """A requirement of the measurement is missing."""


class Desktop:
    """An X server, a home folder and optionally a session bus, which exist in a `with` block."""

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

        self.display = Display(self.environment["DISPLAY"])
        if not self.display.has_extension("DAMAGE") or not self.display.has_extension("XTEST"):
            raise MeasurementError("the X server lacks the extension DAMAGE or XTEST")
        self.display.damage_query_version()
        self.root = self.display.screen().root
        self.root.change_attributes(
            background_pixel=ROOT_COLOUR, event_mask=X.SubstructureNotifyMask
        )
        self.root.clear_area()
        self.move_pointer(WIDTH - 1, HEIGHT - 1)
        self.root.damage_create(damage.DamageReportRawRectangles)
        self.display.sync()

    def events(self, deadline):
        """Yields the X server's events until the deadline, each with the time of its arrival."""
        while True:
            if not self.display.pending_events():
                remaining = deadline - time.monotonic()
                if remaining <= 0:
                    return
                select.select([self.display.fileno()], [], [], remaining)
            now = time.monotonic()
            for _ in range(self.display.pending_events()):
                yield now, self.display.next_event()

    def drawings(self, deadline):
        """Yields the times of drawings until the deadline."""
        for now, event in self.events(deadline):
            if self.is_drawing(event):
                yield now

    def is_drawing(self, event):
        return event.type == self.display.extension_event.DamageNotify

    def image(self, x, y, width, height):
        """The pixels of a rectangle, each of four bytes: blue, green, red and an unused byte."""
        return bytes(self.root.get_image(x, y, width, height, X.ZPixmap, 0xFFFFFFFF).data)

    def shows_window(self):
        blue, green, red = self.image(*INSIDE, 1, 1)[:3]
        return (red << 16 | green << 8 | blue) != ROOT_COLOUR

    def move_pointer(self, x, y):
        """Moves the pointer; returns the time of the request."""
        now = time.monotonic()
        xtest.fake_input(self.display, X.MotionNotify, x=x, y=y)
        self.display.flush()
        return now

    def set_button_pressed(self, pressed):
        xtest.fake_input(self.display, X.ButtonPress if pressed else X.ButtonRelease, 1)
        self.display.flush()


class Run:
    """One run of a program; the end of a `with` block ends the program."""

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
            raise MeasurementError(f"{program} does not start: {error.strerror}") from error

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
        """Waits for the first frame; returns the seconds since the start of the process."""
        for now, event in self._desktop.events(self._started + DEADLINE):
            if event.type == X.MapNotify:
                self._window = event.window
            if self._desktop.is_drawing(event) and self._desktop.shows_window():
                return now - self._started
        raise MeasurementError(f"{self.program} has shown no window within {DEADLINE:.0f} s")

    def last_drawing(self, seconds):
        """Waits for this number of seconds.

        Returns the time of the last drawing during the wait, in seconds since the start of the
        process, or None without a drawing.
        """
        last = None
        for now in self._desktop.drawings(time.monotonic() + seconds):
            last = now - self._started
        return last

    def focus_window(self):
        if self._window is None:
            raise MeasurementError(f"the X server has reported no window of {self.program}")
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
        raise MeasurementError(f"/proc/PID/{file} has no field {field}")

    def _read(self, file):
        try:
            return pathlib.Path(f"/proc/{self._process.pid}/{file}").read_text(encoding="utf-8")
        except OSError as error:
            raise MeasurementError(f"{self.program} has ended early, or {error}") from error

    def context_switches(self):
        """The number of context switches so far of every thread, by thread id."""
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
            raise MeasurementError(f"{self.program} has ended early")
        return counts


def count_context_switches(before, after):
    """The context switches between two counts. A thread that has ended counts as one switch."""
    ended = len(before.keys() - after.keys())
    return ended + sum(count - before.get(task, 0) for task, count in after.items())


FIELDS = (
    "first frame",
    "last frame",
    "peak at first frame",
    "peak after 1 s",
    "anonymous after 1 s",
)


def measure_round(desktop, program):
    """Runs the program once; returns one number for each of FIELDS."""
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


def measure_rounds(programs, desktops, rounds):
    """The numbers of every round, one list per program. Each round reverses the order."""
    results = [[] for _ in programs]
    order = list(zip(programs, desktops, results))
    for number in range(rounds + 1):
        for program, desktop, result in order:
            measured = measure_round(desktop, program)
            # The first round warms up the caches.
            if number:
                result.append(measured)
        order.reverse()
    return results


def measure_idling(programs, desktops, seconds):
    """The context switches of each program while all are idle, each on its own desktop."""
    with contextlib.ExitStack() as stack:
        runs = [stack.enter_context(Run(*pair)) for pair in zip(desktops, programs)]
        for run in runs:
            run.first_frame()
            run.focus_window()
        time.sleep(SETTLING_TIME)
        before = [run.context_switches() for run in runs]
        time.sleep(seconds)
        after = [run.context_switches() for run in runs]
    return [count_context_switches(*counts) for counts in zip(before, after)]


class Slider:
    """The length slider, found by the colour of its filled part."""

    def __init__(self, desktop):
        self._desktop = desktop
        rows = []
        for y in range(HEIGHT):
            row = desktop.image(0, y, PANEL_WIDTH, 1)
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
            raise MeasurementError("the slider was not found")
        self.y, self._left, filled = rows[len(rows) // 2]
        self._handle = filled + 9

    def number_image(self):
        """The image of the number above the slider."""
        return self._desktop.image(self._left, self.y - 38, PANEL_WIDTH - self._left, 24)

    def begin_drag(self):
        """Presses the mouse button on the handle and drags the handle to the left end."""
        self._desktop.move_pointer(self._handle, self.y)
        self._desktop.set_button_pressed(True)
        self.drag_to_left_end(self._handle)

    def drag_to_left_end(self, start):
        for x in range(start, 0, -1):
            self._desktop.move_pointer(x, self.y)
            time.sleep(MOUSE_INTERVAL)
        self.wait_until_drawn()

    def wait_until_drawn(self, quiet=0.3):
        """Waits for `quiet` seconds without drawings; returns the last drawing's time or None."""
        last = None
        end = time.monotonic() + DEADLINE
        while time.monotonic() < end:
            times = list(self._desktop.drawings(time.monotonic() + quiet))
            if not times:
                return last
            last = times[-1]
        raise MeasurementError("the window does not stop drawing")

    def record_numbers(self):
        """Moves the pointer slowly over the slider.

        Returns the pointer position at which each number first appears, by the number's image.
        """
        positions = {self.number_image(): 0}
        for x in range(PANEL_WIDTH):
            self._desktop.move_pointer(x, self.y)
            self.wait_until_drawn(quiet=0.04)
            positions.setdefault(self.number_image(), x)
            if len(positions) > STEPS:
                break
        if len(positions) != STEPS + 1:
            raise MeasurementError(f"the slider has {len(positions) - 1} steps, not {STEPS}")
        return positions

    def drag(self, positions):
        """Drags the handle from the left end to the right end at the speed of a mouse.

        Returns the time from each move to the first drawing of its number, and the time from the
        last move to the last drawing.
        """
        moves = sorted(positions.values())
        move_times = {}
        drawing_times = {}
        last = 0.0
        due = time.monotonic()
        for x in range(moves[1] - 4, moves[-1] + 1):
            move_times[x] = self._desktop.move_pointer(x, self.y)
            due += MOUSE_INTERVAL
            for last in self._desktop.drawings(due):
                drawing_times.setdefault(self.number_image(), last)
        for last in self._desktop.drawings(time.monotonic() + 0.5):
            drawing_times.setdefault(self.number_image(), last)
        last = self.wait_until_drawn() or last
        delays = [
            drawing_times[number] - move_times[x]
            for number, x in positions.items()
            if x in move_times and number in drawing_times
        ]
        return delays, max(0.0, last - move_times[moves[-1]])


def measure_drag(desktop, program):
    with Run(desktop, program) as run:
        run.first_frame()
        run.last_drawing(1.0)
        slider = Slider(desktop)
        slider.begin_drag()
        positions = slider.record_numbers()
        slider.drag_to_left_end(PANEL_WIDTH)
        result = slider.drag(positions)
        desktop.set_button_pressed(False)
        desktop.move_pointer(WIDTH - 1, HEIGHT - 1)
        return result


def print_rounds(program, bare):
    """Prints the medians over all rounds in columns."""
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
    parser = argparse.ArgumentParser(description="compares the program's window with a bare window")
    parser.add_argument("program")
    parser.add_argument("bare")
    parser.add_argument("--rounds", type=int, default=40)
    parser.add_argument("--idle-seconds", type=float, default=30.0)
    parser.add_argument("--starts-only", action="store_true", help="do not measure idle and drag")
    options = parser.parse_args()

    programs = (options.program, options.bare)
    for with_bus in (False, True):
        with Desktop(with_bus) as first, Desktop(with_bus) as second:
            desktops = (first, second)
            title = "With a session bus" if with_bus else "Without a session bus"
            print(f"{title}, {options.rounds} rounds", flush=True)
            print_rounds(*measure_rounds(programs, desktops, options.rounds))
            if options.starts_only:
                continue
            switches = measure_idling(programs, desktops, options.idle_seconds)
            print(
                f"  context switches in {options.idle_seconds:.0f} s without input: "
                f"{switches[0]}, of the bare window {switches[1]}",
                flush=True,
            )

    if options.starts_only:
        return
    with Desktop(False) as desktop:
        delays, last_delay = measure_drag(desktop, options.program)
    print("Dragging the length from 8 to 64, pixel by pixel, 125 moves a second")
    print(f"  numbers drawn: {len(delays)} of {STEPS}")
    if delays:
        print(
            "  from a move to the drawing of its number: "
            f"median {statistics.median(delays) * 1000:.1f} ms, longest {max(delays) * 1000:.1f} ms"
        )
    print(f"  from the last move to the last drawing: {last_delay * 1000:.1f} ms")


if __name__ == "__main__":
    try:
        main()
    except (MeasurementError, StartError) as error:
        sys.exit(f"window_bench: cannot measure: {error}")
