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
        m_substitute.setSingleShot(true);
        m_substitute.setTimerType(Qt::PreciseTimer);
        connect(&m_substitute, &QTimer::timeout, this, &PendingTasks::runDueTasks);
        connect(&m_notifier, &QSocketNotifier::activated, this, &PendingTasks::runDueTasks);
    }

    ~PendingTasks() override { closeTimer(); }

    void add(milliseconds wait, std::function<void()> task)
    {
        m_tasks.emplace(timeSinceBoot() + wait, std::move(task));
        startTimer();
    }

private:
    void runDueTasks()
    {
        const nanoseconds now = timeSinceBoot();
        while (!m_tasks.empty() && m_tasks.begin()->first <= now) {
            const auto due = m_tasks.extract(m_tasks.begin());
            due.mapped()();
        }
        if (m_tasks.empty())
            closeTimer();
        else
            startTimer();
    }

    void startTimer()
    {
        if (m_timer < 0)
            openTimer();
        const nanoseconds deadline = m_tasks.begin()->first;
        if (m_timer < 0) {
            // The process has no descriptor left. A timer that stops while the machine is suspended
            // is better than none.
            m_substitute.start(std::chrono::ceil<milliseconds>(deadline - timeSinceBoot()));
            return;
        }
        const auto wholeSeconds = std::chrono::floor<seconds>(deadline);
        itimerspec time{};
        time.it_value.tv_sec = wholeSeconds.count();
        time.it_value.tv_nsec = (deadline - wholeSeconds).count();
        ::timerfd_settime(m_timer, TFD_TIMER_ABSTIME, &time, nullptr);
    }

    void openTimer()
    {
        m_timer = ::timerfd_create(CLOCK_BOOTTIME, TFD_NONBLOCK | TFD_CLOEXEC);
        if (m_timer < 0)
            return;
        m_notifier.setSocket(m_timer);
        m_notifier.setEnabled(true);
    }

    void closeTimer()
    {
        m_notifier.setEnabled(false);
        if (m_timer >= 0)
            ::close(std::exchange(m_timer, -1));
    }

    std::multimap<nanoseconds, std::function<void()>> m_tasks;
    /// A file descriptor that is readable from the earliest deadline on; negative without tasks.
    int m_timer = -1;
    QSocketNotifier m_notifier{QSocketNotifier::Read};
    QTimer m_substitute;
    Q_DISABLE_COPY_MOVE(PendingTasks)
};

} // namespace

void after(milliseconds wait, std::function<void()> task)
{
    applicationObject<PendingTasks>().add(wait, std::move(task));
}

} // namespace Platform::ContinuousClock
