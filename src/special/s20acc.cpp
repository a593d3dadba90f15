// s20acc: the Fresnel sine integral.
#include <kor/s20.h>

#include <cmath>

#include "special/fresnel.hpp"

namespace {

double fresnel_sine(double x)
{
    using namespace kor::special;
    if (x < kFresnelSeriesBelow) {
        const DoubleDouble square = two_square(x);
        return tables::kFresnelSineStart.times(square * x, square.hi * square.hi).rounded();
    }
    if (x < kFresnelTailFrom) return tables::kFresnelSine.open({x}).rounded();
    if (x >= kFresnelHalfFrom) return 0.5;
    const auto [sine, cosine] = fresnel_phase(x);
    const auto [u, v] = fresnel_tail(x);
    return 0.5 - (u * cosine.hi + v * sine.hi);
}

} // namespace

double s20acc(double x)
{
    if (std::isnan(x)) return x;
    return std::copysign(fresnel_sine(std::fabs(x)), x);
}
