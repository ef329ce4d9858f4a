// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

/// Restrictions of this process that cannot be lifted again, so that even a fault in a library does
/// not let the process store or send data. A refused operation fails with an error. Where the
/// system has no such restrictions, the functions do nothing.
namespace Platform::Sandbox {

/// Refuses to write, create, rename, remove or execute any file, except for the devices that a
/// display needs. Restricts the calling thread and the threads that it starts later, so the program
/// calls this before it starts a thread.
void restrictFilesystem() noexcept;

/// Refuses all threads of the process to open a socket that leaves the machine, to start a program
/// or to examine another process.
void installSyscallFilter() noexcept;

} // namespace Platform::Sandbox
