// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "App/MorvaneApp.h"

#include "App/GermanKeyNames.h"
#include "App/HeldKeys.h"
#include "Platform/ProcessMemory.h"
#include "Platform/Sandbox.h"
#include "Platform/SystemAppearance.h"
#include "Platform/Termination.h"
#include "Platform/WindowChrome.h"
#include "Views/Controls/AccessibleItem.h"
#include "Views/Controls/Appearance.h"

#include <QAccessible>
#include <QDebug>
#include <QEventLoop>
#include <QFont>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QIcon>
#include <QLoggingCategory>
#include <QPainter>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQmlExtensionPlugin>
#include <QQuickWindow>
#include <QSvgRenderer>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <iostream>
#include <memory>
#include <thread>
#include <utility>

Q_IMPORT_QML_PLUGIN(Morvane_AppPlugin)
Q_IMPORT_QML_PLUGIN(Morvane_ViewModelPlugin)
Q_IMPORT_QML_PLUGIN(Morvane_ViewsPlugin)
Q_IMPORT_QML_PLUGIN(Morvane_Views_ControlsPlugin)

namespace {

using namespace std::chrono_literals;

/// Qt's warnings during the connection to the display.
QStringList& earlyWarnings()
{
    static QStringList warnings;
    return warnings;
}

/// Handles Qt's messages during the connection to the display: exits if the message is fatal. Qt's
/// default handler aborts.
void exitWithoutDisplay(QtMsgType type, const QMessageLogContext& /*context*/,
                        const QString& message)
{
    if (type == QtFatalMsg)
        Platform::Termination::fail(
            "Morvane braucht eine grafische Oberfläche, und keine war zu erreichen.");
    earlyWarnings() << message;
}

/// Handles Qt's messages after the connection to the display. When the display server ends, Qt
/// writes a warning and exits, on Wayland without running any code of the program.
void exitWithDisplay(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (message.contains(QLatin1String("connection broke")))
        Platform::Termination::fail(
            "Morvane hat die Verbindung zur grafischen Oberfläche verloren.");
    std::cerr << qPrintable(qFormatLogMessage(type, context, message)) << '\n';
    if (type == QtFatalMsg)
        std::abort();
}

/// The software renderer measures glyphs at scale 1. At other scales, hinted glyphs are wider than
/// measured, and one pixel of the last glyph is cut off.
void disableHintingOnScaledDisplays(const QGuiApplication& application)
{
    if (application.devicePixelRatio() == 1)
        return;
    QFont font = QGuiApplication::font();
    font.setHintingPreference(QFont::PreferNoHinting);
    QGuiApplication::setFont(font);
}

/// Loads the font files that the first frame needs.
void loadFontsOfFirstFrame()
{
    struct Style
    {
        double pixels;
        QFont::Weight weight;
        QString family;
    };
    QFont font = QGuiApplication::font();
    const QString secretFamily = QStringLiteral("monospace");
    for (const Style& style : {
             Style{13, QFont::Normal, font.family()},
             Style{13, QFont::DemiBold, font.family()},
             Style{12, QFont::Medium, font.family()},
             Style{11, QFont::Normal, font.family()},
             Style{17, QFont::Bold, font.family()},
             Style{28, QFont::DemiBold, secretFamily},
             Style{12, QFont::Normal, secretFamily},
         }) {
        font.setFamily(style.family);
        font.setPixelSize(qRound(style.pixels * Appearance::textScale()));
        font.setWeight(style.weight);
        QFontMetricsF(font).height();
        // The thread that compiles the QML types posts calls to this thread and waits for them.
        QCoreApplication::sendPostedEvents();
    }
}

/// The window icon, for desktops that do not find the program's icon through the desktop entry.
QIcon windowIcon()
{
    QSvgRenderer drawing(
        QStringLiteral(":/qt/qml/Morvane/Views/Controls/icons/de.morvane.Morvane.svg"));
    QIcon icon;
    for (const int size : {16, 32, 48, 128}) {
        QPixmap pixmap(size, size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        drawing.render(&painter);
        icon.addPixmap(pixmap);
    }
    return icon;
}

/// The main window, not yet shown; null, with a message on standard error, if it cannot be built.
std::unique_ptr<QQuickWindow> createMainWindow(QQmlEngine& engine)
{
    QQmlComponent component(&engine);
    component.loadUrl(QStringLiteral("qrc:/qt/qml/Morvane/App/MainWindow.qml"),
                      QQmlComponent::Asynchronous);
    // Qt compiles the types on a thread of its own. Meanwhile this thread does what does not depend
    // on them. The first frame comes 12 % earlier than after the same work in sequence; without the
    // fonts, only 2 % earlier (tests/bench/window_bench.py --starts-only, 40 starts by turns).
    loadFontsOfFirstFrame();
    QGuiApplication::setWindowIcon(windowIcon());
    if (component.isLoading()) {
        QEventLoop loop;
        QObject::connect(&component, &QQmlComponent::statusChanged, &loop, &QEventLoop::quit);
        loop.exec();
    }

    if (component.isError()) {
        std::cerr << qPrintable(component.errorString());
        return nullptr;
    }
    return std::unique_ptr<QQuickWindow>(
        qobject_cast<QQuickWindow*>(component.createWithInitialProperties(
            {{QStringLiteral("clientSideDecorations"),
              Platform::WindowChrome::usesClientSideDecorations()}})));
}

/// Limits the duration of the shutdown to 0.3 s. On X11, Qt waits up to 5 s for a clipboard manager
/// to fetch the copied text, and some clipboard managers never fetch it.
void limitShutdown(int status)
{
    std::thread([status] {
        std::this_thread::sleep_for(300ms);
        std::_Exit(status);
    }).detach();
}

} // namespace

int MorvaneApp::run(int argc, char** argv) const
{
    Platform::Sandbox::discardInheritance();
    Platform::Termination::reportSignals();
    if (!Platform::Termination::hasEnoughResources())
        Platform::Termination::fail(
            "Morvane braucht mindestens 64 Dateideskriptoren und 1 GiB Adressraum.");
    Platform::ProcessMemory::hide();
    // Restricts this thread and the threads that it starts later. The connection to the display
    // starts threads, so the restriction comes first.
    Platform::Sandbox::restrictFilesystem();
    // Starts a process, which the system call filter refuses.
    Platform::SystemAppearance::startReading(Platform::Sandbox::installSyscallFilter);

    QCoreApplication::setApplicationName(QStringLiteral("morvane"));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Morvane"));
    QCoreApplication::setApplicationVersion(QStringLiteral(MORVANE_VERSION));
    QGuiApplication::setDesktopFileName(QStringLiteral("de.morvane.Morvane"));

    // The software renderer draws the first frame earlier and takes less memory than OpenGL, which
    // also writes shader caches.
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    // On Wayland, Qt 6.4 starts a graphics driver even for the software renderer, and the driver
    // creates a cache folder.
    qputenv("MESA_SHADER_CACHE_DISABLE", "true");

    // Debug messages of Qt's accessibility contain secrets. Qt's configuration file can turn them
    // on, but is weaker than these rules.
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false\n"
                                                    "*.info=false\n"
                                                    "*.warning=true\n"
                                                    "*.critical=true\n"
                                                    "qt.accessibility.*=false\n"));
    qInstallMessageHandler(exitWithoutDisplay);
    // The filter refuses the connection to a display on another machine.
    const bool isDisplayRemote = Platform::Sandbox::isDisplayRemote();
    if (!isDisplayRemote)
        Platform::Sandbox::installSyscallFilter();
    int argumentCount = std::min(argc, 1); // Qt's options load plugins.
    const QGuiApplication application(argumentCount, argv);
    if (isDisplayRemote)
        Platform::Sandbox::installSyscallFilter();
    qInstallMessageHandler(exitWithDisplay);
    for (const QString& warning : std::as_const(earlyWarnings()))
        qWarning().noquote() << warning;
    disableHintingOnScaledDisplays(application);
    GermanKeyNames keyNames;
    QCoreApplication::installTranslator(&keyNames);
    HeldKeys heldKeys;
    QCoreApplication::instance()->installEventFilter(&heldKeys);
    QAccessible::installFactory(AccessibleItem::create);

    QQmlEngine engine;
    engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
    QObject::connect(&engine, &QQmlEngine::quit, &application, &QCoreApplication::quit,
                     Qt::QueuedConnection);
    const std::unique_ptr<QQuickWindow> window = createMainWindow(engine);
    if (!window)
        return EXIT_FAILURE;
    Platform::WindowChrome::hideTitleBar(*window);
    const auto openAbout = [window = window.get()] {
        QMetaObject::invokeMethod(window, "openWindow", Q_ARG(QString, QStringLiteral("about")));
    };
    Platform::WindowChrome::setAboutCommand(QStringLiteral("Über Morvane"), openAbout);
    window->show();
    const int status = QGuiApplication::exec();
    limitShutdown(status);
    return status;
}
