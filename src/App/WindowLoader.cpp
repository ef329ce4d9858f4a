// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "App/WindowLoader.h"

#include "Views/Appearance.h"
#include "Views/TextStyles.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QLibraryInfo>
#include <QPluginLoader>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickWindow>

#include <iostream>

namespace {

/// Has Qt look for the font and read its file, and for the first font of all, for every font that
/// there is.
void loadFont(const QFont& font)
{
    QFontMetricsF(font).height();
}

/// The thread that reads the types would load it too, but only when it comes to it. If it is kept
/// elsewhere, that thread will find it.
void loadControlTemplates()
{
    QPluginLoader(QLibraryInfo::path(QLibraryInfo::QmlImportsPath)
                  + QStringLiteral("/QtQuick/Templates/qtquicktemplates2plugin"))
        .load();
}

void loadFontsOfFirstFrame()
{
    TextStyles styles;
    styles.setScale(Appearance::textScale());
    for (const QFont& font : {styles.body(), styles.headline(), styles.caption(), styles.rating(),
                              styles.title2(), styles.row(), styles.value(), styles.longValue()}) {
        loadFont(font);
        // The thread that reads the types now and then waits for this one.
        QCoreApplication::sendPostedEvents();
    }
}

void waitFor(const QQmlComponent& component)
{
    if (!component.isLoading())
        return;
    QEventLoop loop;
    QObject::connect(&component, &QQmlComponent::statusChanged, &loop, &QEventLoop::quit);
    loop.exec();
}

} // namespace

WindowLoader::WindowLoader()
    : m_fontDatabase(std::async(std::launch::async, loadFont, QGuiApplication::font()))
{
}

std::unique_ptr<QQuickWindow> WindowLoader::load(QQmlEngine& engine,
                                                 const QVariantMap& properties) const
{
    QQmlComponent window(&engine);
    window.loadUrl(QStringLiteral("qrc:/qt/qml/Morvane/App/MainWindow.qml"),
                   QQmlComponent::Asynchronous);
    // The window builds it last.
    QQmlComponent settings(&engine);
    settings.loadUrl(QStringLiteral("qrc:/qt/qml/Morvane/Views/SettingsPanel.qml"),
                     QQmlComponent::Asynchronous);

    loadControlTemplates();
    m_fontDatabase.wait();
    loadFontsOfFirstFrame();
    waitFor(window);

    std::unique_ptr<QObject> object;
    if (window.isReady())
        object.reset(window.createWithInitialProperties(properties));
    for (const QQmlError& error : window.errors())
        std::cerr << qPrintable(error.toString()) << '\n';
    auto* const built = qobject_cast<QQuickWindow*>(object.get());
    if (!built)
        return nullptr;
    static_cast<void>(object.release());
    return std::unique_ptr<QQuickWindow>(built);
}
