// The table of roots of unity that the stages of a transform share.
#include "transforms/root_table.hpp"

#include "transforms/kernels.hpp"

namespace kor::transforms {

void fill_root_table(Index n, double *trig)
{
    kernels().root_table(Stages{n, trig}, n, trig);
    trig[n - 1] = trig[2 * n - 1] = static_cast<double>(n);
}

bool stamped(Index n, const double *trig)
{
    const double stamp = static_cast<double>(n);
    return trig[n - 1] == stamp && trig[2 * n - 1] == stamp;
}

} // namespace kor::transforms
