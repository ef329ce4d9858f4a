# SPDX-FileCopyrightText: 2026 Morvane-Projekt
# SPDX-License-Identifier: MIT

"""What the program takes from its starter, and how it ends if it cannot continue."""

import os
import pathlib
import resource
import shutil
import signal
import socket
import subprocess
import unittest
from unittest import mock

from desktop import DEADLINE, PROGRAM, TERMINATED, Desktop, Program, key, output, wait_for
from test_clipboard import WaylandSession, X11Session

NO_DISPLAY = "Morvane braucht eine grafische Oberfläche, und keine war zu erreichen.\n"
NO_RESOURCES = "Morvane braucht mindestens 64 Dateideskriptoren und 1 GiB Adressraum.\n"

DISPLAY_LOST = "Morvane hat die Verbindung zur grafischen Oberfläche verloren.\n"

SIGNALS = (signal.SIGHUP, signal.SIGINT, signal.SIGQUIT, signal.SIGABRT, signal.SIGSEGV, signal.SIGTERM)

PRINT_CLIPBOARD = ("timeout", "10", "xclip", "-o", "-selection", "clipboard")

CLOSE_STANDARD_DESCRIPTORS = ["sh", "-c", 'exec "$0" <&- >&- 2>&-']


class StartAndEnd(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.desktop = Desktop()
        cls.addClassCleanup(cls.desktop.close)

    def start(self, **options):
        return self.enterContext(Program(self.desktop, **options))

    def wait_for_secrets(self, program):
        """Waits until the program has drawn two secrets; returns them."""
        program.ensure_keyboard_focus()
        first = wait_for(program.secret, "a secret")
        key("ctrl+r")
        second = wait_for(lambda: program.secret() not in (None, first) and program.secret(), "two")
        return first, second

    @staticmethod
    def descriptors(program):
        """The targets of the program's file descriptors."""
        folder = pathlib.Path(f"/proc/{program.process.pid}/fd")
        return {int(path.name): os.readlink(path) for path in folder.iterdir()}

    def assert_ends(self, program, status, text):
        self.assertEqual(program.wait_for_exit(), (status, text))

    def test_qt_loads_no_plugin_that_a_variable_or_an_option_names(self):
        for name, variables, options in (
            ("variable", {"QT_QPA_GENERIC_PLUGINS": "tuiotouch"}, []),
            ("option", {}, ["-plugin", "tuiotouch"]),
        ):
            with self.subTest(name):
                wrapper = ["sh", "-c", 'exec "$0" ' + " ".join(options)]
                program = self.start(variables=variables, wrapper=wrapper)
                self.wait_for_secrets(program)
                maps = pathlib.Path(f"/proc/{program.process.pid}/maps").read_text("utf-8")
                self.assertIn("libqxcb", maps)
                self.assertNotIn("tuiotouch", maps)
                program.process.terminate()
                self.assert_ends(program, -signal.SIGTERM, TERMINATED)

    def test_connects_to_no_session_manager(self):
        with socket.create_server(("127.0.0.1", 0)) as server:
            port = server.getsockname()[1]
            program = self.start(variables={"SESSION_MANAGER": f"tcp/127.0.0.1:{port}"})
            self.wait_for_secrets(program)
            server.setblocking(False)
            self.assertRaises(BlockingIOError, server.accept)

    def test_connects_to_a_running_ibus(self):
        """Qt asks whether the daemon's process exists before it connects."""
        folder = self.desktop.home / ".config" / "ibus" / "bus"
        folder.mkdir(parents=True)
        self.addCleanup(shutil.rmtree, folder.parents[1])
        daemon = folder / "ibus-daemon"  # Qt searches for the program, but does not start it.
        daemon.touch(mode=0o755)
        address = folder / "socket"
        machine = output("dbus-uuidgen", "--get").strip()
        display = os.environ["DISPLAY"].removeprefix(":")
        (folder / f"{machine}-unix-{display}").write_text(
            f"IBUS_ADDRESS=unix:path={address}\nIBUS_DAEMON_PID={os.getpid()}\n", encoding="ascii"
        )
        with socket.socket(socket.AF_UNIX) as server:
            server.bind(str(address))
            server.listen()
            server.settimeout(DEADLINE)
            path = f"{folder}:{os.environ['PATH']}"
            self.start(variables={"PATH": path, "QT_IM_MODULE": "ibus", "XDG_CONFIG_HOME": ""})
            server.accept()[0].close()

    def test_writes_no_secret_to_a_log(self):
        folder = self.desktop.home / ".config" / "QtProject"
        folder.mkdir(parents=True)
        rules = folder / "qtlogging.ini"
        rules.write_text("[Rules]\n*=true\n*.debug=true\n*.info=true\n", encoding="ascii")
        self.addCleanup(folder.parent.rmdir)
        self.addCleanup(folder.rmdir)
        self.addCleanup(rules.unlink)
        for name, variables in (
            ("file", {}),
            ("variables", {"QT_LOGGING_RULES": "*=true", "QT_LOGGING_CONF": str(rules)}),
        ):
            with self.subTest(name):
                program = self.start(variables=variables)
                self.wait_for_secrets(program)
                program.process.terminate()
                self.assert_ends(program, -signal.SIGTERM, TERMINATED)

    def test_closes_inherited_descriptors(self):
        read_end, write_end = os.pipe()
        self.addCleanup(os.close, read_end)
        self.addCleanup(os.close, write_end)
        os.set_inheritable(read_end, True)
        program = self.start(close_fds=False)
        inherited = os.readlink(f"/proc/self/fd/{read_end}")
        self.wait_for_secrets(program)
        self.assertNotIn(inherited, self.descriptors(program).values())

    def test_opens_missing_standard_descriptors(self):
        program = self.start(wrapper=CLOSE_STANDARD_DESCRIPTORS)
        self.wait_for_secrets(program)
        descriptors = self.descriptors(program)
        self.assertEqual({descriptors[number] for number in range(3)}, {"/dev/null"})

    def test_a_signal_ends_the_program_and_its_offer_with_a_message(self):
        for number in SIGNALS:
            with self.subTest(number.name):
                program = self.start()
                program.ensure_keyboard_focus()
                key("ctrl+shift+c")
                wait_for(lambda: output(*PRINT_CLIPBOARD), "a copied secret")
                program.process.send_signal(number)
                message = f"Morvane wurde durch das Signal {number.value} beendet.\n"
                self.assert_ends(program, -number, message)
                self.assertEqual(output(*PRINT_CLIPBOARD), "")

    def test_an_ignored_signal_stays_ignored(self):
        program = self.start(wrapper=["nohup"])
        self.wait_for_secrets(program)
        program.process.send_signal(signal.SIGHUP)
        self.wait_for_secrets(program)
        program.process.terminate()
        self.assert_ends(program, -signal.SIGTERM, TERMINATED)

    def test_ends_with_one_line_without_enough_resources(self):
        for limit, value in ((resource.RLIMIT_NOFILE, 12), (resource.RLIMIT_AS, 200 << 20)):
            with self.subTest(limit=limit):
                result = subprocess.run(
                    [PROGRAM],
                    preexec_fn=lambda: resource.setrlimit(limit, (value, value)),
                    stderr=subprocess.PIPE,
                    text=True,
                    check=False,
                )
                self.assertEqual((result.returncode, result.stderr), (1, NO_RESOURCES))

    def test_ends_with_one_line_without_a_display(self):
        for name, variables in (
            ("linuxfb", {"QT_QPA_PLATFORM": "linuxfb"}),
            ("unknown platform", {"QT_QPA_PLATFORM": "nonexistent"}),
            ("no X server", {"DISPLAY": ":54321"}),
        ):
            with self.subTest(name):
                self.assert_ends(self.start(variables=variables), 1, NO_DISPLAY)


class DisplayLoss(unittest.TestCase):
    """The display server ends while the program offers a secret."""

    def test_the_program_ends_with_one_line(self):
        for session_type in (X11Session, WaylandSession):
            with self.subTest(session_type.__name__), mock.patch.dict(os.environ):
                session = session_type()
                self.addCleanup(session.desktop.close)
                session.start()
                session.copy()
                session.desktop.kill_display_server()
                self.assertEqual(session.program.wait_for_exit(), (1, DISPLAY_LOST))


if __name__ == "__main__":
    unittest.main()
