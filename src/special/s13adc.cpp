// s13adc: the sine integral.
#include <kor/s13.h>

#include <cmath>

#include "special/elementary.hpp"
#include "special/sine_cosine_integral.hpp"

namespace {

constexpr double kSeriesUpTo = 1.0;
constexpr double kHalfPi = 1.5707963267948966;
constexpr double kHalfPiLow = 6.123233995736766e-17; // pi/2 less the double

double sine_integral(double x)
{
    using namespace kor::special;
    if (x < kSeriesUpTo) return tables::kSiSlope.times({x}, x * x).rounded();
    if (x < kAuxiliaryFrom) return tables::kSi.open({x}).rounded();
    if (x > kAuxiliaryUpTo) return kHalfPi;
    const auto [f, g] = scaled_auxiliary(x);
    return kHalfPi - ((f.hi * std::cos(x) + g.hi * std::sin(x) / x) / x - kHalfPiLow);
}

} // namespace

double s13adc(double x)
{
    if (std::isnan(x)) return x;
    return std::copysign(sine_integral(std::fabs(x)), x);
}
