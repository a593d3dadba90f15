// Bessel functions J and Y of orders 0 and 1: series, piecewise polynomials, and modulus and phase for large arguments.
#include "special/bessel_jy.hpp"

#include "special/bessel_jy_tables.hpp"
#include "special/bessel_support.hpp"

namespace kor::special {

namespace {

using namespace tables::bessel_jy;

// J + i Y as modulus and phase: sqrt(2 / (pi x)) modulus exp(i (x - shift + phase / x)), the series in powers of 1/x^2.
// Quarter turns are taken off x itself, which is exact, so that the phase loses no digit to the size of x.
template <class Modulus, class Phase>
Oscillation oscillation(double x, DoubleDouble shift, const Modulus &modulus, const Phase &phase)
{
    const double z = 1.0 / (x * x);
    const ReducedAngle reduced = reduce_angle(DoubleDouble{x});
    const DoubleDouble turn = kHalfPi * static_cast<double>(reduced.quadrant) - shift;
    return {sqrt(kTwoOverPi / x) * modulus(z), reduced.r + (turn + phase(z).hi / x)};
}

Oscillation oscillation0(double x) { return oscillation(x, kQuarterPi, kModulus0, kPhase0); }
Oscillation oscillation1(double x) { return oscillation(x, kThreeQuarterPi, kModulus1, kPhase1); }

// Next to 0 the value is ln(x) 2/pi, or the pole, and a constant; the rest is small against them.
double small_y0(double x)
{
    const double z = x * x;
    const DoubleDouble log_part = kTwoOverPi * extended_log_of(x);
    return (log_part + kSmallY0(z) + log_part.hi * (z * polynomial(kSmallJ0, z))).rounded();
}

double small_y1(double x)
{
    const double z = x * x;
    const double log_part = kTwoOverPi.hi * extended_log_of(x).hi;
    const DoubleDouble pole = -kTwoOverPi / x;
    return pole.hi + (pole.lo + x * (polynomial(kSmallY1, z) + log_part * polynomial(kSmallJ1, z)));
}

} // namespace

double bessel_j0(double x)
{
    const double a = std::fabs(x);
    return a < kJ0.end() ? kJ0(a) : oscillation0(a).cosine().rounded();
}

double bessel_j1(double x)
{
    const double a = std::fabs(x);
    const double value = a < kJ1.end() ? kJ1(a) : oscillation1(a).cosine().rounded();
    return std::signbit(x) ? -value : value;
}

double bessel_y0(double x)
{
    if (x < kSmallArgument) return small_y0(x);
    return x < kY0.end() ? kY0(x) : oscillation0(x).sine().rounded();
}

double bessel_y1(double x)
{
    if (x < kSmallArgument) return small_y1(x);
    return x < kY1.end() ? kY1(x) : oscillation1(x).sine().rounded();
}

} // namespace kor::special
