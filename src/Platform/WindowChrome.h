// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <functional>

class QWindow;

/// The title bar of a window, and the global menu bar of systems that have a global menu bar.
namespace Platform::WindowChrome {

/// Extends the contents of `window` to the top edge. The program calls this before it shows the
/// window.
void hideTitleBar(QWindow& window);

/// Whether `hideTitleBar` also removes the window's buttons and borders, so that the program draws
/// the buttons and starts moving and resizing the window.
[[nodiscard]] bool usesClientSideDecorations();

/// Replaces the About item of the global menu bar by an item named `title` that calls `chosen` on
/// the main thread. Does nothing on systems without a global menu bar.
void setAboutCommand(const QString& title, const std::function<void()>& chosen);

} // namespace Platform::WindowChrome
