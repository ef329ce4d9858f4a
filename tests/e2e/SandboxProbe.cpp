// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

// A library for LD_PRELOAD that attacks from inside the program. When the program draws its first
// random number, every thread makes the attempts below. Each attempt writes one line to standard
// error:
//
//     probe <thread> <attempt> <0 for success, otherwise the value of errno>
//
// Attempts whose success would harm the machine or the process have an invalid argument. They fail
// in any case, but with ENOSYS only if the sandbox refuses them.

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
#include <linux/fs.h>
#include <linux/io_uring.h>
#include <sched.h>
#include <semaphore.h>
#include <sys/ioctl.h>
#include <sys/ipc.h>
#include <sys/mman.h>
#include <sys/personality.h>
#include <sys/prctl.h>
#include <sys/ptrace.h>
#include <sys/resource.h>
#include <sys/shm.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/uio.h>
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

int errorOfSocket(long family, long type)
{
    return errorOfOpen(static_cast<int>(::syscall(SYS_socket, family, type, 0)));
}

/// System calls that the headers of Linux 6.12 and older do not declare.
constexpr long setxattrat = 463;
constexpr long fileSetattr = 469;
struct SetXattrArguments
{
    const char* value;
    std::uint32_t size;
    std::uint32_t flags;
};

constexpr int noDescriptor = -1;

/// The error of a call that needs a descriptor of the existing file.
template<typename Call>
int errorOnFile(Call call)
{
    const int file = ::open(paths().file.c_str(), O_RDONLY);
    if (file < 0)
        return errno;
    const int error = errorOf(call(file));
    ::close(file);
    return error;
}

template<typename... Arguments>
int errorOfCall(Arguments... arguments)
{
    return errorOf(::syscall(arguments...));
}

int forkProcess()
{
    const long child = ::syscall(SYS_clone, SIGCHLD, nullptr, nullptr, nullptr, nullptr);
    if (child == 0)
        ::_exit(0);
    return errorOf(child);
}

int mapPages(int protection)
{
    void* const pages
        = ::mmap(nullptr, 4096, protection, MAP_PRIVATE | MAP_ANONYMOUS, noDescriptor, 0);
    return pages == MAP_FAILED ? errno : errorOf(::munmap(pages, 4096));
}

int makePagesExecutable()
{
    void* const pages = ::mmap(nullptr, 4096, PROT_READ, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    const int error = errorOf(::mprotect(pages, 4096, PROT_READ | PROT_EXEC));
    ::munmap(pages, 4096);
    return error;
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

int requestOnNothing(unsigned long request)
{
    return errorOf(::ioctl(noDescriptor, request, nullptr));
}

struct Attempt
{
    const char* name;
    int (*run)();
};

// Each attempt restores the files for the next thread, as far as the sandbox lets it.
constexpr std::array attempts{
    // Contents and names of files
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
    Attempt{"truncate", [] { return errorOf(::truncate(paths().file.c_str(), 9)); }},
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

    // Attributes of files
    Attempt{"setxattr",
            [] { return errorOf(::setxattr(paths().file.c_str(), "user.probe", "1", 1, 0)); }},
    Attempt{"fsetxattr",
            [] {
                return errorOnFile(
                    [](int file) { return ::fsetxattr(file, "user.probe", "1", 1, 0); });
            }},
    Attempt{"setxattrat",
            [] {
                const SetXattrArguments arguments{"1", 1, 0};
                return errorOfCall(setxattrat, AT_FDCWD, paths().file.c_str(), 0, "user.probe",
                                   &arguments, sizeof(arguments));
            }},
    Attempt{"removexattr",
            [] { return errorOf(::removexattr(paths().file.c_str(), "user.absent")); }},
    Attempt{"file_setattr", [] { return errorOfCall(fileSetattr, noDescriptor, 0, 0, 0, 0); }},
    Attempt{"chmod", [] { return errorOf(::chmod(paths().file.c_str(), 0644)); }},
    Attempt{"fchmod", [] { return errorOnFile([](int file) { return ::fchmod(file, 0644); }); }},
    Attempt{"chown", [] { return errorOf(::chown(paths().file.c_str(), ::geteuid(), -1U)); }},
    Attempt{"fchown",
            [] { return errorOnFile([](int file) { return ::fchown(file, ::geteuid(), -1U); }); }},
    Attempt{"utimensat",
            [] { return errorOf(::utimensat(AT_FDCWD, paths().file.c_str(), nullptr, 0)); }},
    Attempt{"futimens",
            [] { return errorOnFile([](int file) { return ::futimens(file, nullptr); }); }},
    Attempt{"FS_IOC_SETFLAGS", [] { return requestOnNothing(FS_IOC_SETFLAGS); }},
    Attempt{"FS_IOC_SETVERSION", [] { return requestOnNothing(FS_IOC_SETVERSION); }},
    Attempt{"FS_IOC_FSSETXATTR", [] { return requestOnNothing(FS_IOC_FSSETXATTR); }},

    // Terminals
    Attempt{"TIOCSTI", [] { return requestOnNothing(TIOCSTI); }},
    Attempt{"TIOCLINUX", [] { return requestOnNothing(TIOCLINUX); }},

    // Other programs and other processes
    Attempt{"fork", forkProcess},
    Attempt{"clone3", [] { return errorOfCall(SYS_clone3, nullptr, 0); }},
    Attempt{"execve", [] { return errorOfCall(SYS_execve, "/nonexistent", nullptr, nullptr); }},
    Attempt{"execveat",
            [] {
                return errorOfCall(SYS_execveat, noDescriptor, "", nullptr, nullptr, AT_EMPTY_PATH);
            }},
    Attempt{"ptrace", [] { return errorOfCall(SYS_ptrace, PTRACE_CONT, 0, 0, 0); }},
    Attempt{"process_vm_readv", readMemory},
    Attempt{"kill", [] { return errorOf(::kill(::getppid(), SIGCONT)); }},
    Attempt{"tgkill", [] { return errorOfCall(SYS_tgkill, ::getppid(), ::getppid(), 0); }},
    Attempt{"rt_sigqueueinfo",
            [] { return errorOfCall(SYS_rt_sigqueueinfo, ::getppid(), 0, nullptr); }},
    Attempt{
        "pidfd_open",
        [] { return errorOfOpen(static_cast<int>(::syscall(SYS_pidfd_open, ::getppid(), 0))); }},
    Attempt{"pidfd_getfd", [] { return errorOfCall(SYS_pidfd_getfd, noDescriptor, 0, 0); }},
    Attempt{"pidfd_send_signal",
            [] { return errorOfCall(SYS_pidfd_send_signal, noDescriptor, 0, nullptr, 0); }},
    Attempt{"prlimit",
            [] {
                rlimit limit{};
                return errorOf(::prlimit(::getppid(), RLIMIT_NOFILE, nullptr, &limit));
            }},
    Attempt{"setpriority", [] { return errorOf(::setpriority(PRIO_PROCESS, 0, 0)); }},
    Attempt{"PR_SET_DUMPABLE", [] { return errorOf(::prctl(PR_SET_DUMPABLE, 1, 0, 0, 0)); }},
    Attempt{"PR_SET_PTRACER", [] { return errorOf(::prctl(PR_SET_PTRACER, 0, 0, 0, 0)); }},

    // The kernel
    Attempt{"unshare", [] { return errorOf(::unshare(0)); }},
    Attempt{"setns", [] { return errorOf(::setns(noDescriptor, 0)); }},
    Attempt{"mount", [] { return errorOfCall(SYS_mount, nullptr, nullptr, nullptr, 0, nullptr); }},
    Attempt{"chroot", [] { return errorOfCall(SYS_chroot, nullptr); }},
    Attempt{"add_key", [] { return errorOfCall(SYS_add_key, nullptr, nullptr, nullptr, 0, 0); }},
    Attempt{"keyctl", [] { return errorOfCall(SYS_keyctl, -1, 0, 0, 0, 0); }},
    Attempt{"msgget", [] { return errorOfCall(SYS_msgget, 1, 0); }},
    Attempt{"semget", [] { return errorOfCall(SYS_semget, 1, 0, 0); }},
    Attempt{"shmget", [] { return errorOfCall(SYS_shmget, 1, 1, 0); }},
    Attempt{"mq_open", [] { return errorOfCall(SYS_mq_open, nullptr, 0, 0, nullptr); }},
    Attempt{"perf_event_open",
            [] { return errorOfCall(SYS_perf_event_open, nullptr, 0, 0, -1, 0); }},
    Attempt{"bpf", [] { return errorOfCall(SYS_bpf, -1, nullptr, 0); }},
    Attempt{"userfaultfd", [] { return errorOfCall(SYS_userfaultfd, -1); }},
    Attempt{"personality", [] { return errorOf(::personality(0xffffffff)); }},
    Attempt{"io_uring_setup", setUpIoUring},
    Attempt{"open_by_handle_at",
            [] { return errorOfCall(SYS_open_by_handle_at, noDescriptor, nullptr, 0); }},

    // Executable memory
    Attempt{"mmap-write-exec", [] { return mapPages(PROT_READ | PROT_WRITE | PROT_EXEC); }},
    Attempt{"mprotect-exec", makePagesExecutable},

    // Sockets
    Attempt{"internet", [] { return errorOfSocket(AF_INET, SOCK_STREAM); }},
    Attempt{"internet-6", [] { return errorOfSocket(AF_INET6, SOCK_DGRAM); }},
    // The kernel ignores the upper 32 bits of the address family; seccomp compares all 64 bits.
    Attempt{"internet-64-bit", [] { return errorOfSocket(AF_INET | (1L << 32), SOCK_STREAM); }},
    Attempt{"netlink", [] { return errorOfSocket(AF_NETLINK, SOCK_RAW); }},
    Attempt{"packet", [] { return errorOfSocket(AF_PACKET, SOCK_RAW); }},
    Attempt{"vsock", [] { return errorOfSocket(AF_VSOCK, SOCK_STREAM); }},
    Attempt{"bluetooth", [] { return errorOfSocket(AF_BLUETOOTH, SOCK_STREAM); }},
    Attempt{"unix-datagram", [] { return errorOfSocket(AF_UNIX, SOCK_DGRAM); }},
    Attempt{"bind", [] { return errorOfCall(SYS_bind, noDescriptor, nullptr, 0); }},
    Attempt{"listen", [] { return errorOf(::listen(noDescriptor, 1)); }},
    Attempt{"accept", [] { return errorOf(::accept(noDescriptor, nullptr, nullptr)); }},
    Attempt{"sendto-address",
            [] {
                const sockaddr address{};
                return errorOf(::sendto(noDescriptor, "", 0, 0, &address, sizeof(address)));
            }},

    // What the program needs
    Attempt{"unix", [] { return errorOfSocket(AF_UNIX, SOCK_STREAM); }},
    Attempt{"read", [] { return errorOfOpen(::open(paths().file.c_str(), O_RDONLY)); }},
    Attempt{"null", [] { return errorOfOpen(::open("/dev/null", O_WRONLY)); }},
    Attempt{"memory-file", [] { return errorOfOpen(::memfd_create("sandbox-probe", 0)); }},
    Attempt{"private-shared-memory",
            [] {
                const int memory = ::shmget(IPC_PRIVATE, 1, IPC_CREAT | 0600);
                return memory < 0 ? errno : errorOf(::shmctl(memory, IPC_RMID, nullptr));
            }},
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
