// g05fdc: normal deviates in bulk. G. E. P. Box and M. E. Muller, Ann. Math. Statist. 29 (1958) 610-611.
//
// The bits of a deviate depend on its two uniform numbers alone: a run in one call and the same run cut into several
// calls give the same deviates.
#include <kor/g05.h>

#include <algorithm>

#include "frame/dispatch.hpp"
#include "random/lanes.hpp"
#include "random/state.hpp"

namespace {

using namespace kor::random;

constexpr std::ptrdiff_t kPairs = 64; // pairs a round

KOR_CLONES void box_muller(std::ptrdiff_t pairs, const double *u, double *z) { box_muller_loop(pairs, u, z); }

KOR_CLONES void move_to(double a, double b, std::ptrdiff_t n, const double *__restrict z, double *__restrict x)
{
    for (std::ptrdiff_t i = 0; i < n; ++i) x[i] = a + b * z[i];
}

} // namespace

void g05fdc(double a, double b, Integer n, double x[])
{
    if (n < 1) return;
    State &state = g05caz();
    std::ptrdiff_t left = n;
    if (state.spare_normal != kNoSpareNormal) {
        *x++ = a + b * state.spare_normal;
        --left;
        state.spare_normal = kNoSpareNormal;
    }
    while (left > 0) {
        const std::ptrdiff_t pairs = std::min(kPairs, (left + 1) / 2), used = std::min(2 * pairs, left);
        double u[2 * kPairs], z[2 * kPairs];
        uniforms(state, 2 * pairs, u);
        box_muller(pairs, u, z);
        move_to(a, b, used, z, x);
        if (used < 2 * pairs) state.spare_normal = z[used];
        x += used;
        left -= used;
    }
}
