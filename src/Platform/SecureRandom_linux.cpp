// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "Platform/SecureRandom.h"

#include <cerrno>

#include <sys/random.h>

namespace Platform {

std::int32_t fillSecureRandom(std::span<std::byte> bytes) noexcept
{
    for (;;) {
        const ssize_t filled = ::getrandom(bytes.data(), bytes.size(), 0);
        if (filled == std::ssize(bytes))
            return 0;
        // A signal can interrupt a request only before the source is first seeded. The source
        // has not failed and has delivered no byte, so the same request is made again.
        if (filled < 0 && errno == EINTR)
            continue;
        // The kernel never shortens a request of up to 256 bytes. A short result contradicts that
        // guarantee, so none of its bytes are used.
        return filled < 0 ? errno : EIO;
    }
}

} // namespace Platform
