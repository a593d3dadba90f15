// g01fef_f: the beta deviate with an integer status.
#include <kor/g01.h>

#include "frame/kernel_report.hpp"
#include "stats/kernels.hpp"

namespace kor::stats {

double g01fef_f(double p, double a, double b, Integer &ifail)
{
    constexpr double kLargestShape = 1.0e6;
    double x = 0.0;
    Integer status = 0;
    if (!(p >= 0.0 && p <= 1.0)) {
        status = 1;
    } else if (!(a > 0.0 && a <= kLargestShape && b > 0.0 && b <= kLargestShape)) {
        status = 2;
    } else {
        KorError report = {};
        x = g01fec(p, a, b, 0.0, &report);
        if (report.code == NE_SOL_NOT_CONV) status = 4;
    }
    ifail = p01abf_f(ifail, status, "G01FEF", 0, nullptr);
    return x;
}

} // namespace kor::stats
