# SPDX-FileCopyrightText: 2026 Morvane-Projekt
# SPDX-License-Identifier: MIT

"""Starts and ends child processes, such as virtual X servers and session buses."""

import os
import subprocess


class StartError(Exception):
    """A server is not installed, or ends before it accepts connections."""


class Servers:
    """Starts processes for a test or a benchmark; `stop` ends these processes and no others."""

    def __init__(self):
        self._processes = []

    def start(self, command, **options):
        """Starts a process; the options are those of `subprocess.Popen`."""
        try:
            process = subprocess.Popen(
                command, stdin=subprocess.DEVNULL, stderr=subprocess.DEVNULL, **options
            )
        except FileNotFoundError:
            raise StartError(f"{command[0]} is not installed") from None
        self._processes.append(process)
        return process

    def start_x_server(self, size, environment=None):
        """Starts Xvfb with a screen of this size, such as "640x480"; returns the display's name."""
        return ":" + self._start_and_read_line(
            ["Xvfb", "-displayfd", "{fd}", "-screen", "0", f"{size}x24", "-nolisten", "tcp"],
            environment,
        )

    def start_session_bus(self, environment=None):
        """Starts a D-Bus session bus; returns its address."""
        return self._start_and_read_line(
            ["dbus-daemon", "--session", "--nofork", "--print-address={fd}"], environment
        )

    def _start_and_read_line(self, command, environment):
        """Starts a server; returns the line that the ready server writes to descriptor {fd}."""
        read_end, write_end = os.pipe()
        with os.fdopen(read_end) as pipe:
            try:
                self.start(
                    [argument.format(fd=write_end) for argument in command],
                    env=environment,
                    pass_fds=[write_end],
                )
            finally:
                os.close(write_end)
            line = pipe.readline().strip()
        if not line:
            raise StartError(f"{command[0]} ended before it accepted connections")
        return line

    def kill(self, program):
        """Kills the process that was started last with this program."""
        process = next(p for p in reversed(self._processes) if program in p.args)
        process.kill()
        process.wait()

    def stop(self):
        """Ends the processes in the reverse order of their start."""
        while self._processes:
            process = self._processes.pop()
            process.terminate()
            process.wait()
