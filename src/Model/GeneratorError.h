// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <cstdint>
#include <exception>
#include <optional>

/// The reason why a secret could not be generated. The generator throws no other type.
class GeneratorError final : public std::exception
{
public:
    /// The length is below `minimumLength`, the number of character groups that must occur.
    [[nodiscard]] static GeneratorError lengthTooShort(std::int64_t minimumLength);

    /// The system's random source failed with `status`, which is not 0.
    [[nodiscard]] static GeneratorError randomFailure(std::int32_t status);

    /// No character group is enabled.
    [[nodiscard]] static GeneratorError noCharacterSet();

    /// The German message for the user, never empty.
    [[nodiscard]] QString errorDescription() const;

    /// The smallest accepted length of a `lengthTooShort`; absent for the other kinds of error.
    [[nodiscard]] std::optional<std::int64_t> minimumLength() const;

    /// The status that the system returned for a `randomFailure`; absent for the other kinds.
    [[nodiscard]] std::optional<std::int32_t> randomStatus() const;

    /// The name of the kind of error, for debugging; users see `errorDescription`.
    [[nodiscard]] const char* what() const noexcept override;

    friend bool operator==(const GeneratorError& left, const GeneratorError& right)
    {
        return left.m_kind == right.m_kind && left.m_number == right.m_number;
    }

private:
    enum class Kind : std::uint8_t { lengthTooShort, randomFailure, noCharacterSet };

    explicit GeneratorError(Kind kind, std::int64_t number = 0)
        : m_kind(kind)
        , m_number(number)
    {
    }

    Kind m_kind;
    /// The minimum length or the status, depending on `m_kind`; 0 for `noCharacterSet`.
    std::int64_t m_number;
};
