// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

// The yardsticks for the program's window: the least that a window of Qt Quick on the same renderer
// can be, and the least with the control templates and the fonts.

#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickWindow>

#include <cstdlib>

int main(int argc, char** argv)
{
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    const QGuiApplication application(argc, argv);

    QQmlApplicationEngine engine;
    engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
    engine.load(QStringLiteral("qrc:/qt/qml/yardstick/" YARDSTICK "/Main.qml"));
    if (engine.rootObjects().isEmpty())
        return EXIT_FAILURE;
    return QGuiApplication::exec();
}
