// Non-central laws as sums over j of Poisson weights w_j times central tails P_j. All terms are positive, and P_j = P_(j+1)
// + g_j: a sum that runs downwards in j only adds, and so keeps small relative errors however small the result. The top is
// where the terms above it, bounded by a product of ratios, no longer count.
#include "stats/noncentral_laws.hpp"

#include <algorithm>
#include <cmath>

#include "frame/constants.hpp"
#include "special/incomplete_gamma.hpp"
#include "stats/beta_law.hpp"
#include "stats/gamma_law.hpp"

namespace kor::stats {

namespace {

using namespace special;

// At j: the central tail P_j and the difference g_j = P_j - P_(j+1).
struct CentralTerm {
    double tail, difference;
};

// central(j): a CentralTerm, evaluated once at the top; tail_ratio(j): a bound of P_(j+1) / P_j; difference_ratio(j) =
// g_(j-1) / g_j. `mean` is that of the weights, a + j the shape of the central law.
template <class Central, class TailRatio, class DifferenceRatio>
MixtureSum sum_mixture(double mean, double a, MixtureLimits limits, const Central &central, const TailRatio &tail_ratio,
                       const DifferenceRatio &difference_ratio)
{
    // The largest term is where the ratio of neighbours passes 1: by bisection, for the ratio falls with j.
    const auto ratio = [&](double j) { return mean / (j + 1.0) * tail_ratio(j); };
    double below = -1.0, peak = std::ceil(mean);
    while (peak - below > 1.0) {
        const double middle = std::floor(0.5 * (below + peak));
        if (middle <= below || middle >= peak) break; // no integer lies between that a double could tell
        (ratio(middle) > 1.0 ? below : peak) = middle;
    }
    double top = peak, bound = 1.0;
    int terms = 0;
    const double cut = 0.1 * limits.tol;
    for (double r = ratio(top); bound * r > cut * (1.0 - r) && terms <= limits.max_terms; r = ratio(++top), ++terms)
        bound *= r;

    CentralTerm at = central(top);
    // The shape a + top was rounded, and its tails are steep in it: put the remainder back to first order.
    const double remainder = two_sum(top, a).lo;
    if (remainder != 0.0 && at.tail > 0.0 && at.difference < at.tail) {
        at.tail += at.tail * remainder * std::log1p(-at.difference / at.tail);
        at.difference -= at.difference * remainder * std::log(difference_ratio(top + 1.0));
    }
    double weight = top == 0.0 ? std::exp(-mean) : extended_poisson_term(top, mean).rounded();
    double sum = weight * at.tail, last_term = sum;
    for (double j = top; j > 0.0; --j) {
        if (++terms > limits.max_terms) return {sum, false};
        at.difference *= difference_ratio(j);
        at.tail = std::fmin(1.0, at.tail + at.difference);
        weight *= j / mean;
        const double term = weight * at.tail;
        sum += term;
        // The terms are log-concave in j: what is left falls faster than by the ratio of the last two.
        const double down = term / last_term;
        if (j <= peak && down < 1.0 && term * down <= cut * sum * (1.0 - down)) break;
        last_term = term;
    }
    return {std::fmin(1.0, sum), true};
}

} // namespace

double effective_tolerance(double tol)
{
    constexpr double kLeast = 10.0 * kPrecision;
    return tol >= kLeast && tol < 1.0 ? tol : kLeast;
}

MixtureSum noncentral_chi_squared(double x, double df, double lambda, MixtureLimits limits)
{
    const double a = 0.5 * df, y = 0.5 * x;
    return sum_mixture(
        0.5 * lambda, a, limits,
        [&](double j) {
            // Shape 0 is a unit mass at 0.
            if (a + j == 0.0) return CentralTerm{1.0, std::exp(-y)};
            return CentralTerm{gamma_tails(a + j, y).lower, extended_poisson_term(a + j, y).rounded()};
        },
        [&](double j) { return std::fmin(1.0, y / (a + j + 1.0)); }, [&](double j) { return (a + j) / y; });
}

MixtureSum noncentral_beta(DoubleDouble x, DoubleDouble y, double a, double b, double lambda, MixtureLimits limits)
{
    return sum_mixture(
        0.5 * lambda, a, limits,
        [&](double j) {
            const PointOfLaw point = BetaLaw{a + j, b}.at(x, y);
            return CentralTerm{point.tails.lower, point.slope / (a + j)};
        },
        [&](double j) { return std::fmin(1.0, x.hi * std::fmax(1.0, (a + b + j) / (a + j + 1.0))); },
        [&](double j) { return (a + j) / (x.hi * (a + b + (j - 1.0))); });
}

} // namespace kor::stats
