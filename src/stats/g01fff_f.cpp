// g01fff_f: the gamma deviate with an integer status.
#include <kor/g01.h>

#include "frame/kernel_report.hpp"
#include "stats/kernels.hpp"

namespace kor::stats {

double g01fff_f(double p, double a, double b, Integer &ifail)
{
    constexpr double kLargestShape = 1.0e6;
    double g = 0.0;
    Integer status = 0;
    if (!(p >= 0.0 && p < 1.0)) {
        status = 1;
    } else if (!(a > 0.0 && a <= kLargestShape && b > 0.0)) {
        status = 2;
    } else {
        KorError report = {};
        g = g01ffc(p, a, b, 0.0, &report);
        if (report.code == NE_PROBAB_CLOSE_TO_TAIL) status = 3;
        if (report.code == NE_ALG_NOT_CONV) status = 4;
    }
    ifail = p01abf_f(ifail, status, "G01FFF", 0, nullptr);
    return g;
}

} // namespace kor::stats
