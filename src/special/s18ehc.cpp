// s18ehc: the scaled modified Bessel function exp(x) K at a sequence of orders ia/ja + k.
#include <kor/s18.h>

#include "special/bessel_fractional.hpp"
#include "special/bessel_report.hpp"

void s18ehc(double x, Integer ia, Integer ja, Integer nl, double b[], KorError *fail)
{
    using namespace kor::special;
    const kor::Report report{"s18ehc", fail};

    const Integer status = s18ehf_f(x, ia, ja, nl, b);
    report.set_errnum(status);
    if (status != kBesselArgument)
        report_outcome(report, status);
    else if (!(x > 0.0))
        report.error<NE_REAL>("x", x, "x > 0.0");
    else if (!valid_order_pair(ia, ja))
        report.error<NE_INT_2>("ia", ia, "ja", ja, "ia and ja must constitute a valid pair (ia,ja)");
    else
        report.error<NE_INT>("nl", nl, "0 <= nl <= 100");
}
