// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <cstdint>

/// The system-wide clipboard. Without a clipboard, writing and clearing have no effect.
/// Used only on the main thread.
namespace Platform::Clipboard {

/// Replaces the contents by `text` as plain text only, marked as a secret for clipboard
/// managers where the system has such a mark.
void setSecret(const QString& text);

/// Empties the clipboard. On X11, the clipboard contains a placeholder for 600 ms before. Where the
/// desktop does not let a background program empty the clipboard, offers empty contents until the
/// program is active again, and then empties the clipboard.
void clear();

/// A counter that increases with every write through this interface, and when another program
/// replaces the contents written through this interface.
[[nodiscard]] std::int64_t changeCount();

} // namespace Platform::Clipboard
