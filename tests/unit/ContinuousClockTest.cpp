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

/// Replaces the C library's function, so that it can fail.
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

/// The clock of each timer that this process holds, as the kernel lists them.
std::vector<int> clocksOfTimers()
{
    std::vector<int> clocks;
    const QDir folder(QStringLiteral("/proc/self/fdinfo"));
    for (const QString& name : folder.entryList(QDir::Files)) {
        QFile file(folder.filePath(name));
        if (!file.open(QIODevice::ReadOnly))
            continue; // The descriptor is closed, as the folder's own is.
        QTextStream lines(&file);
        for (QString line = lines.readLine(); !line.isNull(); line = lines.readLine()) {
            if (line.startsWith(QLatin1String("clockid:")))
                clocks.push_back(line.section(QLatin1Char(':'), 1).trimmed().toInt());
        }
    }
    return clocks;
}

class ContinuousClockTest : public testing::Test
{
protected:
    void runUntil(const bool& done)
    {
        while (!done)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }

private:
    int m_argumentCount = 1;
    std::string m_name = "ContinuousClockTest";
    std::vector<char*> m_arguments{m_name.data(), nullptr};
    QCoreApplication m_application{m_argumentCount, m_arguments.data()};
};

TEST_F(ContinuousClockTest, CountsTheTimeWhileSuspended)
{
    ASSERT_THAT(clocksOfTimers(), IsEmpty());
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

TEST_F(ContinuousClockTest, LeavesNoTimerBehind)
{
    bool done = false;
    ContinuousClock::after(milliseconds(0), [&] { done = true; });
    runUntil(done);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_THAT(clocksOfTimers(), IsEmpty());
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

TEST_F(ContinuousClockTest, HoldsOneTimerForAllPendingTasks)
{
    bool done = false;
    for (int i = 0; i < 100; ++i)
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
    ContinuousClock::after(std::chrono::hours(1), [] { FAIL() << "at the end"; });
    EXPECT_THAT(clocksOfTimers(), ElementsAre(CLOCK_BOOTTIME));
}

} // namespace
