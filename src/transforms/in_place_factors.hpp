// The factors of a length for the transforms in place.
#pragma once

#include "transforms/stages.hpp"

namespace kor::transforms {

inline constexpr Integer kLargestInPlacePrime = 19;
inline constexpr int kMostInPlaceFactors = 20;

enum class InPlaceStatus { good, prime_too_large, too_many_factors };

// Primes that divide n an even number of times are taken in pairs: n = square_root^2 * square_free.
struct InPlaceFactors {
    InPlaceStatus status;
    Index square_root;
    Index square_free;
};

// c06eaz: for n >= 2.
InPlaceFactors c06eaz(Integer n);

} // namespace kor::transforms
