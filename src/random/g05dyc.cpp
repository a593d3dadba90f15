// g05dyc: an integer from a closed range, each with the same probability.
#include <kor/g05.h>

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "random/state.hpp"

Integer g05dyc(Integer a, Integer b)
{
    using namespace kor::random;
    const std::int64_t low = std::min(a, b), high = std::max(a, b);
    const double u = uniform(g05caz()), range = static_cast<double>(high - low);
    // Steps from the low end: not negative, so that truncation rounds down whatever the signs of a and b.
    const auto steps = static_cast<std::int64_t>(range * u + u);
    return static_cast<Integer>(std::min(low + steps, high));
}
