// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

// A library for LD_PRELOAD that tests the sandbox inside the program. When the program draws its
// first random number, every thread attempts to write files, open sockets, start processes and so
// on. The sandbox forbids most of these attempts. Each attempt writes one line to standard error:
//
//     probe <thread> <attempt> <0 for success, otherwise the value of errno>

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstddef>
#include <cstdint>
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

/// Paths in the home folder. The test creates `file` and `folder`; `fresh` does not exist.
struct Paths
{
    std::string home = std::getenv("HOME"); // NOLINT(concurrency-mt-unsafe): runs in one thread
    std::string file = home + "/file";
    std::string folder = home + "/folder";
    std::string fresh = home + "/fresh";
};

const Paths& paths()
{
    static const Paths instance;
    return instance;
}

int errorOf(long result)
{
    return result < 0 ? errno : 0;
}

/// The error of a call that opens a file descriptor; closes the descriptor.
int errorOfOpen(int descriptor)
{
    const int error = errorOf(descriptor);
    if (descriptor >= 0)
        ::close(descriptor);
    return error;
}

int errorOfSocket(long family)
{
    return errorOfOpen(static_cast<int>(::syscall(SYS_socket, family, SOCK_DGRAM, 0)));
}

/// The number and the last argument of the system call setxattrat, which the headers of Linux 6.12
/// and older do not declare.
constexpr long setxattrat = 463;
struct SetXattrArguments
{
    const char* value;
    std::uint32_t size;
    std::uint32_t flags;
};

/// Runs a function in a child process; returns the function's result.
template<typename Function>
int runInChild(Function function)
{
    const pid_t child = ::_Fork();
    if (child == 0)
        ::_exit(function());
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

int setUpIoUring()
{
    io_uring_params parameters{};
    return errorOfOpen(static_cast<int>(::syscall(SYS_io_uring_setup, 1, &parameters)));
}

struct Attempt
{
    const char* name;
    int (*run)();
};

// Each attempt restores the files for the next thread.
constexpr std::array attempts{
    Attempt{"create",
            [] {
                const int error
                    = errorOfOpen(::open(paths().fresh.c_str(), O_WRONLY | O_CREAT, 0600));
                ::unlink(paths().fresh.c_str());
                return error;
            }},
    Attempt{"write", [] { return errorOfOpen(::open(paths().file.c_str(), O_WRONLY)); }},
    Attempt{"append",
            [] { return errorOfOpen(::open(paths().file.c_str(), O_WRONLY | O_APPEND)); }},
    Attempt{"set-xattr",
            [] { return errorOf(::setxattr(paths().file.c_str(), "user.probe", "1", 1, 0)); }},
    Attempt{"set-xattr-descriptor",
            [] {
                const int file = ::open(paths().file.c_str(), O_RDONLY);
                const int error = errorOf(::fsetxattr(file, "user.probe", "1", 1, 0));
                ::close(file);
                return error;
            }},
    Attempt{"set-xattr-at",
            [] {
                const SetXattrArguments arguments{"1", 1, 0};
                return errorOf(::syscall(setxattrat, AT_FDCWD, paths().file.c_str(), 0,
                                         "user.probe", &arguments, sizeof(arguments)));
            }},
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
    Attempt{"exec", [] { return runInChild(startProgram); }},
    Attempt{"ptrace",
            [] { return runInChild([] { return errorOf(::ptrace(PTRACE_TRACEME, 0, 0, 0)); }); }},
    Attempt{"read-memory", readMemory},
    Attempt{"io-uring", setUpIoUring},
    Attempt{"internet", [] { return errorOfSocket(AF_INET); }},
    Attempt{"internet-6", [] { return errorOfSocket(AF_INET6); }},
    // The kernel ignores the upper 32 bits of the address family; seccomp compares all 64 bits.
    Attempt{"internet-64-bit", [] { return errorOfSocket(AF_INET | (1L << 32)); }},
    Attempt{"unix", [] { return errorOfSocket(AF_UNIX); }},
    Attempt{"netlink", [] { return errorOfOpen(::socket(AF_NETLINK, SOCK_RAW, 0)); }},
    Attempt{"read", [] { return errorOfOpen(::open(paths().file.c_str(), O_RDONLY)); }},
    Attempt{"null", [] { return errorOfOpen(::open("/dev/null", O_WRONLY)); }},
    Attempt{"memory-file", [] { return errorOfOpen(::memfd_create("sandbox-probe", 0)); }},
};

std::array<int, attempts.size()> errors;
sem_t finished;

void runAttempts()
{
    std::ranges::transform(attempts, errors.begin(), [](const Attempt& a) { return a.run(); });
}

void runAttemptsOnSignal(int /*signal*/)
{
    const int previousError = errno;
    runAttempts();
    ::sem_post(&finished);
    errno = previousError;
}

void report(const std::string& thread)
{
    for (std::size_t i = 0; i < attempts.size(); ++i)
        std::cerr << "probe " << thread << ' ' << attempts.at(i).name << ' ' << errors.at(i)
                  << '\n';
}

void runAttemptsInEveryThread()
{
    // A signal handler must not allocate memory, so the paths are built before its first run.
    paths();
    runAttempts();
    report("main");

    ::sem_init(&finished, 0, 0);
    struct sigaction action{};
    action.sa_handler = runAttemptsOnSignal; // NOLINT(cppcoreguidelines-pro-type-union-access)
    action.sa_flags = SA_RESTART;
    ::sigaction(SIGUSR2, &action, nullptr);
    for (const auto& task : std::filesystem::directory_iterator("/proc/self/task")) {
        const std::string thread = task.path().filename();
        const pid_t threadId = std::stoi(thread);
        if (threadId == ::getpid() || ::syscall(SYS_tgkill, ::getpid(), threadId, SIGUSR2) != 0)
            continue;
        while (::sem_wait(&finished) != 0) {
        }
        report(thread);
    }
    std::cerr << "probe done\n";
}

std::atomic_flag hasRun;

} // namespace

extern "C" ssize_t getrandom(void* buffer, std::size_t size, unsigned int flags)
{
    if (size == 8 && !hasRun.test_and_set())
        runAttemptsInEveryThread();
    using Function = ssize_t (*)(void*, std::size_t, unsigned int);
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): dlsym returns void*
    static const auto next = reinterpret_cast<Function>(::dlsym(RTLD_NEXT, "getrandom"));
    return next(buffer, size, flags);
}
