// The table of roots of unity that the stages of a transform share.
#include "transforms/root_table.hpp"

#include "transforms/kernels.hpp"

namespace kor::transforms {

void fill_root_table(Index n, double *trig)
{
    const Kernels &kernel = kernels();
    const Stages stages{n, trig};
    for (int i = 0; i < stages.count; ++i) {
        const Stage &stage = stages.stage[i];
        for (Index k = 1; k < stage.radix; ++k) {
            const Index row = stage.cosines - trig + (k - 1) * stage.after;
            kernel.unit_roots(n, 0, stage.before * k, stage.after, trig + row, trig + n + row);
            // The twiddle factor of the first element is 1; its place serves for the root that the butterfly needs.
            if (stage.radix > kLargestFixedRadix)
                kernel.unit_roots(n, n / stage.radix * k, 0, 1, trig + row, trig + n + row);
        }
    }
    trig[n - 1] = trig[2 * n - 1] = static_cast<double>(n);
}

bool stamped(Index n, const double *trig)
{
    const double stamp = static_cast<double>(n);
    return trig[n - 1] == stamp && trig[2 * n - 1] == stamp;
}

} // namespace kor::transforms
