# SPDX-FileCopyrightText: 2026 Morvane-Projekt
# SPDX-License-Identifier: MIT

"""The system calls of the program store and send nothing while all of its functions are used."""

import os
import pathlib
import re
import unittest
from unittest import mock

from desktop import (
    ARTIFACTS,
    DEADLINE,
    Desktop,
    Program,
    find_first,
    output,
    role_name,
    showing_objects,
    wait_for,
)
from systemcalls import find_violations, opened_files, parse_trace, trace_command

PROGRAMS = {
    "sandboxed": os.environ["MORVANE_PROGRAM"],
    "unsandboxed": os.environ["MORVANE_UNSANDBOXED_PROGRAM"],
}

CLEAR_DELAY = 30.0
"""Seconds after which a copied secret is cleared."""

ALERT = "Einstellung prüfen"
ABOUT = "Über Morvane"


class Session:
    """Uses every function of the program once."""

    clipboard_command = ("xclip", "-o", "-selection", "clipboard")

    def __init__(self, program):
        self.program = program

    def clipboard(self):
        return output("timeout", "10", *self.clipboard_command)

    def run(self):
        """Uses the program from its first window until its end."""
        self.program.ensure_keyboard_focus()
        self.generate_and_copy()
        self.change_password_settings()
        self.open_and_close_the_alert()
        self.restore_from_the_history()
        self.change_passphrase_settings()
        self.open_and_close_the_about_window()
        wait_for(lambda: not self.clipboard(), "an empty clipboard", CLEAR_DELAY + DEADLINE)
        self.program.key("ctrl+q")
        if self.program.wait_for_exit() != (0, ""):
            raise AssertionError("the program ended with an error or a warning")

    def generate(self, action):
        before = self.program.history()
        action()
        wait_for(lambda: self.program.history() != before, "another secret")

    def generate_and_copy(self):
        self.program.click("Kopieren", "button")
        wait_for(lambda: self.clipboard() == self.program.secret(), "the first copy")
        self.generate(lambda: self.program.click("Neu erzeugen"))
        self.generate(lambda: self.program.key("ctrl+r"))
        self.program.key("ctrl+shift+c")
        wait_for(lambda: self.clipboard() == self.program.secret(), "the second copy")

    def change_password_settings(self):
        self.generate(lambda: self.program.set_slider("Länge", 24))
        for name in ("Ähnliche Zeichen vermeiden", "Jede Gruppe muss vorkommen"):
            self.generate(lambda: self.program.click(name))

    def open_and_close_the_alert(self):
        for name in ("Kleinbuchstaben", "Großbuchstaben", "Zahlen"):
            self.generate(lambda: self.program.click(name))
        self.program.click("Sonderzeichen")
        self.program.find(lambda a: a.name == ALERT, "the alert")
        self.program.key("Return")
        wait_for(
            lambda: not find_first(self.program.accessible(), lambda a: a.name == ALERT), "no alert"
        )
        self.generate(lambda: self.program.click("Zahlen"))

    def restore_from_the_history(self):
        row = self.program.history()[2]
        self.program.click(row, "button")
        wait_for(lambda: self.program.secret() == row, "the third secret in the display")

    def change_passphrase_settings(self):
        self.generate(lambda: self.program.click("Passphrase"))
        self.generate(lambda: self.program.set_slider("Wörter", 8))
        for name in ("Wörter groß beginnen", "Zahl anhängen"):
            self.generate(lambda: self.program.click(name))
        self.program.click("Trennzeichen")
        self.program.key("ctrl+a")
        self.generate(lambda: self.program.key("x"))
        self.generate(lambda: self.program.click("Passwort"))

    def open_and_close_the_about_window(self):
        self.program.key("F10")
        self.program.find(lambda a: a.name == "Morvane beenden", "the menu")
        self.program.key("Down", "Return")
        about = self.program.find(
            lambda a: a.name == ABOUT and role_name(a) in ("dialog", "frame", "window"),
            "the About window",
        )
        wait_for(lambda: showing_objects(about), "the contents of the About window")
        self.wait_until_active(about)
        self.program.key("Escape")
        wait_for(
            lambda: not find_first(self.program.accessible(), lambda a: a.name == ABOUT),
            "no About window",
        )
        self.program.ensure_keyboard_focus()

    @staticmethod
    def wait_until_active(window):
        import pyatspi

        wait_for(lambda: window.getState().contains(pyatspi.STATE_ACTIVE), "an active window")


class Privacy(unittest.TestCase):
    desktop_type, program_type, session_type = Desktop, Program, Session
    variables = {}
    libraries = {"libQt6XcbQpa"}
    """Libraries that are loaded only with the expected platform plugin and graphics driver."""

    @classmethod
    def setUpClass(cls):
        cls.desktop = cls.desktop_type()
        cls.addClassCleanup(cls.desktop.close)
        # LeakSanitizer traces the program as well, and a process has at most one tracer.
        cls.enterClassContext(
            mock.patch.dict(
                os.environ,
                ASAN_OPTIONS=os.environ.get("ASAN_OPTIONS", "") + ":detect_leaks=0",
            )
        )

    def peers(self):
        """The addresses of the sockets of the X server and of the buses."""
        number = os.environ["DISPLAY"].partition(":")[2]
        return {f"@/tmp/.X11-unix/X{number}", *self.buses()}

    @staticmethod
    def buses():
        session = re.search(r"unix:path=([^,]+)", os.environ["DBUS_SESSION_BUS_ADDRESS"])[1]
        runtime = pathlib.Path(os.environ["XDG_RUNTIME_DIR"])
        return {session, *(str(path) for path in (runtime / "at-spi").iterdir())}

    def test_stores_and_sends_nothing(self):
        for name, program in PROGRAMS.items():
            with self.subTest(name):
                self.assert_no_violations(name, program)

    def assert_no_violations(self, name, program):
        ARTIFACTS.mkdir(parents=True, exist_ok=True)
        log = ARTIFACTS / f"{type(self).__name__}-{name}.strace"
        with self.program_type(
            self.desktop, program=program, wrapper=trace_command(log), variables=self.variables
        ) as running:
            self.session_type(running).run()
        with log.open(encoding="ascii") as lines:
            calls = parse_trace(lines)
        opened = {pathlib.PurePath(path).name.partition(".so")[0] for path in opened_files(calls)}
        self.assertLessEqual(self.libraries, opened)
        self.assertIn("connect", [call.name for call in calls])
        self.assertEqual(list(map(str, find_violations(calls, program, self.peers()))), [])
        self.assertEqual(sorted(self.desktop.home.rglob("*")), [])


class Trace(unittest.TestCase):
    """Tests of the functions that parse a trace and find violations."""

    PEERS = {"@/tmp/.X11-unix/X7", "/run/user/0/bus"}

    ALLOWED = """
1 execve("/opt/program", [...], 0x7ffd9f342350 /* 44 vars */) = 0
1 clone(child_stack=NULL, flags=CLONE_CHILD_CLEARTID|CLONE_CHILD_SETTID|SIGCHLD, child_tidptr=0) = 2
1 access("/etc/ld.so.preload", R_OK) = -1 ENOENT (No such file or directory)
1 openat(AT_FDCWD</srv>, "/etc/ld.so.cache", O_RDONLY|O_CLOEXEC) = 3</etc/ld.so.cache>
1 openat(AT_FDCWD</srv>, "/home/O_RDWR", O_RDONLY) = -1 ENOENT (No such file or directory)
1 openat(AT_FDCWD</srv>, "/dev/null", O_WRONLY|O_CREAT|O_TRUNC, 0666) = 3</dev/null>
1 openat(4</dev/dri>, "card0", O_RDWR) = 5</dev/dri/card0>
1 clone3({flags=CLONE_VM|CLONE_THREAD, exit_signal=0} => {parent_tid=[2]}, 88) = 2
2 newfstatat(3</usr>, "", {st_mode=S_IFREG|0644, st_size=1, ...}, AT_EMPTY_PATH) = 0
1 openat(AT_FDCWD</srv>, "/etc/fstab", O_RDONLY <unfinished ...>
2 readlink("/usr",  <unfinished ...>
1 <... openat resumed>) = 4</etc/fstab>
2 <... readlink resumed>0x7f256ddf4000, 4095) = -1 EINVAL (Invalid argument)
1 mkdir("/run/user/0", 0700) = -1 EEXIST (File exists)
1 socket(AF_UNIX, SOCK_STREAM|SOCK_CLOEXEC, 0) = 3<socket:[12714]>
1 connect(3<socket:[12714]>, {sa_family=AF_UNIX, sun_path=@"/tmp/.X11-unix/X7"}, 20) = 0
1 connect(4<socket:[12715]>, {sa_family=AF_UNIX, sun_path="/run/user/0/bus"}, 18) = 0
1 sendmsg(4<socket:[12715]>, {msg_name=NULL, msg_namelen=0, msg_iov=[...]}, 0) = 32
1 sendto(4<socket:[12715]>, ""..., 5, MSG_NOSIGNAL, NULL, 0) = 5
1 --- SIGTERM {si_signo=SIGTERM, si_code=SI_USER, si_pid=3, si_uid=0} ---
2 +++ exited with 0 +++
1 +++ killed by SIGTERM +++
"""

    VIOLATIONS = """
1 openat(AT_FDCWD</srv>, "/home/file", O_WRONLY|O_CREAT|O_TRUNC, 0666) = 3</home/file>
1 openat(AT_FDCWD</srv>, "/home/file", O_RDWR) = -1 EACCES (Permission denied)
1 openat(AT_FDCWD</srv>, "O_RDONLY", O_WRONLY) = 3</srv/O_RDONLY>
1 openat(AT_FDCWD</srv>, "/home/file", O_RDONLY|O_CREAT, 0600) = 3</home/file>
1 openat(AT_FDCWD</srv>, "/tmp", O_RDWR|O_CLOEXEC|O_TMPFILE, 0777) = 3</tmp/#1>(deleted)
1 openat(3</home>, "dri/card0", O_RDWR) = 4</home/dri/card0>
1 openat(AT_FDCWD</srv>, "/dev/shm/../../home/file", O_RDWR) = 4</home/file>
1 openat(AT_FDCWD</srv>, "/dev/shm/link", O_RDWR) = 4</home/file>
1 openat(AT_FDCWD</srv>, "/dev/sda", O_RDWR) = 4</dev/sda>
1 openat(AT_FDCWD</srv>, NULL, O_RDWR) = -1 EFAULT (Bad address)
1 openat2(AT_FDCWD</srv>, "a", {flags=O_WRONLY|O_CREAT, mode=0600}, 24) = 3</srv/a>
1 open("/home/file", O_WRONLY|O_APPEND) = 3</home/file>
1 creat("/home/file", 0600) = 3</home/file>
1 mkdir("/home/.cache", 0700) = 0
1 mkdir("/home/.cache", 0700) = -1 EACCES (Permission denied)
1 mkdirat(AT_FDCWD</srv>, "/home/.cache", 0700) = 0
1 rename("/home/a", "/home/b") = 0
1 renameat2(AT_FDCWD</srv>, "a", AT_FDCWD</srv>, "b", RENAME_NOREPLACE) = 0
1 link("/home/a", "/home/b") = 0
1 symlink("/home/a", "/home/b") = 0
1 unlink("/home/a") = -1 ENOENT (No such file or directory)
1 truncate("/home/a", 0) = 0
1 chmod("/home/a", 0600) = 0
1 mknod("/home/a", S_IFIFO|0600) = 0
1 utimensat(AT_FDCWD</srv>, "a", NULL, 0) = 0
1 socket(AF_INET, SOCK_STREAM|SOCK_CLOEXEC, IPPROTO_IP) = 3<socket:[1]>
1 socket(AF_INET6, SOCK_DGRAM, IPPROTO_IP) = -1 EAFNOSUPPORT (Address family not supported)
1 socket(AF_NETLINK, SOCK_RAW|SOCK_CLOEXEC, NETLINK_ROUTE) = 5<socket:[20984]>
1 bind(5<socket:[20984]>, {sa_family=AF_NETLINK, nl_pid=0, nl_groups=00000000}, 12) = 0
1 socket(AF_UNIX, SOCK_DGRAM, 0) = 3<socket:[1]>
1 socket(AF_UNIXISH, SOCK_STREAM, 0) = 3<socket:[1]>
1 connect(3<socket:[1]>, {sa_family=AF_UNIX, sun_path="/dev/log"}, 11) = 0
1 connect(3<socket:[1]>, {sa_family=AF_UNIX, sun_path=@"/run/user/0/bus"}, 18) = 0
1 connect(3<socket:[1]>, {sa_family=AF_INET, sin_port=htons(53)}, 16) = 0
1 connect(3<socket:[1]>, 0x7ffd9f342350, 16) = -1 EFAULT (Bad address)
1 sendto(3<socket:[1]>, ""..., 5, 0, {sa_family=AF_UNIX, sun_path="/dev/log"}, 11) = 5
1 sendmsg(3<socket:[1]>, {msg_name={sa_family=AF_UNIX, sun_path="/dev/log"}, msg_namelen=11}, 0) = 5
1 bind(3<socket:[1]>, {sa_family=AF_UNIX, sun_path="/home/socket"}, 15) = 0
1 listen(3<socket:[1]>, 1) = 0
1 execve("/opt/program", [...], 0x7ffd9f342350 /* 44 vars */) = 0
1 execve("/bin/sh", [...], 0x7ffd9f342350 /* 44 vars */ <unfinished ...>
1 vfork() = 2
1 clone(child_stack=NULL, flags=CLONE_CHILD_SETTID|SIGCHLD, child_tidptr=0x7fb30d1f4a10) = 2
1 io_uring_setup(8, {flags=0, sq_entries=8, cq_entries=16}) = 3<anon_inode:[io_uring]>
"""

    def find_violations(self, *lines):
        start = self.ALLOWED.splitlines()[1:3]
        return find_violations(parse_trace([*start, *lines]), "/opt/program", self.PEERS)

    def test_reading_and_known_peers_are_allowed(self):
        lines = self.ALLOWED.splitlines()[3:]
        self.assertEqual(self.find_violations(*lines), [])

    def test_other_calls_are_violations(self):
        for line in self.VIOLATIONS.splitlines()[1:]:
            with self.subTest(line):
                self.assertEqual(len(self.find_violations(line)), 1)

    def test_the_parts_of_an_interrupted_call_are_joined(self):
        (call,) = self.find_violations(
            '1 openat(AT_FDCWD</srv>, "/home/file", O_RDWR <unfinished ...>',
            '2 openat(AT_FDCWD</srv>, "/etc/fstab", O_RDONLY <unfinished ...>',
            "1 <... openat resumed>) = 3</home/file>",
            "2 <... openat resumed>) = 4</etc/fstab>",
        )
        self.assertEqual(call.arguments, 'AT_FDCWD</srv>, "/home/file", O_RDWR')
        self.assertEqual(call.result, "3</home/file>")

    def test_starting_another_program_is_a_violation(self):
        calls = parse_trace(self.ALLOWED.splitlines()[1:])
        self.assertEqual(len(find_violations(calls, "/opt/another", self.PEERS)), 1)

    def test_unknown_lines_are_errors(self):
        for line in ("1 something else", "1 <... openat resumed>) = 3", "strace: whatever"):
            with self.subTest(line), self.assertRaises(AssertionError):
                parse_trace([line])


if __name__ == "__main__":
    unittest.main(verbosity=2)
