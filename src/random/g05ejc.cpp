// g05ejc: a random sample without replacement, in the order of the population.
// D. E. Knuth, The Art of Computer Programming 2, 3.4.2, algorithm S.
#include <kor/g05.h>

#include "frame/report.hpp"
#include "random/state.hpp"

void g05ejc(const Integer ia[], Integer n, Integer iz[], Integer m, KorError *fail)
{
    using namespace kor::random;
    const kor::Report report{"g05ejc", fail};
    if (n < 1) return report.error<NE_INT_ARG_LT>("n", "1", "n", n);
    if (m < 1) return report.error<NE_INT_ARG_LT>("m", "1", "m", m);
    if (m > n) return report.error<NE_2_INT_ARG_GT>("m", m, "n", n, "m", "n");
    State &state = g05caz();
    Integer chosen = 0;
    for (Integer i = 0; chosen < m; ++i)
        if ((n - i) * uniform(state) < m - chosen) iz[chosen++] = ia[i];
    report.success();
}
