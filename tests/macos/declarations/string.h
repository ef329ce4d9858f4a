// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

// Declarations of string.h that macOS has and the GNU C library lacks.

#pragma once

#include_next <string.h>

extern "C" int memset_s(void* bytes, size_t size, int value, size_t count);
