// Integrals over infinite ranges: the range is carried to (0, 1) by x = bound +- (1 - t)/t.
#include "quadrature/gauss_kronrod.hpp"
#include "quadrature/infinite_rule.hpp"
#include "quadrature/request.hpp"

namespace kor::quadrature {

void integrate_infinite(const Report &report, Integrand f, Integer boundinf, double bound, const Request &request)
{
    if (request.max_num_subint < 1)
        return report.error<NE_INT_ARG_LT>("max_num_subint", "1", "max_num_subint", request.max_num_subint);
    if (boundinf != Kor_UpperSemiInfinite && boundinf != Kor_LowerSemiInfinite && boundinf != Kor_Infinite)
        return report.error<NE_BAD_PARAM>("boundinf");
    ProgressRecord work{request.max_num_subint};
    if (!work) return report.error<NE_ALLOC_FAIL>();
    finish(report, integrate_transformed(f, boundinf, bound, work, tolerance_of(request)), work, request);
}

} // namespace kor::quadrature
