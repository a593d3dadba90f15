// Complex scalars: quotient and elementary functions.
#include "frame/complex.hpp"

#include <algorithm>
#include <cstdint>

#include "frame/constants.hpp"
#include "frame/exact.hpp"

namespace kor {

namespace {

double larger_part(Complex z) { return std::max(std::fabs(z.re), std::fabs(z.im)); }

// y times t = s / c, |s| <= |c|, to full precision also where t itself underflows.
double times_ratio(double y, double t, double s, double c)
{
    if (std::fabs(t) >= kSmallest || s == 0.0) return t * y;
    return std::fabs(y) > 1.0 ? s * y / c : s * (y / c);
}

// Smith (1962), with the refinement of Baudin and Smith (2012) where a ratio underflows: divides through by the larger
// part of w. Dividing by the denominator at the end, rather than multiplying by its reciprocal, saves a rounding and a
// premature overflow.
Complex quotient_by_smith(Complex z, Complex w)
{
    if (std::fabs(w.im) < std::fabs(w.re)) {
        const double t = w.im / w.re;
        const double d = t * w.im + w.re;
        return {(z.re + times_ratio(z.im, t, w.im, w.re)) / d, (z.im - times_ratio(z.re, t, w.im, w.re)) / d};
    }
    const double t = w.re / w.im;
    const double d = t * w.re + w.im;
    return {(times_ratio(z.re, t, w.re, w.im) + z.im) / d, (times_ratio(z.im, t, w.re, w.im) - z.re) / d};
}

// A complex number in the widest arithmetic: on x86 eleven bits more, and an exponent range that nothing here exceeds.
struct Wide {
    long double re, im;
};

Complex rounded(Wide z) { return {static_cast<double>(z.re), static_cast<double>(z.im)}; }

Wide operator*(Wide a, Wide b) { return {a.re * b.re - a.im * b.im, b.im * a.re + a.im * b.re}; }

Wide reciprocal(Wide z)
{
    if (std::isinf(z.re) || std::isinf(z.im)) return {0.0L, 0.0L};
    const long double d = z.re * z.re + z.im * z.im;
    return {z.re / d, -z.im / d};
}

// A first factor that is exactly zero rules the product, however large the second: sin 0 cosh y is 0 for every y.
long double ruled_by_zero(long double first, long double second)
{
    return first * (first == 0.0L ? std::copysign(1.0L, second) : second);
}

// sinh without cancellation at small y: t = e^|y| - 1 is formed as such.
long double sinh_of(long double y)
{
    const long double t = std::expm1(std::fabs(y));
    const long double fraction = std::isinf(t) ? 1.0L : t / (t + 1.0L);
    return std::copysign(0.5L * (fraction + t), y);
}

long double cosh_of(long double y)
{
    const long double e = std::exp(std::fabs(y));
    return 0.5L * (1.0L / e + e);
}

Wide exponential_of(Wide z)
{
    const long double size = std::exp(z.re);
    return {ruled_by_zero(std::cos(z.im), size), ruled_by_zero(std::sin(z.im), size)};
}

// x^2 + y^2 - 1 with all the digits that are left after the cancellation: the squares are exact, and the large parts meet
// before the small ones.
long double square_modulus_minus_one(Complex z)
{
    const double x = larger_part(z);
    const double y = std::min(std::fabs(z.re), std::fabs(z.im));
    const DoubleDouble x_squared = two_product(x, x);
    const DoubleDouble y_squared = two_product(y, y);
    const long double high = (x_squared.high - 1.0L) + y_squared.high;
    return high + (static_cast<long double>(x_squared.low) + y_squared.low);
}

// Near the unit circle log |z| comes from |z|^2 - 1, whose relative accuracy it keeps.
Wide logarithm_of(Complex z)
{
    constexpr double near_from = 0.5, near_to = 2.0;
    const long double x = z.re;
    const long double y = z.im;
    const double m = modulus(z);
    const bool near_one = m > near_from && m < near_to;
    const long double twice = near_one ? std::log1p(square_modulus_minus_one(z)) : std::log(x * x + y * y);
    return {0.5L * twice, std::atan2(y, x)};
}

} // namespace

Complex quotient(Complex z, Complex w)
{
    // Powers of two keep the intermediate results of Smith's formula inside the range; they are exact.
    constexpr double huge = 0x1p1021, smaller = 0x1p-3;
    constexpr double tiny = 0x1p-900, greater = 0x1p120;
    double back = 1.0;
    const double top = larger_part(z);
    const double bottom = larger_part(w);
    if (top > huge) {
        z = scaled(z, smaller);
        back /= smaller;
    } else if (top < tiny) {
        z = scaled(z, greater);
        back /= greater;
    }
    if (bottom > huge) {
        w = scaled(w, smaller);
        back *= smaller;
    } else if (bottom < tiny) {
        w = scaled(w, greater);
        back *= greater;
    }
    const Complex q = quotient_by_smith(z, w);
    return back == 1.0 ? q : scaled(q, back);
}

Complex square_root(Complex z)
{
    // The root of |Re z| + i Im z, whose parts do not cancel; the root of z has the same parts, perhaps in other places.
    const long double a = std::fabs(z.re);
    const long double b = z.im;
    const long double t = std::sqrt(0.5L * (std::sqrt(a * a + b * b) + a));
    const auto [large, small] = rounded({t, b != 0.0L ? b / (2.0L * t) : b});
    if (!(z.re < 0.0)) return {large, small};
    // The sign is that of the imaginary part: the small part may have underflowed.
    return z.im < 0.0 ? Complex{-small, -large} : Complex{small, large};
}

Complex logarithm(Complex z) { return rounded(logarithm_of(z)); }

Complex exponential(Complex z) { return rounded(exponential_of({z.re, z.im})); }

Complex power(Complex z, Integer n)
{
    Wide result{1.0L, 0.0L};
    Wide base{z.re, z.im};
    for (auto m = static_cast<std::uint64_t>(std::abs(static_cast<std::int64_t>(n))); m > 0; m /= 2) {
        if (m % 2 == 1) result = result * base;
        if (m > 1) base = base * base; // nobody needs the square after the last factor
    }
    if (n < 0) result = reciprocal(result);
    // Products of infinities end in NaN; the logarithm knows what they stand for.
    return std::isfinite(result.re) && std::isfinite(result.im) ? rounded(result) : power(z, static_cast<double>(n));
}

Complex power(Complex z, double r)
{
    const Wide l = logarithm_of(z);
    return rounded(exponential_of({r * l.re, r * l.im}));
}

Complex power(Complex z, Complex w) { return rounded(exponential_of(Wide{w.re, w.im} * logarithm_of(z))); }

Complex sine(Complex z)
{
    const long double x = z.re;
    return rounded({ruled_by_zero(std::sin(x), cosh_of(z.im)), std::cos(x) * sinh_of(z.im)});
}

Complex cosine(Complex z)
{
    const long double x = z.re;
    return rounded({std::cos(x) * cosh_of(z.im), ruled_by_zero(-std::sin(x), sinh_of(z.im))});
}

// d = cos 2x + cosh 2y = 2 (cos^2 x + sinh^2 y): the second form does not cancel near the poles.
Complex tangent(Complex z)
{
    constexpr double far = 5000.0; // beyond it the result is that of the limit, and cosh^2 nears the end of the range
    const long double x = z.re;
    const long double sin_cos = std::sin(x) * std::cos(x);
    if (std::fabs(z.im) > far) return {std::copysign(0.0, static_cast<double>(sin_cos)), std::copysign(1.0, z.im)};
    const long double sinh_y = sinh_of(z.im);
    const long double d = std::cos(x) * std::cos(x) + sinh_y * sinh_y;
    return rounded({sin_cos / d, sinh_y * cosh_of(z.im) / d});
}

} // namespace kor
