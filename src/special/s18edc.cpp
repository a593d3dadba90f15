// s18edc: the scaled modified Bessel function exp(x) K of order nu/4.
#include <kor/s18.h>

#include <cmath>

#include "special/bessel_fractional.hpp"
#include "special/bessel_report.hpp"

double s18edc(double x, Integer nu, KorError *fail)
{
    using namespace kor::special;
    const kor::Report report{"s18edc", fail};
    if (std::isnan(x)) return x;

    double value = 0.0;
    const Integer status = s18edf_f(x, nu, &value);
    report.set_errnum(status);
    if (status != kBesselArgument)
        report_outcome(report, status);
    else if (x <= 0.0)
        report.error<NE_REAL>("x", x, "x > 0.0");
    else
        report.error<NE_INT>("nu", nu, "1 <= abs(nu) <= 3");
    return value;
}
