// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

/// The application: the main window and the event loop behind it.
class MorvaneApp final
{
public:
    /// Opens the main window and returns when the application has ended, with its exit status:
    /// 0, or 1 with a line on standard error where there is no display to open a window on.
    int run(int argc, char** argv) const;
};
