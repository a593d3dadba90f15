// s18cfc: the scaled modified Bessel function exp(-|x|) I1.
#include <kor/s18.h>

#include <cmath>

#include "frame/report.hpp"
#include "special/bessel_ik.hpp"

double s18cfc(double x, KorError *fail)
{
    const kor::Report report{"s18cfc", fail};
    if (std::isnan(x)) return x;

    const double value = std::isinf(x) ? std::copysign(0.0, x) : kor::special::scaled_bessel_i1(x);
    report.success();
    return value;
}
