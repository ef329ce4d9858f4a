// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

// Opens a minimal Qt Quick window on the program's renderer, with which the benchmarks compare the
// program's window. The window is BareWindow.qml or TemplatesWindow.qml.

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
    engine.load(QStringLiteral("qrc:/qt/qml/minimal/" MINIMAL_WINDOW "/Main.qml"));
    if (engine.rootObjects().isEmpty())
        return EXIT_FAILURE;
    return QGuiApplication::exec();
}
