// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#include "ScriptedRandom.h"

#include "Platform/SecureRandom.h"

#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <random>
#include <span>
#include <utility>

namespace {

ScriptedRandom* installed = nullptr;

// Aborts instead of throwing, because the noexcept function fillSecureRandom calls the source.
[[noreturn]] void stop(const char* message)
{
    std::cerr << "ScriptedRandom: " << message << '\n';
    std::abort();
}

std::int32_t drawUnscripted(std::uint64_t& value)
{
    // The default seed makes a failure reproducible.
    static std::mt19937_64 generator;
    value = generator();
    return 0;
}

ScriptedRandom::Source script(std::vector<std::uint64_t> values, std::optional<FailsWith> failure)
{
    return [values = std::move(values), failure,
            next = std::size_t{0}](std::uint64_t& value) mutable -> std::int32_t {
        const std::size_t position = next++;
        if (position < values.size()) {
            value = values[position];
            return 0;
        }
        if (position == values.size() && failure)
            return failure->status;
        stop("a value was drawn beyond the end of the script");
    };
}

} // namespace

ScriptedRandom::ScriptedRandom(std::initializer_list<std::uint64_t> values)
    : ScriptedRandom(std::vector(values))
{
}

ScriptedRandom::ScriptedRandom(std::vector<std::uint64_t> values, std::optional<FailsWith> failure)
    : ScriptedRandom(script(std::move(values), failure))
{
}

ScriptedRandom::ScriptedRandom(Source source)
    : m_source(std::move(source))
    , m_previous(std::exchange(installed, this))
{
}

ScriptedRandom::~ScriptedRandom()
{
    installed = m_previous;
}

std::int32_t ScriptedRandom::draw(std::uint64_t& value)
{
    ++m_calls;
    return m_source(value);
}

std::int32_t Platform::fillSecureRandom(std::span<std::byte> bytes) noexcept
{
    std::uint64_t value = 0;
    if (bytes.size() != sizeof value)
        stop("a request was not for exactly 8 bytes");

    const std::int32_t status
        = installed != nullptr ? installed->draw(value) : drawUnscripted(value);
    std::memcpy(bytes.data(), &value, sizeof value);
    return status;
}
