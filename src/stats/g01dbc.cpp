// g01dbc: normal scores.
#include <kor/g01.h>

#include "frame/report.hpp"
#include "stats/normal_scores.hpp"

void g01dbc(Integer n, double pp[], KorError *fail)
{
    const kor::Report report{"g01dbc", fail};
    if (n < 1) return report.error<NE_INT_ARG_LT>("n", "1", "n", n);
    for (Integer i = 0; i < n / 2 + n % 2; ++i) {
        const double score = kor::stats::expected_normal_score(i + 1, n).value;
        pp[i] = score;
        pp[n - 1 - i] = 0.0 - score;
    }
    report.success();
}
