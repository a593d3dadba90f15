// g05drc: a Poisson deviate, for means that change from call to call.
//
// Small means: uniform numbers are multiplied until exp(-mean) is passed. Other means: ratio of uniforms under a
// table-mountain hat with quick acceptance and rejection, J. H. Ahrens and U. Dieter, Computing 25 (1980) 193-208.
#include <kor/g05.h>

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <limits>

#include "random/elementary.hpp"
#include "random/poisson_law.hpp"
#include "random/state.hpp"

namespace {

using namespace kor::random;
using lane::choose;

constexpr double kLargestMean = 1073741823.5;
enum Status : Integer { kDone = 0, kMeanNotPositive = 1, kMeanTooLarge = 2 };

Integer by_multiplication(State &state)
{
    Integer factors = 0;
    double product = 1.0;
    do {
        product *= uniform(state);
        ++factors;
    } while (product > state.poisson.zero_term);
    return factors - 1;
}

Integer by_ratio_of_uniforms(State &state)
{
    constexpr double kBeyond = 0x1p62, kLargest = std::numeric_limits<Integer>::max();
    PoissonConstants &c = state.poisson;
    for (;;) {
        const double u = 2.0 * uniform(state) - 1.0, v = 2.0 * uniform(state) - 1.0;
        if (u == 0.0 && v == 0.0) continue;
        const bool steep = std::fabs(v) < std::fabs(u);
        const double t = choose(steep, v, u) / choose(steep, u * u, v * v);
        const double y = c.centre + c.hat_scale * t;
        if (y < 0.0) continue;
        // Far out under the hat y is beyond every integer.
        const auto k = static_cast<double>(static_cast<std::int64_t>(y < kBeyond ? y : kBeyond));

        const double q = t + c.shift;
        const double lower = c.lower_height * (1.0 + choose(q <= 0.0, c.lower_left, -c.lower_right) * q);
        const double far = std::fabs(t * t * t), fall = far > 1.0 ? far : 1.0;
        const double under_hat = uniform(state) * c.hat_height;
        if (under_hat > lower * fall) {
            const double w = under_hat / fall, r = c.upper_curvature * q * q;
            if (c.upper_height - r + 0.5 * r * r < w) continue;
            if (!(lane_log(w) <= log_relative_mass(c, k))) continue;
        }
        return static_cast<Integer>(k < kLargest ? k : kLargest);
    }
}

} // namespace

Integer g05drc(double alamda, Integer *status)
{
    if (!(alamda > 0.0)) {
        std::printf(" ** On entry, ALAMDA.le.ZERO : ALAMDA = %13.5e\n", alamda);
        *status = kMeanNotPositive;
        return 0;
    }
    if (alamda > kLargestMean) {
        std::printf(" ** On entry, 2*ALAMDA.gt.MAXINT : ALAMDA = %13.5e\n", alamda);
        *status = kMeanTooLarge;
        return 0;
    }
    *status = kDone;
    State &state = g05caz();
    if (alamda != state.poisson.mean) state.poisson = poisson_constants(alamda);
    return alamda < kSmallMean ? by_multiplication(state) : by_ratio_of_uniforms(state);
}
