// The bivariate normal law as an integral over the correlation (R. L. Plackett, Biometrika 41 (1954) 351-360): the derivative
// of P(X <= x, Y <= y) with respect to the correlation is the density at (x, y). With rho = sin(theta) that is
// exp(-(x^2 - 2 x y rho + y^2) / (2 cos^2(theta))) / (2 pi).
#include "stats/bivariate_normal.hpp"

#include <algorithm>
#include <array>
#include <cmath>

#include "frame/constants.hpp"
#include "stats/normal_law.hpp"

namespace kor::stats {

namespace {

// Gauss-Legendre rule of 20 points: nodes in (0, 1), mirrored, and weights.
struct Node {
    double t, weight;
};
constexpr std::array<Node, 10> kGauss20 = {{
    {0.9931285991850949, 0.017614007139152118},
    {0.9639719272779138, 0.04060142980038694},
    {0.912234428251326, 0.06267204833410907},
    {0.8391169718222188, 0.08327674157670475},
    {0.7463319064601508, 0.10193011981724044},
    {0.636053680726515, 0.11819453196151841},
    {0.5108670019508271, 0.13168863844917664},
    {0.37370608871541955, 0.14209610931838204},
    {0.22778585114164507, 0.14917298647260374},
    {0.07652652113349734, 0.15275338713072584},
}};

// From independence: the integral from 0 to rho, smooth unless rho is near 1.
double from_independence(double x, double y, double rho)
{
    const double half = 0.5 * std::asin(rho), squares = 0.5 * (x * x + y * y), product = x * y;
    double sum = 0.0;
    for (const auto &[t, weight] : kGauss20)
        for (const double node : {-t, t}) {
            const double sine = std::sin(half * (1.0 + node));
            sum += weight * std::exp((product * sine - squares) / (1.0 - sine * sine));
        }
    return normal_lower(x) * normal_lower(y) + sum * half / (2.0 * kPi);
}

// The integral from rho to 1, q = sqrt(1 - rho^2) small. With u = cos(theta) the integrand is exp(-d^2 / (2 u^2)) g(u^2), d =
// |x - y|, and g(v) = exp(-x y / (1 + sqrt(1-v))) / sqrt(1-v) a power series. Its terms are integrated by recurrence.
double up_to_one(double distance, double product, double q)
{
    constexpr int kTerms = 32;
    constexpr double kFarAway = 39.0; // in units of q
    if (distance > kFarAway * q) return 0.0;
    // 1 / (1 + sqrt(1-v)) = 1/2 + v/8 + ... has the coefficients of (1 - sqrt(1-v)) / v.
    std::array<double, kTerms> exponent, root, power;
    exponent[0] = 0.5, root[0] = 1.0, power[0] = std::exp(-0.5 * product);
    // The integral of exp(-d^2 / (2 u^2)) from 0 to q.
    double moment = q * std::exp(-0.5 * (distance / q) * (distance / q));
    const double at_end = moment;
    moment -= distance * 2.5066282746310002 * normal_upper(distance / q);
    double sum = power[0] * moment, end_power = 1.0;
    for (int k = 1; k < kTerms; ++k) {
        exponent[k] = exponent[k - 1] * (k - 0.5) / (k + 1.0);
        root[k] = root[k - 1] * (k - 0.5) / k;
        double of_power = 0.0;
        for (int i = 1; i <= k; ++i) of_power -= i * product * exponent[i] * power[k - i];
        power[k] = of_power / k;
        double of_g = 0.0;
        for (int i = 0; i <= k; ++i) of_g += power[i] * root[k - i];
        end_power *= q * q;
        moment = std::fmax(0.0, (at_end * end_power - distance * distance * moment) / (2.0 * k + 1.0));
        const double term = of_g * moment;
        sum += term;
        if (std::fabs(term) < 0.01 * kPrecision * std::fabs(sum)) break;
    }
    return sum / (2.0 * kPi);
}

} // namespace

double bivariate_normal_lower(double x, double y, double rho)
{
    constexpr double kNearOne = 0.925;
    if (std::isnan(x) || std::isnan(y) || std::isnan(rho)) return NAN;
    constexpr double kInfinite = 40.0; // as good as infinite: the normal tail underflows before
    if (std::fmin(x, y) < -kInfinite) return 0.0;
    if (std::fmax(x, y) > kInfinite) return normal_lower(std::fmin(x, y));
    if (rho == 0.0) return normal_lower(x) * normal_lower(y);
    if (x == 0.0 && y == 0.0) return 0.25 + std::asin(rho) / (2.0 * kPi);
    if (std::fabs(rho) < kNearOne) return std::clamp(from_independence(x, y, rho), 0.0, 1.0);

    const double q = std::sqrt((1.0 - rho) * (1.0 + rho));
    if (rho > 0.0) {
        const double rest = q > 0.0 ? up_to_one(std::fabs(x - y), x * y, q) : 0.0;
        return std::fmax(0.0, normal_lower(std::fmin(x, y)) - rest);
    }
    // P(X <= x) - P(X <= -y), by the tails that are small, is what is left at correlation -1.
    const double rest = q > 0.0 ? up_to_one(std::fabs(x + y), -x * y, q) : 0.0;
    const double last = x + y <= 0.0           ? 0.0
                        : x >= 0.0 && y >= 0.0 ? 1.0 - normal_upper(x) - normal_upper(y)
                        : x < 0.0              ? normal_lower(x) - normal_upper(y)
                                               : normal_lower(y) - normal_upper(x);
    return std::fmin(1.0, last + rest);
}

} // namespace kor::stats
