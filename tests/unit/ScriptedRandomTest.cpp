// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "ScriptedRandom.h"

#include "Platform/SecureRandom.h"
#include "Printing.h"

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <type_traits>

static_assert(!std::is_copy_constructible_v<ScriptedRandom>);
static_assert(!std::is_move_constructible_v<ScriptedRandom>);

namespace {

struct Drawn
{
    std::int32_t status = 0;
    std::uint64_t value = 0;
};

Drawn draw()
{
    Drawn drawn;
    drawn.status = Platform::fillSecureRandom(std::as_writable_bytes(std::span(&drawn.value, 1)));
    return drawn;
}

TEST(ScriptedRandom, RestoresTheEarlierScriptWhenDestroyed)
{
    const ScriptedRandom outer{1, 2};
    {
        const ScriptedRandom inner{7};
        EXPECT_EQ(draw().value, 7U);
    }
    EXPECT_EQ(draw().value, 1U);
    EXPECT_EQ(outer.calls(), 1);
}

TEST(ScriptedRandom, YieldsDifferentValuesWithoutAScript)
{
    const Drawn first = draw();
    const Drawn second = draw();
    EXPECT_EQ(first.status, 0);
    EXPECT_EQ(second.status, 0);
    EXPECT_NE(first.value, second.value);
}

TEST(ScriptedRandomDeathTest, StopsTheProgramAtADrawBeyondTheScript)
{
    const ScriptedRandom random{1};
    EXPECT_EQ(draw().value, 1U);
    EXPECT_DEATH(draw(), "beyond the end of the script");
}

TEST(ScriptedRandomDeathTest, StopsTheProgramAtADrawAfterTheFailure)
{
    const ScriptedRandom random({}, FailsWith{-4});
    EXPECT_EQ(draw().status, -4);
    EXPECT_DEATH(draw(), "beyond the end of the script");
}

TEST(ScriptedRandomDeathTest, StopsTheProgramAtARequestOfAnotherSize)
{
    std::array<std::byte, 16> bytes{};
    EXPECT_DEATH(static_cast<void>(Platform::fillSecureRandom(bytes)), "exactly 8 bytes");
}

} // namespace
