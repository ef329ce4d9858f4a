// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

// Runs a program as if the kernel lacked Landlock, seccomp or both: the system calls of the named
// features fail with the errors that such a kernel returns.
//
//     OldKernel [landlock] [seccomp] -- <program> [argument...]

#include <array>
#include <cerrno>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <span>
#include <string_view>

#include <seccomp.h>
#include <sys/prctl.h>
#include <unistd.h>

namespace {

constexpr std::array landlockCalls{SCMP_SYS(landlock_create_ruleset), SCMP_SYS(landlock_add_rule),
                                   SCMP_SYS(landlock_restrict_self)};

void require(bool condition, const char* error)
{
    if (!condition) {
        std::cerr << "OldKernel: " << error << '\n';
        std::_Exit(EXIT_FAILURE);
    }
}

void addRule(void* filter, std::uint32_t error, int call,
             std::span<const scmp_arg_cmp> conditions = {})
{
    const auto count = static_cast<unsigned int>(conditions.size());
    require(seccomp_rule_add_array(filter, SCMP_ACT_ERRNO(error), call, count, conditions.data())
                == 0,
            "a rule cannot be added");
}

} // namespace

int main(int argc, char** argv)
{
    const std::span arguments(argv, static_cast<std::size_t>(argc));
    void* const filter = seccomp_init(SCMP_ACT_ALLOW);
    require(filter, "the filter cannot be created");

    std::size_t program = 1;
    for (; program < arguments.size() && std::string_view(arguments[program]) != "--"; ++program) {
        const std::string_view feature(arguments[program]);
        if (feature == "landlock") {
            for (const int call : landlockCalls)
                addRule(filter, ENOSYS, call);
        } else if (feature == "seccomp") {
            const scmp_arg_cmp mode{0, SCMP_CMP_EQ, PR_SET_SECCOMP, 0};
            addRule(filter, ENOSYS, SCMP_SYS(seccomp));
            addRule(filter, EINVAL, SCMP_SYS(prctl), {&mode, 1});
        } else {
            require(false, "the known features are landlock and seccomp");
        }
    }
    require(program + 1 < arguments.size(), "no program is named");
    require(seccomp_load(filter) == 0, "the filter cannot be loaded");

    ::execv(arguments[program + 1], &arguments[program + 1]);
    require(false, "the program cannot be started");
}
