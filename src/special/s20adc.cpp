// s20adc: the Fresnel cosine integral.
#include <kor/s20.h>

#include <cmath>

#include "special/fresnel.hpp"

namespace {

double fresnel_cosine(double x)
{
    using namespace kor::special;
    if (x < kFresnelSeriesBelow) {
        const double square = x * x, fourth = square * square;
        return x + x * (fourth * polynomial(tables::kFresnelCosineStart, fourth));
    }
    if (x < kFresnelTailFrom) return tables::kFresnelCosine.open({x}).rounded();
    if (x >= kFresnelHalfFrom) return 0.5;
    const auto [sine, cosine] = fresnel_phase(x);
    const auto [u, v] = fresnel_tail(x);
    return 0.5 + (u * sine.hi - v * cosine.hi);
}

} // namespace

double s20adc(double x)
{
    if (std::isnan(x)) return x;
    return std::copysign(fresnel_cosine(std::fabs(x)), x);
}
