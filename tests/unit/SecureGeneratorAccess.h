// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

#include "Services/SecureGenerator.h"

#include <cstdint>

/// Opens the generator's random primitives to the tests.
struct SecureGeneratorAccess
{
    [[nodiscard]] static std::int64_t secureIndex(std::int64_t upperBound)
    {
        return SecureGenerator().secureIndex(upperBound);
    }

    template<typename List>
    [[nodiscard]] static auto pick(const List& list)
    {
        return SecureGenerator().pick(list);
    }

    template<typename List>
    static void secureShuffle(List& list)
    {
        SecureGenerator().secureShuffle(list);
    }
};
