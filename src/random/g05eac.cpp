// g05eac: sets up the reference vector of a multivariate normal law.
#include <kor/g05.h>

#include <algorithm>

#include "frame/report.hpp"
#include "frame/views.hpp"
#include "frame/workspace.hpp"
#include "random/semidefinite_factor.hpp"

void g05eac(const double a[], Integer n, const double c[], Integer tdc, double eps, double r[], Integer lr,
            KorError *fail)
{
    const kor::Report report{"g05eac", fail};
    if (n < 1) return report.error<NE_INT_ARG_LT>("n", "1", "n", n);
    if (tdc < n) return report.error<NE_2_INT_ARG_LT>("tdc", tdc, "n", n, "tdc", "n");
    if (!(eps >= 0.0)) return report.error<NE_REAL_ARG_LT>("eps", "0.0", "eps", eps);
    if (eps > 0.1 / n) return report.error<NE_REAL_ARG_GT>("eps", "0.1/n", "eps", eps);
    const std::int64_t size = n;
    if (lr < (size + 1) * (size + 2) / 2 + 1) return report.error<NE_INT_ARG_LT>("lr", "(n+1)*(n+2)/2+1", "lr", lr);

    kor::Workspace<double> factor{kor::Count{size * (size + 1) / 2}};
    if (!factor) return report.error<NE_ALLOC_FAIL>();
    using kor::random::Factored;
    switch (kor::random::factor_semidefinite(n, {c, tdc}, eps, factor.data())) {
    case Factored::not_semidefinite:
        return report.error<NE_NOT_POS_SEM_DEF>("c");
    case Factored::no_memory:
        return report.error<NE_ALLOC_FAIL>();
    case Factored::yes:
        break;
    }

    r[0] = n + 0.5; // truncation gives n; the half tells this vector from that of a discrete law
    std::copy(a, a + n, r + 1);
    std::copy(factor.begin(), factor.end(), r + 1 + n);
    report.success();
}
