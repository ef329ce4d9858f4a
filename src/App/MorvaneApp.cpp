// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "App/MorvaneApp.h"

#include "App/GermanKeyNames.h"
#include "Platform/ProcessMemory.h"
#include "Platform/Sandbox.h"
#include "Platform/SystemAppearance.h"
#include "Platform/SystemMenu.h"
#include "Platform/WindowChrome.h"
#include "Views/Controls/Appearance.h"

#include <QEventLoop>
#include <QFont>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QIcon>
#include <QPainter>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQmlExtensionPlugin>
#include <QQuickWindow>
#include <QSvgRenderer>

#include <chrono>
#include <cstdlib>
#include <iostream>
#include <memory>
#include <thread>

Q_IMPORT_QML_PLUGIN(Morvane_AppPlugin)
Q_IMPORT_QML_PLUGIN(Morvane_ViewModelPlugin)
Q_IMPORT_QML_PLUGIN(Morvane_ViewsPlugin)
Q_IMPORT_QML_PLUGIN(Morvane_Views_ControlsPlugin)

namespace {

using namespace std::chrono_literals;

/// Prints messages; ends the program with a German line when Qt reports that there is no display.
/// Without this handler, Qt would abort and leave a core dump.
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

/// The software renderer measures glyphs at scale 1. Hinted for that scale, glyphs are wider than
/// measured at other scales, and a pixel of the last one is cut off.
void disableHintingOnScaledDisplays(const QGuiApplication& application)
{
    if (application.devicePixelRatio() == 1)
        return;
    QFont font = QGuiApplication::font();
    font.setHintingPreference(QFont::PreferNoHinting);
    QGuiApplication::setFont(font);
}

/// The desktop portal looks at the process that asks for its settings, and does not answer a hidden
/// process. After the first answer it does not look again.
void hideProcessAfterPortalAnswered()
{
    const auto& appearance = Platform::SystemAppearance::instance();
    if (appearance.isSettled())
        Platform::ProcessMemory::hide();
    else
        QObject::connect(&appearance, &Platform::SystemAppearance::settled, &appearance,
                         Platform::ProcessMemory::hide);
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
    const QString secrets = QStringLiteral("monospace");
    for (const Style& style : {
             Style{13, QFont::Normal, font.family()},
             Style{13, QFont::DemiBold, font.family()},
             Style{12, QFont::Medium, font.family()},
             Style{11, QFont::Normal, font.family()},
             Style{17, QFont::Bold, font.family()},
             Style{28, QFont::DemiBold, secrets},
             Style{22, QFont::DemiBold, secrets},
             Style{12, QFont::Normal, secrets},
         }) {
        font.setFamily(style.family);
        font.setPixelSize(qRound(style.pixels * Appearance::textScale()));
        font.setWeight(style.weight);
        QFontMetricsF(font).height();
        // The thread that compiles QML types waits for some work of this thread.
        QCoreApplication::sendPostedEvents();
    }
}

/// For desktops that do not find the icon through the desktop entry.
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
    // on them.
    loadFontsOfFirstFrame();
    QGuiApplication::setWindowIcon(windowIcon());
    hideProcessAfterPortalAnswered();
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

/// Ends the program within 0.3 s. On X11, Qt waits up to 5 s for a clipboard manager to fetch the
/// copied text, and some managers never do.
void endSoon(int status)
{
    std::thread([status] {
        std::this_thread::sleep_for(300ms);
        std::_Exit(status);
    }).detach();
}

} // namespace

int MorvaneApp::run(int argc, char** argv) const
{
    Platform::ProcessMemory::keepFromDumps();
    // Binds this thread and the threads that it starts, so the display is reached afterwards.
    Platform::Sandbox::restrictFilesystem();

    QCoreApplication::setApplicationName(QStringLiteral("morvane"));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Morvane"));
    QCoreApplication::setApplicationVersion(QStringLiteral(MORVANE_VERSION));
    QGuiApplication::setDesktopFileName(QStringLiteral("de.morvane.Morvane"));

    // Faster to the first frame and smaller than OpenGL, which also writes shader caches.
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    // On Wayland, Qt 6.4 starts a graphics driver all the same, which creates a cache folder.
    qputenv("MESA_SHADER_CACHE_DISABLE", "true");

    const QtMessageHandler handler = qInstallMessageHandler(endWithoutDisplay);
    const QGuiApplication application(argc, argv);
    qInstallMessageHandler(handler);
    // The display may be on another machine, so the filter follows the connection to the display.
    // The first secret is drawn later.
    Platform::Sandbox::installSyscallFilter();
    disableHintingOnScaledDisplays(application);
    GermanKeyNames keyNames;
    QCoreApplication::installTranslator(&keyNames);

    QQmlEngine engine;
    engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
    QObject::connect(&engine, &QQmlEngine::quit, &application, &QCoreApplication::quit,
                     Qt::QueuedConnection);
    const std::unique_ptr<QQuickWindow> window = createMainWindow(engine);
    if (!window)
        return EXIT_FAILURE;
    Platform::WindowChrome::hideTitleBar(*window);
    Platform::SystemMenu::setAboutCommand(QStringLiteral("Über Morvane"), [window = window.get()] {
        QMetaObject::invokeMethod(window, "openWindow", Q_ARG(QString, QStringLiteral("about")));
    });
    window->show();
    const int status = QGuiApplication::exec();
    endSoon(status);
    return status;
}
