// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "Platform/Termination.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>

#include <sys/resource.h>
#include <unistd.h>

namespace Platform::Termination {

namespace {

#ifdef NDEBUG
constexpr bool isForDebugging = false;
#else
constexpr bool isForDebugging = true;
#endif

constexpr std::array reportedSignals{
    SIGABRT, SIGALRM, SIGBUS,  SIGFPE,  SIGHUP,  SIGILL,  SIGINT,    SIGPROF, SIGQUIT,
    SIGSEGV, SIGSYS,  SIGTERM, SIGTRAP, SIGUSR1, SIGUSR2, SIGVTALRM, SIGXCPU, SIGXFSZ,
};

/// Runs in a signal handler, which may call only few functions of the C library.
void write(std::string_view text)
{
    while (!text.empty()) {
        const ssize_t written = ::write(STDERR_FILENO, text.data(), text.size());
        if (written < 0 && errno != EINTR)
            return;
        if (written > 0)
            text.remove_prefix(static_cast<std::size_t>(written));
    }
}

void report(int signal)
{
    const std::array digits{static_cast<char>('0' + signal / 10),
                            static_cast<char>('0' + signal % 10)};
    write("Morvane wurde durch das Signal ");
    write(signal < 10 ? std::string_view(&digits[1], 1) : std::string_view(digits.data(), 2));
    write(" beendet.\n");
    ::raise(signal); // The signal has its default action again, because of SA_RESETHAND.
}

bool allows(int resource, rlim_t needed)
{
    rlimit limit{};
    return ::getrlimit(resource, &limit) != 0 || limit.rlim_cur == RLIM_INFINITY
           || limit.rlim_cur >= needed;
}

} // namespace

void fail(std::string_view message) noexcept
{
    write(message);
    write("\n");
    std::_Exit(EXIT_FAILURE);
}

void reportSignals() noexcept
{
    if (isForDebugging)
        return;
    // A program that pastes can close the pipe before it has read the secret.
    ::signal(SIGPIPE, SIG_IGN);
    for (const int signal : reportedSignals) {
        struct sigaction action{};
        // The parent process ignores a signal to protect this process, as nohup does with SIGHUP.
        if (::sigaction(signal, nullptr, &action) != 0 || action.sa_handler == SIG_IGN)
            continue;
        action.sa_handler = report;
        action.sa_flags = static_cast<int>(SA_RESETHAND);
        ::sigaction(signal, &action, nullptr);
    }
}

bool hasEnoughResources() noexcept
{
    // On Wayland, the program has 17 descriptors and reserves 0.7 GiB of addresses.
    constexpr rlim_t descriptors = 64;
    constexpr rlim_t addresses = rlim_t{1} << 30;
    return allows(RLIMIT_NOFILE, descriptors) && allows(RLIMIT_AS, addresses);
}

} // namespace Platform::Termination
