// s18ccc: the scaled modified Bessel function exp(x) K0.
#include <kor/s18.h>

#include <cmath>

#include "frame/report.hpp"
#include "special/bessel_ik.hpp"

double s18ccc(double x, KorError *fail)
{
    using namespace kor::special;
    const kor::Report report{"s18ccc", fail};
    if (std::isnan(x)) return x;

    if (x <= 0.0) {
        report.error<NE_REAL_ARG_LE>("x", "0.0", "x", x);
        return 0.0;
    }
    const double value = std::isinf(x) ? 0.0 : scaled_bessel_k0(x);
    report.success();
    return value;
}
