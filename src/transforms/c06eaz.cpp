// c06eaz: the factors of a length for the transforms in place, and whether they suit them.
#include <cstdint>

#include "transforms/in_place_factors.hpp"

namespace kor::transforms {

InPlaceFactors c06eaz(Integer n)
{
    InPlaceFactors factors{InPlaceStatus::good, 1, 1};
    // Short divisions are faster.
    auto rest = static_cast<std::uint32_t>(n), prime = std::uint32_t{2};
    int count = 0;
    while (rest > 1) {
        while (prime <= kLargestInPlacePrime && rest % prime != 0) ++prime;
        if (prime > kLargestInPlacePrime) {
            factors.status = InPlaceStatus::prime_too_large;
            return factors;
        }
        const bool pair = rest % (prime * prime) == 0;
        (pair ? factors.square_root : factors.square_free) *= static_cast<Index>(prime);
        rest /= pair ? prime * prime : prime;
        count += pair ? 2 : 1;
        if (count > kMostInPlaceFactors) {
            factors.status = InPlaceStatus::too_many_factors;
            return factors;
        }
    }
    return factors;
}

} // namespace kor::transforms
