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
    if (has_butterfly(n)) {
        Stages whole{1, trig};
        whole.stage[whole.count++] = {n, 1, 1, trig, trig, nullptr};
        return whole;
    }
    Stages stages{n, trig};
    int count = stages.count;
    for (Index length = 1; count > 0 && length <= kLongestButterfly; --count) {
        if (has_butterfly(length)) {
            Stage &last = stages.stage[count];
            last.radix = length;
            last.after = 1;
            stages.count = count + 1;
        }
        length *= stages.stage[count - 1].radix;
    }
    return stages;
}

} // namespace kor::transforms
