// g01dac: normal scores to a given accuracy.
#include <kor/g01.h>

#include <algorithm>

#include "frame/report.hpp"
#include "stats/normal_scores.hpp"

void g01dac(Integer n, double pp[], double etol, double *errest, KorError *fail)
{
    const kor::Report report{"g01dac", fail};
    if (n < 1) return report.error<NE_INT_ARG_LT>("n", "1", "n", n);
    if (!(etol > 0.0)) return report.error<NE_REAL_ARG_LE>("etol", "0.0", "etol", etol);
    double largest = 0.0;
    for (Integer i = 0; i < n / 2 + n % 2; ++i) {
        const kor::stats::NormalScore score = kor::stats::expected_normal_score(i + 1, n);
        pp[i] = score.value;
        pp[n - 1 - i] = 0.0 - score.value;
        largest = std::max(largest, score.error);
    }
    *errest = largest;
    if (largest > etol) return report.error<NE_NORMAL_SCORE_EST>();
    report.success();
}
