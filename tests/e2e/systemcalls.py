# SPDX-FileCopyrightText: 2026 Morvane-Projekt
# SPDX-License-Identifier: MIT

"""Traces a program's system calls with strace and finds calls that store or send data."""

import pathlib
import re
import typing

# The system calls that name a file, create a process or use a connection, and the system calls that
# make the same possible in another way: io_uring_setup and open_by_handle_at.
TRACE = (
    "%file,socket,socketpair,bind,connect,listen,accept,accept4,sendto,sendmsg,sendmmsg,"
    "clone,clone3,fork,vfork,execve,execveat,io_uring_setup,open_by_handle_at"
)

READ_ONLY_CALLS = {
    "access",
    "faccessat",
    "faccessat2",
    "getcwd",
    "getxattr",
    "inotify_add_watch",
    "lgetxattr",
    "listxattr",
    "llistxattr",
    "lstat",
    "newfstatat",
    "readlink",
    "readlinkat",
    "stat",
    "statfs",
    "statx",
}

OPEN_CALLS = {"open", "openat", "openat2", "creat"}

WRITE_FLAGS = re.compile(r"\bO_(WRONLY|RDWR|CREAT|TRUNC|APPEND|TMPFILE)\b")

DEVICES = re.compile(r"/dev/(null|dri/[^/]+|shm/[^/]+)")
"""Paths that the program may open for writing: devices and POSIX shared memory."""

RESUMED = re.compile(r"<\.\.\. (?P<name>\w+) resumed>(?P<rest>.*)")
UNFINISHED = re.compile(r"(?P<begin>.*?) ?<unfinished \.\.\.>")
CALL = re.compile(r"(?P<name>\w+)\((?P<arguments>.*)\) += (?P<result>.+)")
EVENT = re.compile(r"(\+\+\+|---) .* (\+\+\+|---)")

FOLDER = r"(?:(?:AT_FDCWD|\d+)<(?P<folder>[^>]*)>, )?"
PATH = re.compile(FOLDER + r'"(?P<path>(?:[^"\\]|\\.)*)"')
RESULT_PATH = re.compile(r"\d+<(?P<path>[^>]*)>")
NEW_PROCESS = re.compile(r"CLONE_CHILD_SETTID\|SIGCHLD\b")
"""The flags with which the C library's fork calls clone."""

ADDRESS = re.compile(r'sa_family=(?P<family>\w+)(?:, sun_path=(?P<path>@?"(?:[^"\\]|\\.)*"))?')


class Call(typing.NamedTuple):
    """A system call as strace shows it."""

    name: str
    arguments: str
    result: str

    def __str__(self):
        return f"{self.name}({self.arguments}) = {self.result}"


def trace_command(log):
    """The beginning of a command to which a program's path is appended; the trace goes to `log`."""
    # With -D, the started process becomes the program, and strace is its grandchild. With -s 0, the
    # trace contains no data. With -y, the trace contains the paths of file descriptors.
    return ["strace", "-D", "-f", "-y", "-s", "0", "-e", f"trace={TRACE}", "-o", str(log)]


def parse_trace(log):
    """Parses the lines of a trace into calls."""
    calls, unfinished_calls = [], {}
    for line in log:
        thread, _, rest = line.rstrip("\n").partition(" ")
        rest = rest.lstrip()
        if EVENT.fullmatch(rest):
            continue
        if resumed := RESUMED.fullmatch(rest):
            rest = unfinished_calls.pop((thread, resumed["name"]), "") + resumed["rest"]
        if unfinished := UNFINISHED.fullmatch(rest):
            begin = unfinished["begin"]
            unfinished_calls[thread, begin.partition("(")[0]] = begin
            continue
        call = CALL.fullmatch(rest)
        if not call:
            raise AssertionError(f"unknown line in the trace: {line}")
        calls.append(Call(**call.groupdict()))
    # The process ended during these calls, so their results are unknown.
    for begin in unfinished_calls.values():
        name, _, arguments = begin.partition("(")
        calls.append(Call(name, arguments, "?"))
    return calls


def opened_files(calls):
    """The paths of all files that the calls opened."""
    results = [RESULT_PATH.match(call.result) for call in calls if call.name in OPEN_CALLS]
    return {opened["path"] for opened in results if opened}


def find_violations(calls, program, peers):
    """The calls that change files, start processes or use sockets other than `peers`.

    `peers` are paths of sockets; the paths of abstract sockets begin with @. The first execve of
    the program itself and the first fork, of the process that asks the desktop portal, are allowed.
    """
    is_started = has_forked = False
    violations = []
    for call in calls:
        if not is_started and call.name == "execve" and call.arguments.startswith(f'"{program}"'):
            is_started = True
        elif not has_forked and call.name == "clone" and NEW_PROCESS.search(call.arguments):
            has_forked = True
        elif not is_allowed(call, peers):
            violations.append(call)
    return violations


def is_allowed(call, peers):
    """Whether a call is harmless. System calls that are not listed here are not allowed."""
    name, arguments = call.name, call.arguments
    if name in READ_ONLY_CALLS:
        return True
    if name in OPEN_CALLS:
        return opens_read_only(call) or opens_device(call)
    if name == "mkdir":
        return call.result.startswith("-1 EEXIST")
    if name in ("socket", "socketpair"):
        return arguments.startswith("AF_UNIX, SOCK_STREAM")
    addresses = list(ADDRESS.finditer(arguments))
    if name == "connect":
        return len(addresses) == 1 and is_peer(addresses[0], peers)
    if name in ("sendto", "sendmsg", "sendmmsg"):
        return all(is_peer(address, peers) for address in addresses)
    if name in ("clone", "clone3"):
        return "CLONE_THREAD" in arguments
    return False


def is_peer(address, peers):
    return address["family"] == "AF_UNIX" and (address["path"] or "").replace('"', "") in peers


def opens_read_only(call):
    # A file name can contain the name of a flag.
    flags = PATH.sub("", call.arguments)
    return call.name != "creat" and "O_RDONLY" in flags and not WRITE_FLAGS.search(flags)


def opens_device(call):
    """Whether both the requested path and the path of the opened file are those of a device."""
    requested = PATH.match(call.arguments)
    if not requested:
        return False
    paths = [pathlib.PurePosixPath(requested["folder"] or "/", requested["path"])]
    if opened := RESULT_PATH.match(call.result):
        paths.append(pathlib.PurePosixPath(opened["path"]))
    return all(".." not in path.parts and DEVICES.fullmatch(str(path)) for path in paths)
