// g01ecf_f: chi-squared tails with an integer status.
#include "frame/kernel_report.hpp"
#include "stats/gamma_law.hpp"
#include "stats/kernels.hpp"

namespace kor::stats {

double g01ecf_f(char tail, double x, double df, Integer &ifail)
{
    const bool upper = tail == 'U' || tail == 'u';
    Integer status = 0;
    if (!upper && tail != 'L' && tail != 'l')
        status = 1;
    else if (!(x >= 0.0))
        status = 2;
    else if (!(df > 0.0))
        status = 3;
    ifail = p01abf_f(ifail, status, "G01ECF", 0, nullptr);
    if (status != 0) return 0.0;
    const Tails tails = gamma_tails(0.5 * df, 0.5 * x);
    return upper ? tails.upper : tails.lower;
}

} // namespace kor::stats
