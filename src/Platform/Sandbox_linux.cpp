// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "Platform/Sandbox.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <memory>

#include <fcntl.h>
#include <linux/landlock.h>
#include <seccomp.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace Platform::Sandbox {

namespace {

constexpr std::array writableDevices{
    // On Wayland, Qt 6.4 loads a graphics driver even for the software renderer. Mesa's drivers
    // print a warning if they cannot open the device.
    "/dev/dri",
    // Libraries write discarded output to /dev/null.
    "/dev/null",
};

// NOLINTBEGIN(cppcoreguidelines-pro-type-vararg): the C library has no functions for these calls

int createRuleset(const landlock_ruleset_attr* attributes, std::size_t size, unsigned int flags)
{
    return static_cast<int>(::syscall(SYS_landlock_create_ruleset, attributes, size, flags));
}

void allowWriting(int ruleset, const char* device)
{
    const int descriptor = ::open(device, O_PATH | O_CLOEXEC);
    if (descriptor < 0) // A device that is missing needs no rule.
        return;
    landlock_path_beneath_attr rule{};
    rule.allowed_access = LANDLOCK_ACCESS_FS_WRITE_FILE;
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

/// The kinds of access to files that this kernel can refuse; none without Landlock.
std::uint64_t refusableAccess()
{
    const int version = createRuleset(nullptr, 0, LANDLOCK_CREATE_RULESET_VERSION);
    if (version < 1)
        return 0;
    // The first version has 13 kinds of access, one bit each. Version 2 adds moving a file to
    // another folder, and version 3 truncating a file.
    const std::uint64_t kinds = (std::uint64_t{1} << (12 + std::min(version, 3))) - 1;
    // Reading is not refused: libraries read fonts, icons, translations and plugins from many
    // folders and at any time.
    return kinds & ~std::uint64_t{LANDLOCK_ACCESS_FS_READ_FILE | LANDLOCK_ACCESS_FS_READ_DIR};
}

// The program has no use for these system calls.
constexpr std::array refusedCalls{
    SCMP_SYS(execve), SCMP_SYS(execveat), SCMP_SYS(ptrace), SCMP_SYS(process_vm_readv),
    SCMP_SYS(process_vm_writev), SCMP_SYS(pidfd_getfd),
    // io_uring opens sockets without a system call that the filter sees.
    SCMP_SYS(io_uring_setup),
    // Landlock does not cover extended attributes, which can hold text.
    SCMP_SYS(setxattr), SCMP_SYS(lsetxattr), SCMP_SYS(fsetxattr),
    463, // setxattrat, the same number on all architectures; libseccomp 2.5 does not know its name
};

/// Refuses sockets of all families but two: the display, D-Bus and the accessibility bus use UNIX
/// sockets, and libraries list devices through netlink sockets. A rule compares an argument only
/// once, so no rule can exclude both families.
void refuseOtherSockets(scmp_filter_ctx filter)
{
    const auto refuse = [filter](scmp_compare comparison, scmp_datum_t value) {
        const scmp_arg_cmp family{0, comparison, value, 0};
        seccomp_rule_add_array(filter, SCMP_ACT_ERRNO(EAFNOSUPPORT), SCMP_SYS(socket), 1, &family);
    };
    refuse(SCMP_CMP_LT, AF_UNIX);
    for (scmp_datum_t family = AF_UNIX + 1; family < AF_NETLINK; ++family)
        refuse(SCMP_CMP_EQ, family);
    refuse(SCMP_CMP_GT, AF_NETLINK);
}

} // namespace

void restrictFilesystem() noexcept
{
    // Kernel headers from 6.7 on declare more members, which stay zero.
    landlock_ruleset_attr attributes{};
    attributes.handled_access_fs = refusableAccess();
    if (attributes.handled_access_fs == 0)
        return;
    const int ruleset = createRuleset(&attributes, sizeof(attributes), 0);
    if (ruleset < 0)
        return;
    for (const char* const device : writableDevices)
        allowWriting(ruleset, device);
    restrictSelf(ruleset);
    ::close(ruleset);
}

void installSyscallFilter() noexcept
{
    const std::unique_ptr<void, decltype(&seccomp_release)> filter(seccomp_init(SCMP_ACT_ALLOW),
                                                                   seccomp_release);
    if (!filter)
        return;
    // The rules do not match the calls of another architecture (32-bit on x86-64), and the default
    // action for those is to kill the process.
    seccomp_attr_set(filter.get(), SCMP_FLTATR_ACT_BADARCH, SCMP_ACT_ERRNO(ENOSYS));
    seccomp_attr_set(filter.get(), SCMP_FLTATR_CTL_TSYNC, 1);
    refuseOtherSockets(filter.get());
    for (const int call : refusedCalls)
        seccomp_rule_add_array(filter.get(), SCMP_ACT_ERRNO(EPERM), call, 0, nullptr);
    seccomp_load(filter.get());
}

} // namespace Platform::Sandbox
