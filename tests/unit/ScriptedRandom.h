// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

// Stands in for the system's random source, in every executable that links MorvaneScriptedRandom:
//
//     const ScriptedRandom random{0, 75, 62, 7};
//     EXPECT_EQ(generator.generate(settings), "abend-zitrone-tau-7");
//     EXPECT_EQ(random.calls(), 4);
//
// A drawn index is the drawn value modulo the bound, so a value below the bound is itself the
// index. While no script is installed, the source yields the same pseudorandom values in every run
// of the program: for tests that need secrets but do not care which.

#include <QtGlobal>

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <optional>
#include <vector>

/// The status that a script's source fails with, which is not 0.
struct FailsWith
{
    std::int32_t status;
};

/// The random source for as long as it lives; one made later takes precedence until it dies. A
/// request of other than 8 bytes stops the program, and so does one beyond the script's end.
class ScriptedRandom final
{
public:
    /// Sets its argument to the value drawn and returns 0, or returns the status of a failure.
    using Source = std::function<std::int32_t(std::uint64_t&)>;

    /// Yields `values` in order.
    ScriptedRandom(std::initializer_list<std::uint64_t> values);

    /// Yields `values` in order; the request after the last of them fails, if a failure is given.
    explicit ScriptedRandom(std::vector<std::uint64_t> values,
                            std::optional<FailsWith> failure = std::nullopt);

    /// Passes every request on to `source`, without end.
    explicit ScriptedRandom(Source source);

    ~ScriptedRandom();

    /// How many requests were made, failed ones included.
    [[nodiscard]] std::int64_t calls() const { return m_calls; }

    /// Answers one request; called in place of the system.
    [[nodiscard]] std::int32_t draw(std::uint64_t& value);

private:
    Source m_source;
    std::int64_t m_calls = 0;
    ScriptedRandom* m_previous;
    Q_DISABLE_COPY_MOVE(ScriptedRandom)
};
