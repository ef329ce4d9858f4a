// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

// Compares the time to generate a secret with the time of a bare loop of the system calls that the
// secret needs. The repetitions of both are interleaved at random, so that a change of the
// processor's speed affects both. The last lines of the output show the ratios of the medians.

#include "Services/SecureGenerator.h"

#include <benchmark/benchmark.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <map>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include <sys/random.h>

namespace {

struct MeasuredSecret
{
    std::string name;
    GeneratorSettings settings;
    /// A password needs one call per character and one per step of the shuffle; a passphrase needs
    /// one call per word and one for the number.
    std::int64_t calls;
};

std::vector<MeasuredSecret> measuredSecrets()
{
    std::vector<MeasuredSecret> result;
    for (const std::int64_t length : {10, 20, 64}) {
        result.push_back({.name = "password " + std::to_string(length),
                          .settings = {.length = length},
                          .calls = 2 * length - 1});
    }
    for (const std::int64_t wordCount : {3, 5, 8}) {
        result.push_back({.name = "passphrase " + std::to_string(wordCount),
                          .settings = {.mode = GeneratorMode::passphrase, .wordCount = wordCount},
                          .calls = wordCount + 1});
    }
    return result;
}

void generateSecret(benchmark::State& state, const GeneratorSettings& settings)
{
    const SecureGenerator generator;
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(generator.generate(settings));
}

void bareSystemCalls(benchmark::State& state, std::int64_t calls)
{
    for ([[maybe_unused]] auto _ : state) {
        for (std::int64_t i = 0; i < calls; ++i) {
            std::uint64_t value = 0;
            if (getrandom(&value, sizeof value, 0) != sizeof value)
                state.SkipWithError("the random source failed");
            benchmark::DoNotOptimize(value);
        }
    }
}

std::string bareName(const std::string& name)
{
    return name + ", bare calls";
}

/// Reports to the console and stores the medians.
class MedianReporter final : public benchmark::ConsoleReporter
{
public:
    void ReportRuns(const std::vector<Run>& runs) override
    {
        for (const Run& run : runs) {
            if (run.aggregate_name == "median")
                m_medians[run.run_name.function_name] = run.GetAdjustedRealTime();
        }
        ConsoleReporter::ReportRuns(runs);
    }

    /// The median time of the secret `name` divided by the median time of the secret's bare system
    /// calls; 0 if the command line excludes one of these benchmarks.
    [[nodiscard]] double ratio(const std::string& name) const
    {
        const auto whole = m_medians.find(name);
        const auto bare = m_medians.find(bareName(name));
        if (whole == m_medians.end() || bare == m_medians.end())
            return 0;
        return whole->second / bare->second;
    }

private:
    std::map<std::string, double> m_medians;
};

} // namespace

int main(int argc, char** argv)
{
    // The arguments of the command line come after the defaults, and so override the defaults.
    std::array defaults{std::string("--benchmark_repetitions=15"),
                        std::string("--benchmark_min_time=0.05"),
                        std::string("--benchmark_enable_random_interleaving=true"),
                        std::string("--benchmark_report_aggregates_only=true")};
    const std::span given(argv, static_cast<std::size_t>(argc));
    std::vector<char*> arguments(given.begin(), given.end());
    for (std::size_t i = 0; i < defaults.size(); ++i)
        arguments.insert(arguments.begin() + 1 + static_cast<std::ptrdiff_t>(i),
                         defaults.at(i).data());
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data()))
        return 1;

    const auto secrets = measuredSecrets();
    for (const auto& [name, settings, calls] : secrets) {
        // NOLINTBEGIN(readability-redundant-string-cstr): required by the library in Debian 12
        benchmark::RegisterBenchmark(name.c_str(), generateSecret, settings);
        benchmark::RegisterBenchmark(bareName(name).c_str(), bareSystemCalls, calls);
        // NOLINTEND(readability-redundant-string-cstr)
    }
    MedianReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);

    for (const auto& measured : secrets) {
        if (const double ratio = reporter.ratio(measured.name); ratio > 0)
            std::printf("%s: %.3fx its %lld bare system calls\n", measured.name.c_str(), ratio,
                        static_cast<long long>(measured.calls));
    }
    return 0;
}
