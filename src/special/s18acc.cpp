// s18acc: the modified Bessel function K0.
#include <kor/s18.h>

#include <cmath>

#include "frame/report.hpp"
#include "special/bessel_ik.hpp"
#include "special/bessel_limits.hpp"

double s18acc(double x, KorError *fail)
{
    using namespace kor::special;
    const kor::Report report{"s18acc", fail};
    if (std::isnan(x)) return x;

    if (x <= 0.0) {
        report.error<NE_REAL_ARG_LE>("x", "0.0", "x", x);
        return 0.0;
    }
    const double value = x > kLargestK ? 0.0 : bessel_k0(x);
    report.success();
    return value;
}
