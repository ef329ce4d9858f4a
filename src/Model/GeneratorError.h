// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <cstdint>
#include <exception>
#include <optional>
#include <variant>

/// Why a secret could not be generated. Thrown by value, and the only thing the generator throws.
class GeneratorError final : public std::exception
{
public:
    /// Fewer characters were asked for than groups that must occur; `minimumLength` would have
    /// done.
    [[nodiscard]] static GeneratorError lengthTooShort(std::int64_t minimumLength);

    /// The system's random source failed with `status`, which is not 0.
    [[nodiscard]] static GeneratorError randomFailure(std::int32_t status);

    /// No character group is switched on.
    [[nodiscard]] static GeneratorError noCharacterSet();

    /// The German message for the user, never empty.
    [[nodiscard]] QString errorDescription() const;

    /// The smallest length that would have been accepted, if this is `lengthTooShort`.
    [[nodiscard]] std::optional<std::int64_t> minimumLength() const;

    /// The status that the system returned, if this is `randomFailure`.
    [[nodiscard]] std::optional<std::int32_t> randomStatus() const;

    /// The name of the case, for whoever debugs; users are shown `errorDescription`.
    [[nodiscard]] const char* what() const noexcept override;

    friend bool operator==(const GeneratorError& left, const GeneratorError& right)
    {
        return left.m_case == right.m_case;
    }

private:
    struct LengthTooShort
    {
        std::int64_t minimumLength;
        bool operator==(const LengthTooShort&) const = default;
    };
    struct RandomFailure
    {
        std::int32_t status;
        bool operator==(const RandomFailure&) const = default;
    };
    struct NoCharacterSet
    {
        bool operator==(const NoCharacterSet&) const = default;
    };
    using Case = std::variant<LengthTooShort, RandomFailure, NoCharacterSet>;

    explicit GeneratorError(Case errorCase)
        : m_case(errorCase)
    {
    }

    Case m_case;
};
