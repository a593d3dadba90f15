// Airy functions and their derivatives: piecewise polynomials; exponentials, or modulus and phase, for large arguments.
#include "special/airy.hpp"

#include "special/airy_tables.hpp"
#include "special/bessel_support.hpp"

namespace kor::special {

namespace {

using namespace tables::airy;

// Where Ai and its derivative have long underflowed, and the powers of x below have not overflowed.
constexpr double kUnderflow = 200.0;

// The powers of x > 0 on which everything depends, and zeta = 2/3 x^(3/2).
struct Powers {
    DoubleDouble half, quarter, zeta;

    explicit Powers(double x) : half{sqrt(DoubleDouble{x})}, quarter{sqrt(half)}, zeta{(half * x).scaled(2.0) / 3.0} {}
};

// value exp(zeta).
double times_exponential(DoubleDouble value, DoubleDouble zeta)
{
    const Exponential e = extended_exp(zeta);
    return times_power_of_two((value * e.value).rounded(), e.exponent);
}

// Ai = size cos(angle), Bi = -size sin(angle) at -x.
Oscillation oscillation(double x)
{
    const Powers power{x};
    const double w = 1.0 / (x * x * x);
    const double phase = kPhase(w).hi / (x * power.half.hi);
    return {kInverseRootPi / power.quarter * kModulus(w), power.zeta - (kQuarterPi + phase)};
}

// The same for the derivatives.
Oscillation slope_oscillation(double x)
{
    const Powers power{x};
    const double w = 1.0 / (x * x * x);
    const double phase = kPhaseSlope(w).hi / (x * power.half.hi);
    return {kInverseRootPi * power.quarter * kModulusSlope(w), power.zeta - (kThreeQuarterPi + phase)};
}

} // namespace

double airy_ai(double x)
{
    if (x < kAi.begin()) return oscillation(-x).cosine().rounded();
    if (x < kAi.end()) return kAi(x);
    if (x > kUnderflow) return 0.0;
    const Powers power{x};
    return times_exponential(kLargeAi(1.0 / power.zeta.hi) / power.quarter, -power.zeta);
}

double airy_bi(double x)
{
    if (x < kBi.begin()) return -oscillation(-x).sine().rounded();
    if (x < kBi.end()) return kBi(x);
    const Powers power{x};
    return times_exponential(kLargeBi(1.0 / power.zeta.hi) / power.quarter, power.zeta);
}

double airy_ai_slope(double x)
{
    if (x < kAiSlope.begin()) return slope_oscillation(-x).cosine().rounded();
    if (x < kAiSlope.end()) return kAiSlope(x);
    if (x > kUnderflow) return -0.0;
    const Powers power{x};
    return times_exponential(kLargeAiSlope(1.0 / power.zeta.hi) * power.quarter, -power.zeta);
}

double airy_bi_slope(double x)
{
    if (x < kBiSlope.begin()) return -slope_oscillation(-x).sine().rounded();
    if (x < kBiSlope.end()) return kBiSlope(x);
    const Powers power{x};
    return times_exponential(kLargeBiSlope(1.0 / power.zeta.hi) * power.quarter, power.zeta);
}

} // namespace kor::special
