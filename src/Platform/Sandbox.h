// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

/// Restrictions of this process that cannot be lifted again, so that even a fault in a library does
/// not let the process store or send data. A denied operation fails with an error. Where the
/// system has no such restrictions, the functions do nothing.
namespace Platform::Sandbox {

/// Denies writing, creating, renaming, removing and executing files, except for writing to the
/// devices that a display and libraries need. Restricts the calling thread and the threads that it
/// starts later, so the program calls this before it starts a thread.
void restrictFilesystem() noexcept;

/// Prevents all threads of the process from opening network sockets, starting programs, examining
/// other processes and setting extended attributes of files.
void installSyscallFilter() noexcept;

} // namespace Platform::Sandbox
