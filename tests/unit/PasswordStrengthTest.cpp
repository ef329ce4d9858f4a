// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "Model/PasswordStrength.h"

#include "Printing.h"

#include <gtest/gtest.h>

#include <type_traits>

using namespace Qt::StringLiterals;

static_assert(std::is_enum_v<PasswordStrength>);
static_assert(static_cast<int>(PasswordStrength::weak) == 0);
static_assert(static_cast<int>(PasswordStrength::fair) == 1);
static_assert(static_cast<int>(PasswordStrength::good) == 2);
static_assert(static_cast<int>(PasswordStrength::strong) == 3);

namespace {

using ::PrintTo;

struct Level
{
    const char* name;
    PasswordStrength strength;
    QString title;
    QString image;
};

class PasswordStrengthLevel : public testing::TestWithParam<Level>
{
};

TEST_P(PasswordStrengthLevel, HasItsGermanTitle)
{
    EXPECT_EQ(title(GetParam().strength), GetParam().title);
}

TEST_P(PasswordStrengthLevel, HasItsSymbol)
{
    EXPECT_EQ(systemImage(GetParam().strength), GetParam().image);
}

INSTANTIATE_TEST_SUITE_P(
    All, PasswordStrengthLevel,
    testing::Values(Level{"Weak", PasswordStrength::weak, u"Schwach"_s, u"shield.slash"_s},
                    Level{"Fair", PasswordStrength::fair, u"Mittel"_s, u"shield.lefthalf.filled"_s},
                    Level{"Good", PasswordStrength::good, u"Gut"_s, u"shield"_s},
                    Level{"Strong", PasswordStrength::strong, u"Stark"_s,
                          u"checkmark.shield.fill"_s}),
    rowName);

} // namespace
