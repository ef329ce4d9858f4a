// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

// A library for LD_PRELOAD that prints a line for each font that Qt loads. For each font, Qt 6.4
// searches for a file, and Qt 6.8 prepares a file that it has found before.

#include <iostream>

#include <dlfcn.h>

namespace {

/// Prints a line and calls the function `name` of fontconfig.
void* loadFont(const char* name, void* first, void* second, void* third)
{
    std::cerr << "font\n";
    using Function = void* (*)(void*, void*, void*);
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): dlsym returns void*
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name))(first, second, third);
}

} // namespace

// NOLINTBEGIN(readability-identifier-naming): the names of the replaced functions

extern "C" void* FcFontMatch(void* configuration, void* pattern, void* result)
{
    return loadFont("FcFontMatch", configuration, pattern, result);
}

extern "C" void* FcFontRenderPrepare(void* configuration, void* pattern, void* font)
{
    return loadFont("FcFontRenderPrepare", configuration, pattern, font);
}

// NOLINTEND(readability-identifier-naming)
