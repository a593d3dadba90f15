// s18cec: the scaled modified Bessel function exp(-|x|) I0.
#include <kor/s18.h>

#include <cmath>

#include "frame/report.hpp"
#include "special/bessel_ik.hpp"

double s18cec(double x, KorError *fail)
{
    const kor::Report report{"s18cec", fail};
    if (std::isnan(x)) return x;

    const double value = std::isinf(x) ? std::copysign(0.0, x) : kor::special::scaled_bessel_i0(x);
    report.success();
    return value;
}
