// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <functional>

/// The menu bar that some systems keep for the program in front.
namespace Platform::SystemMenu {

/// Makes a command of this title the menu's About item. `chosen` runs on the main thread. Does
/// nothing where the system keeps no menu for programs.
void setAboutCommand(const QString& title, const std::function<void()>& chosen);

} // namespace Platform::SystemMenu
