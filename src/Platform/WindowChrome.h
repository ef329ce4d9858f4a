// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

class QWindow;

/// The decorations of a window without a visible title bar.
namespace Platform::WindowChrome {

/// Extends the window's contents to its top edge. The program calls this before it shows the
/// window.
void hideTitleBar(QWindow& window);

/// Whether hiding the title bar removes the window's buttons and borders as well, so that the
/// program draws the buttons and starts moves and resizes itself.
[[nodiscard]] bool usesClientSideDecorations();

} // namespace Platform::WindowChrome
