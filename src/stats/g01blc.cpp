// g01blc: probabilities of the hypergeometric law.
#include <kor/g01.h>

#include "frame/constants.hpp"
#include "frame/report.hpp"
#include "stats/discrete_laws.hpp"

void g01blc(Integer n, Integer l, Integer m, Integer k, double *plek, double *pgtk, double *peqk, KorError *fail)
{
    constexpr double kLargestVariance = 1.0e6;
    const kor::Report report{"g01blc", fail};
    if (n < 0) return report.error<NE_INT_ARG_LT>("n", "0", "n", n);
    if (l < 0) return report.error<NE_INT_ARG_LT>("l", "0", "l", l);
    if (l > n) return report.error<NE_2_INT_ARG_GT>("l", l, "n", n, "l", "n");
    if (m < 0) return report.error<NE_INT_ARG_LT>("m", "0", "m", m);
    if (m > n) return report.error<NE_2_INT_ARG_GT>("m", m, "n", n, "m", "n");
    if (k < 0) return report.error<NE_INT_ARG_LT>("k", "0", "k", k);
    if (k > l) return report.error<NE_2_INT_ARG_GT>("k", k, "l", l, "k", "l");
    if (k > m) return report.error<NE_2_INT_ARG_GT>("k", k, "m", m, "k", "m");
    if (k < l - (n - m)) return report.error<NE_INT_ARG_CONS>("k", k, "k >= l + m - n");
    if (n * kor::kPrecision > 1.0) return report.error<NE_ARG_TOO_LARGE>("n"); // for a wider Integer
    const double objects = n, draws = l, marked = m;
    // The name in the message is the historical one; what is tested is the variance.
    if (n > 1 && draws / objects * marked * ((objects - draws) / objects) * ((objects - marked) / (objects - 1.0)) >
                     kLargestVariance)
        return report.error<NE_VARIANCE_TOO_LARGE>("(l*m)(n-l)*(n-m)/n*n*(n-1)");
    report.success();
    const kor::stats::DiscreteTails result = kor::stats::hypergeometric(n, l, m, k);
    *plek = result.at_most;
    *pgtk = result.above;
    *peqk = result.equal;
}
