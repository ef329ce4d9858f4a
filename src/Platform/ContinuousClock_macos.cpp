// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "Platform/ApplicationObject.h"
#include "Platform/ContinuousClock.h"

#include <QSocketNotifier>
#include <QTimer>

#include <cstdint>
#include <map>
#include <utility>

#include <fcntl.h>
#include <sys/event.h>
#include <unistd.h>

namespace Platform::ContinuousClock {

namespace {

using std::chrono::nanoseconds;

/// The pending tasks and a kernel event queue with a timer for each of them.
class PendingTasks final : public QObject
{
public:
    explicit PendingTasks(QObject* parent)
        : QObject(parent)
        , m_queue(::kqueue())
    {
        if (m_queue < 0)
            return;
        ::fcntl(m_queue, F_SETFD, FD_CLOEXEC);
        m_notifier.setSocket(m_queue);
        m_notifier.setEnabled(true);
        connect(&m_notifier, &QSocketNotifier::activated, this, &PendingTasks::runDueTasks);
    }

    ~PendingTasks() override
    {
        m_notifier.setEnabled(false);
        if (m_queue >= 0)
            ::close(m_queue);
    }

    void add(std::chrono::milliseconds wait, std::function<void()> task)
    {
        if (m_queue < 0) {
            // The process has no descriptor left. A timer that stops while the machine is suspended
            // is better than none.
            QTimer::singleShot(wait, Qt::PreciseTimer, this, std::move(task));
            return;
        }
        m_tasks.emplace(++m_lastTimer, std::move(task));
        struct kevent timer;
        EV_SET(&timer, m_lastTimer, EVFILT_TIMER, EV_ADD | EV_ONESHOT,
               NOTE_NSECONDS | NOTE_MACH_CONTINUOUS_TIME, nanoseconds(wait).count(), nullptr);
        ::kevent(m_queue, &timer, 1, nullptr, 0, nullptr);
    }

private:
    void runDueTasks()
    {
        const timespec noWait{};
        struct kevent due;
        while (::kevent(m_queue, nullptr, 0, &due, 1, &noWait) == 1)
            m_tasks.extract(due.ident).mapped()();
    }

    int m_queue;
    QSocketNotifier m_notifier{QSocketNotifier::Read};
    std::map<std::uintptr_t, std::function<void()>> m_tasks;
    std::uintptr_t m_lastTimer = 0;
    Q_DISABLE_COPY_MOVE(PendingTasks)
};

} // namespace

void after(std::chrono::milliseconds wait, std::function<void()> task)
{
    applicationObject<PendingTasks>().add(wait, std::move(task));
}

} // namespace Platform::ContinuousClock
