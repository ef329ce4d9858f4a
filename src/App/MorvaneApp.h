// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

/// The application with its windows and event loop.
class MorvaneApp final
{
public:
    /// Opens the main window and runs the event loop. Returns the exit status: 0 after the user has
    /// quit, or 1 if the main window cannot be built. Without a display, ends the process with exit
    /// status 1. Either failure prints a message on standard error.
    int run(int argc, char** argv) const;
};
