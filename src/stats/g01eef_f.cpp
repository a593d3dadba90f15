// g01eef_f: beta tails and density with an integer status.
#include <kor/g01.h>

#include "frame/kernel_report.hpp"
#include "stats/kernels.hpp"

namespace kor::stats {

void g01eef_f(double x, double a, double b, double &p, double &q, double &pdf, Integer &ifail)
{
    constexpr double kLargestShape = 1.0e6;
    p = q = pdf = 0.0;
    Integer status = 0;
    if (!(x >= 0.0 && x <= 1.0)) {
        status = 1;
    } else if (!(a > 0.0 && a <= kLargestShape && b > 0.0 && b <= kLargestShape)) {
        status = 2;
    } else {
        KorError report = {};
        g01eec(x, a, b, 0.0, &p, &q, &pdf, &report);
        if (report.code == NE_PROBAB_CLOSE_TO_TAIL) status = 4;
    }
    ifail = p01abf_f(ifail, status, "G01EEF", 0, nullptr);
}

} // namespace kor::stats
