// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <functional>

class QWindow;

/// What the system draws around the program: the title bar of a window, and the menu bar of systems
/// that show one for the active program.
namespace Platform::WindowChrome {

/// Extends the window's contents to its top edge. The program calls this before it shows the
/// window.
void hideTitleBar(QWindow& window);

/// Whether hiding the title bar removes the window's buttons and borders as well, so that the
/// program draws the buttons and starts moves and resizes itself.
[[nodiscard]] bool usesClientSideDecorations();

/// Replaces the menu bar's About item by one with this title, which calls `chosen` on the main
/// thread. Does nothing on systems without such a menu bar.
void setAboutCommand(const QString& title, const std::function<void()>& chosen);

} // namespace Platform::WindowChrome
