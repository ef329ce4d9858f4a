# SPDX-FileCopyrightText: 2026 Morvane-Projekt
# SPDX-License-Identifier: MIT

"""A whole session on X11 under the eyes of strace: nothing is stored, and nothing is sent."""

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
    everything,
    first,
    output,
    role_name,
    until,
)
from systemcalls import offences, read, read_files, tracing

PROGRAMS = {
    "sandboxed": os.environ["MORVANE_PROGRAM"],
    "unsandboxed": os.environ["MORVANE_UNSANDBOXED_PROGRAM"],
}

STAYS = 30.0
"""Seconds after which a copied value is cleared."""

ALERT = "Einstellung prüfen"
ABOUT = "Über Morvane"


class Session:
    """Everything that a person can do with the program, once."""

    clipboard_command = ("xclip", "-o", "-selection", "clipboard")

    def __init__(self, program):
        self.program = program

    def clipboard(self):
        return output("timeout", "10", *self.clipboard_command)

    def spend(self):
        """From the first window until the program has ended."""
        self.program.activate()
        self.generate_and_copy()
        self.set_passwords()
        self.provoke_the_alert()
        self.take_back()
        self.set_passphrases()
        self.look_at_the_rest()
        until(lambda: not self.clipboard(), "an empty clipboard", STAYS + DEADLINE)
        self.program.key("ctrl+q")
        if self.program.ended() != (0, ""):
            raise AssertionError("not ended well")

    def generate(self, action):
        before = self.program.history()
        action()
        until(lambda: self.program.history() != before, "another secret")

    def generate_and_copy(self):
        self.program.click("Kopieren", "button")
        until(lambda: self.clipboard() == self.program.value(), "the secret on the clipboard")
        self.generate(lambda: self.program.click("Neu erzeugen"))
        self.generate(lambda: self.program.key("ctrl+r"))
        self.program.key("ctrl+shift+c")
        until(lambda: self.clipboard() == self.program.value(), "the next one on the clipboard")

    def set_passwords(self):
        self.generate(lambda: self.program.slide("Länge", 24))
        for name in ("Ähnliche Zeichen vermeiden", "Jede Gruppe muss vorkommen"):
            self.generate(lambda: self.program.click(name))

    def provoke_the_alert(self):
        for name in ("Kleinbuchstaben", "Großbuchstaben", "Zahlen"):
            self.generate(lambda: self.program.click(name))
        self.program.click("Sonderzeichen")
        self.program.find(lambda a: a.name == ALERT, "the alert")
        self.program.key("Return")
        until(lambda: not first(self.program.accessible(), lambda a: a.name == ALERT), "no alert")
        self.generate(lambda: self.program.click("Zahlen"))

    def take_back(self):
        row = self.program.history()[2]
        self.program.click(row, "button")
        until(lambda: self.program.value() == row, "the third secret on show")

    def set_passphrases(self):
        self.generate(lambda: self.program.click("Passphrase"))
        self.generate(lambda: self.program.slide("Wörter", 8))
        for name in ("Wörter groß beginnen", "Zahl anhängen"):
            self.generate(lambda: self.program.click(name))
        self.program.click("Trennzeichen")
        self.program.key("ctrl+a")
        self.generate(lambda: self.program.key("x"))
        self.generate(lambda: self.program.click("Passwort"))

    def look_at_the_rest(self):
        self.program.key("F10")
        self.program.find(lambda a: a.name == "Morvane beenden", "the menu")
        self.program.key("Down", "Return")
        about = self.program.find(
            lambda a: a.name == ABOUT and role_name(a) in ("dialog", "frame", "window"),
            "the About window",
        )
        until(lambda: everything(about), "what the About window says")
        self.until_active(about)
        self.program.key("Escape")
        until(
            lambda: not first(self.program.accessible(), lambda a: a.name == ABOUT),
            "no About window",
        )
        self.program.activate()

    @staticmethod
    def until_active(window):
        import pyatspi

        until(lambda: window.getState().contains(pyatspi.STATE_ACTIVE), "an active window")


class Privacy(unittest.TestCase):
    desktop_type, program_type, session_type = Desktop, Program, Session
    variables = {}
    libraries = {"libQt6XcbQpa"}
    """Some of those without which the test would not be what it says."""

    @classmethod
    def setUpClass(cls):
        cls.desktop = cls.desktop_type()
        cls.addClassCleanup(cls.desktop.close)
        # The search for leaks would trace the program as well, which one can do at a time.
        cls.enterClassContext(
            mock.patch.dict(
                os.environ,
                ASAN_OPTIONS=os.environ.get("ASAN_OPTIONS", "") + ":detect_leaks=0",
            )
        )

    def peers(self):
        """The sockets of the display and of the buses."""
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
                self.check(name, program)

    def check(self, name, program):
        ARTIFACTS.mkdir(parents=True, exist_ok=True)
        log = ARTIFACTS / f"{type(self).__name__}-{name}.strace"
        with self.program_type(
            self.desktop, program=program, under=tracing(log), variables=self.variables
        ) as running:
            self.session_type(running).spend()
        with log.open(encoding="ascii") as lines:
            calls = read(lines)
        opened = {pathlib.PurePath(path).name.partition(".so")[0] for path in read_files(calls)}
        self.assertLessEqual(self.libraries, opened)
        self.assertIn("connect", [call.name for call in calls])
        self.assertEqual(list(map(str, offences(calls, program, self.peers()))), [])
        self.assertEqual(sorted(self.desktop.home.rglob("*")), [])


class Trace(unittest.TestCase):
    """What is read from a trace, and what is found wrong with it."""

    PEERS = {"@/tmp/.X11-unix/X7", "/run/user/0/bus"}

    HARMLESS = """
1 execve("/opt/program", [...], 0x7ffd9f342350 /* 44 vars */) = 0
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
1 socket(AF_NETLINK, SOCK_RAW|SOCK_CLOEXEC, NETLINK_ROUTE) = 5<socket:[20984]>
1 bind(5<socket:[20984]>, {sa_family=AF_NETLINK, nl_pid=0, nl_groups=00000000}, 12) = 0
1 --- SIGTERM {si_signo=SIGTERM, si_code=SI_USER, si_pid=3, si_uid=0} ---
2 +++ exited with 0 +++
1 +++ killed by SIGTERM +++
"""

    HARMFUL = """
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
1 socket(AF_UNIXISH, SOCK_DGRAM, 0) = 3<socket:[1]>
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

    def offences(self, *lines):
        started = self.HARMLESS.splitlines()[1]
        return offences(read([started, *lines]), "/opt/program", self.PEERS)

    def test_nothing_is_wrong_with_reading_and_with_known_peers(self):
        lines = self.HARMLESS.splitlines()[2:]
        self.assertEqual(self.offences(*lines), [])

    def test_everything_else_is_wrong(self):
        for line in self.HARMFUL.splitlines()[1:]:
            with self.subTest(line):
                self.assertEqual(len(self.offences(line)), 1)

    def test_a_call_is_put_together_again(self):
        (call,) = self.offences(
            '1 openat(AT_FDCWD</srv>, "/home/file", O_RDWR <unfinished ...>',
            '2 openat(AT_FDCWD</srv>, "/etc/fstab", O_RDONLY <unfinished ...>',
            "1 <... openat resumed>) = 3</home/file>",
            "2 <... openat resumed>) = 4</etc/fstab>",
        )
        self.assertEqual(call.arguments, 'AT_FDCWD</srv>, "/home/file", O_RDWR')
        self.assertEqual(call.result, "3</home/file>")

    def test_a_program_of_another_name_is_wrong(self):
        calls = read(self.HARMLESS.splitlines()[1:])
        self.assertEqual(len(offences(calls, "/opt/another", self.PEERS)), 1)

    def test_what_is_not_understood_is_not_passed_over(self):
        for line in ("1 something else", "1 <... openat resumed>) = 3", "strace: whatever"):
            with self.subTest(line), self.assertRaises(AssertionError):
                read([line])


if __name__ == "__main__":
    unittest.main(verbosity=2)
