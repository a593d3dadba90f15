// c06eaz: the factors of a length for the transforms in place, and whether they suit them.
#include <cstdint>

#include "transforms/in_place_factors.hpp"

namespace kor::transforms {

namespace {

constexpr InPlaceFactors factorised(std::uint32_t n)
{
    InPlaceFactors factors{InPlaceStatus::good, 1};
    // Short divisions are faster.
    std::uint32_t rest = n, prime = 2;
    int count = 0;
    while (rest > 1) {
        while (prime <= kLargestInPlacePrime && rest % prime != 0) ++prime;
        if (prime > kLargestInPlacePrime) {
            factors.status = InPlaceStatus::prime_too_large;
            return factors;
        }
        const bool pair = rest % (prime * prime) == 0;
        if (pair) factors.square_root *= static_cast<Integer>(prime);
        rest /= pair ? prime * prime : prime;
        count += pair ? 2 : 1;
        if (count > kMostInPlaceFactors) {
            factors.status = InPlaceStatus::too_many_factors;
            return factors;
        }
    }
    return factors;
}

// The square roots for short lengths, 0 where a prime is too large: divisions would take as long as the transform.
constexpr Index kTabulated = 2048;
struct SquareRoots {
    std::uint8_t length[kTabulated + 1];
};
constexpr SquareRoots kSquareRoots = [] {
    SquareRoots roots{};
    for (std::uint32_t n = 1; n <= kTabulated; ++n) {
        const InPlaceFactors factors = factorised(n);
        roots.length[n] = factors.status == InPlaceStatus::good ? static_cast<std::uint8_t>(factors.square_root) : 0;
    }
    return roots;
}();

} // namespace

InPlaceFactors c06eaz(Integer n)
{
    if (n > kTabulated) return factorised(static_cast<std::uint32_t>(n));
    const Integer root = kSquareRoots.length[n];
    return {root > 0 ? InPlaceStatus::good : InPlaceStatus::prime_too_large, root};
}

} // namespace kor::transforms
