// Quantiles of the normal law: a rational approximation, and one step of Halley's method, whose residual is the tail itself.
// M. J. Wichura, Appl. Statist. 37 (1988) 477-484.
#include "stats/normal_law.hpp"

#include <array>
#include <cmath>
#include <limits>

namespace kor::stats {

namespace {

using special::DoubleDouble;

constexpr double kRootTwoPi = 2.5066282746310002;
constexpr DoubleDouble kRootHalf{0.7071067811865476, -4.833646656726457e-17};
constexpr double kCentral = 0.425; // up to here the probability is measured from the median

// Half of the least probability is 0, and its quantile is not infinite.
constexpr double kLeast = std::numeric_limits<double>::denorm_min();

// Numerators and denominators: of x / half in kCentral^2 - half^2; of x in r - 1.6 and in r - 5, r = sqrt(-ln q).
using Coefficients = std::array<double, 8>;
constexpr Coefficients kCentralTop = {3.3871328727963665, 133.14166789178438, 1971.5909503065513, 13731.69376550946,
                                      45921.95393154987,  67265.7709270087,   33430.57558358813,  2509.0809287301227};
constexpr Coefficients kCentralBottom = {1.0,
                                         42.31333070160091,
                                         687.1870074920579,
                                         5394.196021424751,
                                         21213.794301586597,
                                         39307.89580009271,
                                         28729.085735721943,
                                         5226.495278852854};
constexpr Coefficients kTailTop = {1.4234371107496835, 4.630337846156546,  5.769497221460691,    3.6478483247632045,
                                   1.2704582524523684, 0.2417807251774506, 0.022723844989269184, 0.0007745450142783414};
constexpr Coefficients kTailBottom = {1.0,
                                      2.053191626637759,
                                      1.6763848301838038,
                                      0.6897673349851,
                                      0.14810397642748008,
                                      0.015198666563616457,
                                      0.0005475938084995345,
                                      1.0507500716444169e-09};
constexpr Coefficients kFarTop = {6.657904643501103,      5.463784911164114,     1.7848265399172913,
                                  0.29656057182850487,    0.026532189526576124,  0.0012426609473880784,
                                  2.7115555687434876e-05, 2.0103343992922881e-07};
constexpr Coefficients kFarBottom = {1.0,
                                     0.599832206555888,
                                     0.1369298809227358,
                                     0.014875361290850615,
                                     0.0007868691311456133,
                                     1.8463183175100548e-05,
                                     1.421511758316446e-07,
                                     2.0442631033899397e-15};

double rough_central_quantile(double half)
{
    const double r = kCentral * kCentral - half * half;
    return half * (special::polynomial(kCentralTop, r) / special::polynomial(kCentralBottom, r));
}

// One step for a residual r = (P(x) - p) / density(x), the ratio of the second derivative to the first being -x.
double halley(double x, double r) { return x - r / (1.0 + 0.5 * x * r); }

// The residual (q - Q(x)) / density(x) of the upper tail.
double upper_residual(double x, double q)
{
    constexpr double kScaledFrom = 0.75; // below it nothing can underflow
    if (x < kScaledFrom) return (q - special::normal_upper_tail(x)) * kRootTwoPi * std::exp(0.5 * x * x);
    const special::Exponential tail = special::extended_normal_upper_tail(x);
    // (q - Q) / Q, times Mills' ratio Q / density.
    const double scaled_q = std::ldexp(q, -tail.exponent);
    const double relative = ((scaled_q - tail.value.hi) - tail.value.lo) / tail.value.hi;
    const double mills = 0.5 * kRootTwoPi * special::scaled_erfc(x * 0.7071067811865476);
    return relative * mills;
}

} // namespace

double normal_hazard(double x)
{
    constexpr double kScaledFrom = 0.75; // below it nothing can underflow
    if (x < kScaledFrom) return std::exp(-0.5 * x * x) / (kRootTwoPi * normal_upper(x));
    return 2.0 / (kRootTwoPi * special::scaled_erfc(x * 0.7071067811865476));
}

double rough_normal_upper_quantile(double q)
{
    constexpr double kMiddle = 1.6, kFar = 5.0;
    if (q > 0.5) return -rough_normal_upper_quantile(1.0 - q);
    q = std::fmax(q, kLeast);
    if (0.5 - q <= kCentral) return rough_central_quantile(0.5 - q);
    const double r = std::sqrt(-std::log(q));
    if (r <= kFar) return special::polynomial(kTailTop, r - kMiddle) / special::polynomial(kTailBottom, r - kMiddle);
    return special::polynomial(kFarTop, r - kFar) / special::polynomial(kFarBottom, r - kFar);
}

double normal_central_quantile(double half)
{
    if (half > kCentral) return normal_upper_quantile(0.5 - half);
    const double x = rough_central_quantile(half);
    constexpr double kSmall = 1e-290; // the residual would underflow
    if (half < kSmall) return kRootTwoPi * half;
    const DoubleDouble z = x * kRootHalf;
    const DoubleDouble erf = z.hi < 0.5 ? special::extended_erf_near_zero(z) : special::extended_erf_positive(z);
    return halley(x, ((0.5 * erf.hi - half) + 0.5 * erf.lo) * kRootTwoPi * std::exp(0.5 * x * x));
}

double normal_upper_quantile(double q)
{
    if (std::isnan(q)) return q;
    q = std::fmax(q, kLeast);
    if (0.5 - q <= kCentral) return normal_central_quantile(0.5 - q);
    const double x = rough_normal_upper_quantile(q);
    return halley(x, upper_residual(x, q));
}

double normal_two_sided_quantile(double q)
{
    return q > 0.5 ? normal_central_quantile(0.5 * (1.0 - q)) : normal_upper_quantile(0.5 * q);
}

double normal_quantile(double p)
{
    // 1 - p is exact for p >= 1/2.
    return p < 0.5 ? -normal_upper_quantile(p) : normal_upper_quantile(1.0 - p);
}

} // namespace kor::stats
