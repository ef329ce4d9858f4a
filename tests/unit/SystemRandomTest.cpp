// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

// Tests the system's random source. The definition of `getrandom` in this program takes precedence
// over the C library's, and passes requests on to the kernel unless a test has scripted the
// answers.

#include "Model/GeneratorError.h"
#include "Platform/SecureRandom.h"
#include "Printing.h"
#include "Services/SecureGenerator.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <set>
#include <span>
#include <utility>
#include <vector>

#include <sys/random.h>
#include <sys/syscall.h>
#include <unistd.h>

static_assert(noexcept(Platform::fillSecureRandom(std::span<std::byte>())));

namespace {

/// The result of a request to the kernel: the number of bytes filled, or -1 with an error number.
struct Answer
{
    ssize_t filled;
    int error;
};

struct Request
{
    std::size_t size;
    unsigned int flags;
    bool operator==(const Request&) const = default;
};

constexpr Request wholeValue{.size = 8, .flags = 0};
constexpr auto filler = std::byte{0xa5};

bool scripted = false;
std::vector<Answer> answers;
std::vector<Request> requests;

class SystemRandom : public testing::Test
{
protected:
    void SetUp() override
    {
        answers.clear();
        requests.clear();
    }

    void TearDown() override { scripted = false; }

    /// The following requests return the results in `script`, in order.
    static void answerWith(std::vector<Answer> script)
    {
        answers = std::move(script);
        scripted = true;
    }

    static std::int32_t fill() { return Platform::fillSecureRandom(bytes); }

    static inline std::array<std::byte, 8> bytes{};
};

} // namespace

extern "C" ssize_t getrandom(void* buffer, std::size_t length, unsigned int flags)
{
    if (!scripted)
        return syscall(SYS_getrandom, buffer, length, flags);

    requests.push_back({.size = length, .flags = flags});
    if (answers.empty()) {
        ADD_FAILURE() << "a request beyond the scripted answers";
        errno = ENOSYS;
        return -1;
    }
    const Answer answer = answers.front();
    answers.erase(answers.begin());
    if (answer.filled > 0)
        std::memset(buffer, std::to_integer<int>(filler), static_cast<std::size_t>(answer.filled));
    errno = answer.error;
    return answer.filled;
}

namespace {

using testing::Each;
using testing::ElementsAre;
using testing::Eq;
using testing::SizeIs;
using testing::Throws;

TEST_F(SystemRandom, FillsWithDifferentBytesEveryTime)
{
    std::set<std::array<std::byte, 8>> values;
    for (int i = 0; i < 1000; ++i) {
        ASSERT_EQ(fill(), 0);
        values.insert(bytes);
    }
    EXPECT_THAT(values, SizeIs(1000));
}

TEST_F(SystemRandom, FillsEveryByte)
{
    // By chance, a byte has the same value after all 64 requests once in 2^504 runs.
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        std::set<std::byte> values;
        for (int j = 0; j < 64; ++j) {
            ASSERT_EQ(fill(), 0);
            values.insert(bytes.at(i));
        }
        EXPECT_GT(values.size(), 1U) << "byte " << i;
    }
}

TEST_F(SystemRandom, MakesOneRequestForAllBytes)
{
    answerWith({{.filled = 8, .error = 0}});
    EXPECT_EQ(fill(), 0);
    EXPECT_THAT(bytes, Each(Eq(filler)));
    EXPECT_THAT(requests, ElementsAre(wholeValue));
}

TEST_F(SystemRandom, IgnoresAnOldErrorNumberOnSuccess)
{
    answerWith({{.filled = 8, .error = EIO}});
    EXPECT_EQ(fill(), 0);
    EXPECT_THAT(requests, ElementsAre(wholeValue));
}

TEST_F(SystemRandom, RepeatsAnInterruptedRequest)
{
    answerWith({{.filled = -1, .error = EINTR},
                {.filled = -1, .error = EINTR},
                {.filled = 8, .error = 0}});
    EXPECT_EQ(fill(), 0);
    EXPECT_THAT(bytes, Each(Eq(filler)));
    EXPECT_THAT(requests, ElementsAre(wholeValue, wholeValue, wholeValue));
}

TEST_F(SystemRandom, FailsAlsoAfterAnInterruptedRequest)
{
    answerWith({{.filled = -1, .error = EINTR}, {.filled = -1, .error = EFAULT}});
    EXPECT_EQ(fill(), EFAULT);
    EXPECT_THAT(requests, SizeIs(2));
}

class SystemRandomShortAnswer : public SystemRandom, public testing::WithParamInterface<ssize_t>
{
};

TEST_P(SystemRandomShortAnswer, IsAnInputOutputError)
{
    // The error number is that of an earlier call and must be ignored.
    answerWith({{.filled = GetParam(), .error = EINTR}});
    EXPECT_EQ(fill(), EIO);
    EXPECT_THAT(requests, ElementsAre(wholeValue));
}

INSTANTIATE_TEST_SUITE_P(OfBytes, SystemRandomShortAnswer, testing::Values(0, 1, 4, 7),
                         testing::PrintToStringParamName());

class SystemRandomError : public SystemRandom, public testing::WithParamInterface<int>
{
};

TEST_P(SystemRandomError, IsTheStatus)
{
    answerWith({{.filled = -1, .error = GetParam()}});
    EXPECT_EQ(fill(), GetParam());
    EXPECT_THAT(requests, ElementsAre(wholeValue));
}

TEST_P(SystemRandomError, ReachesTheCallerOfTheGenerator)
{
    answerWith({{.filled = -1, .error = GetParam()}});
    EXPECT_THAT([] { return SecureGenerator().generate({}); },
                Throws<GeneratorError>(Eq(GeneratorError::randomFailure(GetParam()))));
    EXPECT_THAT(requests, ElementsAre(wholeValue));
}

INSTANTIATE_TEST_SUITE_P(OfNumber, SystemRandomError,
                         testing::Values(EAGAIN, EFAULT, EINVAL, ENOSYS, EPERM),
                         testing::PrintToStringParamName());

TEST_F(SystemRandom, FillsEightBytesPerDraw)
{
    answerWith(std::vector<Answer>(39, {.filled = 8, .error = 0}));
    EXPECT_THAT(SecureGenerator().generate({.length = 20}), SizeIs(20));
    EXPECT_THAT(requests, testing::AllOf(SizeIs(39), Each(Eq(wholeValue))));
}

TEST_F(SystemRandom, IsReadAsOneValueOf64Bits)
{
    answerWith({{.filled = 8, .error = 0}});
    EXPECT_EQ(SecureGenerator().secureIndex(0x7fff'ffff'ffff'ffff),
              static_cast<std::int64_t>(0xa5a5'a5a5'a5a5'a5a5U % 0x7fff'ffff'ffff'ffffU));
}

} // namespace
