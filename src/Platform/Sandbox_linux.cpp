// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "Platform/Sandbox.h"

#include <array>
#include <bit>
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

/// Closes what it holds.
class Descriptor final
{
public:
    explicit Descriptor(long number)
        : m_number(static_cast<int>(number))
    {
    }
    ~Descriptor()
    {
        if (isOpen())
            ::close(m_number);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor(Descriptor&&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    Descriptor& operator=(Descriptor&&) = delete;

    [[nodiscard]] bool isOpen() const { return m_number >= 0; }
    [[nodiscard]] int number() const { return m_number; }

private:
    int m_number;
};

// Reading stays open: fonts, icons, translations and plugins lie anywhere, and much of it is read
// only once it is needed.
constexpr std::uint64_t changesOfFiles
    = LANDLOCK_ACCESS_FS_EXECUTE | LANDLOCK_ACCESS_FS_WRITE_FILE | LANDLOCK_ACCESS_FS_REMOVE_DIR
      | LANDLOCK_ACCESS_FS_REMOVE_FILE | LANDLOCK_ACCESS_FS_MAKE_CHAR | LANDLOCK_ACCESS_FS_MAKE_DIR
      | LANDLOCK_ACCESS_FS_MAKE_REG | LANDLOCK_ACCESS_FS_MAKE_SOCK | LANDLOCK_ACCESS_FS_MAKE_FIFO
      | LANDLOCK_ACCESS_FS_MAKE_BLOCK | LANDLOCK_ACCESS_FS_MAKE_SYM;

/// What the kernel has been able to refuse since a later version of Landlock.
struct LaterChange
{
    long version;
    std::uint64_t access;
};

// Headers older than the kernel do not name them all.
constexpr std::uint64_t renamingIntoAnotherFolder = 1U << 13U;
constexpr std::uint64_t truncating = 1U << 14U;
constexpr std::array<LaterChange, 2> laterChanges{{
    {2, renamingIntoAnotherFolder},
    {3, truncating},
}};

struct OpenPath
{
    const char* path;
    std::uint64_t access;
};

constexpr std::array<OpenPath, 2> openPaths{{
    // On Wayland, Qt 6.4 starts a graphics driver whether it draws with it or not, and Mesa's
    // complain on standard error where they may not open their device.
    {"/dev/dri", LANDLOCK_ACCESS_FS_WRITE_FILE},
    // Where libraries leave what nobody wants.
    {"/dev/null", LANDLOCK_ACCESS_FS_WRITE_FILE},
}};

// NOLINTBEGIN(cppcoreguidelines-pro-type-vararg): the C library has no functions for these yet

long createRuleset(const landlock_ruleset_attr* changes, std::size_t size, unsigned int flags)
{
    return ::syscall(SYS_landlock_create_ruleset, changes, size, flags);
}

void addRule(const Descriptor& ruleset, const landlock_path_beneath_attr& rule)
{
    ::syscall(SYS_landlock_add_rule, ruleset.number(), LANDLOCK_RULE_PATH_BENEATH, &rule, 0);
}

void restrictSelf(const Descriptor& ruleset)
{
    // Without this the kernel lets nobody but root confine itself.
    if (::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0)
        ::syscall(SYS_landlock_restrict_self, ruleset.number(), 0);
}

Descriptor openedAsPlace(const char* path)
{
    return Descriptor(::open(path, O_PATH | O_CLOEXEC));
}

// NOLINTEND(cppcoreguidelines-pro-type-vararg)

std::uint64_t changesKnownToKernel()
{
    const long version = createRuleset(nullptr, 0, LANDLOCK_CREATE_RULESET_VERSION);
    if (version < 1)
        return 0;
    std::uint64_t changes = changesOfFiles;
    for (const LaterChange& later : laterChanges) {
        if (version >= later.version)
            changes |= later.access;
    }
    return changes;
}

struct FilterReleaser
{
    void operator()(void* filter) const { seccomp_release(filter); }
};
using Filter = std::unique_ptr<void, FilterReleaser>;

/// What nothing in this program has a use for.
constexpr std::array<int, 9> refusedCalls{
    SCMP_SYS(execve),
    SCMP_SYS(execveat),
    SCMP_SYS(ptrace),
    SCMP_SYS(process_vm_readv),
    SCMP_SYS(process_vm_writev),
    SCMP_SYS(pidfd_getfd),
    // Opens sockets past every filter.
    SCMP_SYS(io_uring_setup),
    // Text beside a file's contents, which Landlock does not know of.
    SCMP_SYS(setxattr),
    SCMP_SYS(lsetxattr),
};

// The display, D-Bus and the accessibility bus are reached through UNIX sockets, and libraries ask
// the kernel for the devices that there are.
constexpr std::uint32_t openFamilies = AF_UNIX | AF_NETLINK;
static_assert(std::popcount(openFamilies) == 2, "each family is one bit");

/// Every other family has a bit that these two lack, or both of theirs.
void refuseOtherSockets(scmp_filter_ctx filter)
{
    const auto refuse = [filter](std::uint32_t bits) {
        const scmp_arg_cmp family{0, SCMP_CMP_MASKED_EQ, bits, bits};
        seccomp_rule_add_array(filter, SCMP_ACT_ERRNO(EAFNOSUPPORT), SCMP_SYS(socket), 1, &family);
    };
    refuse(openFamilies);
    for (std::uint32_t bit = 1; bit != 0; bit <<= 1U) {
        if ((bit & openFamilies) == 0)
            refuse(bit);
    }
}

} // namespace

void restrictFilesystem() noexcept
{
    // The kernel headers have more members since 6.7, and these stay zero.
    landlock_ruleset_attr changes{};
    changes.handled_access_fs = changesKnownToKernel();
    if (changes.handled_access_fs == 0)
        return;
    const Descriptor ruleset(createRuleset(&changes, sizeof(changes), 0));
    if (!ruleset.isOpen())
        return;
    for (const OpenPath& open : openPaths) {
        const Descriptor place = openedAsPlace(open.path);
        if (!place.isOpen()) // What is not there needs no permission.
            continue;
        landlock_path_beneath_attr rule{};
        rule.allowed_access = open.access & changes.handled_access_fs;
        rule.parent_fd = place.number();
        addRule(ruleset, rule);
    }
    restrictSelf(ruleset);
}

void installSyscallFilter() noexcept
{
    const Filter filter(seccomp_init(SCMP_ACT_ALLOW));
    if (!filter)
        return;
    // A call in the manner of another architecture would pass by all rules, and must not kill.
    seccomp_attr_set(filter.get(), SCMP_FLTATR_ACT_BADARCH, SCMP_ACT_ERRNO(ENOSYS));
    seccomp_attr_set(filter.get(), SCMP_FLTATR_CTL_TSYNC, 1);
    refuseOtherSockets(filter.get());
    for (const int call : refusedCalls)
        seccomp_rule_add_array(filter.get(), SCMP_ACT_ERRNO(EPERM), call, 0, nullptr);
    seccomp_load(filter.get());
}

} // namespace Platform::Sandbox
