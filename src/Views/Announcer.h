// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

#include "ViewModel/GeneratorViewModel.h"

#include <QBasicTimer>
#include <QQuickItem>
#include <QString>
#include <QtQml/qqmlregistration.h>

/// Lets a screen reader say a new secret and the confirmation of a copy, without interrupting other
/// speech, and overwrites Qt's messages about former secrets. Does nothing while no assistive
/// technology is active.
///
/// An error message needs no announcement: the alert gets the keyboard focus, and screen readers
/// read it as a dialog.
///
/// Before Qt 6.8, which has announcements, this item is a notification whose accessible name is
/// `message`. Screen readers say a notification that appears.
class Announcer : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(GeneratorViewModel* model MEMBER m_model WRITE setModel REQUIRED FINAL)
    Q_PROPERTY(QString message READ message NOTIFY messageChanged FINAL)

public:
    explicit Announcer(QQuickItem* parent = nullptr);

    /// Called once.
    void setModel(GeneratorViewModel* model);

    /// The announced text; empty most of the time.
    [[nodiscard]] QString message() const { return m_message; }

Q_SIGNALS:
    void messageChanged();

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    void announce(const QString& message);
    void show(const QString& message);

    GeneratorViewModel* m_model = nullptr;
    QString m_pending;
    QString m_message;
    QBasicTimer m_delay;
    QBasicTimer m_end;
};
