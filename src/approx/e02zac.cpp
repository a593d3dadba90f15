// e02zac: points in the plane linked into chains, one for each panel of a pair of knot sets.
#include <kor/e02.h>

#include <algorithm>

#include "approx/arguments.hpp"
#include "approx/panels.hpp"

namespace {

bool knots_in_order(const kor::Report &report, const char *name, Integer n, const double *t)
{
    using namespace kor::approx;
    for (Integer j = kOrder; j <= n - kOrder; ++j) {
        if (t[j - 1] <= t[j]) continue;
        report.error<NE_NOT_INCREASING>(name, name, j - 1, t[j - 1], name, j, t[j]);
        return false;
    }
    if (t[kDegree] < t[n - kOrder]) return true;
    report.error<NE_KNOTS_COINCIDE>(ElementName{name, kDegree}.c_str(), ElementName{name, n - kOrder}.c_str(),
                                    t[kDegree]);
    return false;
}

} // namespace

void e02zac(Integer px, Integer py, const double lamda[], const double mu[], Integer m, const double x[],
            const double y[], Integer point[], Integer npoint, KorError *fail)
{
    using namespace kor::approx;
    const kor::Report report{"e02zac", fail};
    if (px < kEndKnots) return report.error<NE_INT_ARG_LT>("px", "8", "px", px);
    if (py < kEndKnots) return report.error<NE_INT_ARG_LT>("py", "8", "py", py);
    if (!knots_in_order(report, "lamda", px, lamda) || !knots_in_order(report, "mu", py, mu)) return;
    if (m < 1) return report.error<NE_INT_ARG_LT>("m", "1", "m", m);
    if (!all_finite(report, "x", m, x) || !all_finite(report, "y", m, y)) return;
    const Panels panels{{lamda, px}, {mu, py}};
    if (npoint < m + panels.count()) return report.error<NE_INT_ARG_LT>("npoint", "m+(px-7)*(py-7)", "npoint", npoint);

    Integer *const head = point + m;
    std::fill(head, point + npoint, 0);
    // Backwards, so that each chain has its points in the order of their numbers.
    for (Integer r = m - 1; r >= 0; --r) {
        Integer &first = head[panels.panel_of(x[r], y[r])];
        point[r] = first;
        first = r + 1;
    }
    report.success();
}
