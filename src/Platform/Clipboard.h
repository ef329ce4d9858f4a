// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <cstdint>

/// The system-wide clipboard. Without one at hand, writing and clearing have no effect. All calls
/// belong on the user-interface thread.
namespace Platform::Clipboard {

/// Replaces the contents by `text`, as plain text and nothing else. Programs that keep a history of
/// the clipboard are told that it is a secret, where the system has a way to tell them.
void setSecret(const QString& text);

/// Empties the clipboard. Where a desktop refuses that to a program in the background, the offer
/// stays with nothing in it until the user returns to this program. Contents that are brought back
/// are cleared again then.
void clear();

/// A counter that rises with every write of this program, this interface's or another's, and as
/// soon as another program replaces what was written through here.
[[nodiscard]] std::int64_t changeCount();

} // namespace Platform::Clipboard
