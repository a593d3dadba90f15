// The factors of a length for the transforms in place.
#pragma once

#include "transforms/stages.hpp"

namespace kor::transforms {

inline constexpr Integer kLargestInPlacePrime = 19;
inline constexpr int kMostInPlaceFactors = 20;

enum class InPlaceStatus { good, prime_too_large, too_many_factors };

// Primes that divide n an even number of times are taken in pairs: n is the square of square_root, times a number
// without squares. Small enough to travel in a register.
struct InPlaceFactors {
    InPlaceStatus status;
    Integer square_root;
};

// c06eaz: for n >= 2.
InPlaceFactors c06eaz(Integer n);

} // namespace kor::transforms
