// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

// Replaces the system's random source in every executable that links MorvaneScriptedRandom:
//
//     const ScriptedRandom random{0, 75, 62, 7};
//     EXPECT_EQ(generator.generate(settings), "abend-zitrone-tau-7");
//     EXPECT_EQ(random.calls(), 4);
//
// A drawn index is the drawn value modulo the bound, so a value below the bound is the index.
// Without a script, the source yields the same pseudorandom values in every run of the program, for
// tests that accept any secret.

#include <QtGlobal>

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <optional>
#include <vector>

/// The status, which is not 0, with which the source of a script fails.
struct FailsWith
{
    std::int32_t status;
};

/// The random source during the life of the object. An object that is created later takes
/// precedence during its own life. A request of a size other than 8 bytes or beyond the end of the
/// script aborts the program.
class ScriptedRandom final
{
public:
    /// Sets the argument to the drawn value and returns 0, or returns the status of a failure.
    using Source = std::function<std::int32_t(std::uint64_t&)>;

    /// Yields `values` in order.
    ScriptedRandom(std::initializer_list<std::uint64_t> values);

    /// Yields `values` in order. With a `failure`, the request after the last value fails.
    explicit ScriptedRandom(std::vector<std::uint64_t> values,
                            std::optional<FailsWith> failure = std::nullopt);

    /// Passes every request to `source`.
    explicit ScriptedRandom(Source source);

    ~ScriptedRandom();

    /// The number of requests, including failed ones.
    [[nodiscard]] std::int64_t calls() const { return m_calls; }

    /// Sets `value` to the drawn value and returns 0, or returns the status of a failure.
    [[nodiscard]] std::int32_t draw(std::uint64_t& value);

private:
    Source m_source;
    std::int64_t m_calls = 0;
    ScriptedRandom* m_previous;
    Q_DISABLE_COPY_MOVE(ScriptedRandom)
};
