// The stages of a transform, each with its part of the table of roots.
#include "transforms/stages.hpp"

namespace kor::transforms {

Stages::Stages(Index n, const double *trig) : count{0}
{
    if (n == 1) return;
    const Factors factors = c06fpz(n);
    count = factors.count;
    Index before = 1, after = n;
    for (int i = 0; i < count; ++i) {
        const Index radix = factors.factor[i];
        const Index offset = n - after; // n (before - 1) / before
        after /= radix;
        stage[i] = {radix, before, after, trig + offset, trig + n + offset, nullptr};
        before *= radix;
    }
}

Stages Stages::fewest(Index n, const double *trig)
{
    if (!has_butterfly(n)) return {n, trig};
    Stages whole{1, trig};
    whole.stage[whole.count++] = {n, 1, 1, trig, trig, nullptr};
    return whole;
}

} // namespace kor::transforms
