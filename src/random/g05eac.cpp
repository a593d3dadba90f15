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

    const kor::Count elements = kor::Count{size * (size + 1) / 2};
    kor::Workspace<double> factor{elements}, diagonal{kor::Count{n}};
    if (!factor || !diagonal) return report.error<NE_ALLOC_FAIL>();
    const kor::RowMajor<const double> matrix{c, tdc};
    double *next = factor.data();
    for (Integer j = 0; j < n; ++j) {
        diagonal[j] = matrix(j, j);
        for (Integer i = j; i < n; ++i) *next++ = matrix(i, j);
    }
    if (!kor::random::factor_semidefinite(n, eps, factor.data(), diagonal.data()))
        return report.error<NE_NOT_POS_SEM_DEF>("c");

    r[0] = n + 0.5; // truncation gives n; the half tells this vector from that of a discrete law
    std::copy(a, a + n, r + 1);
    std::copy(factor.begin(), factor.end(), r + 1 + n);
    report.success();
}
