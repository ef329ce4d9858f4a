// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

/// Takes from this process, for good, what it has no need of, so that it cannot store or send
/// anything even through a fault in a library. What is refused fails with an error, and nothing is
/// refused where the system has no means for it.
namespace Platform::Sandbox {

/// From now on no file can be written, created, renamed, removed or executed, but for the devices
/// that a display needs. Binds the calling thread and those that it starts: to be called before
/// there is a second one.
void restrictFilesystem() noexcept;

/// From now on no thread can open a socket that leaves the machine, start a program, or look into
/// another process.
void installSyscallFilter() noexcept;

} // namespace Platform::Sandbox
