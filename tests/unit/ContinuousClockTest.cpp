// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "Platform/ContinuousClock.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTextStream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>
#include <chrono>
#include <ctime>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <sys/syscall.h>
#include <sys/timerfd.h>
#include <unistd.h>

namespace {

bool hasTimersLeft = true;
std::optional<timespec> stoppedBootTime;

} // namespace

/// Replaces the C library's function, so that the boot time can be stopped.
extern "C" int clock_gettime(clockid_t clock, timespec* time) noexcept
{
    if (clock == CLOCK_BOOTTIME && stoppedBootTime) {
        *time = *stoppedBootTime;
        return 0;
    }
    return static_cast<int>(::syscall(SYS_clock_gettime, clock, time));
}

/// Replaces the C library's function, so that the call can fail.
extern "C" int timerfd_create(clockid_t clock, int flags) noexcept
{
    if (hasTimersLeft)
        return static_cast<int>(::syscall(SYS_timerfd_create, clock, flags));
    errno = EMFILE;
    return -1;
}

namespace {

namespace ContinuousClock = Platform::ContinuousClock;
using std::chrono::milliseconds;
using std::chrono::nanoseconds;
using std::chrono::steady_clock;
using testing::ElementsAre;
using testing::IsEmpty;

/// The value of `field` in the kernel's description of each timer that this process holds.
std::vector<std::string> fieldsOfTimers(const QString& field)
{
    std::vector<std::string> values;
    const QDir folder(QStringLiteral("/proc/self/fdinfo"));
    for (const QString& name : folder.entryList(QDir::Files)) {
        QFile file(folder.filePath(name));
        if (!file.open(QIODevice::ReadOnly))
            continue; // The descriptor is closed, for example the one that listed the folder.
        const QString text = QTextStream(&file).readAll();
        if (!text.contains(QLatin1String("clockid:")))
            continue;
        for (const QString& line : text.split(QLatin1Char('\n'))) {
            if (line.section(QLatin1Char(':'), 0, 0) == field)
                values.push_back(line.section(QLatin1Char(':'), 1).trimmed().toStdString());
        }
    }
    return values;
}

/// The clock of each timer that this process holds.
std::vector<int> clocksOfTimers()
{
    std::vector<int> clocks;
    for (const std::string& clock : fieldsOfTimers(QStringLiteral("clockid")))
        clocks.push_back(std::stoi(clock));
    return clocks;
}

class ContinuousClockTest : public testing::Test
{
protected:
    void SetUp() override { ASSERT_THAT(clocksOfTimers(), IsEmpty()); }

    void TearDown() override
    {
        m_application.reset();
        EXPECT_THAT(clocksOfTimers(), IsEmpty());
    }

    void runUntil(const bool& done)
    {
        while (!done)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }

private:
    int m_argumentCount = 1;
    std::string m_name = "ContinuousClockTest";
    std::vector<char*> m_arguments{m_name.data(), nullptr};
    std::optional<QCoreApplication> m_application{std::in_place, m_argumentCount,
                                                  m_arguments.data()};
};

TEST_F(ContinuousClockTest, CountsTheTimeWhileSuspended)
{
    ContinuousClock::after(std::chrono::seconds(30), [] {});
    EXPECT_THAT(clocksOfTimers(), ElementsAre(CLOCK_BOOTTIME));
}

TEST_F(ContinuousClockTest, RunsTheTaskOnceWhenDue)
{
    bool done = false;
    int runs = 0;
    const auto start = steady_clock::now();
    ContinuousClock::after(milliseconds(30), [&] {
        ++runs;
        done = true;
    });
    EXPECT_THAT(clocksOfTimers(), ElementsAre(CLOCK_BOOTTIME));
    runUntil(done);
    EXPECT_GE(steady_clock::now() - start, milliseconds(30));

    bool later = false;
    ContinuousClock::after(milliseconds(30), [&] { later = true; });
    runUntil(later);
    EXPECT_EQ(runs, 1);
}

TEST_F(ContinuousClockTest, KeepsOneStoppedTimerWithoutTasks)
{
    for (int i = 0; i < 2; ++i) {
        bool done = false;
        ContinuousClock::after(milliseconds(0), [&] { done = true; });
        runUntil(done);
        EXPECT_THAT(clocksOfTimers(), ElementsAre(CLOCK_BOOTTIME));
        EXPECT_THAT(fieldsOfTimers(QStringLiteral("it_value")), ElementsAre("(0, 0)"));
        // The timer has no expiration that would wake up the event loop.
        EXPECT_THAT(fieldsOfTimers(QStringLiteral("ticks")), ElementsAre("0"));
    }
}

TEST_F(ContinuousClockTest, RunsTasksInTheOrderOfTheirDeadlines)
{
    std::vector<int> order;
    bool done = false;
    ContinuousClock::after(milliseconds(60), [&] {
        order.push_back(60);
        done = true;
    });
    ContinuousClock::after(milliseconds(10), [&] { order.push_back(10); });
    ContinuousClock::after(milliseconds(30), [&] { order.push_back(30); });
    runUntil(done);
    EXPECT_THAT(order, ElementsAre(10, 30, 60));
}

TEST_F(ContinuousClockTest, RunsTasksOfTheSameDeadlineInTheOrderOfTheCalls)
{
    std::vector<int> order;
    bool done = false;
    timespec now{};
    ASSERT_EQ(clock_gettime(CLOCK_BOOTTIME, &now), 0);
    stoppedBootTime = now;
    for (const int number : {1, 2, 3})
        ContinuousClock::after(milliseconds(10), [&order, number] { order.push_back(number); });
    ContinuousClock::after(milliseconds(10), [&] { done = true; });
    stoppedBootTime.reset();
    runUntil(done);
    EXPECT_THAT(order, ElementsAre(1, 2, 3));
}

TEST_F(ContinuousClockTest, RunsTheTasksThatBecameDueDuringASuspension)
{
    std::vector<int> order;
    bool done = false;
    timespec later{};
    ASSERT_EQ(clock_gettime(CLOCK_BOOTTIME, &later), 0);
    ContinuousClock::after(std::chrono::hours(2), [] { FAIL() << "not due after an hour"; });
    ContinuousClock::after(std::chrono::seconds(30), [&] {
        order.push_back(30);
        done = true;
    });
    ContinuousClock::after(milliseconds(1400), [&] { order.push_back(1); });
    // The kernel's timer expires for this task, and the clock shows an hour more then.
    ContinuousClock::after(milliseconds(10), [&] { order.push_back(0); });
    later.tv_sec += 3600;
    stoppedBootTime = later;
    runUntil(done);
    stoppedBootTime.reset();
    EXPECT_THAT(order, ElementsAre(0, 1, 30));
}

TEST_F(ContinuousClockTest, HoldsOneTimerForAllPendingTasks)
{
    bool done = false;
    for (int i = 0; i < 10'000; ++i)
        ContinuousClock::after(std::chrono::hours(1), [] {});
    ContinuousClock::after(milliseconds(10), [&] { done = true; });
    EXPECT_THAT(clocksOfTimers(), ElementsAre(CLOCK_BOOTTIME));
    runUntil(done);
    EXPECT_THAT(clocksOfTimers(), ElementsAre(CLOCK_BOOTTIME));
}

TEST_F(ContinuousClockTest, ATaskCanAddTasks)
{
    std::vector<int> order;
    bool done = false;
    ContinuousClock::after(milliseconds(10), [&] {
        order.push_back(10);
        ContinuousClock::after(milliseconds(0), [&] { order.push_back(0); });
        ContinuousClock::after(milliseconds(30), [&] {
            order.push_back(30);
            done = true;
        });
    });
    runUntil(done);
    EXPECT_THAT(order, ElementsAre(10, 0, 30));
}

TEST_F(ContinuousClockTest, WaitsAlsoIfTheSystemHasNoTimerLeft)
{
    hasTimersLeft = false;
    bool done = false;
    const auto start = steady_clock::now();
    ContinuousClock::after(milliseconds(30), [&] { done = true; });
    hasTimersLeft = true;
    EXPECT_THAT(clocksOfTimers(), IsEmpty());
    runUntil(done);
    EXPECT_GE(steady_clock::now() - start, milliseconds(30));
}

TEST_F(ContinuousClockTest, DropsPendingTasksAtTheEnd)
{
    ContinuousClock::after(std::chrono::hours(1), [] { FAIL() << "a pending task ran"; });
    EXPECT_THAT(clocksOfTimers(), ElementsAre(CLOCK_BOOTTIME));
}

} // namespace
