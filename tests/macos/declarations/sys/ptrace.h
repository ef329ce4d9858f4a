// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

// Declarations of the parts of macOS's process tracing that the program uses.

#pragma once

#include <sys/types.h>

enum { PT_DENY_ATTACH = 31 };

extern "C" int ptrace(int request, pid_t process, char* address, int data);
