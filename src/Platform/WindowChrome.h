// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

class QWindow;

/// The frame of a window without a visible title bar.
namespace Platform::WindowChrome {

/// Lets the window's contents reach its top edge. Call it before the window is shown.
void hideTitleBar(QWindow& window);

/// Whether the program has to draw the window's buttons, and to move and resize the window on its
/// own, because none of it is left once the title bar is hidden.
[[nodiscard]] bool usesClientSideDecorations();

} // namespace Platform::WindowChrome
