# SPDX-FileCopyrightText: 2026 Morvane-Projekt
# SPDX-License-Identifier: MIT

"""What a program asked the kernel for: traced, read back, and held against what was promised."""

import pathlib
import re
import typing

# Whatever names a file, makes a process or a connection, or could do either past the tracer. The
# trace keeps no data (-s 0) and says what descriptors stand for (-y).
TRACE = (
    "%file,socket,socketpair,bind,connect,listen,accept,accept4,sendto,sendmsg,sendmmsg,"
    "clone,clone3,fork,vfork,execve,execveat,io_uring_setup,open_by_handle_at"
)

READING = {
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

OPENING = {"open", "openat", "openat2", "creat"}

WRITING = re.compile(r"\bO_(WRONLY|RDWR|CREAT|TRUNC|APPEND|TMPFILE)\b")

DEVICES = re.compile(r"/dev/(null|dri/[^/]+|shm/[^/]+)")
"""Devices, and memory under the name of a file."""

FAMILIES = {"AF_UNIX", "AF_NETLINK"}

RESUMED = re.compile(r"<\.\.\. (?P<name>\w+) resumed>(?P<rest>.*)")
UNFINISHED = re.compile(r"(?P<begin>.*?) ?<unfinished \.\.\.>")
CALL = re.compile(r"(?P<name>\w+)\((?P<arguments>.*)\) += (?P<result>.+)")
NOTE = re.compile(r"(\+\+\+|---) .* (\+\+\+|---)")

FOLDER = r"(?:(?:AT_FDCWD|\d+)<(?P<folder>[^>]*)>, )?"
PATH = re.compile(FOLDER + r'"(?P<path>(?:[^"\\]|\\.)*)"')
OPENED = re.compile(r"\d+<(?P<path>[^>]*)>")
ADDRESS = re.compile(r'sa_family=(?P<family>\w+)(?:, sun_path=(?P<path>@?"(?:[^"\\]|\\.)*"))?')


class Call(typing.NamedTuple):
    """A system call as strace shows it."""

    name: str
    arguments: str
    result: str

    def __str__(self):
        return f"{self.name}({self.arguments}) = {self.result}"


def tracing(log):
    """The command that turns into the program named after it, and has it traced into `log`."""
    # The tracer is the program's grandchild, and ends after it.
    return ["strace", "-D", "-f", "-y", "-s", "0", "-e", f"trace={TRACE}", "-o", str(log)]


def read(log):
    """The calls in the lines of a trace."""
    calls, begun = [], {}
    for line in log:
        thread, _, rest = line.rstrip("\n").partition(" ")
        rest = rest.lstrip()
        if NOTE.fullmatch(rest):
            continue
        if resumed := RESUMED.fullmatch(rest):
            rest = begun.pop((thread, resumed["name"]), "") + resumed["rest"]
        if unfinished := UNFINISHED.fullmatch(rest):
            begin = unfinished["begin"]
            begun[thread, begin.partition("(")[0]] = begin
            continue
        call = CALL.fullmatch(rest)
        if not call:
            raise AssertionError(f"not understood: {line}")
        calls.append(Call(**call.groupdict()))
    # The process ended in the middle of these, and nobody knows how far they had come.
    for begin in begun.values():
        name, _, arguments = begin.partition("(")
        calls.append(Call(name, arguments, "?"))
    return calls


def read_files(calls):
    """The paths of all files that were opened."""
    results = [OPENED.match(call.result) for call in calls if call.name in OPENING]
    return {opened["path"] for opened in results if opened}


def offences(calls, program, peers):
    """Those of `calls` with which more than reading is attempted, or anybody but `peers` spoken to.

    `peers` are the paths of sockets; of those without a file, with an @ in front.
    """
    started = Call("execve", f'"{program}"', "0")
    found = []
    for call in calls:
        if call.name == "execve" and started and call.arguments.startswith(started.arguments):
            started = None  # once
        elif not allowed(call, peers):
            found.append(call)
    return found


def allowed(call, peers):
    """Whether a call keeps the promise. One that nobody has thought of does not."""
    name, arguments = call.name, call.arguments
    if name in READING:
        return True
    if name in OPENING:
        return reads_only(call) or is_device(call)
    if name == "mkdir":
        return call.result.startswith("-1 EEXIST")
    if name in ("socket", "socketpair"):
        return arguments.partition(",")[0] in FAMILIES
    addresses = list(ADDRESS.finditer(arguments))
    if name == "connect":
        return len(addresses) == 1 and is_peer(addresses[0], peers)
    if name in ("sendto", "sendmsg", "sendmmsg"):
        return all(is_peer(address, peers) for address in addresses)
    if name == "bind":
        return [address["family"] for address in addresses] == ["AF_NETLINK"]
    if name in ("clone", "clone3"):
        return "CLONE_THREAD" in arguments
    return False


def is_peer(address, peers):
    if address["family"] == "AF_UNIX":
        return (address["path"] or "").replace('"', "") in peers
    return address["family"] == "AF_NETLINK"


def reads_only(call):
    # A name can look like a flag.
    flags = PATH.sub("", call.arguments)
    return call.name != "creat" and "O_RDONLY" in flags and not WRITING.search(flags)


def is_device(call):
    """Whether a file is a device, by the name that was asked for and by what became of it."""
    asked = PATH.match(call.arguments)
    if not asked:
        return False
    paths = [pathlib.PurePosixPath(asked["folder"] or "/", asked["path"])]
    if opened := OPENED.match(call.result):
        paths.append(pathlib.PurePosixPath(opened["path"]))
    return all(".." not in path.parts and DEVICES.fullmatch(str(path)) for path in paths)
