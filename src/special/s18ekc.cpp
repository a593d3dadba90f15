// s18ekc: the Bessel function J at a sequence of orders, rising or falling from a.
#include <kor/s18.h>

#include <algorithm>
#include <cstdlib>

#include "special/bessel_fractional.hpp"
#include "special/bessel_report.hpp"

void s18ekc(double x, double a, Integer nl, Complex b[], KorError *fail)
{
    using namespace kor::special;
    const kor::Report report{"s18ekc", fail};

    const Integer status = s18ekf_f(x, a, nl, b);
    report.set_errnum(status);
    if (status != kBesselArgument)
        report_outcome(report, status);
    else if (x == 0.0 && nl < 0)
        report.error<NE_REAL_INT>("x", x, "nl", nl, "x != 0.0 when nl < 0");
    else if (!(a >= 0.0 && a < 1.0))
        report.error<NE_REAL>("a", a, "0.0 <= a < 1.0");
    else if (!valid_sequence_length(nl))
        report.error<NE_INT>("nl", nl, "abs(nl) <= 101");
    else // x is not a number: neither are the values, and nothing is reported
        std::fill_n(b, std::abs(nl) + 1, Complex{x, x});
}
