// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

#include "ScriptedRandom.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

#include <cerrno>
#include <memory>

/// Lets a view test make the random source fail, and end the failure.
class RandomSource : public QObject
{
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(bool failing READ failing WRITE setFailing NOTIFY failingChanged FINAL)

public:
    using QObject::QObject;

    [[nodiscard]] bool failing() const { return m_failure != nullptr; }

    void setFailing(bool failing)
    {
        m_failure = failing ? std::make_unique<ScriptedRandom>([](std::uint64_t&) { return EIO; })
                            : nullptr;
        Q_EMIT failingChanged();
    }

Q_SIGNALS:
    void failingChanged();

private:
    std::unique_ptr<ScriptedRandom> m_failure;
};
