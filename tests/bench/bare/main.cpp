// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

// Opens a minimal Qt Quick window, BareWindow.qml or TemplatesWindow.qml, with the renderer of the
// program. The benchmarks compare the program's window with this window.

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
