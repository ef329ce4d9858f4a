// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "Platform/Sandbox.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <climits>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <asm/ioctls.h>
#include <fcntl.h>
#include <linux/landlock.h>
#include <sched.h>
#include <seccomp.h>
#include <sys/ipc.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace Platform::Sandbox {

namespace {

/// Variables that desktops and users set for the display, the input method, the scale and the
/// screen reader. Qt's other variables load plugins, write to standard error what a screen reader
/// receives, or change the program in other ways.
constexpr std::array<std::string_view, 16> keptQtVariables{
    "QT_ACCESSIBILITY",
    "QT_AUTO_SCREEN_SCALE_FACTOR",
    "QT_ENABLE_HIGHDPI_SCALING",
    "QT_FONT_DPI",
    "QT_IM_MODULE",
    "QT_IM_MODULES",
    "QT_LINUX_ACCESSIBILITY_ALWAYS_ON",
    "QT_NO_GLIB",
    "QT_QPA_PLATFORM",
    "QT_QPA_PLATFORMTHEME",
    "QT_SCALE_FACTOR",
    "QT_SCALE_FACTOR_ROUNDING_POLICY",
    "QT_SCREEN_SCALE_FACTORS",
    "QT_USE_PHYSICAL_DPI",
    "QT_WAYLAND_DISABLE_WINDOWDECORATION",
    "QT_WAYLAND_SHELL_INTEGRATION",
};

bool isUnwanted(std::string_view variable)
{
    // A session manager can run on another machine.
    if (variable == "SESSION_MANAGER")
        return true;
    if (variable.starts_with("QT_"))
        return std::ranges::find(keptQtVariables, variable) == keptQtVariables.end();
    return variable.starts_with("QML") || variable.starts_with("QSG_")
           || variable.starts_with("QV4_");
}

void removeUnwantedVariables()
{
    std::vector<std::string> unwanted;
    for (char** entry = environ; *entry != nullptr; ++entry) {
        const std::string_view variable(*entry);
        const std::string_view name = variable.substr(0, variable.find('='));
        if (isUnwanted(name))
            unwanted.emplace_back(name);
    }
    for (const std::string& name : unwanted)
        ::unsetenv(name.c_str()); // NOLINT(concurrency-mt-unsafe): the program has one thread
}

/// The value of an environment variable; empty if the variable is not set.
std::string_view variable(const char* name)
{
    const char* const value = std::getenv(name); // NOLINT(concurrency-mt-unsafe): only read
    return value != nullptr ? value : "";
}

void closeInheritedDescriptors()
{
    constexpr unsigned int first = STDERR_FILENO + 1;
    // A compositor can pass a connection to itself in this descriptor.
    const std::string_view connection = variable("WAYLAND_SOCKET");
    unsigned int kept = 0;
    std::from_chars(connection.data(), connection.data() + connection.size(), kept);
    if (kept < first) {
        ::close_range(first, UINT_MAX, 0);
        return;
    }
    if (kept > first)
        ::close_range(first, kept - 1, 0);
    ::close_range(kept + 1, UINT_MAX, 0);
}

/// Opens the standard descriptors that the starting program has closed. Otherwise, the connection
/// to the display could get the number of standard error.
void openStandardDescriptors()
{
    int descriptor = 0;
    do
        descriptor = ::open("/dev/null", O_RDWR); // NOLINT(*-vararg)
    while (descriptor >= 0 && descriptor <= STDERR_FILENO);
    if (descriptor > STDERR_FILENO)
        ::close(descriptor);
}

constexpr std::array writableDevices{
    // On Wayland, Qt 6.4 loads a graphics driver even for the software renderer. Mesa's drivers
    // print a warning if they cannot open the device.
    "/dev/dri",
    // Libraries write discarded output to /dev/null.
    "/dev/null",
};

/// The structure of Linux 6.12. Debian 12's header of Linux 6.1 declares only the first member.
struct RulesetAttributes
{
    std::uint64_t handledFileAccess = 0;
    std::uint64_t handledNetworkAccess = 0;
    std::uint64_t scoped = 0;
};
constexpr std::uint64_t ioctlOnDevices = std::uint64_t{1} << 15;
constexpr std::uint64_t scopeSignal = std::uint64_t{1} << 1;

// NOLINTBEGIN(cppcoreguidelines-pro-type-vararg): the C library has no functions for these calls

int createRuleset(const RulesetAttributes* attributes, std::size_t size, unsigned int flags)
{
    return static_cast<int>(::syscall(SYS_landlock_create_ruleset, attributes, size, flags));
}

void allow(int ruleset, std::uint64_t access, const char* path)
{
    const int descriptor = ::open(path, O_PATH | O_CLOEXEC);
    if (descriptor < 0) // A device that is missing needs no rule.
        return;
    landlock_path_beneath_attr rule{};
    rule.allowed_access = access;
    rule.parent_fd = descriptor;
    ::syscall(SYS_landlock_add_rule, ruleset, LANDLOCK_RULE_PATH_BENEATH, &rule, 0);
    ::close(descriptor);
}

void restrictSelf(int ruleset)
{
    // Without this flag, only privileged processes may restrict themselves.
    if (::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0)
        ::syscall(SYS_landlock_restrict_self, ruleset, 0);
}

// NOLINTEND(cppcoreguidelines-pro-type-vararg)

/// Everything that this version of Landlock can refuse, except reading files: libraries read fonts,
/// icons, translations and plugins from many folders and at any time.
RulesetAttributes refusable(int version)
{
    // The first version has 13 kinds of access to files, one bit each. Version 2 adds moving a file
    // to another folder, and version 3 truncating a file.
    RulesetAttributes attributes;
    attributes.handledFileAccess = (std::uint64_t{1} << (12 + std::min(version, 3))) - 1;
    attributes.handledFileAccess
        &= ~std::uint64_t{LANDLOCK_ACCESS_FS_READ_FILE | LANDLOCK_ACCESS_FS_READ_DIR};
    if (version >= 5)
        attributes.handledFileAccess |= ioctlOnDevices;
    if (version >= 6)
        attributes.scoped = scopeSignal;
    return attributes;
}

/// The system calls that are allowed with all arguments. They were observed on X11 and Wayland with
/// a screen reader and input methods, or belong to the same group.
constexpr std::array allowedCalls{
    // Memory
    SCMP_SYS(brk),
    SCMP_SYS(madvise),
    SCMP_SYS(membarrier),
    SCMP_SYS(mincore),
    SCMP_SYS(mremap),
    SCMP_SYS(munmap),
    // Threads and signals of this process
    SCMP_SYS(arch_prctl),
    SCMP_SYS(exit),
    SCMP_SYS(exit_group),
    SCMP_SYS(futex),
    SCMP_SYS(get_robust_list),
    SCMP_SYS(getcpu),
    SCMP_SYS(restart_syscall),
    SCMP_SYS(rseq),
    SCMP_SYS(rt_sigaction),
    SCMP_SYS(rt_sigprocmask),
    SCMP_SYS(rt_sigreturn),
    SCMP_SYS(rt_sigtimedwait),
    SCMP_SYS(sched_get_priority_max),
    SCMP_SYS(sched_get_priority_min),
    SCMP_SYS(sched_getaffinity),
    SCMP_SYS(sched_getparam),
    SCMP_SYS(sched_getscheduler),
    SCMP_SYS(sched_yield),
    SCMP_SYS(set_robust_list),
    SCMP_SYS(set_tid_address),
    SCMP_SYS(sigaltstack),
    // Identity of the process and of the machine, and random numbers
    SCMP_SYS(getegid),
    SCMP_SYS(geteuid),
    SCMP_SYS(getgid),
    SCMP_SYS(getgroups),
    SCMP_SYS(getpgid),
    SCMP_SYS(getpgrp),
    SCMP_SYS(getpid),
    SCMP_SYS(getppid),
    SCMP_SYS(getpriority),
    SCMP_SYS(getrandom),
    SCMP_SYS(getresgid),
    SCMP_SYS(getresuid),
    SCMP_SYS(getrlimit),
    SCMP_SYS(getrusage),
    SCMP_SYS(getsid),
    SCMP_SYS(gettid),
    SCMP_SYS(getuid),
    SCMP_SYS(sysinfo),
    SCMP_SYS(times),
    SCMP_SYS(uname),
    // Time
    SCMP_SYS(clock_getres),
    SCMP_SYS(clock_gettime),
    SCMP_SYS(clock_nanosleep),
    SCMP_SYS(gettimeofday),
    SCMP_SYS(nanosleep),
    SCMP_SYS(time),
    SCMP_SYS(timerfd_create),
    SCMP_SYS(timerfd_gettime),
    SCMP_SYS(timerfd_settime),
    // Waiting for events
    SCMP_SYS(epoll_create1),
    SCMP_SYS(epoll_ctl),
    SCMP_SYS(epoll_pwait),
    SCMP_SYS(epoll_wait),
    SCMP_SYS(eventfd2),
    SCMP_SYS(inotify_add_watch),
    SCMP_SYS(inotify_init1),
    SCMP_SYS(inotify_rm_watch),
    SCMP_SYS(poll),
    SCMP_SYS(ppoll),
    SCMP_SYS(pselect6),
    SCMP_SYS(select),
    // Files and pipes. Landlock refuses write access to files.
    SCMP_SYS(access),
    SCMP_SYS(close),
    SCMP_SYS(close_range),
    SCMP_SYS(dup),
    SCMP_SYS(dup2),
    SCMP_SYS(dup3),
    SCMP_SYS(faccessat),
    SCMP_SYS(faccessat2),
    SCMP_SYS(fadvise64),
    SCMP_SYS(fallocate),
    SCMP_SYS(fcntl),
    SCMP_SYS(fgetxattr),
    SCMP_SYS(fstat),
    SCMP_SYS(fstatfs),
    SCMP_SYS(ftruncate),
    SCMP_SYS(getcwd),
    SCMP_SYS(getdents64),
    SCMP_SYS(getxattr),
    SCMP_SYS(lgetxattr),
    SCMP_SYS(listxattr),
    SCMP_SYS(llistxattr),
    SCMP_SYS(lseek),
    SCMP_SYS(lstat),
    SCMP_SYS(memfd_create),
    // Qt 6.4 creates the runtime folder and expects the error EEXIST.
    SCMP_SYS(mkdir),
    SCMP_SYS(mkdirat),
    SCMP_SYS(newfstatat),
    SCMP_SYS(open),
    SCMP_SYS(openat),
    SCMP_SYS(pipe2),
    SCMP_SYS(pread64),
    SCMP_SYS(read),
    SCMP_SYS(readlink),
    SCMP_SYS(readlinkat),
    SCMP_SYS(readv),
    SCMP_SYS(stat),
    SCMP_SYS(statfs),
    SCMP_SYS(statx),
    SCMP_SYS(umask),
    SCMP_SYS(write),
    SCMP_SYS(writev),
    // Connections to the display, to D-Bus and to input methods
    SCMP_SYS(connect),
    SCMP_SYS(getpeername),
    SCMP_SYS(getsockname),
    SCMP_SYS(getsockopt),
    SCMP_SYS(recvfrom),
    SCMP_SYS(recvmsg),
    SCMP_SYS(sendmsg),
    SCMP_SYS(setsockopt),
    SCMP_SYS(shutdown),
    // Images for the X server in shared memory
    SCMP_SYS(shmat),
    SCMP_SYS(shmctl),
    SCMP_SYS(shmdt),
};

class Filter
{
public:
    // A refused call fails as on a kernel without this call, so libraries use another call.
    Filter()
        : m_context(seccomp_init(SCMP_ACT_ERRNO(ENOSYS)), seccomp_release)
    {
    }

    /// Allows a system call if all conditions on its arguments hold.
    void allow(int call, std::initializer_list<scmp_arg_cmp> conditions = {})
    {
        seccomp_rule_add_array(m_context.get(), SCMP_ACT_ALLOW, call,
                               static_cast<unsigned int>(conditions.size()), conditions.begin());
    }

    /// Lets a system call do nothing and return 0 if the condition on its arguments holds.
    void pretendSuccess(int call, scmp_arg_cmp condition)
    {
        seccomp_rule_add_array(m_context.get(), SCMP_ACT_ERRNO(0), call, 1, &condition);
    }

    /// Applies the filter to all threads of the process.
    void install()
    {
        // The default action for calls of another architecture (32-bit on x86-64) is to kill the
        // process.
        seccomp_attr_set(m_context.get(), SCMP_FLTATR_ACT_BADARCH, SCMP_ACT_ERRNO(ENOSYS));
        seccomp_attr_set(m_context.get(), SCMP_FLTATR_CTL_TSYNC, 1);
        // The kernel finds a rule by binary search instead of reading all rules.
        seccomp_attr_set(m_context.get(), SCMP_FLTATR_CTL_OPTIMIZE, 2);
        seccomp_load(m_context.get());
    }

private:
    std::unique_ptr<void, decltype(&seccomp_release)> m_context;
};

scmp_arg_cmp equal(unsigned int argument, scmp_datum_t value)
{
    return {argument, SCMP_CMP_EQ, value, 0};
}

scmp_arg_cmp equal(unsigned int argument, scmp_datum_t value, scmp_datum_t mask)
{
    return {argument, SCMP_CMP_MASKED_EQ, mask, value};
}

/// The system calls that are allowed with some arguments only.
void allowWithConditions(Filter& filter)
{
    // No page is both writable and executable, and no page becomes executable later. Qt's script
    // engine then interprets the scripts.
    constexpr scmp_datum_t writableOrExecutable = PROT_WRITE | PROT_EXEC;
    using Values = std::initializer_list<scmp_datum_t>;
    for (const scmp_datum_t access : Values{PROT_NONE, PROT_WRITE, PROT_EXEC})
        filter.allow(SCMP_SYS(mmap), {equal(2, access, writableOrExecutable)});
    filter.allow(SCMP_SYS(mprotect), {equal(2, 0, PROT_EXEC)});

    // Threads, but no processes. clone3 is refused, because its flags are in memory that the filter
    // cannot read.
    filter.allow(SCMP_SYS(clone), {equal(0, CLONE_THREAD, CLONE_THREAD)});
    filter.allow(SCMP_SYS(prctl), {equal(0, PR_SET_NAME)});
    filter.allow(SCMP_SYS(prctl), {equal(0, PR_CAPBSET_READ)});
    // The signals and the limits of this process.
    filter.allow(SCMP_SYS(tgkill), {equal(0, static_cast<scmp_datum_t>(::getpid()))});
    filter.allow(SCMP_SYS(prlimit64), {equal(0, 0)});
    // Signal 0 asks whether a process exists. Qt does not connect to IBus if the daemon does not
    // exist, and Landlock refuses the question.
    filter.pretendSuccess(SCMP_SYS(kill), equal(1, 0));

    // The display, D-Bus and input methods use UNIX stream sockets, which are connected before the
    // first message, so that no message has an address.
    constexpr scmp_datum_t socketType = 0xf;
    filter.allow(SCMP_SYS(socket), {equal(0, AF_UNIX), equal(1, SOCK_STREAM, socketType)});
    filter.allow(SCMP_SYS(sendto), {equal(4, 0)});
    filter.allow(SCMP_SYS(shmget), {equal(0, IPC_PRIVATE)});

    // The size of pending data, the test for a terminal, and graphics drivers. Other requests type
    // text into a terminal or set attributes of files.
    for (const scmp_datum_t request : Values{FIONBIO, FIONREAD, TCGETS})
        filter.allow(SCMP_SYS(ioctl), {equal(1, request)});
    filter.allow(SCMP_SYS(ioctl), {equal(1, 'd' << 8, 0xff00)});
}

} // namespace

void discardInheritance() noexcept
{
    openStandardDescriptors();
    closeInheritedDescriptors();
    removeUnwantedVariables();
}

void restrictFilesystem() noexcept
{
    const int version = createRuleset(nullptr, 0, LANDLOCK_CREATE_RULESET_VERSION);
    if (version < 1)
        return;
    const RulesetAttributes attributes = refusable(version);
    const int ruleset = createRuleset(&attributes, sizeof(attributes), 0);
    if (ruleset < 0)
        return;
    constexpr std::uint64_t write = LANDLOCK_ACCESS_FS_WRITE_FILE | ioctlOnDevices;
    for (const char* const device : writableDevices)
        allow(ruleset, write & attributes.handledFileAccess, device);
    restrictSelf(ruleset);
    ::close(ruleset);
}

bool isDisplayRemote() noexcept
{
    const std::string_view display = variable("DISPLAY");
    return !display.empty() && !display.starts_with(':') && !display.starts_with("unix:");
}

void installSyscallFilter() noexcept
{
    // The lists apply to the system calls of these architectures.
    if (const auto native = seccomp_arch_native();
        native != SCMP_ARCH_X86_64 && native != SCMP_ARCH_AARCH64)
        return;
    Filter filter;
    for (const int call : allowedCalls)
        filter.allow(call);
    allowWithConditions(filter);
    filter.install();
}

} // namespace Platform::Sandbox
