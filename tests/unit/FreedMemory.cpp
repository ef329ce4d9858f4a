// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "FreedMemory.h"

#include <QtGlobal>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>

#include <malloc.h>

namespace {

// Fixed memory, because a search runs within `free` and must neither allocate nor free.
std::array<char16_t, 64> wanted{};
std::size_t wantedSize = 0;
int count = 0;
std::uintptr_t watched = 0;
bool watchedFreed = false;

bool containsWanted(const void* block, std::size_t size)
{
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): compares addresses only
    if (const auto start = reinterpret_cast<std::uintptr_t>(block); watched - start < size)
        watchedFreed = true;
    return wantedSize > 0 && block && ::memmem(block, size, wanted.data(), wantedSize);
}

} // namespace

// NOLINTBEGIN(*-reserved-identifier,readability-*-naming): the C library's and the sanitizer's
// names
#if defined(__SANITIZE_ADDRESS__) || (defined(__has_feature) && __has_feature(address_sanitizer))

extern "C" std::size_t __sanitizer_get_allocated_size(const volatile void* block);

extern "C" void __sanitizer_free_hook(const volatile void* block);
void __sanitizer_free_hook(const volatile void* block)
{
    if (wantedSize > 0 && block) {
        const std::size_t size = __sanitizer_get_allocated_size(block);
        if (containsWanted(const_cast<const void*>(block), size))
            ++count;
    }
}

#else

extern "C" void __libc_free(void* block);
extern "C" void* __libc_realloc(void* block, std::size_t size);

void free(void* block)
{
    if (containsWanted(block, ::malloc_usable_size(block)))
        ++count;
    __libc_free(block);
}

void* realloc(void* block, std::size_t size)
{
    const bool contained = containsWanted(block, ::malloc_usable_size(block));
    void* const result = __libc_realloc(block, size);
    if (contained && result != block)
        ++count;
    return result;
}

#endif
// NOLINTEND(*-reserved-identifier,readability-*-naming)

FreedMemory::FreedMemory(QStringView text)
{
    Q_ASSERT(wantedSize == 0 && !text.isEmpty());
    std::copy(text.utf16(), text.utf16() + std::min<qsizetype>(text.size(), 64), wanted.begin());
    count = 0;
    wantedSize = static_cast<std::size_t>(text.size()) * sizeof(char16_t);
}

FreedMemory::~FreedMemory()
{
    watched = 0;
    wantedSize = 0;
}

int FreedMemory::matches() const
{
    return count;
}

void FreedMemory::watch(const void* address)
{
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): compares addresses only
    watched = reinterpret_cast<std::uintptr_t>(address);
    watchedFreed = false;
}

bool FreedMemory::watchedIsFreed() const
{
    return watchedFreed;
}
