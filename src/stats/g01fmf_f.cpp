// g01fmf_f: deviates of the studentized range, with an integer status.
#include "frame/kernel_report.hpp"
#include "stats/kernels.hpp"
#include "stats/studentized_range.hpp"

namespace kor::stats {

double g01fmf_f(double p, double v, Integer ir, Integer &ifail)
{
    Integer status = p > 0.0 && p < 1.0 && v >= 1.0 && ir >= 2 ? 0 : 1;
    Quantile q{0.0, true};
    if (status == 0) {
        q = studentized_range_quantile(target_of_lower(p), v, ir);
        if (!q.converged) status = 2;
    }
    ifail = p01abf_f(ifail, status, "G01FMF", 0, nullptr);
    return q.value;
}

} // namespace kor::stats
