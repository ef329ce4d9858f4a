// SPDX-FileCopyrightText: 2026 Morvane-Projekt
// SPDX-License-Identifier: MIT

#pragma once

// Pearson's chi-squared test for a uniform distribution of counts:
//
//     EXPECT_GT(ChiSquare::pValue(counts), ChiSquare::significance);

#include <cmath>
#include <cstdint>
#include <numbers>
#include <numeric>
#include <span>

namespace ChiSquare {

/// The probability with which a test of a correct generator fails. The tests of uniformity compute
/// fewer than 20 statistics, so fewer than one of 5,000,000 runs fails. The chi-squared
/// distribution approximates the statistic well, because every cell counts thousands of events.
inline constexpr double significance = 1e-8;

/// The sum of the squared deviations from the mean count, divided by that mean.
[[nodiscard]] inline double statistic(std::span<const std::int64_t> counts)
{
    const auto total = std::accumulate(counts.begin(), counts.end(), std::int64_t{0});
    const double expected = static_cast<double>(total) / static_cast<double>(counts.size());
    double sum = 0;
    for (const std::int64_t count : counts) {
        const double deviation = static_cast<double>(count) - expected;
        sum += deviation * deviation / expected;
    }
    return sum;
}

/// The probability that a chi-squared variable of `degrees` (positive) degrees of freedom exceeds
/// `x` (positive). This is the regularised incomplete gamma function Q(degrees / 2, x / 2), which
/// for whole degrees has a closed form: Q(a + 1, y) = Q(a, y) + y^a e^-y / Gamma(a + 1), from
/// Q(1/2, y) = erfc(sqrt(y)) or Q(1, y) = e^-y.
[[nodiscard]] inline double upperTail(std::int64_t degrees, double x)
{
    const double y = x / 2;
    const bool odd = degrees % 2 != 0;
    double tail = odd ? std::erfc(std::sqrt(y)) : std::exp(-y);
    // y^a e^-y / Gamma(a + 1) for a = k / 2, where Gamma(3/2) is half the square root of pi.
    double term
        = odd ? 2 * std::sqrt(y) * std::exp(-y) * std::numbers::inv_sqrtpi : y * std::exp(-y);
    for (std::int64_t k = odd ? 1 : 2; k < degrees; k += 2) {
        tail += term;
        term *= x / static_cast<double>(k + 2);
    }
    return tail;
}

/// The probability that a uniform source yields counts at least as uneven as `counts`.
[[nodiscard]] inline double pValue(std::span<const std::int64_t> counts)
{
    return upperTail(std::ssize(counts) - 1, statistic(counts));
}

} // namespace ChiSquare
