// g01bjc: probabilities of the binomial law.
#include <kor/g01.h>

#include <cmath>

#include "frame/constants.hpp"
#include "frame/report.hpp"
#include "stats/discrete_laws.hpp"

void g01bjc(Integer n, double p, Integer k, double *plek, double *pgtk, double *peqk, KorError *fail)
{
    constexpr double kLargestVariance = 1.0e6;
    const kor::Report report{"g01bjc", fail};
    if (n < 0) return report.error<NE_INT_ARG_LT>("n", "0", "n", n);
    if (p <= 0.0) return report.error<NE_REAL_ARG_LE>("p", "0.0", "p", p);
    if (p >= 1.0) return report.error<NE_REAL_ARG_GE>("p", "1.0", "p", p);
    if (k < 0) return report.error<NE_INT_ARG_LT>("k", "0", "k", k);
    if (k > n) return report.error<NE_2_INT_ARG_GT>("k", k, "n", n, "k", "n");
    if (n * kor::kPrecision > 1.0) return report.error<NE_ARG_TOO_LARGE>("n"); // for a wider Integer
    if (n * p * (1.0 - p) > kLargestVariance) return report.error<NE_VARIANCE_TOO_LARGE>("n*p*(1.0-p)");
    report.success();
    if (std::isnan(p)) {
        *plek = *pgtk = *peqk = p;
        return;
    }
    const kor::stats::DiscreteTails result = kor::stats::binomial(n, p, k);
    *plek = result.at_most;
    *pgtk = result.above;
    *peqk = result.equal;
}
