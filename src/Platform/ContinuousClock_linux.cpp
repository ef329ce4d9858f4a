// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "Platform/ApplicationObject.h"
#include "Platform/ContinuousClock.h"

#include <QSocketNotifier>
#include <QTimer>

#include <ctime>
#include <map>
#include <utility>

#include <sys/timerfd.h>
#include <unistd.h>

namespace Platform::ContinuousClock {

namespace {

using std::chrono::milliseconds;
using std::chrono::nanoseconds;
using std::chrono::seconds;

nanoseconds timeSinceBoot()
{
    timespec time{};
    ::clock_gettime(CLOCK_BOOTTIME, &time);
    return seconds(time.tv_sec) + nanoseconds(time.tv_nsec);
}

/// The pending tasks in the order of their deadlines, and one timer for the earliest deadline.
class PendingTasks final : public QObject
{
public:
    explicit PendingTasks(QObject* parent)
        : QObject(parent)
    {
        connect(&m_notifier, &QSocketNotifier::activated, this, &PendingTasks::runDueTasks);
        if (m_timer >= 0) {
            m_notifier.setSocket(m_timer);
            m_notifier.setEnabled(true);
        }
    }

    ~PendingTasks() override
    {
        m_notifier.setEnabled(false);
        if (m_timer >= 0)
            ::close(m_timer);
    }

    void add(milliseconds wait, std::function<void()> task)
    {
        if (m_timer < 0) {
            // The process had no file descriptor left. A timer that stops while the machine is
            // suspended is better than none.
            QTimer::singleShot(wait, Qt::PreciseTimer, this, std::move(task));
            return;
        }
        m_tasks.emplace(timeSinceBoot() + wait, std::move(task));
        setTimer();
    }

private:
    void runDueTasks()
    {
        const nanoseconds now = timeSinceBoot();
        while (!m_tasks.empty() && m_tasks.begin()->first <= now) {
            const auto due = m_tasks.extract(m_tasks.begin());
            due.mapped()();
        }
        setTimer();
    }

    /// Sets the timer to the earliest deadline. Without tasks, the deadline 0 stops the timer.
    void setTimer()
    {
        const nanoseconds deadline = m_tasks.empty() ? nanoseconds(0) : m_tasks.begin()->first;
        const auto wholeSeconds = std::chrono::floor<seconds>(deadline);
        itimerspec time{};
        time.it_value.tv_sec = wholeSeconds.count();
        time.it_value.tv_nsec = (deadline - wholeSeconds).count();
        ::timerfd_settime(m_timer, TFD_TIMER_ABSTIME, &time, nullptr);
    }

    std::multimap<nanoseconds, std::function<void()>> m_tasks;
    /// A file descriptor that is readable from the earliest deadline on.
    const int m_timer = ::timerfd_create(CLOCK_BOOTTIME, TFD_NONBLOCK | TFD_CLOEXEC);
    QSocketNotifier m_notifier{QSocketNotifier::Read};
    Q_DISABLE_COPY_MOVE(PendingTasks)
};

} // namespace

void after(milliseconds wait, std::function<void()> task)
{
    applicationObject<PendingTasks>().add(wait, std::move(task));
}

} // namespace Platform::ContinuousClock
