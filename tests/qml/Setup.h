// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

#include "App/GermanKeyNames.h"

#include <QCoreApplication>
#include <QObject>
#include <QQmlEngine>

/// Gives the view tests the import path and the key names of the program.
class Setup : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void applicationAvailable() { QCoreApplication::installTranslator(&m_keyNames); }

    void qmlEngineAvailable(QQmlEngine* engine)
    {
        engine->addImportPath(QStringLiteral("qrc:/qt/qml"));
    }

private:
    GermanKeyNames m_keyNames;
};
