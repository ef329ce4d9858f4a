// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "Platform/WindowChrome.h"

#include <QWindow>

namespace Platform::WindowChrome {

void hideTitleBar(QWindow& window)
{
    window.setFlag(Qt::FramelessWindowHint);
}

bool usesClientSideDecorations()
{
    return true;
}

void setAboutCommand(const QString& /*title*/, const std::function<void()>& /*chosen*/)
{
}

} // namespace Platform::WindowChrome
