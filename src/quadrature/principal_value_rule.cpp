// Rules for principal values: the weight 1/(x - c).
#include "quadrature/principal_value_rule.hpp"

#include <cmath>

#include "quadrature/chebyshev_expansion.hpp"
#include "quadrature/gauss_kronrod.hpp"

namespace kor::quadrature {

namespace {

constexpr double kFarAway = 1.1; // in half-widths from the centre: the weight is harmless from here on

// The principal values of the integrals of T_k(x)/(x - c) over (-1, 1): A_(k+1) = 2 c A_k - A_(k-1) + 2 integral of T_k.
void compute_moments(double c, double *moments)
{
    moments[0] = std::log(std::fabs((1.0 - c) / (1.0 + c)));
    moments[1] = 2.0 + c * moments[0];
    for (int k = 1; k < kChebyshevDegree; ++k) {
        const double integral = k % 2 == 0 ? 2.0 / (1.0 - static_cast<double>(k) * k) : 0.0;
        moments[k + 1] = 2.0 * c * moments[k] - moments[k - 1] + 2.0 * integral;
    }
}

} // namespace

RuleValue principal_value_rule(Integrand f, double a, double b, double c, Integer &evaluations)
{
    const double relative = (2.0 * c - a - b) / (b - a);
    if (!(std::fabs(relative) < kFarAway)) {
        evaluations += kPair15.points;
        return apply_pair<kPair15>([&](double x) { return f(x) / (x - c); }, a, b);
    }
    evaluations += kChebyshevPoints;
    const ChebyshevExpansion series = expand_on(f, 0.5 * (a + b), 0.5 * (b - a));
    double moments[kChebyshevPoints];
    compute_moments(relative, moments);
    const double fine = series.fine_integral(moments);
    return {fine, unlimited_if_unknown(std::fabs(fine - series.coarse_integral(moments))), 0.0, 0.0};
}

} // namespace kor::quadrature
