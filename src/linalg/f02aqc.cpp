// f02aqc: all eigenvalues and eigenvectors of a real upper Hessenberg matrix, or of one that was reduced to it.
#include <kor/f02.h>

#include "linalg/hessenberg_step.hpp"

void f02aqc(Integer n, Integer low, Integer high, double eps, double h[], Integer tdh, double vecs[], Integer tdvecs,
            double wr[], double wi[], Integer count[], KorError *fail)
{
    using namespace kor::linalg;
    const kor::Report report{"f02aqc", fail};
    if (below_one(report, "n", n) || below_one(report, "low", low)) return;
    if (high < low) return report.error<NE_2_INT_ARG_LT>("high", high, "low", low, "high", "low");
    if (high > n) return report.error<NE_2_INT_ARG_GT>("high", high, "n", n, "high", "n");
    if (shorter(report, "tdh", tdh, "n", n) || shorter(report, "tdvecs", tdvecs, "n", n)) return;
    iterate_and_report(report, n, {low - 1, high - 1}, eps, h, tdh, vecs, tdvecs, wr, wi, count);
}
