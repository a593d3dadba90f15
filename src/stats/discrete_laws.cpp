// Tails of the discrete laws: beta and gamma tails for the first two, ratios of neighbouring terms for the third; the point
// probabilities are saddle points with a low part.
#include "stats/discrete_laws.hpp"

#include <algorithm>
#include <cmath>

#include "frame/constants.hpp"
#include "special/incomplete_gamma.hpp"
#include "stats/beta_law.hpp"
#include "stats/gamma_law.hpp"

namespace kor::stats {

namespace {

using namespace special;

// power^n with the exponent apart.
Exponential integer_power(DoubleDouble x, double n)
{
    constexpr double kExponentLimit = 2000.0;
    const DoubleDouble exponent = n * extended_log(x);
    return exponent.hi < -kExponentLimit ? Exponential{{0.0}, 0} : extended_exp(exponent);
}

// C(n, k) x^k y^(n-k), x + y = 1; n = 0 and x = 0 or y = 0 as limits.
Exponential binomial_term(double n, double k, DoubleDouble x, DoubleDouble y)
{
    if (k == 0.0) return integer_power(y, n);
    if (k == n) return integer_power(x, n);
    return BinomialTerm{k, n - k}.at(x, y);
}

// The sum 1 + r(1) + r(1) r(2) + ... of falling ratios up to `count` factors.
template <class Ratio>
double sum_of_falling_terms(Integer count, const Ratio &ratio)
{
    double sum = 0.0, term = 1.0;
    for (Integer j = 1; j <= count; ++j) {
        term *= ratio(static_cast<double>(j));
        sum += term;
        if (term <= 0.5 * kPrecision * (1.0 + sum)) break;
    }
    return 1.0 + sum;
}

} // namespace

DiscreteTails binomial(Integer n, double p, Integer k)
{
    const DoubleDouble x{p}, y = two_sum(1.0, -p);
    const double equal = binomial_term(n, k, x, y).rounded();
    if (k == n) return {1.0, 0.0, equal};
    const Tails tails = BetaLaw{k + 1.0, static_cast<double>(n - k)}.tails(x, y);
    return {tails.upper, tails.lower, equal};
}

DiscreteTails poisson(double lambda, Integer k)
{
    const Tails tails = gamma_tails(k + 1.0, lambda);
    const double equal = k == 0 ? tails.upper : extended_poisson_term(k, lambda).rounded();
    return {tails.upper, tails.lower, equal};
}

DiscreteTails hypergeometric(Integer n, Integer l, Integer m, Integer k)
{
    const double objects = n, draws = l, marked = m, count = k;
    const double unmarked = objects - marked, misses = draws - count;
    const Integer smallest = std::max<Integer>(0, l - (n - m)), largest = std::min(l, m);
    if (smallest == largest) return {1.0, 0.0, 1.0};

    // C(m, k) C(n - m, l - k) / C(n, l), each as a binomial probability of success l / n: the powers cancel.
    const DoubleDouble x = two_quotient(draws, objects), y = two_quotient(objects - draws, objects);
    const Exponential hits = binomial_term(marked, count, x, y), others = binomial_term(unmarked, misses, x, y),
                      all = binomial_term(objects, draws, x, y);
    const Exponential point{hits.value * others.value / all.value, hits.exponent + others.exponent - all.exponent};
    const double equal = point.rounded();

    // Sum away from the mode, and take the other side as the difference from 1.
    const double mode = std::floor((draws + 1.0) * ((marked + 1.0) / (objects + 2.0)));
    if (count < mode) {
        const double sum = sum_of_falling_terms(k - smallest, [&](double j) {
            const double i = count - j + 1.0; // P(i - 1) / P(i)
            return i / (marked - i + 1.0) * ((unmarked - draws + i) / (draws - i + 1.0));
        });
        const double at_most = std::fmin(1.0, times_power_of_two((point.value * sum).rounded(), point.exponent));
        return {at_most, 1.0 - at_most, equal};
    }
    if (k == largest) return {1.0, 0.0, equal};
    const auto up = [&](double i) { // P(i + 1) / P(i)
        return (marked - i) / (i + 1.0) * ((draws - i) / (unmarked - draws + i + 1.0));
    };
    const double sum = up(count) * sum_of_falling_terms(largest - k - 1, [&](double j) { return up(count + j); });
    const double above = std::fmin(1.0, times_power_of_two((point.value * sum).rounded(), point.exponent));
    return {1.0 - above, above, equal};
}

} // namespace kor::stats
