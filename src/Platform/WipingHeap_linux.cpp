// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

// Replaces `free` and `realloc` of the C library for the whole process: a block is overwritten with
// zeros before it is freed. Qt copies the displayed text for its layout, for screen readers and for
// the clipboard, and frees the copies without overwriting them.

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <cstring>

#include <malloc.h>

namespace {

/// Larger blocks hold images and fonts. Overwriting them would delay the first frame.
constexpr std::size_t largestWipedBlock = 65'536;

} // namespace

// NOLINTBEGIN(*-reserved-identifier,readability-*): the C library's names
// NOLINTBEGIN(*-no-malloc,*-owning-memory): the functions implement the heap

extern "C" void __libc_free(void* block);
extern "C" void* __libc_realloc(void* block, std::size_t size);

void free(void* __ptr)
{
    if (!__ptr)
        return;
    const std::size_t size = ::malloc_usable_size(__ptr);
    if (size <= largestWipedBlock)
        ::explicit_bzero(__ptr, size);
    __libc_free(__ptr);
}

void* realloc(void* __ptr, std::size_t __size)
{
    const std::size_t oldSize = ::malloc_usable_size(__ptr);
    if (!__ptr || __size == 0 || oldSize > largestWipedBlock)
        return __libc_realloc(__ptr, __size);
    // The C library's function would free a block that it moves without overwriting it.
    void* const result = std::malloc(__size);
    if (!result)
        return nullptr;
    std::memcpy(result, __ptr, std::min(oldSize, __size));
    free(__ptr);
    return result;
}

// NOLINTEND(*-no-malloc,*-owning-memory)
// NOLINTEND(*-reserved-identifier,readability-*)
