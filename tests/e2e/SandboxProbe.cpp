// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

// Loaded in front of the C library, this does from inside the program what a faulty library might
// do: it writes, sends and starts things, from every thread, at the moment at which the first
// secret is drawn. What came of it is told on standard error, a line each:
//
//     probe <thread> <attempt> <0, or the error's number>

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstddef>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <string>

#include <dlfcn.h>
#include <fcntl.h>
#include <linux/io_uring.h>
#include <semaphore.h>
#include <sys/mman.h>
#include <sys/ptrace.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace {

/// Paths in the home folder; the first two are there before.
struct Paths
{
    std::string home = std::getenv("HOME"); // NOLINT(concurrency-mt-unsafe): one thread asks
    std::string file = home + "/file";
    std::string folder = home + "/folder";
    std::string fresh = home + "/fresh";
};

const Paths& paths()
{
    static const Paths all;
    return all;
}

int errorOf(long result)
{
    return result < 0 ? errno : 0;
}

/// Whether the descriptor could be had; closes it.
int errorOfOpening(int descriptor)
{
    const int error = errorOf(descriptor);
    if (descriptor >= 0)
        ::close(descriptor);
    return error;
}

int errorOfSocket(long family)
{
    return errorOfOpening(static_cast<int>(::syscall(SYS_socket, family, SOCK_DGRAM, 0)));
}

/// Runs `act`, which returns an error's number, in a process of its own.
template<typename Act>
int inChild(Act act)
{
    const pid_t child = ::_Fork();
    if (child == 0)
        ::_exit(act());
    int status = 0;
    while (::waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

int startProgram()
{
    std::array<char, 10> name{"/bin/true"};
    std::array<char*, 2> arguments{name.data(), nullptr};
    std::array<char*, 1> environment{nullptr};
    return errorOf(::execve(name.data(), arguments.data(), environment.data()));
}

int readMemory()
{
    int from = 1;
    int to = 0;
    const iovec source{&from, sizeof(from)};
    const iovec target{&to, sizeof(to)};
    return errorOf(::process_vm_readv(::getpid(), &target, 1, &source, 1, 0));
}

int startRings()
{
    io_uring_params parameters{};
    return errorOfOpening(static_cast<int>(::syscall(SYS_io_uring_setup, 1, &parameters)));
}

struct Attempt
{
    const char* name;
    int (*act)();
};

// Each leaves things as it found them, for the next thread.
constexpr std::array attempts{
    Attempt{"create",
            [] {
                const int error
                    = errorOfOpening(::open(paths().fresh.c_str(), O_WRONLY | O_CREAT, 0600));
                ::unlink(paths().fresh.c_str());
                return error;
            }},
    Attempt{"write", [] { return errorOfOpening(::open(paths().file.c_str(), O_WRONLY)); }},
    Attempt{"append",
            [] { return errorOfOpening(::open(paths().file.c_str(), O_WRONLY | O_APPEND)); }},
    Attempt{"mark",
            [] { return errorOf(::setxattr(paths().file.c_str(), "user.mark", "1", 1, 0)); }},
    Attempt{"rename",
            [] {
                const int error = errorOf(::rename(paths().file.c_str(), paths().fresh.c_str()));
                return error != 0 ? error
                                  : errorOf(::rename(paths().fresh.c_str(), paths().file.c_str()));
            }},
    Attempt{"link",
            [] {
                const int error = errorOf(::link(paths().file.c_str(), paths().fresh.c_str()));
                ::unlink(paths().fresh.c_str());
                return error;
            }},
    Attempt{"symlink",
            [] {
                const int error = errorOf(::symlink("file", paths().fresh.c_str()));
                ::unlink(paths().fresh.c_str());
                return error;
            }},
    Attempt{"mkdir",
            [] {
                const int error = errorOf(::mkdir(paths().fresh.c_str(), 0700));
                ::rmdir(paths().fresh.c_str());
                return error;
            }},
    Attempt{"rmdir",
            [] {
                const int error = errorOf(::rmdir(paths().folder.c_str()));
                ::mkdir(paths().folder.c_str(), 0700);
                return error;
            }},
    Attempt{"mkfifo",
            [] {
                const int error = errorOf(::mkfifo(paths().fresh.c_str(), 0600));
                ::unlink(paths().fresh.c_str());
                return error;
            }},
    Attempt{"exec", [] { return inChild(startProgram); }},
    Attempt{"ptrace",
            [] { return inChild([] { return errorOf(::ptrace(PTRACE_TRACEME, 0, 0, 0)); }); }},
    Attempt{"read-memory", readMemory},
    Attempt{"rings", startRings},
    Attempt{"internet", [] { return errorOfSocket(AF_INET); }},
    Attempt{"internet-6", [] { return errorOfSocket(AF_INET6); }},
    // The kernel reads no more than 32 bits of it.
    Attempt{"internet-disguised", [] { return errorOfSocket(AF_INET | (1L << 32)); }},
    Attempt{"unix", [] { return errorOfSocket(AF_UNIX); }},
    Attempt{"netlink", [] { return errorOfOpening(::socket(AF_NETLINK, SOCK_RAW, 0)); }},
    Attempt{"read", [] { return errorOfOpening(::open(paths().file.c_str(), O_RDONLY)); }},
    Attempt{"null", [] { return errorOfOpening(::open("/dev/null", O_WRONLY)); }},
    Attempt{"memory-file", [] { return errorOfOpening(::memfd_create("sandbox-probe", 0)); }},
};

std::array<int, attempts.size()> errors;
sem_t done;

void attemptAll()
{
    std::ranges::transform(attempts, errors.begin(), [](const Attempt& a) { return a.act(); });
}

void attemptAllHere(int /*signal*/)
{
    const int before = errno;
    attemptAll();
    ::sem_post(&done);
    errno = before;
}

void tell(const std::string& thread)
{
    for (std::size_t i = 0; i < attempts.size(); ++i)
        std::cerr << "probe " << thread << ' ' << attempts.at(i).name << ' ' << errors.at(i)
                  << '\n';
}

void intrude()
{
    paths();
    attemptAll();
    tell("main");

    ::sem_init(&done, 0, 0);
    struct sigaction action{};
    action.sa_handler = attemptAllHere; // NOLINT(cppcoreguidelines-pro-type-union-access)
    action.sa_flags = SA_RESTART;
    ::sigaction(SIGUSR2, &action, nullptr);
    for (const auto& task : std::filesystem::directory_iterator("/proc/self/task")) {
        const std::string thread = task.path().filename();
        const pid_t number = std::stoi(thread);
        if (number == ::getpid() || ::syscall(SYS_tgkill, ::getpid(), number, SIGUSR2) != 0)
            continue;
        while (::sem_wait(&done) != 0) {
        }
        tell(thread);
    }
    std::cerr << "probe done\n";
}

std::atomic_flag hasIntruded;

} // namespace

extern "C" ssize_t getrandom(void* buffer, std::size_t size, unsigned int flags)
{
    if (size == 8 && !hasIntruded.test_and_set())
        intrude();
    using Function = ssize_t (*)(void*, std::size_t, unsigned int);
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): what dlsym yields has no type
    static const auto next = reinterpret_cast<Function>(::dlsym(RTLD_NEXT, "getrandom"));
    return next(buffer, size, flags);
}
