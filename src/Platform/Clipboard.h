// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <cstdint>

/// The system-wide clipboard. Where the system has none, writing and clearing have no effect.
/// Belongs on the user-interface thread.
namespace Platform::Clipboard {

/// Replaces the contents by `text` as plain text only, marked as a secret for the programs that
/// keep a clipboard history, where the system has such a mark.
void setSecret(const QString& text);

/// Empties the clipboard. Where the desktop does not let a background program empty it, the program
/// offers empty contents until the user returns to it, and then empties the clipboard.
void clear();

/// A counter that increases with every write through this interface, and when another program
/// replaces what this interface wrote.
[[nodiscard]] std::int64_t changeCount();

} // namespace Platform::Clipboard
