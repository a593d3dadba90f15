// Wynn's epsilon algorithm.
#include "quadrature/extrapolation.hpp"

#include <algorithm>
#include <cmath>

#include "frame/constants.hpp"

namespace kor::quadrature {

namespace {

constexpr double kHuge = 1.0 / kSafeSmall;
constexpr double kIrregular = 1e-4; // where a new element would be dominated by cancellation

// Neighbouring doubles differ by up to twice the precision: with less, only equal numbers would count as equal.
double tolerance(double x, double y) { return std::max(std::fabs(x), std::fabs(y)) * 2.0 * kPrecision; }

} // namespace

EpsilonTable::Estimate EpsilonTable::extrapolate()
{
    ++calls_;
    const auto at_least_rounding = [](Estimate e) {
        e.error = std::max(e.error, 0.5 * kPrecision * std::fabs(e.result));
        return e;
    };
    Estimate best{entries_[length_ - 1], kHuge};
    if (length_ < 3) return at_least_rounding(best);

    // Element k of the text is entries_[k - 1]; the newest term is kept behind the end while its place is worked on.
    double *const e = entries_;
    int n = length_;
    const int before = n;
    e[n + 1] = e[n - 1];
    e[n - 1] = kHuge;
    int place = n; // from 1
    for (int i = 1; i <= (before - 1) / 2; ++i) {
        const double e0 = e[place - 3], e1 = e[place - 2];
        double res = e[place + 1];
        const double e2 = res;
        const double tol2 = tolerance(e2, e1), tol3 = tolerance(e1, e0);
        const double delta2 = e2 - e1, delta3 = e1 - e0;
        const double err2 = std::fabs(delta2), err3 = std::fabs(delta3);
        if (err2 <= tol2 && err3 <= tol3) {
            // e0, e1 and e2 are equal within rounding: converged.
            length_ = n;
            return at_least_rounding({res, err2 + err3});
        }
        const double e3 = e[place - 1];
        e[place - 1] = e1;
        const double delta1 = e1 - e3;
        const double err1 = std::fabs(delta1);
        if (err1 <= tolerance(e1, e3) || err2 <= tol2 || err3 <= tol3) {
            n = 2 * i - 1;
            break;
        }
        const double ss = 1.0 / delta1 + 1.0 / delta2 - 1.0 / delta3;
        if (std::fabs(ss * e1) <= kIrregular) {
            n = 2 * i - 1;
            break;
        }
        res = e1 + 1.0 / ss;
        e[place - 1] = res;
        place -= 2;
        const double error = err2 + std::fabs(res - e2) + err3;
        if (error <= best.error) best = {res, error};
    }

    if (n == kLimit) n = 2 * (kLimit / 2) - 1;
    int from = before % 2 == 0 ? 2 : 1;
    for (int i = 0; i <= (before - 1) / 2; ++i, from += 2) e[from - 1] = e[from + 1];
    if (n != before) std::copy(e + before - n, e + before, e);
    length_ = n;

    if (calls_ < 4) {
        last_results_[calls_ - 1] = best.result;
        best.error = kHuge;
    } else {
        best.error = std::fabs(best.result - last_results_[2]) + std::fabs(best.result - last_results_[1]) +
                     std::fabs(best.result - last_results_[0]);
        last_results_[0] = last_results_[1];
        last_results_[1] = last_results_[2];
        last_results_[2] = best.result;
    }
    return at_least_rounding(best);
}

} // namespace kor::quadrature
