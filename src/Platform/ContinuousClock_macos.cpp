// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "Platform/ContinuousClock.h"

#include <QCoreApplication>
#include <QSocketNotifier>
#include <QTimer>

#include <utility>

#include <fcntl.h>
#include <sys/event.h>
#include <unistd.h>

namespace Platform::ContinuousClock {

void after(std::chrono::milliseconds wait, std::function<void()> task)
{
    QCoreApplication* const application = QCoreApplication::instance();
    const int queue = ::kqueue();
    if (queue < 0) {
        // The process has no file descriptor left. A timer that stops while the machine is
        // suspended is better than none.
        QTimer::singleShot(wait, Qt::PreciseTimer, application, std::move(task));
        return;
    }
    ::fcntl(queue, F_SETFD, FD_CLOEXEC);
    struct kevent timer;
    EV_SET(&timer, 0, EVFILT_TIMER, EV_ADD | EV_ONESHOT, NOTE_NSECONDS | NOTE_MACH_CONTINUOUS_TIME,
           std::chrono::nanoseconds(wait).count(), nullptr);
    ::kevent(queue, &timer, 1, nullptr, 0, nullptr);

    auto* const due = new QSocketNotifier(queue, QSocketNotifier::Read, application);
    QObject::connect(due, &QObject::destroyed, [queue] { ::close(queue); });
    QObject::connect(due, &QSocketNotifier::activated, due, [due, task = std::move(task)] {
        due->setEnabled(false);
        due->deleteLater();
        task();
    });
}

} // namespace Platform::ContinuousClock
