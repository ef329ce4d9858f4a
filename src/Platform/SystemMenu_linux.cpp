// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "Platform/SystemMenu.h"

namespace Platform::SystemMenu {

void setAboutCommand(const QString& /*title*/, const std::function<void()>& /*chosen*/)
{
}

} // namespace Platform::SystemMenu
