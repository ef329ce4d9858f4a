// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

// Measures the time that the sandbox adds to the start of the program. A process cannot leave a
// sandbox, so each round runs in a new child process, whose start is not measured.

#include "Platform/Sandbox.h"

#include <benchmark/benchmark.h>

#include <array>
#include <chrono>

#include <sys/wait.h>
#include <unistd.h>

namespace {

using Seconds = std::chrono::duration<double>;

double secondsFor(void (*restriction)())
{
    const auto start = std::chrono::steady_clock::now();
    restriction();
    return Seconds(std::chrono::steady_clock::now() - start).count();
}

void inFreshProcess(benchmark::State& state, void (*restriction)())
{
    for ([[maybe_unused]] const auto round : state) {
        std::array<int, 2> ends{};
        if (::pipe(ends.data()) != 0) {
            state.SkipWithError("a pipe cannot be created");
            return;
        }
        const pid_t child = ::fork();
        if (child == 0) {
            const double seconds = secondsFor(restriction);
            ::_exit(::write(ends[1], &seconds, sizeof(seconds)) == sizeof(seconds) ? 0 : 1);
        }
        double seconds = 0;
        ::close(ends[1]);
        const bool isReceived
            = child > 0 && ::read(ends[0], &seconds, sizeof(seconds)) == sizeof(seconds);
        ::close(ends[0]);
        ::waitpid(child, nullptr, 0);
        if (!isReceived) {
            state.SkipWithError("the child process has sent no time");
            return;
        }
        state.SetIterationTime(seconds);
    }
}

BENCHMARK_CAPTURE(inFreshProcess, filesystem, Platform::Sandbox::restrictFilesystem)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(inFreshProcess, syscalls, Platform::Sandbox::installSyscallFilter)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
