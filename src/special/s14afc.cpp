// s14afc: derivatives of the logarithm of the gamma function, digamma and polygamma, for complex argument.
#include <kor/s14.h>

#include <cmath>

#include "frame/report.hpp"
#include "special/polygamma.hpp"

Complex s14afc(Complex z, Integer k, KorError *fail)
{
    using namespace kor::special;
    const kor::Report report{"s14afc", fail};
    if (std::isnan(z.re) || std::isnan(z.im)) return {NAN, NAN};

    Complex value{};
    const Integer status = s14aff_f(z, k, &value);
    report.set_errnum(status);
    switch (status) {
    case kPolygammaDone:
        report.success();
        break;
    case kPolygammaOrder:
        report.error<NE_INT>("k", k, "0 <= k <= 4");
        break;
    case kPolygammaPole:
        report.error<NE_COMPLEX>("z", z.re, z.im,
                                 "z.re must not be too close to a non-positive integer when z.im = 0.0");
        break;
    case kPolygammaOverflow:
        report.error<NE_OVERFLOW_LIKELY>();
        break;
    default:
        report.error<NE_INTERNAL_ERROR>();
        break;
    }
    return value;
}
