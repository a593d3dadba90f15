// g01emf_f: lower tails of the studentized range, with an integer status.
#include "frame/kernel_report.hpp"
#include "stats/kernels.hpp"
#include "stats/studentized_range.hpp"

namespace kor::stats {

double g01emf_f(double q, double v, Integer ir, Integer &ifail)
{
    const Integer status = q >= 0.0 && v >= 1.0 && ir >= 2 ? 0 : 1;
    ifail = p01abf_f(ifail, status, "G01EMF", 0, nullptr);
    return status == 0 && q > 0.0 ? studentized_range(q, v, ir).lower : 0.0;
}

} // namespace kor::stats
