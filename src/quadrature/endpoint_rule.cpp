// Rules for integrands with an algebraic and logarithmic weight at the ends.
//
// On the sub-intervals at the two ends the rest of the integrand, the factor of the other end included, is expanded in Chebyshev
// polynomials and integrated exactly against the singular factor; elsewhere a Gauss-Kronrod pair takes the weight as part of the
// integrand (R. Piessens, I. Mertens and M. Branders, Angewandte Informatik 16 (1974) 65-68).
#include "quadrature/endpoint_rule.hpp"

#include <cmath>
#include <utility>

#include "quadrature/gauss_kronrod.hpp"

namespace kor::quadrature {

// For the power r, by parts: (n - 1)(n + r + 1) R_n = -(2^(r+1) + n (n - r - 2) R_(n-1)). The logarithmic moments are the
// derivatives by r, with (1 + x)/2 in place of 1 + x.
void EndpointRule::compute_moments(double power, Moments &moments)
{
    const double scale = std::exp2(power + 1.0);
    double *const r = moments.plain, *const g = moments.logarithmic;
    r[0] = scale / (power + 1.0);
    r[1] = r[0] * power / (power + 2.0);
    g[0] = -r[0] / (power + 1.0);
    g[1] = -g[0] - 2.0 * scale / ((power + 2.0) * (power + 2.0));
    for (int n = 2; n < kChebyshevPoints; ++n) {
        const double divisor = (n - 1.0) * (n + power + 1.0);
        r[n] = -(scale + n * (n - power - 2.0) * r[n - 1]) / divisor;
        g[n] = -(n * (n - power - 2.0) * g[n - 1] - n * r[n - 1] + (n - 1.0) * r[n]) / divisor;
    }
}

EndpointRule::EndpointRule(double a, double b, double alfa, double beta, bool log_a, bool log_b)
    : a_{a}, b_{b}, alfa_{alfa}, beta_{beta}, log_a_{log_a}, log_b_{log_b}
{
    compute_moments(alfa, at_a_);
    compute_moments(beta, at_b_);
    // Seen from the other end the axis runs backwards: odd polynomials change sign.
    for (int n = 1; n < kChebyshevPoints; n += 2) {
        at_b_.plain[n] = -at_b_.plain[n];
        at_b_.logarithmic[n] = -at_b_.logarithmic[n];
    }
}

RuleValue EndpointRule::operator()(Integrand f, double left, double right)
{
    const auto factor_of_a = [this](double x) {
        const double distance = x - a_;
        return std::pow(distance, alfa_) * (log_a_ ? std::log(distance) : 1.0);
    };
    const auto factor_of_b = [this](double x) {
        const double distance = b_ - x;
        return std::pow(distance, beta_) * (log_b_ ? std::log(distance) : 1.0);
    };
    const bool singular_at_a = left == a_ && (alfa_ != 0.0 || log_a_);
    const bool singular_at_b = right == b_ && (beta_ != 0.0 || log_b_);
    if (!singular_at_a && !singular_at_b) {
        evaluations += kPair15.points;
        return apply_pair<kPair15>([&](double x) { return f(x) * factor_of_a(x) * factor_of_b(x); }, left, right);
    }

    evaluations += kChebyshevPoints;
    const double centre = 0.5 * (left + right);
    const double h = 0.5 * (right - left);
    const ChebyshevExpansion series =
        expand_on([&](double x) { return f(x) * (singular_at_a ? factor_of_b(x) : factor_of_a(x)); }, centre, h);

    const Moments &moments = singular_at_a ? at_a_ : at_b_;
    const bool logarithm = singular_at_a ? log_a_ : log_b_;
    // With x - a = (right - left) (1 + t)/2 the logarithm splits into a constant and that of (1 + t)/2.
    const double factor = std::pow(h, (singular_at_a ? alfa_ : beta_) + 1.0);
    const double log_width = std::log(right - left);
    double fine = series.fine_integral(moments.plain), coarse = series.coarse_integral(moments.plain);
    double gap = std::fabs(fine - coarse);
    if (logarithm) {
        const double fine_log = series.fine_integral(moments.logarithmic);
        gap = std::fabs(gap * log_width) + std::fabs(fine_log - series.coarse_integral(moments.logarithmic));
        fine = fine * log_width + fine_log;
    }
    return {fine * factor, unlimited_if_unknown(gap * factor), 0.0, 0.0};
}

} // namespace kor::quadrature
