// s18ecc: the scaled modified Bessel function exp(-x) I of order nu/4.
#include <kor/s18.h>

#include <cmath>

#include "special/bessel_fractional.hpp"
#include "special/bessel_report.hpp"

double s18ecc(double x, Integer nu, KorError *fail)
{
    using namespace kor::special;
    const kor::Report report{"s18ecc", fail};
    if (std::isnan(x)) return x;

    double value = 0.0;
    const Integer status = s18ecf_f(x, nu, &value);
    report.set_errnum(status);
    if (status != kBesselArgument)
        report_outcome(report, status);
    else if (nu < 0 && x <= 0.0)
        report.error<NE_REAL_INT>("x", x, "nu", nu, "x > 0.0 when nu < 0");
    else if (nu > 0 && x < 0.0)
        report.error<NE_REAL_INT>("x", x, "nu", nu, "x >= 0.0 when nu > 0");
    else
        report.error<NE_INT>("nu", nu, "1 <= abs(nu) <= 3");
    return value;
}
