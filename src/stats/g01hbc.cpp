// g01hbc: probabilities of boxes under the multivariate normal law.
//
// One variable after the other is integrated out: with the Cholesky factor of the covariances each one, given those before it,
// is normal between limits that they shift. The last two are left to the bivariate law. A. Genz, J. Comput. Graph. Statist. 1
// (1992) 141-149; variables with small probabilities come first: G. J. Gibson, C. A. Glasbey and D. A. Elston (1994).
#include <kor/d01.h>
#include <kor/g01.h>
#include <kor/x04.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>

#include "frame/report.hpp"
#include "linalg/cholesky.hpp"
#include "stats/bivariate_normal.hpp"
#include "stats/normal_law.hpp"
#include "stats/tails.hpp"

namespace {

using namespace kor::stats;

constexpr Integer kMost = 10;

struct Limits {
    double low, high;
};

// P(low < Z < high) as a difference of the tails that are small.
double interval(Limits z)
{
    if (z.low > 0.0) return normal_upper(z.low) - normal_upper(z.high);
    return z.high < 0.0 ? normal_lower(z.high) - normal_lower(z.low) : 1.0 - normal_lower(z.low) - normal_upper(z.high);
}

// The point below which lies the part `share` of that interval.
double point_of_interval(Limits z, double share)
{
    const bool mirrored = z.low > 0.0;
    const double first = mirrored ? normal_upper(z.low) : normal_lower(z.low);
    const double last = mirrored ? normal_upper(z.high) : normal_lower(z.high);
    const double p = first + share * (last - first);
    if (p <= 0.0) return mirrored ? z.low : z.high; // the tail underflows: no matter where
    if (p >= 1.0) return z.high;
    return mirrored ? -normal_quantile(p) : normal_quantile(p);
}

// P(x in box), X and Y of correlation rho.
double bivariate_box(Limits x, Limits y, double rho)
{
    const auto lower = [&](double a, double b) { return bivariate_normal_lower(a, b, rho); };
    // A side that is open at the top becomes one that is open at the bottom.
    if (x.high == HUGE_VAL && x.low > -HUGE_VAL) return bivariate_box({-HUGE_VAL, -x.low}, y, -rho);
    if (y.high == HUGE_VAL && y.low > -HUGE_VAL) return bivariate_box(x, {-HUGE_VAL, -y.low}, -rho);
    return lower(x.high, y.high) - lower(x.low, y.high) - lower(x.high, y.low) + lower(x.low, y.low);
}

// The box and the law in the order of integration: X = factor Z, Z independent standard normal variables.
struct Problem {
    Integer n;
    std::array<Limits, kMost> box; // about the mean
    std::array<std::array<double, kMost>, kMost> factor;

    Limits given(Integer i, const double z[]) const
    {
        double shift = 0.0;
        for (Integer j = 0; j < i; ++j) shift += factor[i][j] * z[j];
        return {(box[i].low - shift) / factor[i][i], (box[i].high - shift) / factor[i][i]};
    }
    // The probability of the last two limits, given those before.
    double last_two(const double z[]) const
    {
        const Integer i = n - 2, k = n - 1;
        const double deviation = std::hypot(factor[k][i], factor[k][k]);
        double shift = 0.0;
        for (Integer j = 0; j < i; ++j) shift += factor[k][j] * z[j];
        const Limits last{(box[k].low - shift) / deviation, (box[k].high - shift) / deviation};
        return bivariate_box(given(i, z), last, std::clamp(factor[k][i] / deviation, -1.0, 1.0));
    }
};

double three(double z, void *problem)
{
    return std::exp(-0.5 * z * z) / 2.5066282746310002 * static_cast<const Problem *>(problem)->last_two(&z);
}

// On the unit cube of n - 2 dimensions.
double many(Integer dimensions, const double share[], void *comm)
{
    const Problem &problem = *static_cast<const Problem *>(comm);
    double z[kMost], probability = 1.0;
    for (Integer i = 0; i < dimensions; ++i) {
        const Limits limits = problem.given(i, z);
        probability *= interval(limits);
        if (!(probability > 0.0)) return 0.0;
        z[i] = point_of_interval(limits, share[i]);
    }
    return probability * problem.last_two(z);
}

} // namespace

double g01hbc(Integer tail, Integer n, const double a[], const double b[], const double xmu[], const double sig[],
              Integer tdsig, double tol, Integer maxpts, KorError *fail)
{
    const kor::Report report{"g01hbc", fail};
    if (!one_sided(tail) && tail != Kor_Central) return report.error<NE_BAD_PARAM>("tail"), 0.0;
    if (n < 1 || n > kMost) return report.error<NE_INT_ARG_CONS>("n", n, "1 <= n <= 10"), 0.0;
    if (tdsig < n) return report.error<NE_2_INT_ARG_LT>("tdsig", tdsig, "n", n, "tdsig", "n"), 0.0;
    if (n > 1 && !(tol > 0.0)) return report.error<NE_REAL_ARG_LE>("tol", "0.0", "tol", tol), 0.0;
    if (n >= 3 && maxpts < 4 * n)
        return report.error<NE_2_INT_ARG_CONS>("maxpts", maxpts, "n", n, "maxpts >= 4*n", "n >= 3"), 0.0;
    if (tail == Kor_Central)
        for (Integer i = 0; i < n; ++i)
            if (!(a[i] < b[i]))
                return report.error<NE_2_REAL_ARRAYS_CONS>("a", i, a[i], "b", i, b[i],
                                                           "if tail = Kor_Central, a[i] < b[i], for i=0,1...,n-1"),
                       0.0;

    // Limits of small probability come first.
    std::array<Limits, kMost> box;
    std::array<double, kMost> probability;
    for (Integer i = 0; i < n; ++i) {
        const double deviation = std::sqrt(sig[i * tdsig + i]);
        if (!(deviation > 0.0)) return report.error<NE_NOT_POS_DEF>(), 0.0;
        box[i] = {tail == Kor_LowerTail ? -HUGE_VAL : a[i] - xmu[i], tail == Kor_UpperTail ? HUGE_VAL : b[i] - xmu[i]};
        probability[i] = interval({box[i].low / deviation, box[i].high / deviation});
        if (std::isnan(probability[i])) return report.success(), NAN;
    }
    std::array<Integer, kMost> order;
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.begin() + n,
                     [&](Integer i, Integer j) { return probability[i] < probability[j]; });
    Problem problem{n, {}, {}};
    for (Integer i = 0; i < n; ++i) {
        problem.box[i] = box[order[i]];
        for (Integer j = 0; j <= i; ++j) {
            const Integer first = std::max(order[i], order[j]), second = std::min(order[i], order[j]);
            problem.factor[i][j] = sig[first * tdsig + second]; // the lower triangle
        }
    }
    if (kor::linalg::cholesky_factor(LowerTriangle, n, problem.factor[0].data(), kMost) != 0)
        return report.error<NE_NOT_POS_DEF>(), 0.0;

    if (n == 1) return report.success(), interval(problem.given(0, nullptr));
    if (n == 2) return report.success(), std::clamp(problem.last_two(nullptr), 0.0, 1.0);

    KorError inner = {};
    double result = 0.0, error = 0.0;
    if (n == 3) {
        // Beyond these limits the density underflows.
        constexpr double kFarthest = 38.5;
        constexpr Integer kMostIntervals = 500, kPointsOfRule = 21;
        const Limits z = problem.given(0, nullptr);
        const double low = std::fmax(z.low, -kFarthest), high = std::fmin(z.high, kFarthest);
        if (low >= high) return report.success(), 0.0;
        KorQuadRecord record = {};
        d01sjc(three, low, high, 0.0, tol, std::clamp<Integer>(maxpts / kPointsOfRule, 1, kMostIntervals), &result,
               &error, &record, &problem, &inner);
        for (double *array : {record.left_ends, record.right_ends, record.subint_results, record.subint_errors}) {
            void *block = array;
            if (block != nullptr) x04bdc(&block);
        }
        if (result > 0.0) error /= result;
    } else {
        const Integer dimensions = n - 2;
        const Integer least = (1 << dimensions) + 2 * dimensions * (dimensions + 1) + 1; // one application of the rule
        const std::array<double, kMost> zeros{}, ones{1.0, 1.0, 1.0, 1.0, 1.0, 1.0, 1.0, 1.0, 1.0, 1.0};
        d01wcc(dimensions, many, zeros.data(), ones.data(), 0, std::max(maxpts, least), tol, &error, &result, &problem,
               &inner);
    }
    if (inner.code == NE_ALLOC_FAIL) return report.error<NE_ALLOC_FAIL>(), 0.0;
    result = std::clamp(result, 0.0, 1.0);
    if (inner.code != NE_NOERROR && error > tol) return report.error<NE_RES_NOT_ACC>("maxpts"), result;
    report.success();
    return result;
}
