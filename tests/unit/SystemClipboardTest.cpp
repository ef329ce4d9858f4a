// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "Platform/Clipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

namespace Clipboard = Platform::Clipboard;
using testing::ElementsAre;
using testing::Gt;
using testing::IsEmpty;

/// Runs on the offscreen platform, where Qt provides a clipboard for this program only.
class SystemClipboardTest : public testing::Test
{
protected:
    static QClipboard& contents() { return *QGuiApplication::clipboard(); }

private:
    int m_argumentCount = 3;
    std::string m_name = "SystemClipboardTest";
    std::string m_option = "-platform";
    std::string m_platform = "offscreen";
    std::vector<char*> m_arguments{m_name.data(), m_option.data(), m_platform.data(), nullptr};
    QGuiApplication m_application{m_argumentCount, m_arguments.data()};
};

TEST_F(SystemClipboardTest, HoldsTheSecretAsPlainTextAfterAMark)
{
    Clipboard::setSecret(QStringLiteral("geheim"));
    EXPECT_EQ(contents().text(), QStringLiteral("geheim"));
    // Weston keeps a copy of the first format.
    EXPECT_THAT(
        contents().mimeData()->formats(),
        ElementsAre(QStringLiteral("x-kde-passwordManagerHint"), QStringLiteral("text/plain")));
    EXPECT_EQ(contents().mimeData()->data(QStringLiteral("x-kde-passwordManagerHint")), "secret");
}

TEST_F(SystemClipboardTest, CountsItsWritesAndClears)
{
    const std::int64_t start = Clipboard::changeCount();
    Clipboard::setSecret(QStringLiteral("geheim"));
    const std::int64_t written = Clipboard::changeCount();
    EXPECT_THAT(written, Gt(start));
    EXPECT_EQ(Clipboard::changeCount(), written);
    Clipboard::clear();
    EXPECT_THAT(Clipboard::changeCount(), Gt(written));
    EXPECT_EQ(contents().text(), QString());
}

TEST_F(SystemClipboardTest, CountsTheSameSecretAgain)
{
    Clipboard::setSecret(QStringLiteral("geheim"));
    const std::int64_t first = Clipboard::changeCount();
    Clipboard::setSecret(QStringLiteral("geheim"));
    EXPECT_THAT(Clipboard::changeCount(), Gt(first));
}

TEST_F(SystemClipboardTest, CountsAnotherWriterOfTheSameText)
{
    Clipboard::setSecret(QStringLiteral("geheim"));
    const std::int64_t written = Clipboard::changeCount();
    contents().setText(QStringLiteral("geheim"));
    EXPECT_THAT(Clipboard::changeCount(), Gt(written));
}

TEST_F(SystemClipboardTest, LeavesAnEmptyOfferWhileNoWindowHasTheFocus)
{
    Clipboard::setSecret(QStringLiteral("geheim"));
    const QMimeData* const offered = contents().mimeData();
    Clipboard::clear();
    EXPECT_EQ(contents().mimeData(), offered);
    EXPECT_THAT(offered->formats(), IsEmpty());
}

TEST_F(SystemClipboardTest, AClearedClipboardCanBeClearedAgain)
{
    Clipboard::clear();
    Clipboard::clear();
    EXPECT_EQ(contents().text(), QString());
}

} // namespace
