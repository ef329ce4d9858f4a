// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "App/MorvaneApp.h"

#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQmlExtensionPlugin>
#include <QQuickWindow>

#include <cstdlib>
#include <iostream>

Q_IMPORT_QML_PLUGIN(Morvane_ViewModelPlugin)
Q_IMPORT_QML_PLUGIN(Morvane_ViewsPlugin)

namespace {

// Without a display Qt ends the program as if it had crashed. Any other fatal message is a fault of
// ours, and ends it that way.
void endWithoutDisplay(QtMsgType type, const QMessageLogContext& /*context*/,
                       const QString& message)
{
    std::cerr << qPrintable(message) << '\n';
    if (type == QtFatalMsg) {
        std::cerr << "Morvane braucht eine grafische Oberfläche, und keine war zu erreichen.\n"
                  << std::flush;
        std::_Exit(EXIT_FAILURE);
    }
}

} // namespace

int MorvaneApp::run(int argc, char** argv) const
{
    QCoreApplication::setApplicationName(QStringLiteral("morvane"));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Morvane"));
    QCoreApplication::setApplicationVersion(QStringLiteral(MORVANE_VERSION));
    QGuiApplication::setDesktopFileName(QStringLiteral("de.morvane.Morvane"));

    // Faster to the first frame and smaller than OpenGL, which also writes shader caches.
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);

    const QtMessageHandler handler = qInstallMessageHandler(endWithoutDisplay);
    const QGuiApplication application(argc, argv);
    qInstallMessageHandler(handler);

    QQmlApplicationEngine engine;
    engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
    engine.load(QStringLiteral("qrc:/qt/qml/Morvane/App/MainWindow.qml"));
    if (engine.rootObjects().isEmpty())
        return EXIT_FAILURE;
    return QGuiApplication::exec();
}
