// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "Model/GeneratorMode.h"

#include "Printing.h"

#include <gtest/gtest.h>

#include <array>
#include <optional>
#include <type_traits>

using namespace Qt::StringLiterals;

static_assert(std::is_enum_v<GeneratorMode>);
static_assert(GeneratorMode() == GeneratorMode::password);
static_assert(static_cast<int>(GeneratorMode::password) == 0);
static_assert(static_cast<int>(GeneratorMode::passphrase) == 1);
static_assert(allGeneratorModes == std::array{GeneratorMode::password, GeneratorMode::passphrase});

namespace {

using ::PrintTo;

struct Label
{
    const char* name;
    GeneratorMode mode;
    QString text;
};

class GeneratorModeLabel : public testing::TestWithParam<Label>
{
};

TEST_P(GeneratorModeLabel, IsTheRawValue)
{
    EXPECT_EQ(rawValue(GetParam().mode), GetParam().text);
}

TEST_P(GeneratorModeLabel, IdentifiesTheMode)
{
    EXPECT_EQ(generatorMode(GetParam().text), GetParam().mode);
}

INSTANTIATE_TEST_SUITE_P(All, GeneratorModeLabel,
                         testing::Values(Label{"Password", GeneratorMode::password, u"Passwort"_s},
                                         Label{"Passphrase", GeneratorMode::passphrase,
                                               u"Passphrase"_s}),
                         rowName);

struct ForeignText
{
    const char* name;
    QString text;
};

class GeneratorModeFromText : public testing::TestWithParam<ForeignText>
{
};

TEST_P(GeneratorModeFromText, IsAbsentForAnyOtherText)
{
    EXPECT_EQ(generatorMode(GetParam().text), std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(All, GeneratorModeFromText,
                         testing::Values(ForeignText{"LowerCaseInitial", u"passwort"_s},
                                         ForeignText{"LowerCasePassphrase", u"passphrase"_s},
                                         ForeignText{"AllCapitals", u"PASSWORT"_s},
                                         ForeignText{"EnumeratorName", u"password"_s},
                                         ForeignText{"Prefix", u"Passwor"_s},
                                         ForeignText{"TrailingSpace", u"Passwort "_s},
                                         ForeignText{"LeadingSpace", u" Passphrase"_s},
                                         ForeignText{"Empty", u""_s}),
                         rowName);

} // namespace
