// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

// Replaces the system's clipboard, clock and appearance in every executable that links
// MorvaneFakeDesktop. Each fake has one state for the whole program.

#include <QString>

#include <chrono>
#include <cstdint>
#include <optional>

namespace FakeClipboard {

/// The text on the clipboard; absent while the clipboard is empty.
std::optional<QString> text();

/// The number of times that the clipboard was cleared.
int clears();

/// Replaces the contents as another program does.
void writeAsAnotherProgram(const QString& text);

/// Empties the clipboard and resets the number of clears.
void reset();

} // namespace FakeClipboard

namespace FakeClock {

/// Advances the time and runs the tasks that become due, in the order of their deadlines.
void advance(std::chrono::milliseconds time);

/// The number of pending tasks.
std::size_t pendingTasks();

/// Sets the time to 0 and drops the pending tasks.
void reset();

} // namespace FakeClock

namespace FakeAppearance {

/// Sets the user's settings. The appearance emits `changed` if the settings have changed.
void set(std::optional<bool> dark, bool reducedMotion);

} // namespace FakeAppearance
