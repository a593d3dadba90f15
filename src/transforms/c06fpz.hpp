// c06fpz: the factors of a length, in the order of the table of roots.
#pragma once

#include <cstddef>
#include <cstdint>

namespace kor::transforms {

using Index = std::ptrdiff_t;

// No length below 2^33 has more factors in the list than this.
inline constexpr int kMaxFactors = 30;

struct Factors {
    Index factor[kMaxFactors];
    int count;
};

namespace detail {

// Short divisions are several times faster, and nearly all lengths allow them.
template <class Number>
constexpr void factorise(Number n, Factors &factors)
{
    const auto remove_all = [&](Number divisor) {
        for (Number rest = n / divisor; rest * divisor == n; rest = n / divisor) {
            factors.factor[factors.count++] = static_cast<Index>(divisor);
            n = rest;
        }
    };
    constexpr Number kFirstDivisors[] = {6, 4, 2, 3, 5};
    for (const Number divisor : kFirstDivisors)
        if (n > 1) remove_all(divisor);
    // Divisors that are neither even nor multiples of 3; when their squares pass the rest, the rest is prime.
    for (Number divisor = 7, step = 4; divisor <= n / divisor; divisor += step, step = 6 - step) remove_all(divisor);
    if (n > 1) factors.factor[factors.count++] = static_cast<Index>(n);
}

} // namespace detail

// For n >= 1: all 6, all 4, then 2, 3, 5 and the larger primes; 1 for n = 1.
constexpr Factors c06fpz(Index n)
{
    Factors factors{};
    if (n == 1)
        factors.factor[factors.count++] = 1;
    else if (n <= INT32_MAX)
        detail::factorise(static_cast<std::uint32_t>(n), factors);
    else
        detail::factorise(static_cast<std::uint64_t>(n), factors);
    return factors;
}

} // namespace kor::transforms
