// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

#include <QVariantMap>

#include <future>
#include <memory>

class QQmlEngine;
class QQuickWindow;

/// Builds the main window. Reading its types takes Qt as long as all else together, on a thread of
/// its own; meanwhile this one gets ready what the first frame is written with.
class WindowLoader
{
public:
    /// Begins to look for the fonts. There must be an application.
    WindowLoader();

    /// The window, not yet shown, with `properties` set. Null: it could not be read, and standard
    /// error tells why.
    [[nodiscard]] std::unique_ptr<QQuickWindow> load(QQmlEngine& engine,
                                                     const QVariantMap& properties) const;

private:
    std::future<void> m_fontDatabase;
};
