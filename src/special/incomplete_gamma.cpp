// The incomplete gamma functions.
//
// Four methods share the quarter plane: Temme's uniform expansion where a is large and x not far from a; below that the
// power series of P for x < a and Legendre's continued fraction of Q for x >= a; and for a, x < 1 the difference of Q from 1
// without cancellation. The factor x^a exp(-x) / Gamma(a + 1), whose error would be that of everything, is formed with a low
// part: W. Gautschi, ACM Trans. Math. Softw. 5 (1979) 466-481; N. M. Temme, SIAM J. Math. Anal. 10 (1979) 757-766.
#include "special/incomplete_gamma.hpp"

#include <cmath>
#include <utility>

#include "frame/constants.hpp"
#include "frame/dispatch.hpp"
#include "special/erf.hpp"
#include "special/gamma.hpp"
#include "special/incomplete_gamma_tables.hpp"

namespace kor::special {

namespace {

constexpr int kMaxSteps = 600;
constexpr double kUniformFrom = 16.0;   // a: from here on the uniform expansion, while |eta| <= 1
constexpr double kExponentLimit = 2000; // beyond it exp(-t) is far out of range

// A tail is computed however small; its complement is one minus it.
IncompleteGamma with_p(double p, double term = 0.0) { return {p, 1.0 - p, term}; }
IncompleteGamma with_q(double q, double term = 0.0) { return {1.0 - q, q, term}; }

// Lane j: c_j(eta) + c_(j+4)(eta) u^4 + ..., from a block of four orders on.
template <std::size_t Block = 0>
KOR_INLINE Lanes orders(double fourth_power, double eta)
{
    const Lanes here = polynomial(std::get<Block>(tables::kUniformExpansion), eta);
    if constexpr (Block + 1 == std::tuple_size_v<decltype(tables::kUniformExpansion)>)
        return here;
    else
        return here + fourth_power * orders<Block + 1>(fourth_power, eta);
}

// c_0(eta) + c_1(eta) u + ..., u = 1/a.
KOR_INLINE double expansion(double u, double eta)
{
    const double square = u * u;
    const Lanes c = orders(square * square, eta);
    return (c[0] + u * c[1]) + square * (c[2] + u * c[3]);
}

// With z = sqrt(a) |eta| / sqrt 2, the smaller of P and Q is exp(-z^2) (erfcx(z) / 2 + side S / sqrt(2 pi a)).
KOR_CLONES IncompleteGamma uniform(double a, bool upper, DoubleDouble deviance)
{
    const DoubleDouble z = deviance.hi > 0.0 ? sqrt(deviance) : DoubleDouble{0.0};
    const double u = 1.0 / a, root_u = std::sqrt(u), per_root = tables::kInverseRootTwoPi * root_u;
    const double side = upper ? 1.0 : -1.0;
    const double correction = side * per_root * expansion(u, side * tables::kRootTwo * z.hi * root_u);

    const OpenExponential e = open_exp(-deviance);
    const DoubleDouble half = extended_scaled_erfc(z).scaled(0.5), sum = fast_two_sum(half.hi, correction);
    const double tail = times_power_of_two(times_split(e.value, {sum.hi, sum.lo + half.lo}).rounded(), e.exponent);
    const double term =
        times_power_of_two(e.value.rounded() * per_root * polynomial(tables::kInverseGammaStar, u), e.exponent);
    return upper ? with_q(tail, term) : with_p(tail, term);
}

// P = factor (1 + x/(a+1) + x^2/((a+1)(a+2)) + ...).
IncompleteGamma by_series(double a, double x, double tol)
{
    double sum = 0.0, term = 1.0;
    int n = 1;
    for (; n <= kMaxSteps; ++n) {
        term *= x / (a + n);
        sum += term;
        if (term <= tol * (1.0 + sum)) break;
    }
    const Exponential factor = extended_poisson_term(a, x);
    IncompleteGamma result =
        with_p(times_power_of_two((factor.value * two_sum(1.0, sum)).rounded(), factor.exponent), factor.rounded());
    result.converged = n <= kMaxSteps;
    return result;
}

// Q = factor a / (x+1-a - 1(1-a)/(x+3-a - 2(2-a)/(x+5-a - ...))), summed from the front by Steed's method.
IncompleteGamma by_fraction(double a, double x, double tol)
{
    double b = (x - a) + 1.0, d = 1.0 / b, delta = d, sum = d;
    int n = 1;
    for (; n <= kMaxSteps; ++n) {
        const double numerator = n * (a - n);
        b += 2.0;
        d = 1.0 / (b + numerator * d);
        delta *= b * d - 1.0;
        sum += delta;
        if (std::fabs(delta) <= tol * std::fabs(sum)) break;
    }
    const Exponential factor = extended_poisson_term(a, x);
    IncompleteGamma result =
        with_q(times_power_of_two((factor.value * two_product(a, sum)).rounded(), factor.exponent), factor.rounded());
    result.converged = n <= kMaxSteps;
    return result;
}

// a < 1, x < 1. With u = x^a / Gamma(1+a) - 1 and J = a sum (-x)^n / (n! (a+n)): P = (1 + u)(1 + J), Q = -u - J (1 + u).
IncompleteGamma both_small(double a, double x, double tol)
{
    double sum = 0.0, term = 1.0;
    for (int n = 1; n <= kMaxSteps; ++n) {
        term *= -x / n;
        sum += term / (a + n);
        if (std::fabs(term) <= tol * std::fabs(sum)) break;
    }
    const double j = a * sum;
    const DoubleDouble exponent = a * extended_log(x) - extended_log_gamma_one_plus(a);
    const double u =
        exponent.hi < -1.0 ? extended_exp(exponent).rounded() - 1.0 : std::expm1(exponent.hi) + exponent.lo;
    const double one_plus_u = extended_exp(exponent).rounded();
    return {one_plus_u + one_plus_u * j, -u - j * one_plus_u, one_plus_u * std::exp(-x)};
}

} // namespace

DoubleDouble extended_deviance(double a, double x)
{
    const DoubleDouble distance = two_sum(x, -a);
    return deviance(a, distance, distance / a, [&] { return extended_log(two_quotient(x, a)); });
}

Exponential extended_poisson_term(double a, double x)
{
    DoubleDouble exponent, denominator;
    if (a < kUniformFrom) {
        exponent = a * extended_log(x) - x;
        denominator = a < 0.5 ? extended_gamma(fast_two_sum(1.0, a)) : a * extended_gamma({a});
    } else {
        exponent = -(extended_deviance(a, x) + stirling_correction(a));
        denominator = sqrt(tables::kTwoPi * a);
    }
    if (exponent.hi < -kExponentLimit) return {{0.0}, 0};
    const Exponential e = extended_exp(exponent);
    return {e.value / denominator, e.exponent};
}

IncompleteGamma incomplete_gamma(double a, double x, double tol)
{
    if (!(tol >= kPrecision && tol <= 1.0)) tol = kPrecision;
    if (x == 0.0) return with_p(0.0);
    if (a > kGammaStepFrom || x > kGammaStepFrom)
        return a == x ? with_p(0.5, tables::kInverseRootTwoPi / std::sqrt(a)) : x < a ? with_p(0.0) : with_q(0.0);
    if (a >= kUniformFrom) {
        const DoubleDouble deviance = extended_deviance(a, x);
        if (deviance.hi > kExponentLimit) return x < a ? with_p(0.0) : with_q(0.0);
        if (deviance.hi <= 0.5 * a) return uniform(a, x > a, deviance);
    } else if (a < 1.0 && x < 1.0) {
        return both_small(a, x, tol);
    }
    return x < a ? by_series(a, x, tol) : by_fraction(a, x, tol);
}

} // namespace kor::special
