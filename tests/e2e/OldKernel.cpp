// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

// Runs a program as if on a kernel that lacks what is named:
//
//     OldKernel [landlock] [seccomp] -- <program> [argument...]

#include <array>
#include <cerrno>
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

void take(bool worked, const char* what)
{
    if (!worked) {
        std::cerr << "OldKernel: " << what << '\n';
        std::_Exit(EXIT_FAILURE);
    }
}

} // namespace

int main(int argc, char** argv)
{
    const std::span arguments(argv, static_cast<std::size_t>(argc));
    void* const filter = seccomp_init(SCMP_ACT_ALLOW);
    take(filter, "no filter");

    std::size_t program = 1;
    for (; program < arguments.size() && std::string_view(arguments[program]) != "--"; ++program) {
        const std::string_view missing(arguments[program]);
        if (missing == "landlock") {
            for (const int call : landlockCalls)
                take(seccomp_rule_add_array(filter, SCMP_ACT_ERRNO(ENOSYS), call, 0, nullptr) == 0,
                     "no rule");
        } else if (missing == "seccomp") {
            const scmp_arg_cmp mode{0, SCMP_CMP_EQ, PR_SET_SECCOMP, 0};
            take(seccomp_rule_add_array(filter, SCMP_ACT_ERRNO(ENOSYS), SCMP_SYS(seccomp), 0,
                                        nullptr)
                     == 0,
                 "no rule");
            take(seccomp_rule_add_array(filter, SCMP_ACT_ERRNO(EINVAL), SCMP_SYS(prctl), 1, &mode)
                     == 0,
                 "no rule");
        } else {
            take(false, "only landlock and seccomp can be missing");
        }
    }
    take(program + 1 < arguments.size(), "no program");
    take(seccomp_load(filter) == 0, "not loaded");

    ::execv(arguments[program + 1], &arguments[program + 1]);
    take(false, "the program cannot be started");
}
