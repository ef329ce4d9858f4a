// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

// Declarations alone: what macOS has in this header and the GNU C library has not.

#pragma once

#include_next <string.h>

extern "C" int memset_s(void* bytes, size_t size, int value, size_t count);
