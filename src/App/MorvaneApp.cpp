// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "App/MorvaneApp.h"

#include "App/WindowLoader.h"
#include "Platform/ProcessMemory.h"
#include "Platform/Sandbox.h"
#include "Platform/SystemAppearance.h"
#include "Platform/SystemMenu.h"
#include "Platform/WindowChrome.h"
#include "Views/ApplicationIcon.h"

#include <QFont>
#include <QGuiApplication>
#include <QHashFunctions>
#include <QIcon>
#include <QQmlEngine>
#include <QQmlExtensionPlugin>
#include <QQuickWindow>

#include <chrono>
#include <cstdlib>
#include <future>
#include <iostream>

Q_IMPORT_QML_PLUGIN(Morvane_AppPlugin)
Q_IMPORT_QML_PLUGIN(Morvane_ViewModelPlugin)
Q_IMPORT_QML_PLUGIN(Morvane_ViewsPlugin)

namespace {

using namespace std::chrono_literals;

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

/// The software renderer measures glyphs at the size that they have without the display's scale.
/// Hinted for that, they would be drawn larger than measured, and cut off by a pixel.
void leaveGlyphsUnhintedOnScaledDisplays(const QGuiApplication& application)
{
    if (application.devicePixelRatio() == 1)
        return;
    QFont font = QGuiApplication::font();
    font.setHintingPreference(QFont::PreferNoHinting);
    QGuiApplication::setFont(font);
}

/// The portal examines the process that calls it and refuses to answer a hidden one.
void hideProcessMemory()
{
    const auto& appearance = Platform::SystemAppearance::instance();
    if (appearance.isSettled())
        Platform::ProcessMemory::hide();
    else
        QObject::connect(&appearance, &Platform::SystemAppearance::settled, &appearance,
                         Platform::ProcessMemory::hide);
}

/// Ends the program where Qt would not let it: on X11 it waits up to five seconds for a clipboard
/// manager to fetch what was copied, and some never do.
void endInTime(const std::future<void>& ended, int status)
{
    if (ended.wait_for(300ms) == std::future_status::timeout)
        std::_Exit(status);
}

/// For desktops that do not know the program by its desktop entry.
void setWindowIcon()
{
    QIcon icon;
    for (const int size : {16, 32, 48, 128})
        icon.addPixmap(ApplicationIcon::pixmap(size));
    QGuiApplication::setWindowIcon(icon);
}

} // namespace

int MorvaneApp::run(int argc, char** argv) const
{
    // In the order of their ends: the application's, the promise's, the watch's.
    std::future<void> watch;
    std::promise<void> ended;

    Platform::ProcessMemory::keepFromDumps();
    // Connecting to the display starts threads, and these shall be bound as well.
    Platform::Sandbox::restrictFilesystem();

    // Nobody can feed the program texts that collide, and Qt's hash with a random seed costs more
    // than a tenth of the start on processors with wide vectors.
    QHashSeed::setDeterministicGlobalSeed();

    QCoreApplication::setApplicationName(QStringLiteral("morvane"));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Morvane"));
    QCoreApplication::setApplicationVersion(QStringLiteral(MORVANE_VERSION));
    QGuiApplication::setDesktopFileName(QStringLiteral("de.morvane.Morvane"));

    // Faster to the first frame and smaller than OpenGL, which also writes shader caches.
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    // On Wayland, Qt 6.4 starts a driver all the same, which would make the folder for its cache.
    qputenv("MESA_SHADER_CACHE_DISABLE", "true");

    const QtMessageHandler handler = qInstallMessageHandler(endWithoutDisplay);
    const QGuiApplication application(argc, argv);
    qInstallMessageHandler(handler);
    // Before anything secret is drawn, and with the display already reached: that one may be on
    // another machine.
    Platform::Sandbox::installSyscallFilter();
    hideProcessMemory();
    leaveGlyphsUnhintedOnScaledDisplays(application);
    const WindowLoader loader;

    QQmlEngine engine;
    engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
    QObject::connect(&engine, &QQmlEngine::quit, &application, &QCoreApplication::quit,
                     Qt::QueuedConnection);
    const std::unique_ptr<QQuickWindow> window
        = loader.load(engine, {{QStringLiteral("clientSideDecorations"),
                                Platform::WindowChrome::usesClientSideDecorations()}});
    if (!window)
        return EXIT_FAILURE;
    Platform::WindowChrome::hideTitleBar(*window);
    Platform::SystemMenu::setAboutCommand(QStringLiteral("Über Morvane"), [window = window.get()] {
        QMetaObject::invokeMethod(window, "openWindow", Q_ARG(QString, QStringLiteral("about")));
    });
    // Nobody waits for it, and the first frame shall not either.
    QObject::connect(window.get(), &QQuickWindow::frameSwapped, window.get(), setWindowIcon,
                     Qt::SingleShotConnection);
    window->show();
    const int status = QGuiApplication::exec();
    watch = std::async(std::launch::async, endInTime, ended.get_future(), status);
    return status;
}
