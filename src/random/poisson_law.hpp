// What g05drc has to know of a Poisson law: constants of the hat, and the probabilities for its exact test.
#pragma once

#include "random/state.hpp"

namespace kor::random {

inline constexpr double kSmallMean = 7.5; // from here on there is a hat

PoissonConstants poisson_constants(double mean);

// log of sqrt(2 pi mean) exp(-mean) mean^k / k!, for mean >= kSmallMean; -infinity where k is out of the question. Keeps in
// c what depends on the mean alone.
double log_relative_mass(PoissonConstants &c, double k);

} // namespace kor::random
