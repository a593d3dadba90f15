// Carlson's symmetric elliptic integrals, by duplication.
//
// A step replaces each argument w by (w + lambda)/4, lambda = sqrt(xy) + sqrt(xz) + sqrt(yz), which leaves RF as it is and
// brings the arguments four times closer to their mean; when they are close enough a Taylor series about equal arguments
// ends it. The roundings of a step go into the result in full, and there may be dozens of steps: so lambda, the mean and the
// arguments are carried with low parts. RC needs no steps: it is a function of x/y,
// tabulated. B. C. Carlson, Numer. Math. 33 (1979) 1-16; Numer. Algorithms 10 (1995) 13-26.
#include "special/carlson.hpp"

#include <algorithm>
#include <cmath>

#include "special/carlson_tables.hpp"
#include "special/elementary.hpp"

namespace kor::special {

namespace {

constexpr double kNearRf = 0.05;  // relative distances from the mean at which the series, to the 11th order, serves
constexpr double kNearRj = 0.012; // likewise, to the 7th order
constexpr int kMaxSteps = 600;    // a step takes two binades of at most 2100 between the arguments

// A square root and, to first order, what it lacks.
KOR_INLINE DoubleDouble root_of(DoubleDouble x)
{
    const double root = std::sqrt(x.hi);
    const DoubleDouble square = two_square(root);
    const double missing = ((x.hi - square.hi) - square.lo) + x.lo;
    return {root, root > 0.0 ? missing * (0.5 / root) : 0.0};
}

// The part of a step that all integrals share: roots and lambda of the present arguments.
struct Roots {
    DoubleDouble x, y, z, lambda;

    KOR_INLINE Roots(DoubleDouble x_, DoubleDouble y_, DoubleDouble z_)
        : x{root_of(x_)}, y{root_of(y_)}, z{root_of(z_)}, lambda{0.0}
    {
        const DoubleDouble xy = two_product(x.hi, y.hi), xz = two_product(x.hi, z.hi), yz = two_product(y.hi, z.hi);
        const DoubleDouble two = two_sum(xy.hi, xz.hi), three = two_sum(two.hi, yz.hi);
        const double slopes = x.lo * (y.hi + z.hi) + y.lo * (x.hi + z.hi) + z.lo * (x.hi + y.hi);
        lambda = {three.hi, (two.lo + three.lo) + (xy.lo + xz.lo + yz.lo) + slopes};
    }
    // An argument, or the mean, after the step.
    KOR_INLINE DoubleDouble step(DoubleDouble w) const
    {
        const DoubleDouble sum = two_sum(w.hi, lambda.hi);
        return {0.25 * sum.hi, 0.25 * (sum.lo + (w.lo + lambda.lo))};
    }
};

// RD and RJ, of degree -3/2, are scaled to keep their products in range: arguments by 4^k, the value by 2^3k.
constexpr double kSmall = 0x1p-200, kLarge = 0x1p200;

struct Scaling {
    double factor, power;
};

Scaling scaling(double size)
{
    const int k = -std::ilogb(size) / 2;
    return {std::ldexp(1.0, 2 * k), std::ldexp(1.0, k)};
}

// The series of RF less its constant term 1.
template <class T>
KOR_INLINE T rf_series(T e2, T e3)
{
    using namespace tables;
    const auto in_e2 = [&](const auto &c) {
        T sum{c.back()};
        for (std::size_t i = c.size() - 1; i-- > 0;) sum = sum * e2 + c[i];
        return sum;
    };
    return in_e2(kRfSeries0) + e3 * (in_e2(kRfSeries1) + e3 * (in_e2(kRfSeries2) + e3 * in_e2(kRfSeries3)));
}

// The series of RJ less its constant term 1.
template <class T>
KOR_INLINE T rj_series(T e2, T e3, T e4, T e5)
{
    return e2 * (-3.0 / 14 + e2 * (9.0 / 88 - e2 * (1.0 / 16)) + e3 * (-9.0 / 52 + e2 * (45.0 / 272)) +
                 e4 * (3.0 / 20)) +
           e3 * (1.0 / 6 + e3 * (3.0 / 40)) - e4 * (3.0 / 22) + e5 * (3.0 / 26) - (e3 * e4 + e2 * e5) * (9.0 / 68);
}

} // namespace

DoubleDouble extended_rc(double x, double y)
{
    constexpr double kPiecesUpTo = 1024.0;
    constexpr double kLogarithmFrom = 0x1p60;
    const double ratio = x / y;
    if (ratio > kLogarithmFrom) {
        // ln(4 x / y) / (2 sqrt x); the quotient may overflow.
        const DoubleDouble log_4 = extended_log(4.0);
        return (extended_log(x) - extended_log(y) + log_4).scaled(0.5) / sqrt(DoubleDouble{x});
    }
    const DoubleDouble root = sqrt(DoubleDouble{y});
    if (ratio < 0.5) return tables::kRcBelow({std::sqrt(ratio)}) / root;
    if (ratio < kPiecesUpTo) return tables::kRcAbove(two_quotient(x, y)) / root;
    const DoubleDouble r = two_quotient(x, y), less_one = sqrt(r - 1.0);
    return extended_log(sqrt(r) + less_one) / (less_one * root);
}

double carlson_rc(double x, double y) { return extended_rc(x, y).rounded(); }

// sqrt(x / (x - y)) RC(x - y, -y), formed without the rounding of x - y.
double carlson_rc_principal(double x, double y)
{
    const DoubleDouble distance = two_sum(x, -y);
    return (sqrt(x / distance) * extended_rc(distance.hi, -y)).rounded();
}

double carlson_rf(double x0, double y0, double z0)
{
    DoubleDouble x{x0}, y{y0}, z{z0};
    DoubleDouble mean = (two_sum(x0, y0) + z0) / 3.0;
    const double far_x = mean.hi - x0, far_y = mean.hi - y0, far_z = mean.hi - z0;
    const double farthest = std::max({std::fabs(far_x), std::fabs(far_y), std::fabs(far_z)});
    double scale = 1.0; // 4^-n
    for (int n = 0; n < kMaxSteps && farthest * scale >= kNearRf * mean.hi; ++n) {
        const Roots roots{x, y, z};
        x = roots.step(x);
        y = roots.step(y);
        z = roots.step(z);
        mean = roots.step(mean);
        scale *= 0.25;
    }
    const double per_mean = scale / mean.hi;
    const double dx = far_x * per_mean, dy = far_y * per_mean, dz = -(dx + dy);
    const double series = rf_series(dx * dy - dz * dz, dx * dy * dz);
    return (fast_two_sum(1.0, series) / sqrt(mean)).rounded();
}

double carlson_rd(double x0, double y0, double z0)
{
    if (const double size = std::max({x0, y0, z0}); size < kSmall || size > kLarge) {
        const auto [factor, power] = scaling(size);
        return carlson_rd(x0 * factor, y0 * factor, z0 * factor) * power * power * power;
    }
    DoubleDouble x{x0}, y{y0}, z{z0}, sum{0.0};
    DoubleDouble mean = (two_sum(x0, y0) + z * 3.0) / 5.0;
    const double far_x = mean.hi - x0, far_y = mean.hi - y0, far_z = mean.hi - z0;
    const double farthest = std::max({std::fabs(far_x), std::fabs(far_y), std::fabs(far_z)});
    double scale = 1.0; // 4^-n
    for (int n = 0; n < kMaxSteps && farthest * scale >= kNearRj * mean.hi; ++n) {
        const Roots roots{x, y, z};
        sum = sum + scale / (roots.z * (roots.lambda + z));
        x = roots.step(x);
        y = roots.step(y);
        z = roots.step(z);
        mean = roots.step(mean);
        scale *= 0.25;
    }
    const double per_mean = scale / mean.hi;
    const double dx = far_x * per_mean, dy = far_y * per_mean, dz = -(dx + dy) / 3.0;
    const double xy = dx * dy, zz = dz * dz;
    const double series = rj_series(xy - 6.0 * zz, (3.0 * xy - 8.0 * zz) * dz, 3.0 * (xy - zz) * zz, xy * zz * dz);
    const DoubleDouble tail = scale * (fast_two_sum(1.0, series) / (mean * sqrt(mean)));
    return (3.0 * sum + tail).rounded();
}

double carlson_rj(double x0, double y0, double z0, double p0)
{
    if (const double size = std::max({x0, y0, z0, p0}); size < kSmall || size > kLarge) {
        const auto [factor, power] = scaling(size);
        return carlson_rj(x0 * factor, y0 * factor, z0 * factor, p0 * factor) * power * power * power;
    }
    DoubleDouble x{x0}, y{y0}, z{z0}, p{p0}, sum{0.0};
    DoubleDouble mean = (two_sum(x0, y0) + z0 + p * 2.0) / 5.0;
    const double far_x = mean.hi - x0, far_y = mean.hi - y0, far_z = mean.hi - z0, far_p = mean.hi - p0;
    const double farthest = std::max({std::fabs(far_x), std::fabs(far_y), std::fabs(far_z), std::fabs(far_p)});
    double scale = 1.0; // 4^-n
    for (int n = 0; n < kMaxSteps && farthest * scale >= kNearRj * mean.hi; ++n) {
        const Roots roots{x, y, z};
        const DoubleDouble root_p = root_of(p);
        // d = (sqrt p + sqrt x)(sqrt p + sqrt y)(sqrt p + sqrt z) and 1 + e = 2 sqrt p (p + lambda) / d: no cancellation.
        const DoubleDouble d = (root_p + roots.x) * (root_p + roots.y) * (root_p + roots.z);
        const DoubleDouble one_plus_e = root_p.scaled(2.0) * (roots.lambda + p) / d;
        sum = sum + scale * (extended_rc(1.0, one_plus_e.hi) / d);
        x = roots.step(x);
        y = roots.step(y);
        z = roots.step(z);
        p = roots.step(p);
        mean = roots.step(mean);
        scale *= 0.25;
    }
    const double per_mean = scale / mean.hi;
    const double dx = far_x * per_mean, dy = far_y * per_mean, dz = far_z * per_mean, dp = -0.5 * (dx + dy + dz);
    const double xyz = dx * dy * dz, pp = dp * dp;
    const double e2 = dx * dy + dx * dz + dy * dz - 3.0 * pp;
    const double e3 = xyz + 2.0 * e2 * dp + 4.0 * pp * dp;
    const double e4 = (2.0 * xyz + e2 * dp + 3.0 * pp * dp) * dp;
    const DoubleDouble tail = scale * (fast_two_sum(1.0, rj_series(e2, e3, e4, xyz * pp)) / (mean * sqrt(mean)));
    return (6.0 * sum + tail).rounded();
}

// With x <= y <= z, p = -q and r = z - (z-x)(z-y)/(z+q):
// (q + z) RJ(x,y,z,-q) = (r - z) RJ(x,y,z,r) - 3 RF(x,y,z) + 3 sqrt(xyz/(xy+rq)) RC(xy+rq, rq).
double carlson_rj_principal(double x, double y, double z, double p)
{
    double sorted[] = {x, y, z};
    std::sort(sorted, sorted + 3);
    const auto [a, b, c] = sorted;
    const double q = -p;
    const double shift = (c - b) / (c + q) * (c - a), r = c - shift;
    const double rq = r * q, ab = a * b;
    const double last = a > 0.0 ? 3.0 * std::sqrt(ab / (ab + rq) * c) * carlson_rc(ab + rq, rq) : 0.0;
    return (last - (shift * carlson_rj(a, b, c, r) + 3.0 * carlson_rf(a, b, c))) / (q + c);
}

bool carlson_rf(Cplx x, Cplx y, Cplx z, Cplx &value)
{
    const Cplx first_mean = (x + y + z) / 3.0;
    const Cplx far_x = first_mean - x, far_y = first_mean - y;
    const double farthest = std::max({std::abs(far_x), std::abs(far_y), std::abs(first_mean - z)});
    Cplx mean = first_mean;
    double scale = 1.0;
    int n = 0;
    for (; n < kMaxSteps && farthest * scale >= kNearRf * std::abs(mean); ++n) {
        const Cplx rx = std::sqrt(x), ry = std::sqrt(y), rz = std::sqrt(z);
        const Cplx lambda = rx * ry + rz * (rx + ry);
        x = (x + lambda) * 0.25;
        y = (y + lambda) * 0.25;
        z = (z + lambda) * 0.25;
        mean = (mean + lambda) * 0.25;
        scale *= 0.25;
    }
    const Cplx dx = far_x * scale / mean, dy = far_y * scale / mean, dz = -(dx + dy);
    value = (1.0 + rf_series(dx * dy - dz * dz, dx * dy * dz)) / std::sqrt(mean);
    return n < kMaxSteps;
}

bool carlson_rd(Cplx x, Cplx y, Cplx z, Cplx &value)
{
    const Cplx first_mean = (x + y + 3.0 * z) / 5.0;
    const Cplx far_x = first_mean - x, far_y = first_mean - y;
    const double farthest = std::max({std::abs(far_x), std::abs(far_y), std::abs(first_mean - z)});
    Cplx mean = first_mean, sum{};
    double scale = 1.0;
    int n = 0;
    for (; n < kMaxSteps && farthest * scale >= kNearRj * std::abs(mean); ++n) {
        const Cplx rx = std::sqrt(x), ry = std::sqrt(y), rz = std::sqrt(z);
        const Cplx lambda = rx * ry + rz * (rx + ry);
        sum += scale / (rz * (z + lambda));
        x = (x + lambda) * 0.25;
        y = (y + lambda) * 0.25;
        z = (z + lambda) * 0.25;
        mean = (mean + lambda) * 0.25;
        scale *= 0.25;
    }
    const Cplx dx = far_x * scale / mean, dy = far_y * scale / mean, dz = -(dx + dy) / 3.0;
    const Cplx xy = dx * dy, zz = dz * dz;
    const Cplx series = rj_series(xy - 6.0 * zz, (3.0 * xy - 8.0 * zz) * dz, 3.0 * (xy - zz) * zz, xy * zz * dz);
    value = 3.0 * sum + scale * (1.0 + series) / (mean * std::sqrt(mean));
    return n < kMaxSteps;
}

} // namespace kor::special
