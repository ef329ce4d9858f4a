// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

/// Restrictions of this process that cannot be lifted again, so that even a fault in a library does
/// not let the process store or send data. A denied operation fails with an error. Where the
/// system has no such restrictions, the functions do nothing.
namespace Platform::Sandbox {

/// Closes inherited file descriptors, except standard input, output and error, and removes the
/// environment variables that load plugins into Qt, turn on Qt's log or connect to a session
/// manager. Called before the program starts a thread.
void discardInheritance() noexcept;

/// Denies writing, creating, renaming, removing and executing files, except for writing to the
/// devices that a display and libraries need. Restricts the calling thread and the threads that it
/// starts later, so the program calls this before it starts a thread.
void restrictFilesystem() noexcept;

/// Whether the connection to the display needs an Internet socket.
[[nodiscard]] bool isDisplayRemote() noexcept;

/// Denies all threads of the process every system call that a display, an input method, a screen
/// reader or a theme does not need: Internet sockets, starting programs, examining and signalling
/// other processes, changing the attributes of files, creating executable code.
void installSyscallFilter() noexcept;

} // namespace Platform::Sandbox
