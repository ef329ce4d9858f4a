// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

// Stands in for the clipboard, the clock and the appearance of the system, in every executable that
// links MorvaneFakeDesktop. Each is one for the whole program, as the system's are.

#include <QString>

#include <chrono>
#include <cstdint>
#include <optional>

namespace FakeClipboard {

/// What a paste would yield; absent while the clipboard is empty.
std::optional<QString> text();

/// How often it was cleared.
int clears();

/// What any other program does.
void writeFromElsewhere(const QString& text);

/// Empty, and nothing counted.
void reset();

} // namespace FakeClipboard

namespace FakeClock {

/// Lets time pass, and runs what is due meanwhile, in the order in which it is due.
void advance(std::chrono::milliseconds time);

/// How many tasks are waiting.
std::size_t waiting();

/// Forgets what is waiting.
void reset();

} // namespace FakeClock

namespace FakeAppearance {

/// Sets the user's settings. The appearance emits `changed` if they differ from the ones before.
void set(std::optional<bool> dark, bool reducedMotion);

} // namespace FakeAppearance
