// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "Platform/SecureRandom.h"

#include <Security/SecRandom.h>

namespace Platform {

std::int32_t fillSecureRandom(std::span<std::byte> bytes) noexcept
{
    return SecRandomCopyBytes(kSecRandomDefault, bytes.size(), bytes.data());
}

} // namespace Platform
