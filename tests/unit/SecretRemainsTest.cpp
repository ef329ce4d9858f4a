// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

// Checks that no part of a secret remains in freed memory, nor the character pool on the stack.

#include "FreedMemory.h"
#include "Model/GeneratorError.h"
#include "Platform/ClipboardSecret.h"
#include "ScriptedRandom.h"
#include "Services/SecretText.h"
#include "Services/SecureGenerator.h"
#include "ViewModel/GeneratorViewModel.h"

#include <QCoreApplication>
#include <QJSEngine>
#include <QString>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string_view>
#include <vector>

#include <pthread.h>

namespace {

using namespace Qt::StringLiterals;

std::vector<std::uint64_t> zeros(std::size_t count)
{
    return std::vector<std::uint64_t>(count);
}

QString repeated(char16_t character, qsizetype count)
{
    return {count, character};
}

TEST(FreedMemoryTest, FindsTextThatWasNotWiped)
{
    const QString needle = repeated(u'q', 10);
    const FreedMemory freed(needle);
    {
        const QString copy = QString(needle.constData(), needle.size());
    }
    EXPECT_EQ(freed.matches(), 1);
}

TEST(SecretTextTest, LeavesNothingInFreedMemory)
{
    const QString needle = repeated(u'q', 10);
    const FreedMemory freed(needle);
    QString copy = QString(needle.constData(), needle.size());
    SecretText::wipe(copy);
    EXPECT_TRUE(copy.isEmpty());
    copy = QString();
    EXPECT_EQ(freed.matches(), 0);
}

TEST(SecretTextTest, DoesNotWipeASharedText)
{
    QString text = repeated(u'q', 10);
    const QString shared = text;
    SecretText::wipe(text);
    EXPECT_EQ(shared, repeated(u'q', 10));
    EXPECT_EQ(text, shared);
}

TEST(SecretTextTest, AcceptsAnEmptyText)
{
    QString none;
    SecretText::wipe(none);
    QString empty = u""_s;
    SecretText::wipe(empty);
    EXPECT_TRUE(none.isEmpty());
    EXPECT_TRUE(empty.isEmpty());
}

class ClipboardSecretTest : public testing::Test
{
protected:
    const QString secret = repeated(u'q', 10);
    /// The bytes of the secret in UTF-8, two in each code unit.
    const QString bytes = repeated(u'\x7171', 5);
};

TEST_F(ClipboardSecretTest, LeavesNothingInFreedMemory)
{
    const FreedMemory freed(bytes);
    auto contents = std::make_unique<Platform::ClipboardSecret>(secret);
    EXPECT_EQ(contents->data(u"text/plain"_s), "qqqqqqqqqq");
    contents.reset();
    EXPECT_EQ(freed.matches(), 0);
}

TEST_F(ClipboardSecretTest, OffersNothingAfterClearing)
{
    const FreedMemory freed(bytes);
    Platform::ClipboardSecret contents(secret);
    EXPECT_EQ(contents.text(), secret);
    contents.clear();
    EXPECT_TRUE(contents.formats().isEmpty());
    EXPECT_FALSE(contents.hasText());
    EXPECT_TRUE(contents.data(u"text/plain"_s).isEmpty());
    EXPECT_EQ(freed.matches(), 0);
}

class SecretRemainsTest : public testing::Test
{
protected:
    const SecureGenerator generator{};
    const GeneratorSettings letters{
        .length = 64, .uppercase = false, .numbers = false, .symbols = false};
    const GeneratorSettings words{
        .mode = GeneratorMode::passphrase, .wordCount = 8, .separator = u"+++"_s};
};

TEST_F(SecretRemainsTest, APasswordLeavesNoPartBehind)
{
    const QString part = repeated(u'a', 4);
    const ScriptedRandom random(zeros(64 + 63));
    const FreedMemory freed(part);
    QString secret = generator.generate(letters);
    EXPECT_EQ(secret.count(u'a'), 64);
    SecretText::wipe(secret);
    EXPECT_EQ(freed.matches(), 0);
}

TEST_F(SecretRemainsTest, APasswordThatFailsLeavesNoPartBehind)
{
    const QString part = repeated(u'a', 4);
    const ScriptedRandom random(zeros(50), FailsWith{5});
    const FreedMemory freed(part);
    EXPECT_THROW(static_cast<void>(generator.generate(letters)), GeneratorError);
    EXPECT_EQ(freed.matches(), 0);
}

TEST_F(SecretRemainsTest, APassphraseLeavesNoPartBehind)
{
    const ScriptedRandom random(zeros(9));
    QString secret;
    const FreedMemory freed(u"abend+++");
    secret = generator.generate(words);
    EXPECT_TRUE(secret.endsWith(u"abend+++0"_s));
    SecretText::wipe(secret);
    EXPECT_EQ(freed.matches(), 0);
}

TEST_F(SecretRemainsTest, APassphraseThatFailsLeavesNoPartBehind)
{
    const ScriptedRandom random(zeros(8), FailsWith{5});
    const FreedMemory freed(u"abend+++");
    EXPECT_THROW(static_cast<void>(generator.generate(words)), GeneratorError);
    EXPECT_EQ(freed.matches(), 0);
}

#ifndef __SANITIZE_ADDRESS__ // AddressSanitizer keeps local variables outside the stack

/// Runs `task` on a stack of its own and returns the memory of that stack.
std::vector<char> stackOf(std::function<void()> task)
{
    constexpr std::size_t size = 1 << 20;
    const auto run = [](void* argument) -> void* {
        (*static_cast<std::function<void()>*>(argument))();
        return nullptr;
    };

    std::vector<char> memory(size);
    pthread_attr_t attributes{};
    pthread_t thread{};
    pthread_attr_init(&attributes);
    EXPECT_EQ(pthread_attr_setstack(&attributes, memory.data(), memory.size()), 0);
    EXPECT_EQ(pthread_create(&thread, &attributes, run, &task), 0);
    EXPECT_EQ(pthread_join(thread, nullptr), 0);
    pthread_attr_destroy(&attributes);
    return memory;
}

bool holds(const std::vector<char>& memory, std::string_view bytes)
{
    return std::string_view(memory.data(), memory.size()).find(bytes) != std::string_view::npos;
}

TEST_F(SecretRemainsTest, ThePoolIsNotLeftOnTheStack)
{
    const std::string_view part = SecureGenerator::lowercase.substr(2, 6);
    const std::vector<char> withPart = stackOf([part] {
        std::array<char, 26> copy{};
        std::ranges::copy(SecureGenerator::lowercase, copy.begin());
        EXPECT_NE(std::string_view(copy.data(), copy.size()).find(part), std::string_view::npos);
    });
    EXPECT_TRUE(holds(withPart, part));

    const ScriptedRandom random(zeros(64 + 63));
    QString secret;
    const std::vector<char> after = stackOf([&] { secret = generator.generate(letters); });
    EXPECT_EQ(secret, repeated(u'a', 64));
    EXPECT_FALSE(holds(after, part));
}

#endif

class ReleasedSecretsTest : public testing::Test
{
protected:
    static GeneratorSettings tenLetters()
    {
        return {.length = 10, .uppercase = false, .numbers = false, .symbols = false};
    }

    static void generate(GeneratorViewModel& viewModel, std::uint64_t letter)
    {
        const ScriptedRandom random([letter](std::uint64_t& value) {
            value = letter;
            return 0;
        });
        viewModel.generate();
    }

    /// Lets control return to the event loop.
    static void returnToEventLoop() { QCoreApplication::processEvents(); }

private:
    int m_argumentCount = 0;
    const QCoreApplication m_application{m_argumentCount, nullptr};
};

TEST_F(ReleasedSecretsTest, AreWipedWhenTheHistoryDropsThem)
{
    const QString secret = repeated(u'a', 10);
    GeneratorViewModel viewModel;
    viewModel.setSettings(tenLetters());
    FreedMemory freed(secret);
    generate(viewModel, 0);
    ASSERT_EQ(viewModel.generated(), secret);
    freed.watch(viewModel.generated().constData());
    for (std::uint64_t letter = 1; letter <= 6; ++letter)
        generate(viewModel, letter);
    ASSERT_FALSE(viewModel.history().contains(secret));
    returnToEventLoop();
    EXPECT_TRUE(freed.watchedIsFreed());
    EXPECT_EQ(freed.matches(), 0);
}

TEST_F(ReleasedSecretsTest, AreWipedOnceNoOtherStringSharesThem)
{
    const QString secret = repeated(u'a', 10);
    GeneratorViewModel viewModel;
    viewModel.setSettings(tenLetters());
    FreedMemory freed(secret);
    generate(viewModel, 0);
    QString copy = viewModel.generated();
    freed.watch(copy.constData());
    for (std::uint64_t letter = 1; letter <= 8; ++letter)
        generate(viewModel, letter);
    returnToEventLoop();
    EXPECT_EQ(copy, secret);
    copy = QString();
    EXPECT_FALSE(freed.watchedIsFreed());
    generate(viewModel, 9);
    returnToEventLoop();
    EXPECT_TRUE(freed.watchedIsFreed());
    EXPECT_EQ(freed.matches(), 0);
}

TEST_F(ReleasedSecretsTest, AreWipedAlthoughAnEngineHasReadThem)
{
    const QString secret = repeated(u'a', 10);
    GeneratorViewModel viewModel;
    QJSEngine::setObjectOwnership(&viewModel, QJSEngine::CppOwnership);
    QJSEngine engine;
    engine.installExtensions(QJSEngine::GarbageCollectionExtension);
    const QJSValue object = engine.newQObject(&viewModel);
    viewModel.setSettings(tenLetters());
    FreedMemory freed(secret);
    generate(viewModel, 0);
    freed.watch(viewModel.generated().constData());
    ASSERT_EQ(object.property(u"generated"_s).toString(), secret);
    for (std::uint64_t letter = 1; letter <= 6; ++letter)
        generate(viewModel, letter);
    returnToEventLoop();
    EXPECT_TRUE(freed.watchedIsFreed());
    EXPECT_EQ(freed.matches(), 0);
}

TEST_F(ReleasedSecretsTest, AreWipedWhenTheViewModelIsDestroyed)
{
    const QString secret = repeated(u'a', 10);
    const FreedMemory freed(secret);
    {
        GeneratorViewModel viewModel;
        viewModel.setSettings(tenLetters());
        generate(viewModel, 0);
        generate(viewModel, 1);
        viewModel.useFromHistory(viewModel.history().constLast());
        generate(viewModel, 2);
        ASSERT_TRUE(viewModel.history().contains(secret));
    }
    EXPECT_EQ(freed.matches(), 0);
}

} // namespace
