// g01bkc: probabilities of the Poisson law.
#include <kor/g01.h>

#include <cmath>

#include "frame/report.hpp"
#include "stats/discrete_laws.hpp"

void g01bkc(double rlamda, Integer k, double *plek, double *pgtk, double *peqk, KorError *fail)
{
    constexpr double kLargestMean = 1.0e6;
    const kor::Report report{"g01bkc", fail};
    if (rlamda <= 0.0) return report.error<NE_REAL_ARG_LE>("rlamda", "0.0", "rlamda", rlamda);
    if (rlamda > kLargestMean) return report.error<NE_REAL_ARG_GT>("rlamda", "1.0e6", "rlamda", rlamda);
    if (k < 0) return report.error<NE_INT_ARG_LT>("k", "0", "k", k);
    report.success();
    if (std::isnan(rlamda)) {
        *plek = *pgtk = *peqk = rlamda;
        return;
    }
    const kor::stats::DiscreteTails result = kor::stats::poisson(rlamda, k);
    *plek = result.at_most;
    *pgtk = result.above;
    *peqk = result.equal;
}
