// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "Platform/ContinuousClock.h"

#include "Platform/ContinuousTimer.h"

#include <QCoreApplication>
#include <QSocketNotifier>
#include <QTimer>

#include <utility>

namespace Platform::ContinuousClock {

namespace {

/// Lives until its task has run, or the application ends.
class Sleep final : public QObject
{
public:
    Sleep(std::chrono::milliseconds wait, std::function<void()> task)
        : QObject(QCoreApplication::instance())
        , m_timer(wait)
        , m_due(QSocketNotifier::Read)
        , m_task(std::move(task))
    {
        // Without a descriptor, a wait that stands still while the machine sleeps is better than
        // none.
        if (m_timer.descriptor() < 0) {
            m_substitute.setSingleShot(true);
            m_substitute.setTimerType(Qt::PreciseTimer);
            connect(&m_substitute, &QTimer::timeout, this, [this] { finish(); });
            m_substitute.start(wait);
        } else {
            connect(&m_due, &QSocketNotifier::activated, this, [this] { finish(); });
            m_due.setSocket(m_timer.descriptor());
            m_due.setEnabled(true);
        }
    }

private:
    void finish()
    {
        m_due.setEnabled(false);
        deleteLater();
        m_task();
    }

    ContinuousTimer m_timer;
    QSocketNotifier m_due;
    QTimer m_substitute;
    std::function<void()> m_task;
};

} // namespace

void after(std::chrono::milliseconds wait, std::function<void()> task)
{
    new Sleep(wait, std::move(task)); // NOLINT(cppcoreguidelines-owning-memory): see its parent
}

} // namespace Platform::ContinuousClock
