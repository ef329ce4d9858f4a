// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <functional>

/// The menu bar of systems that show one for the active program.
namespace Platform::SystemMenu {

/// Replaces the menu's About item by one with this title, which calls `chosen` on the main thread.
/// Does nothing on systems without such a menu bar.
void setAboutCommand(const QString& title, const std::function<void()>& chosen);

} // namespace Platform::SystemMenu
