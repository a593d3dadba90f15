// g05dgc: a gamma deviate whose shape is a multiple of one half: a chi-squared deviate scaled.
//
// A sum of exponential deviates and, for odd degrees of freedom, half the square of a normal deviate; squares come in
// pairs by Marsaglia's polar method (SIAM Rev. 6 (1964) 260-264), and the spare one waits for the next call.
#include <kor/g05.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "frame/report.hpp"
#include "random/elementary.hpp"
#include "random/state.hpp"

namespace {

using namespace kor::random;

constexpr double kIntegralTolerance = 1e-6; // how far 2g may lie from an integer
constexpr Integer kFactors = 15;            // uniform numbers whose product cannot underflow

double half_normal_square(State &state)
{
    if (state.spare_square >= 0.0) return std::exchange(state.spare_square, kNoSpareSquare);
    double u, v, w;
    do {
        u = uniform(state);
        v = uniform(state);
        w = u * u + v * v;
    } while (w >= 1.0);
    const double q = -lane_log(w) / w;
    state.spare_square = q * v * v;
    return q * u * u;
}

double sum_of_exponentials(State &state, Integer count)
{
    double sum = 0.0;
    while (count > 0) {
        const Integer factors = std::min(count, kFactors);
        double product = 1.0;
        for (Integer i = 0; i < factors; ++i) product *= uniform(state);
        sum -= lane_log(product);
        count -= factors;
    }
    return sum;
}

} // namespace

double g05dgc(double g, double b, KorError *fail)
{
    const kor::Report report{"g05dgc", fail};
    const double degrees = 2.0 * g, nearest = std::trunc(degrees + 0.5);
    constexpr double kMostDegrees = std::numeric_limits<Integer>::max();
    if (!(nearest >= 0.0 && std::fabs(degrees - nearest) <= kIntegralTolerance)) {
        if (degrees < 0.0)
            report.error<NE_REAL_ARG_LT>("2*g", "0.0", "2*g", degrees);
        else
            report.error<NE_REAL_ARG_NON_INTEGRAL>("2*g");
        return 0.0;
    }
    if (nearest > kMostDegrees) {
        report.error<NE_REAL_ARG_GT>("2*g", "2147483647.0", "2*g", degrees);
        return 0.0;
    }
    if (!(b >= 0.0)) {
        report.error<NE_REAL_ARG_LT>("b", "0.0", "b", b);
        return 0.0;
    }

    State &state = g05caz();
    const auto n = static_cast<Integer>(nearest);
    double sum = n % 2 == 1 ? half_normal_square(state) : 0.0;
    sum += sum_of_exponentials(state, n / 2);
    report.success();
    return b * sum;
}
