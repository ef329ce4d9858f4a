// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "Model/UnicodeText.h"

#include "Printing.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <fstream>
#include <sstream>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

using namespace Qt::StringLiterals;

static_assert(std::is_same_v<decltype(UnicodeText::graphemeCount(QStringView())), qsizetype>);

namespace {

using ::PrintTo;

/// A line of the Unicode standard's GraphemeBreakTest.txt.
struct BoundaryCase
{
    std::string line;
    QString text;
    /// The ends of the grapheme clusters in UTF-16 units, in ascending order.
    std::vector<qsizetype> ends;
};

BoundaryCase boundaryCase(const std::string& line)
{
    BoundaryCase result{.line = line, .text = {}, .ends = {}};
    std::istringstream symbols(line.substr(0, line.find('#')));
    for (std::string symbol; symbols >> symbol;) {
        if (symbol == "÷") {
            if (!result.text.isEmpty())
                result.ends.push_back(result.text.size());
        } else if (symbol != "×") {
            const auto codePoint = static_cast<char32_t>(std::stoul(symbol, nullptr, 16));
            result.text += QString::fromUcs4(&codePoint, 1);
        }
    }
    return result;
}

std::vector<std::string> boundaryLines()
{
    std::vector<std::string> lines;
    std::ifstream file(GRAPHEME_BREAK_TEST_FILE);
    for (std::string line; std::getline(file, line);)
        lines.push_back(line);
    return lines;
}

std::vector<BoundaryCase> boundaryCases()
{
    std::vector<BoundaryCase> cases;
    for (const std::string& line : boundaryLines()) {
        if (line.starts_with("÷"))
            cases.push_back(boundaryCase(line));
    }
    return cases;
}

/// The number of cases that the last lines of the file state.
std::size_t statedBoundaryCaseCount()
{
    constexpr std::string_view label = "# Lines: ";
    for (const std::string& line : boundaryLines()) {
        if (line.starts_with(label))
            return std::stoul(line.substr(label.size()));
    }
    return 0;
}

class StandardBoundaries : public testing::Test
{
protected:
    const std::vector<BoundaryCase> m_cases = boundaryCases();
};

TEST_F(StandardBoundaries, AreReadFromAllCases)
{
    // Unicode 15.0 has this many cases, and later versions have more.
    EXPECT_GE(m_cases.size(), 602U);
    EXPECT_EQ(m_cases.size(), statedBoundaryCaseCount());
}

TEST_F(StandardBoundaries, GiveTheCountOfGraphemeClusters)
{
    for (const auto& [line, text, ends] : m_cases) {
        EXPECT_EQ(UnicodeText::graphemeCount(text), std::ssize(ends)) << line;
    }
}

TEST_F(StandardBoundaries, GiveEveryPrefixOfGraphemeClusters)
{
    for (const auto& [line, text, ends] : m_cases) {
        EXPECT_EQ(UnicodeText::firstGraphemes(text, 0), QString()) << line;
        for (std::size_t i = 0; i < ends.size(); ++i) {
            const auto count = static_cast<qsizetype>(i) + 1;
            EXPECT_EQ(UnicodeText::firstGraphemes(text, count), text.left(ends[i]))
                << count << " of " << line;
        }
        EXPECT_EQ(UnicodeText::firstGraphemes(text, std::ssize(ends) + 1), text) << line;
    }
}

struct Counted
{
    const char* name;
    QString text;
    qsizetype count;
};

class GraphemeClusterCount : public testing::TestWithParam<Counted>
{
};

TEST_P(GraphemeClusterCount, IsTheExpectedNumber)
{
    EXPECT_EQ(UnicodeText::graphemeCount(GetParam().text), GetParam().count);
}

INSTANTIATE_TEST_SUITE_P(
    All, GraphemeClusterCount,
    testing::Values(Counted{"Empty", u""_s, 0}, Counted{"Null", QString(), 0},
                    Counted{"PlainWord", u"abend"_s, 5},
                    Counted{"LineEndOfTwoCharacters", u"a\r\nb"_s, 3},
                    Counted{"CarriageReturns", u"\r\r"_s, 2},
                    Counted{"LineFeedBeforeCarriageReturn", u"\n\r"_s, 2},
                    Counted{"ComposedUmlaut", u"\u00e4"_s, 1},
                    Counted{"DecomposedUmlaut", u"a\u0308"_s, 1},
                    Counted{"BeyondTheBasicPlane", u"\U0001f511"_s, 1},
                    Counted{"Family", u"\U0001f468\u200d\U0001f469\u200d\U0001f467"_s, 1},
                    Counted{"SkinTone", u"\U0001f44d\U0001f3fd"_s, 1},
                    Counted{"TwoFlags", u"\U0001f1e9\U0001f1ea\U0001f1e6\U0001f1f9"_s, 2},
                    Counted{"AsciiBeforeAMark", u"abc\u0308d"_s, 4},
                    Counted{"LoneSurrogate", QString(QChar(0xd83d)), 1}),
    rowName);

TEST(FirstGraphemeClusters, ReturnsAShorterTextUnchanged)
{
    EXPECT_EQ(UnicodeText::firstGraphemes(u"ab"_s, 3), u"ab"_s);
    EXPECT_EQ(UnicodeText::firstGraphemes(u"a\u0308"_s, 3), u"a\u0308"_s);
    EXPECT_EQ(UnicodeText::firstGraphemes(u""_s, 3), u""_s);
}

TEST(FirstGraphemeClusters, NeverSplitsACluster)
{
    const QString flags = u"\U0001f1e9\U0001f1ea\U0001f1e6\U0001f1f9"_s;
    EXPECT_EQ(UnicodeText::firstGraphemes(flags, 1), u"\U0001f1e9\U0001f1ea"_s);
    EXPECT_EQ(UnicodeText::firstGraphemes(u"\r\nab"_s, 2), u"\r\na"_s);
}

struct Equivalence
{
    const char* name;
    QString left;
    QString right;
    bool equivalent;
};

class CanonicalEquivalence : public testing::TestWithParam<Equivalence>
{
};

TEST_P(CanonicalEquivalence, IsTheSameInBothDirections)
{
    const auto& [name, left, right, equivalent] = GetParam();
    EXPECT_EQ(UnicodeText::canonicallyEquivalent(left, right), equivalent);
    EXPECT_EQ(UnicodeText::canonicallyEquivalent(right, left), equivalent);
}

INSTANTIATE_TEST_SUITE_P(
    All, CanonicalEquivalence,
    testing::Values(Equivalence{"SameAscii", u"abc"_s, u"abc"_s, true},
                    Equivalence{"OtherAscii", u"abc"_s, u"abd"_s, false},
                    Equivalence{"Prefix", u"abc"_s, u"ab"_s, false},
                    Equivalence{"ComposedAndDecomposed", u"\u00fc"_s, u"u\u0308"_s, true},
                    Equivalence{"WithinAWord", u"br\u00fccke"_s, u"bru\u0308cke"_s, true},
                    Equivalence{"AsciiAndUmlaut", u"u"_s, u"\u00fc"_s, false},
                    Equivalence{"MarksInAnotherOrder", u"q\u0307\u0323"_s, u"q\u0323\u0307"_s,
                                true},
                    Equivalence{"Ligature", u"\ufb01"_s, u"fi"_s, false},
                    Equivalence{"BothEmpty", u""_s, QString(), true},
                    Equivalence{"EmptyAndMark", u""_s, u"\u0308"_s, false}),
    rowName);

} // namespace
