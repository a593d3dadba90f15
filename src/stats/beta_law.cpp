// The beta law. Five methods: where both shapes are large and x is near the mean an expansion about the normal law, uniform in
// x; where one is much larger than the other an expansion about the gamma law; else a power series of positive terms, a continued fraction that converges
// fast beyond the mean, and, where a small a makes both tails from one power of x, their difference from 1 without
// cancellation. The factor x^a y^b / B(a, b) is formed as a saddle point with a low part: A. R. DiDonato and A. H. Morris, ACM
// Trans. Math. Softw. 18 (1992) 360-373; C. Loader, Fast and accurate computation of binomial probabilities (2000); N. M.
// Temme, Special Functions (1996), section 11.3.3.
#include "stats/beta_law.hpp"

#include <array>
#include <cmath>

#include "frame/constants.hpp"
#include "special/erf.hpp"
#include "special/gamma.hpp"
#include "special/incomplete_gamma.hpp"
#include "special/incomplete_gamma_tables.hpp"
#include "stats/gamma_law.hpp"
#include "stats/normal_law.hpp"

namespace kor::stats {

namespace {

using namespace special;

constexpr double kStirlingFrom = 12.0;
constexpr double kExponentLimit = 2000.0; // beyond it exp(-t) is far out of range
constexpr int kMaxSteps = 1000;           // two million random arguments took 77 at most
constexpr double kGammaTo = 160.0;        // a + b: to here 1 / B(a, b) is formed from gamma functions
// The expansion about the gamma law: the smaller shape is at most kGammaLawTo, the larger at least kGammaLawFrom times that (or
// times 1), and the variable of the smaller at most kGammaLawWithin.
constexpr double kGammaLawTo = 4.0;
constexpr double kGammaLawFrom = 15.0;
constexpr double kGammaLawWithin = 0.6;
constexpr double kUniformFrom = 300.0; // the smaller shape, while |y| <= kUniformWithin
constexpr double kUniformWithin = 0.4;

// Gamma(a + 1) = sqrt(2 pi a) (a/e)^a S(a), S(a) = factor exp(exponent).
struct StirlingRatio {
    DoubleDouble exponent, factor;
};

StirlingRatio stirling_ratio(double a)
{
    if (a >= kStirlingFrom) return {stirling_correction(a), {1.0}};
    const DoubleDouble gamma = extended_gamma(two_sum(1.0, a));
    return {a - a * extended_log({a}), gamma / sqrt(tables::kTwoPi * a)};
}

// ln Gamma(b + a) - ln Gamma(b) for a <= 1, relative to itself.
DoubleDouble log_gamma_increment(double b, double a)
{
    // The product of (b + j) / (b + j + a) carries b into Stirling's range.
    DoubleDouble ratio{1.0};
    while (b < kStirlingFrom + 4.0) {
        ratio = ratio * (DoubleDouble{b} / two_sum(b, a));
        b += 1.0;
    }
    const DoubleDouble n = two_sum(b, a);
    constexpr double kDifferentiateBelow = 1e-4;
    const double middle = 1.0 / (b + 0.5 * a), m2 = middle * middle;
    const double correction = a < kDifferentiateBelow
                                  ? -a * m2 * (1.0 / 12.0 - m2 * (1.0 / 120.0 - m2 * (1.0 / 252.0 - m2 / 240.0)))
                                  : (stirling_correction(n.hi) - stirling_correction(b)).hi;
    return (n - 0.5) * extended_log(n / b) + a * (extended_log({b}) - 1.0) + correction + extended_log(ratio);
}

// Both tails of a law with a < 1 at a small x: lower = (1 + u)(1 + j), 1 + u = x^a / (a B(a, b)), from ln(1 + u).
Tails from_one_power(double a, double b, double x, DoubleDouble log_power)
{
    double sum = 0.0, term = 1.0;
    for (int k = 1; k <= kMaxSteps; ++k) {
        term *= x * (k - b) / k;
        const double part = term / (a + k);
        sum += part;
        if (std::fabs(part) <= kPrecision * std::fabs(sum)) break;
    }
    const double j = a * sum;
    if (log_power.hi < -kExponentLimit) return {0.0, 1.0};
    const double one_plus_u = extended_exp(log_power).rounded();
    const double u = log_power.hi < -1.0 ? one_plus_u - 1.0 : std::expm1(log_power.hi) + log_power.lo * one_plus_u;
    return {one_plus_u + one_plus_u * j, -u - j * one_plus_u};
}

// 2F1(a + b, 1; a + 1; x) = 1 + (a+b)/(a+1) x + ...: terms fall from the first at x below the mean.
DoubleDouble power_series(double a, double n, double x)
{
    double sum = 0.0, term = 1.0;
    for (int k = 0; k < kMaxSteps; ++k) {
        term *= x * (n + k) / (a + 1.0 + k);
        sum += term;
        if (term <= 0.5 * kPrecision * sum) break;
    }
    return two_sum(1.0, sum);
}

// lower B(a, b) / (x^a y^b) by the even part of the classical continued fraction, summed from the front by Steed's method;
// surplus = a y - b x, accurately. (The recurrences of numerators and denominators would do without the divisions, and lose
// digits where b < 1.)
double continued_fraction(double a, double b, double x, double y, double surplus)
{
    const double n_all = a + b;
    double per_odd = 1.0 / (a + 1.0); // 1 / (a + 2 n + 1)
    double beta = a * per_odd * (surplus + 1.0);
    double d = 1.0 / beta, delta = d, sum = d;
    for (int n = 1; n < kMaxSteps; ++n) {
        const double shared = n * (b - n) * x * per_odd;
        const double alpha = (a + (n - 1.0)) * (n_all + (n - 1.0)) * x * per_odd * shared;
        per_odd = 1.0 / (a + (2.0 * n + 1.0));
        beta = n + shared + (a + n) * per_odd * (surplus + 1.0 + n * (1.0 + y));
        d = 1.0 / (beta + alpha * d);
        delta *= beta * d - 1.0;
        sum += delta;
        if (std::fabs(delta) <= 0.5 * kPrecision * std::fabs(sum)) break;
    }
    return sum;
}

// A power series takes over from the fraction where its terms fall by half at once.
bool series_is_short(double a, double n, double x)
{
    return x * n <= 0.5 * (a + 1.0) || x * (n + 10.0) <= 0.7 * (a + 11.0);
}

// The sum over k of beta_k w_k, the correction to the normal law. With r = a/b <= 1, N = a (a+b) / b, and y so measured that
// x^a (1-x)^b falls from its maximum as exp(-N y^2/2), the tail is ~ the integral of exp(-N y^2/2) h(y). This h = beta_0 +
// beta_1 y + ... satisfies h - y h' = h^3 + (1-r) y h^2 - r y^2 h, and w_k comes of integrating by parts. The beta_k fall like
// 2.5^-k.
double uniform_correction(double r, double n, double y)
{
    constexpr int kTerms = 32;
    constexpr double kNegligible = 0x1p-57;
    double h[kTerms] = {1.0}, square[kTerms] = {1.0}; // of h, and of its square
    double w[kTerms] = {};
    double sum = 0.0, last = 1.0, power = 1.0;
    for (int k = 1; k < kTerms; ++k) {
        // The coefficients of y^k of the square and the cube, without what h[k] adds to them.
        double of_square = k % 2 == 0 ? 0.5 * h[k / 2] * h[k / 2] : 0.0, of_cube = 0.0;
        for (int i = 1; 2 * i < k; ++i) of_square += h[i] * h[k - i];
        of_square *= 2.0;
        for (int i = 1; i < k; ++i) of_cube += square[i] * h[k - i];
        of_cube += of_square;
        h[k] = -(of_cube + (1.0 - r) * square[k - 1] - (k >= 2 ? r * h[k - 2] : 0.0)) / (k + 2.0);
        square[k] = of_square + 2.0 * h[k];
        w[k] = power + (k >= 3 ? (k - 1.0) / n * w[k - 2] : 0.0);
        power *= y;
        const double term = h[k] * w[k];
        sum += term;
        if (std::fabs(term) + std::fabs(last) < kNegligible) break;
        last = term;
    }
    return sum;
}

// Odds to start from for a lower tail of p; 0 where they are below the doubles.
double start_odds(double a, double b, double p)
{
    double start = 0.0;
    if (a > 0.75 && b > 0.75) {
        // Carter's approximation to Fisher's z.
        const double y = -normal_quantile(p);
        const double r = (y * y - 3.0) / 6.0, s = 1.0 / (2.0 * a - 1.0), t = 1.0 / (2.0 * b - 1.0);
        const double h = 2.0 / (s + t);
        if (h + r > 0.0) {
            const double z = y * std::sqrt(h + r) / h - (t - s) * (r + 5.0 / 6.0 - 2.0 / (3.0 * h));
            start = a / b * std::exp(-2.0 * z);
        }
        constexpr double kGoodWithin = 3.0;
        if (start > 0.0 && std::fabs(y) < kGoodWithin) return start;
    }
    // The leading power of the lower tail, x^a / (a B): an upper bound of it for b >= 1.
    const double log_beta = log_gamma(a) + log_gamma(b) - log_gamma(a + b);
    const double log_x = (std::log(p) + std::log(a) + log_beta) / a;
    if (log_x < std::log(kSmallest)) return 0.0;
    if (b >= 1.0) return std::fmax(start, std::exp(std::fmin(log_x, 0.0)));
    if (start > 0.0) return start;
    const double y = -std::expm1(log_x);
    return y > 0.0 ? std::fmin(a / b, std::exp(log_x) / y) : a / b;
}

// The same for the law of t^2 / df, shapes 1/2 and b: with T = b - 1/4 and z normal, T ln(1 + odds) is near z^2/2, less what
// the first term of the expansion about the gamma law takes away.
double start_odds_of_student(double b, Target target)
{
    const double half = 0.5 * target.probability;
    const double z = target.upper ? normal_upper_quantile(half) : normal_central_quantile(half);
    const double scale = b - 0.25, u = 0.5 * z * z, correction = (u + 1.5) / (48.0 * scale * scale);
    constexpr double kMostCorrection = 0.1, kLargestLog = 600.0;
    return std::expm1(std::fmin(u * (1.0 - std::fmin(correction, kMostCorrection)) / scale, kLargestLog));
}

// Tails of the gamma law of shape b at u, and u^b exp(-u) / Gamma(b).
struct GammaPoint {
    double lower, upper, slope;
};

GammaPoint gamma_point(double b, DoubleDouble u)
{
    constexpr double kUnderflow = 750.0, kScaledErfcFrom = 0.5;
    if (u.hi > kUnderflow) return {1.0, 0.0, 0.0};
    if (b == 0.5) {
        const DoubleDouble z = u.hi > 0.0 ? sqrt(u) : DoubleDouble{0.0};
        const Exponential e = extended_exp(-u);
        const double slope =
            times_power_of_two(z.hi * 0.5641895835477563 * e.value.hi, e.exponent); // z / sqrt(pi) exp(-z^2)
        if (z.hi < kScaledErfcFrom) {
            const DoubleDouble erf = extended_erf_near_zero(z);
            return {erf.rounded(), (1.0 - erf).rounded(), slope};
        }
        const double upper = times_power_of_two((e.value * extended_scaled_erfc(z)).rounded(), e.exponent);
        return {1.0 - upper, upper, slope};
    }
    const Tails tails = gamma_tails(b, u.hi);
    // The low part of u to first order.
    const double slope = b * extended_poisson_term(b, u.hi).rounded(), share = u.lo / u.hi;
    return {tails.lower + slope * share, tails.upper - slope * share, slope * (1.0 + share * (b - u.hi))};
}

// -ln(1 - x), 0 < x < 1, relative to itself.
DoubleDouble minus_log_of_complement(DoubleDouble x)
{
    constexpr double kSeriesBelow = 0x1p-10;
    if (x.hi >= kSeriesBelow) return -extended_log(1.0 - x);
    constexpr std::array kSeries{1.0 / 2.0, 1.0 / 3.0, 1.0 / 4.0, 1.0 / 5.0, 1.0 / 6.0, 1.0 / 7.0};
    return x + x.hi * x.hi * polynomial(kSeries, x.hi);
}

// Gamma(x), but Gamma(1 + x) below 1/2.
DoubleDouble shifted_gamma(double x, double low)
{
    return extended_gamma(x < 0.5 ? fast_two_sum(1.0, x) : DoubleDouble{x, low});
}

bool one_power_suffices(double a, double b, double x) { return a < 1.0 && x <= 0.5 && (b <= 1.0 || b * x <= 1.0); }

} // namespace

BinomialTerm::BinomialTerm(double a, double b) : a_{a}, b_{b}
{
    const DoubleDouble n = two_sum(a, b);
    const StirlingRatio of_n = stirling_ratio(n.hi), of_a = stirling_ratio(a), of_b = stirling_ratio(b);
    exponent_ = of_n.exponent - of_a.exponent - of_b.exponent;
    factor_ = sqrt(n / (tables::kTwoPi * a) / b) * (of_n.factor / (of_a.factor * of_b.factor));
}

DoubleDouble fall_of_powers(double a, double b, DoubleDouble x, DoubleDouble y, DoubleDouble surplus)
{
    return deviance(a, -surplus, -surplus / a, [&] { return extended_log(two_sum(a, b) * x / a); }) +
           deviance(b, surplus, surplus / b, [&] { return extended_log(two_sum(a, b) * y / b); });
}

Exponential BinomialTerm::at(DoubleDouble x, DoubleDouble y) const
{
    return after(fall_of_powers(a_, b_, x, y, a_ * y - b_ * x));
}

Exponential BinomialTerm::after(DoubleDouble fall) const
{
    const DoubleDouble exponent = exponent_ - fall;
    if (!(exponent.hi > -kExponentLimit)) return {{0.0}, 0};
    const Exponential e = extended_exp(exponent);
    return {e.value * factor_, e.exponent};
}

bool BetaLaw::large() const { return a_ + b_ > kGammaTo; }

const BetaLaw::Factors &BetaLaw::factors() const
{
    if (factors_) return *factors_;
    const DoubleDouble n = two_sum(a_, b_);
    if (large()) return factors_.emplace(Factors{BinomialTerm{a_, b_}, two_product(a_, b_) / n});
    DoubleDouble factor = shifted_gamma(n.hi, n.lo) / (shifted_gamma(a_, 0.0) * shifted_gamma(b_, 0.0));
    if (a_ < 0.5) factor = factor * a_;
    if (b_ < 0.5) factor = factor * b_;
    if (n.hi < 0.5) factor = factor / n;
    return factors_.emplace(Factors{{}, factor});
}

Exponential BetaLaw::slope_after(DoubleDouble fall) const
{
    const Exponential term = factors().term->after(fall);
    return {term.value * factors().factor, term.exponent};
}

Exponential BetaLaw::slope(DoubleDouble x, DoubleDouble y) const
{
    if (large()) return slope_after(fall_of_powers(a_, b_, x, y, a_ * y - b_ * x));
    const DoubleDouble exponent = a_ * extended_log(x) + b_ * extended_log(y);
    if (!(exponent.hi > -kExponentLimit)) return {{0.0}, 0};
    const Exponential powers = extended_exp(exponent);
    return {powers.value * factors().factor, powers.exponent};
}

// With a the larger shape, b the smaller, z the variable of a, T = a + (b - 1) / 2 and u = -T ln(z): the tails of the
// gamma law of shape b at u, and a correction in powers of 1 / (4 T^2).
std::optional<PointOfLaw> BetaLaw::by_gamma_expansion(DoubleDouble x, DoubleDouble y, bool with_slope) const
{
    constexpr int kTerms = 12;
    constexpr std::array<double, kTerms> kOddFactorials = {1.0,
                                                           6.0,
                                                           120.0,
                                                           5040.0,
                                                           362880.0,
                                                           39916800.0,
                                                           6227020800.0,
                                                           1307674368000.0,
                                                           355687428096000.0,
                                                           121645100408832000.0,
                                                           51090942171709440000.0,
                                                           25852016738884976640000.0};
    constexpr double kNegligible = 0x1p-58;
    const bool rising = a_ < b_; // the variable of b is x
    const double a = rising ? b_ : a_, b = rising ? a_ : b_;
    if (b > kGammaLawTo || a < kGammaLawFrom * std::fmax(1.0, b)) return {};
    const DoubleDouble z = rising ? y : x, rest = rising ? x : y;
    constexpr double kLeast = 1e-250; // below it products lose their low parts
    if (rest.hi < kLeast || rest.hi > kGammaLawWithin) return {};
    const DoubleDouble log_z = minus_log_of_complement(rest);

    const DoubleDouble t = two_sum(a, 0.5 * (b - 1.0));
    const GammaPoint gamma = gamma_point(b, t * log_z);
    const double per_square = 0.25 / (t.hi * t.hi), u = t.hi * log_z.hi, quarter = 0.25 * log_z.hi * log_z.hi;
    std::array<double, kTerms> p;
    p[0] = 1.0;
    double whole = 1.0, edge = 0.0, mass = 1.0, correction = 0.0, power = 1.0;
    for (int n = 1; n < kTerms; ++n) {
        double sum = (b - 1.0) * n / kOddFactorials[n];
        for (int m = 1; m < n; ++m) sum += (m * b - n) * p[n - m] / kOddFactorials[m];
        p[n] = sum / n;
        const double c = (b + (2 * n - 2)) * (b + (2 * n - 1)) * per_square;
        whole *= c;
        edge = c * edge + (u + b + (2 * n - 1)) * per_square * power;
        power *= quarter;
        mass += p[n] * whole;
        correction += p[n] * edge;
        if (std::fabs(p[n]) * (whole + edge) < kNegligible) break;
    }
    const double slope = gamma.slope / mass;
    const double lower = gamma.lower - slope * correction, upper = gamma.upper + slope * correction;
    const Tails tails = rising ? Tails{lower, upper} : Tails{upper, lower};
    if (!with_slope) return PointOfLaw{tails, 0.0, 0.0};
    const double from_gamma = std::sqrt(z.hi) * (b == 0.5 ? std::sqrt(rest.hi / (log_z.hi * std::sqrt(z.hi)))
                                                          : std::pow(rest.hi / (log_z.hi * std::sqrt(z.hi)), b));
    return PointOfLaw{tails, slope * from_gamma, a_ * y.hi - b_ * x.hi};
}

// The tail on the side of x from the mean is exp(-z^2) (exp(z^2) erfc(z) / 2 +- S exp(-stirling) / sqrt(2 pi N)), z^2 = fall.
std::optional<Tails> BetaLaw::by_uniform_expansion(DoubleDouble fall, bool below) const
{
    constexpr double kUnderflow = 750.0;
    const double small = std::fmin(a_, b_), large = std::fmax(a_, b_);
    const double n = small * (1.0 + small / large);
    if (small < kUniformFrom || 2.0 * fall.hi > kUniformWithin * kUniformWithin * n) return {};
    if (fall.hi > kUnderflow) return below ? Tails{0.0, 1.0} : Tails{1.0, 0.0};

    // y rises with the variable of the smaller shape.
    const double side = below == (b_ < a_) ? 1.0 : -1.0;
    const DoubleDouble z = fall.hi > 0.0 ? sqrt(fall) : DoubleDouble{0.0};
    const double y = side * z.hi * std::sqrt(2.0 / n);
    const auto stirling = [](double x) { return (1.0 / 12.0 - (1.0 / 360.0 - 1.0 / (1260.0 * x * x)) / (x * x)) / x; };
    const double log_stirling = stirling(small + large) - stirling(small) - stirling(large);
    const double correction =
        side * uniform_correction(small / large, n, y) * std::exp(log_stirling) / std::sqrt(tables::kTwoPi.hi * n);
    const Exponential e = extended_exp(-fall);
    const DoubleDouble half = extended_scaled_erfc(z).scaled(0.5);
    const double tail = times_power_of_two((e.value * (half + correction)).rounded(), e.exponent);
    return below ? Tails{tail, 1.0 - tail} : Tails{1.0 - tail, tail};
}

// The side below the mean is summed, and the other is its difference from 1.
Tails BetaLaw::by_series(DoubleDouble x, DoubleDouble y, DoubleDouble surplus, Exponential slope) const
{
    const bool below = surplus.hi >= 0.0;
    if (slope.value.hi == 0.0) return below ? Tails{0.0, 1.0} : Tails{1.0, 0.0};
    const double a = below ? a_ : b_, b = below ? b_ : a_;
    const double near = below ? x.hi : y.hi, far = below ? y.hi : x.hi;
    const DoubleDouble product = series_is_short(a, a + b, near)
                                     ? slope.value * power_series(a, a + b, near) / a
                                     : slope.value * continued_fraction(a, b, near, far, std::fabs(surplus.hi));
    const double tail = std::fmin(1.0, times_power_of_two(product.rounded(), slope.exponent));
    return below ? Tails{tail, 1.0 - tail} : Tails{1.0 - tail, tail};
}

std::optional<Tails> BetaLaw::by_one_power(DoubleDouble x, DoubleDouble y) const
{
    if (one_power_suffices(a_, b_, x.hi)) return from_one_power(a_, b_, x.hi, log_power(a_, b_, x));
    if (!one_power_suffices(b_, a_, y.hi)) return {};
    const Tails mirrored = from_one_power(b_, a_, y.hi, log_power(b_, a_, y));
    return Tails{mirrored.upper, mirrored.lower};
}

// ln(x^a / (a B(a, b))), relative to itself.
DoubleDouble BetaLaw::log_power(double a, double b, DoubleDouble x) const
{
    constexpr double kFactorServesFrom =
        0.0625; // below it a B(a, b) is next to 1, and its logarithm is not known from it
    if (a >= kFactorServesFrom && !large()) return a * extended_log(x) + extended_log(factors().factor / a);
    return a * extended_log(x) + (log_gamma_increment(b, a) - extended_log_gamma_one_plus(a));
}

Tails BetaLaw::tails(DoubleDouble x, DoubleDouble y) const
{
    if (const auto result = by_gamma_expansion(x, y, false)) return result->tails;
    if (const auto result = by_one_power(x, y)) return *result;
    const DoubleDouble surplus = a_ * y - b_ * x;
    if (!large()) return by_series(x, y, surplus, slope(x, y));
    const DoubleDouble fall = fall_of_powers(a_, b_, x, y, surplus);
    if (const auto result = by_uniform_expansion(fall, surplus.hi >= 0.0)) return *result;
    return by_series(x, y, surplus, slope_after(fall));
}

PointOfLaw BetaLaw::at(DoubleDouble x, DoubleDouble y) const
{
    if (const auto result = by_gamma_expansion(x, y, true)) return *result;
    const DoubleDouble surplus = a_ * y - b_ * x;
    const auto point = [&](Tails tails, Exponential slope) { return PointOfLaw{tails, slope.rounded(), surplus.hi}; };
    if (!large()) {
        const Exponential here = slope(x, y);
        const auto result = by_one_power(x, y);
        return point(result ? *result : by_series(x, y, surplus, here), here);
    }
    const DoubleDouble fall = fall_of_powers(a_, b_, x, y, surplus);
    const Exponential here = slope_after(fall);
    if (const auto result = by_one_power(x, y)) return point(*result, here);
    if (const auto result = by_uniform_expansion(fall, surplus.hi >= 0.0)) return point(*result, here);
    return point(by_series(x, y, surplus, here), here);
}

Tails BetaLaw::tails_at_odds(DoubleDouble w) const
{
    const DoubleDouble y = 1.0 / (1.0 + w);
    return tails(w * y, y);
}

Quantile BetaLaw::odds(Target target) const
{
    const bool upper = target.upper;
    const double p = target.probability;
    const double start = a_ == 0.5   ? start_odds_of_student(b_, target)
                         : b_ == 0.5 ? 1.0 / start_odds_of_student(a_, {!upper, p})
                         : upper     ? 1.0 / start_odds(b_, a_, p)
                                     : start_odds(a_, b_, p);
    if (start < kSmallest || start > 1.0 / kSmallest) return {upper ? HUGE_VAL : 0.0, true};
    return solve_tail(
        [this](double w) {
            const DoubleDouble y = 1.0 / (1.0 + DoubleDouble{w});
            return at(w * y, y);
        },
        target, start);
}

} // namespace kor::stats
