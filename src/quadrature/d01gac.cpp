// d01gac: integral of a function that is given by a table.
//
// P. E. Gill and G. F. Miller, An algorithm for the integration of unequally spaced data, Comput. J. 15 (1972) 80-83. Each interval
// is integrated by the cubic through the four points around it; the next term of the expansion, from fourth divided
// differences, is a correction. The error estimate allows for errors in the data as well, whose corrections cancel.
#include <kor/d01.h>

#include <algorithm>
#include <cmath>

#include "frame/report.hpp"

namespace {

constexpr Integer kLeastPoints = 4;

// Independent errors of the data, with standard deviation s, leave sqrt(n) h s in the integral over n intervals of length h. In
// the correction of one interval they leave 11/720 h sqrt(70) s: a fourth difference has sqrt(70) times the deviation of the data.
// The estimate allows for twice the former.
constexpr double kNoise = 2.0 * 7.8; // 720 / (11 sqrt(70)) = 7.823

// The divided difference of five neighbouring points.
double fourth_difference(const double *x, const double *y)
{
    double d[5];
    std::copy(y, y + 5, d);
    for (int order = 1; order <= 4; ++order)
        for (int i = 4; i >= order; --i) d[i] = (d[i] - d[i - 1]) / (x[i] - x[i - order]);
    return d[4];
}

// The integrals over (from, from + h) of the cubic through four points, and of the product of the distances from these, by the
// Gauss rule of three points.
struct IntervalIntegral {
    double cubic;
    double product;
};
IntervalIntegral integrate_interval(const double *x, const double *y, double from, double h)
{
    double d[4];
    std::copy(y, y + 4, d);
    for (int order = 1; order <= 3; ++order)
        for (int i = 3; i >= order; --i) d[i] = (d[i] - d[i - 1]) / (x[i] - x[i - order]);

    const double node = std::sqrt(0.6);
    constexpr double kWeights[] = {5.0 / 18.0, 8.0 / 18.0, 5.0 / 18.0};
    IntervalIntegral sum{0.0, 0.0};
    for (int k = -1; k <= 1; ++k) {
        const double at = from + 0.5 * h * (1.0 + k * node);
        const double p0 = at - x[0], p1 = at - x[1], p2 = at - x[2], p3 = at - x[3];
        sum.cubic += kWeights[k + 1] * (d[0] + p0 * (d[1] + p1 * (d[2] + p2 * d[3])));
        sum.product += kWeights[k + 1] * (p0 * p1 * p2 * p3);
    }
    return {sum.cubic * h, sum.product * h};
}

} // namespace

void d01gac(Integer n, const double x[], const double y[], double *ans, double *er, KorError *fail)
{
    const kor::Report report{"d01gac", fail};
    if (n < kLeastPoints) return report.error<NE_INT_ARG_LT>("n", "4", "n", n);
    if (x[0] == x[1]) return report.error<NE_QUAD_FIRST_TWO_PTS_EQL>(x[0], x[1]);
    const bool increasing = x[1] > x[0];
    for (Integer i = 1; i < n; ++i) {
        if (increasing && !(x[i] > x[i - 1]))
            return report.error<NE_NOT_STRICTLY_INCREASING>("x", "x", i - 1, x[i - 1], "x", i, x[i]);
        if (!increasing && !(x[i] < x[i - 1]))
            return report.error<NE_NOT_STRICTLY_DECREASING>("x", "x", i - 1, x[i - 1], "x", i, x[i]);
    }

    double sum = 0.0, correction = 0.0, squares = 0.0;
    for (Integer i = 0; i + 1 < n; ++i) {
        const Integer first = std::clamp(i - 1, 0, n - 4); // of the four points
        const auto [cubic, product] = integrate_interval(x + first, y + first, x[i], x[i + 1] - x[i]);
        sum += cubic;
        // The fifth point on either side, where there is one.
        double differences = 0.0, their_squares = 0.0;
        int sides = 0;
        for (const Integer start : {first - 1, first}) {
            if (start < 0 || start + 5 > n) continue;
            const double difference = fourth_difference(x + start, y + start);
            differences += difference;
            their_squares += difference * difference;
            ++sides;
        }
        if (sides == 0) continue;
        correction += differences / sides * product;
        squares += their_squares / sides * (product * product);
    }
    *ans = sum + correction;
    *er = std::fabs(correction) + kNoise * std::sqrt(squares);
    report.success();
}
