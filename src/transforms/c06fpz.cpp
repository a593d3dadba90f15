// c06fpz: the factors of a length, in the order of the table of roots.
#include "transforms/stages.hpp"

namespace kor::transforms {

Factors c06fpz(Index n)
{
    Factors factors{};
    const auto remove_all = [&](Index divisor) {
        for (; n % divisor == 0; n /= divisor) factors.factor[factors.count++] = divisor;
    };
    if (n == 1) return {{1}, 1};
    constexpr Index kFirstDivisors[] = {6, 4, 2, 3, 5};
    for (const Index divisor : kFirstDivisors) remove_all(divisor);
    // Divisors that are neither even nor multiples of 3; when their squares pass the rest, the rest is prime.
    for (Index divisor = 7, step = 4; divisor <= n / divisor; divisor += step, step = 6 - step) remove_all(divisor);
    if (n > 1) remove_all(n);
    return factors;
}

} // namespace kor::transforms
