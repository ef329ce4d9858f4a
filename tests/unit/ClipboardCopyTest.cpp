// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "FakeDesktop.h"
#include "ViewModel/GeneratorViewModel.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::Eq;
using testing::Optional;

class ClipboardCopy : public testing::Test
{
protected:
    ClipboardCopy()
    {
        FakeClipboard::reset();
        FakeClock::reset();
    }

    std::unique_ptr<GeneratorViewModel> model = std::make_unique<GeneratorViewModel>();
};

TEST_F(ClipboardCopy, NeverHappensByItself)
{
    FakeClipboard::writeFromElsewhere(QStringLiteral("meins"));
    model->generate();
    model->useFromHistory(model->history().constLast());
    EXPECT_THAT(FakeClipboard::text(), Optional(Eq(QStringLiteral("meins"))));
    EXPECT_EQ(FakeClock::waiting(), 0U);
    EXPECT_FALSE(model->copied());
}

TEST_F(ClipboardCopy, PutsTheSecretOnTheClipboardAndConfirmsIt)
{
    model->copyToClipboard();
    EXPECT_THAT(FakeClipboard::text(), Optional(Eq(model->generated())));
    EXPECT_TRUE(model->copied());
}

TEST_F(ClipboardCopy, RefusesAnEmptySecretSilently)
{
    FakeClipboard::writeFromElsewhere(QStringLiteral("meins"));
    model->useFromHistory(QString());
    model->copyToClipboard();
    EXPECT_THAT(FakeClipboard::text(), Optional(Eq(QStringLiteral("meins"))));
    EXPECT_FALSE(model->copied());
    EXPECT_EQ(FakeClock::waiting(), 0U);
}

TEST_F(ClipboardCopy, AnEmptySecretLeavesAnEarlierConfirmationAlone)
{
    model->copyToClipboard();
    const QString secret = model->generated();
    model->useFromHistory(QString());
    model->copyToClipboard();
    EXPECT_TRUE(model->copied());
    EXPECT_THAT(FakeClipboard::text(), Optional(Eq(secret)));
    EXPECT_EQ(FakeClock::waiting(), 2U);
}

TEST_F(ClipboardCopy, IsConfirmedFor1400Milliseconds)
{
    model->copyToClipboard();
    FakeClock::advance(1399ms);
    EXPECT_TRUE(model->copied());
    FakeClock::advance(1ms);
    EXPECT_FALSE(model->copied());
    EXPECT_THAT(FakeClipboard::text(), Optional(Eq(model->generated())));
}

TEST_F(ClipboardCopy, IsClearedAfter30Seconds)
{
    model->copyToClipboard();
    FakeClock::advance(29'999ms);
    EXPECT_THAT(FakeClipboard::text(), Optional(Eq(model->generated())));
    FakeClock::advance(1ms);
    EXPECT_EQ(FakeClipboard::text(), std::nullopt);
    EXPECT_EQ(FakeClipboard::clears(), 1);
    EXPECT_EQ(FakeClock::waiting(), 0U);
}

TEST_F(ClipboardCopy, ANewSecretInTheWindowDoesNotKeepTheCopiedOneOnTheClipboard)
{
    model->copyToClipboard();
    model->generate();
    FakeClock::advance(30s);
    EXPECT_EQ(FakeClipboard::text(), std::nullopt);
}

TEST_F(ClipboardCopy, WhatAnotherProgramWroteSinceStays)
{
    model->copyToClipboard();
    FakeClock::advance(10s);
    FakeClipboard::writeFromElsewhere(QStringLiteral("meins"));
    FakeClock::advance(1h);
    EXPECT_THAT(FakeClipboard::text(), Optional(Eq(QStringLiteral("meins"))));
    EXPECT_EQ(FakeClipboard::clears(), 0);
}

TEST_F(ClipboardCopy, TheSameTextWrittenByAnotherProgramStaysToo)
{
    model->copyToClipboard();
    FakeClipboard::writeFromElsewhere(model->generated());
    FakeClock::advance(30s);
    EXPECT_THAT(FakeClipboard::text(), Optional(Eq(model->generated())));
}

TEST_F(ClipboardCopy, ASecondCopyIsConfirmedOnlyUntilTheFirstOnesTimeIsUp)
{
    model->copyToClipboard();
    FakeClock::advance(500ms);
    model->copyToClipboard();
    FakeClock::advance(899ms);
    EXPECT_TRUE(model->copied());
    FakeClock::advance(1ms);
    EXPECT_FALSE(model->copied());
}

TEST_F(ClipboardCopy, TheSecondCopysOwnConfirmationEndIsToldAsWell)
{
    std::vector<bool> told;
    QObject::connect(model.get(), &GeneratorViewModel::copiedChanged, model.get(),
                     [&] { told.push_back(model->copied()); });
    model->copyToClipboard();
    FakeClock::advance(500ms);
    model->copyToClipboard();
    FakeClock::advance(1400ms);
    EXPECT_THAT(told, ElementsAre(true, true, false, false));
}

TEST_F(ClipboardCopy, ASecondCopyIsCleared30SecondsAfterItself)
{
    model->copyToClipboard();
    FakeClock::advance(29s);
    model->copyToClipboard();
    FakeClock::advance(29'999ms);
    EXPECT_THAT(FakeClipboard::text(), Optional(Eq(model->generated())));
    EXPECT_EQ(FakeClipboard::clears(), 0);
    FakeClock::advance(1ms);
    EXPECT_EQ(FakeClipboard::text(), std::nullopt);
}

TEST_F(ClipboardCopy, IsClearedWithoutTheViewModel)
{
    model->copyToClipboard();
    model.reset();
    FakeClock::advance(30s);
    EXPECT_EQ(FakeClipboard::text(), std::nullopt);
}

} // namespace
