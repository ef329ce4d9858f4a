// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

// Declarations of the parts of macOS's Security framework that the program uses.

#pragma once

#include <stddef.h>
#include <stdint.h>

extern "C" {

typedef const struct __SecRandom* SecRandomRef;
extern const SecRandomRef kSecRandomDefault;

int SecRandomCopyBytes(SecRandomRef random, size_t count, void* bytes)
    __attribute__((warn_unused_result));
}
