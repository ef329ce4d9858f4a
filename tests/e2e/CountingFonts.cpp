// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

// A library for LD_PRELOAD that prints a line for each search for a font file. Qt searches once for
// each font.

#include <iostream>

#include <dlfcn.h>

// NOLINTNEXTLINE(readability-identifier-naming): the name of the replaced function
extern "C" void* FcFontMatch(void* configuration, void* pattern, void* result)
{
    std::cerr << "FcFontMatch\n";
    using Function = void* (*)(void*, void*, void*);
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): dlsym returns void*
    static const auto next = reinterpret_cast<Function>(dlsym(RTLD_NEXT, "FcFontMatch"));
    return next(configuration, pattern, result);
}
