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

    std::unique_ptr<GeneratorViewModel> viewModel = std::make_unique<GeneratorViewModel>();
};

TEST_F(ClipboardCopy, NeverHappensWithoutARequest)
{
    FakeClipboard::writeAsAnotherProgram(QStringLiteral("meins"));
    viewModel->generate();
    viewModel->useFromHistory(viewModel->history().constLast());
    EXPECT_THAT(FakeClipboard::text(), Optional(Eq(QStringLiteral("meins"))));
    EXPECT_EQ(FakeClock::pendingTasks(), 0U);
    EXPECT_FALSE(viewModel->copied());
}

TEST_F(ClipboardCopy, PutsTheSecretOnTheClipboardAndConfirmsIt)
{
    viewModel->copyToClipboard();
    EXPECT_THAT(FakeClipboard::text(), Optional(Eq(viewModel->generated())));
    EXPECT_TRUE(viewModel->copied());
}

TEST_F(ClipboardCopy, DoesNothingForAnEmptySecret)
{
    FakeClipboard::writeAsAnotherProgram(QStringLiteral("meins"));
    viewModel->useFromHistory(QString());
    viewModel->copyToClipboard();
    EXPECT_THAT(FakeClipboard::text(), Optional(Eq(QStringLiteral("meins"))));
    EXPECT_FALSE(viewModel->copied());
    EXPECT_EQ(FakeClock::pendingTasks(), 0U);
}

TEST_F(ClipboardCopy, AnEmptySecretKeepsAnEarlierConfirmation)
{
    viewModel->copyToClipboard();
    const QString secret = viewModel->generated();
    viewModel->useFromHistory(QString());
    viewModel->copyToClipboard();
    EXPECT_TRUE(viewModel->copied());
    EXPECT_THAT(FakeClipboard::text(), Optional(Eq(secret)));
    EXPECT_EQ(FakeClock::pendingTasks(), 2U);
}

TEST_F(ClipboardCopy, IsConfirmedFor1400Milliseconds)
{
    viewModel->copyToClipboard();
    FakeClock::advance(1399ms);
    EXPECT_TRUE(viewModel->copied());
    FakeClock::advance(1ms);
    EXPECT_FALSE(viewModel->copied());
    EXPECT_THAT(FakeClipboard::text(), Optional(Eq(viewModel->generated())));
}

TEST_F(ClipboardCopy, IsClearedAfter30Seconds)
{
    viewModel->copyToClipboard();
    FakeClock::advance(29'999ms);
    EXPECT_THAT(FakeClipboard::text(), Optional(Eq(viewModel->generated())));
    FakeClock::advance(1ms);
    EXPECT_EQ(FakeClipboard::text(), std::nullopt);
    EXPECT_EQ(FakeClipboard::clears(), 1);
    EXPECT_EQ(FakeClock::pendingTasks(), 0U);
}

TEST_F(ClipboardCopy, ANewSecretInTheWindowDoesNotKeepTheCopiedOneOnTheClipboard)
{
    viewModel->copyToClipboard();
    viewModel->generate();
    FakeClock::advance(30s);
    EXPECT_EQ(FakeClipboard::text(), std::nullopt);
}

TEST_F(ClipboardCopy, KeepsLaterContentsOfAnotherProgram)
{
    viewModel->copyToClipboard();
    FakeClock::advance(10s);
    FakeClipboard::writeAsAnotherProgram(QStringLiteral("meins"));
    FakeClock::advance(1h);
    EXPECT_THAT(FakeClipboard::text(), Optional(Eq(QStringLiteral("meins"))));
    EXPECT_EQ(FakeClipboard::clears(), 0);
}

TEST_F(ClipboardCopy, KeepsTheSameTextFromAnotherProgram)
{
    viewModel->copyToClipboard();
    FakeClipboard::writeAsAnotherProgram(viewModel->generated());
    FakeClock::advance(30s);
    EXPECT_THAT(FakeClipboard::text(), Optional(Eq(viewModel->generated())));
}

TEST_F(ClipboardCopy, TheFirstCopyEndsTheConfirmationOfTheSecond)
{
    viewModel->copyToClipboard();
    FakeClock::advance(500ms);
    viewModel->copyToClipboard();
    FakeClock::advance(899ms);
    EXPECT_TRUE(viewModel->copied());
    FakeClock::advance(1ms);
    EXPECT_FALSE(viewModel->copied());
}

TEST_F(ClipboardCopy, TheEndOfTheSecondConfirmationIsSignalledToo)
{
    std::vector<bool> signalled;
    QObject::connect(viewModel.get(), &GeneratorViewModel::copiedChanged, viewModel.get(),
                     [&] { signalled.push_back(viewModel->copied()); });
    viewModel->copyToClipboard();
    FakeClock::advance(500ms);
    viewModel->copyToClipboard();
    FakeClock::advance(1400ms);
    EXPECT_THAT(signalled, ElementsAre(true, true, false, false));
}

TEST_F(ClipboardCopy, ASecondCopyIsClearedAfterItsOwn30Seconds)
{
    viewModel->copyToClipboard();
    FakeClock::advance(29s);
    viewModel->copyToClipboard();
    FakeClock::advance(29'999ms);
    EXPECT_THAT(FakeClipboard::text(), Optional(Eq(viewModel->generated())));
    EXPECT_EQ(FakeClipboard::clears(), 0);
    FakeClock::advance(1ms);
    EXPECT_EQ(FakeClipboard::text(), std::nullopt);
}

TEST_F(ClipboardCopy, IsClearedWithoutTheViewModel)
{
    viewModel->copyToClipboard();
    viewModel.reset();
    FakeClock::advance(30s);
    EXPECT_EQ(FakeClipboard::text(), std::nullopt);
}

} // namespace
