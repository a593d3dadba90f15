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

#include "frame/dispatch.hpp"
#include "special/carlson_tables.hpp"
#include "special/elementary.hpp"
#include "special/lanes.hpp"

namespace kor::special {

namespace {

// Relative distances from the mean at which the series serve: of RF to the 15th order, of RD and RJ to the 11th.
constexpr double kNearForRf = 0.1, kNearForRj = 0.05;
constexpr int kMaxSteps = 600; // a step takes two binades of at most 2100 between the arguments

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

constexpr DoubleDouble kThird{0x1.5555555555555p-2, 0x1.5555555555555p-56};
constexpr DoubleDouble kFifth{0x1.999999999999ap-3, -0x1.999999999999ap-57};

// Sums and products whose low part may be a few units of the high part's last place: it goes no further than this file.
KOR_INLINE DoubleDouble loose_sum(DoubleDouble x, DoubleDouble y)
{
    const DoubleDouble sum = two_sum(x.hi, y.hi);
    return {sum.hi, sum.lo + (x.lo + y.lo)};
}

KOR_INLINE DoubleDouble loose_product(DoubleDouble x, DoubleDouble y)
{
    const DoubleDouble product = two_product(x.hi, y.hi);
    return {product.hi, product.lo + (x.hi * y.lo + x.lo * y.hi)};
}

// numerator / sqrt(radicand): one root and one division, corrected by what both leave.
KOR_INLINE DoubleDouble over_root(DoubleDouble numerator, DoubleDouble radicand)
{
    const double root = std::sqrt(radicand.hi), reciprocal = 1.0 / root;
    const DoubleDouble square = two_square(root);
    const double root_lacks = (((radicand.hi - square.hi) - square.lo) + radicand.lo) * (0.5 * reciprocal);
    const double quotient = numerator.hi * reciprocal;
    const DoubleDouble product = two_product(quotient, root);
    const double left = ((numerator.hi - product.hi) - product.lo) + (numerator.lo - quotient * root_lacks);
    return {quotient, left * reciprocal};
}

KOR_INLINE double distance(DoubleDouble mean, double w) { return (mean.hi - w) + mean.lo; }

// lambda, from the roots of the arguments.
KOR_INLINE DoubleDouble sum_of_products(const ExtendedLanes &roots)
{
    const ExtendedLanes products = neighbour_products(roots);
    return loose_sum(loose_sum(products[0], products[1]), products[2]);
}

// Polynomials in e2, one for each power of e3.
template <class Table, class T, std::size_t Power = 0>
KOR_INLINE T in_two_variables(const Table &table, T e2, T e3)
{
    const T sum{polynomial(std::get<Power>(table), e2)};
    if constexpr (Power + 1 < std::tuple_size_v<Table>)
        return sum + e3 * in_two_variables<Table, T, Power + 1>(table, e2, e3);
    else
        return sum;
}

// The series about equal arguments, less their constant terms 1.
template <class T>
KOR_INLINE T rf_series(T e2, T e3)
{
    return in_two_variables(tables::kRfSeries, e2, e3);
}

template <class T>
KOR_INLINE T rj_series(T e2, T e3, T e4, T e5)
{
    using namespace tables;
    return in_two_variables(kRjSeries, e2, e3) +
           e4 * (in_two_variables(kRjSeries4, e2, e3) + e4 * in_two_variables(kRjSeries44, e2, e3)) +
           e5 * (in_two_variables(kRjSeries5, e2, e3) + e4 * in_two_variables(kRjSeries45, e2, e3) +
                 e5 * in_two_variables(kRjSeries55, e2, e3));
}

// scale (1 + series) mean^(-3/2)
KOR_INLINE DoubleDouble last_term(double scale, double series, DoubleDouble mean)
{
    return scale * (over_root({1.0, series}, mean) / mean);
}

// RC(r, 1), r > 0.
KOR_INLINE DoubleDouble rc_of_ratio(double r)
{
    constexpr double kPiecesUpTo = 1024.0;
    if (r < 0.5) return tables::kRcBelow({std::sqrt(r)});
    if (r < kPiecesUpTo) return tables::kRcAbove({r});
    const DoubleDouble less_one = sqrt(two_sum(r, -1.0));
    return extended_log(sqrt(DoubleDouble{r}) + less_one) / less_one;
}

} // namespace

DoubleDouble extended_rc(double x, double y)
{
    constexpr double kLogarithmFrom = 0x1p60;
    // RC(x/y, 1) / sqrt y, where a relative error of x/y counts a half at most.
    if (x / y < kLogarithmFrom) return over_root(rc_of_ratio(x / y), {y});
    // ln(4 x / y) / (2 sqrt x); the quotient may overflow.
    return (extended_log(x) - extended_log(y) + extended_log(4.0)).scaled(0.5) / sqrt(DoubleDouble{x});
}

double carlson_rc(double x, double y) { return extended_rc(x, y).rounded(); }

// sqrt(x / (x - y)) RC(x - y, -y), formed without the rounding of x - y.
double carlson_rc_principal(double x, double y)
{
    const DoubleDouble distance = two_sum(x, -y);
    return (sqrt(x / distance) * extended_rc(distance.hi, -y)).rounded();
}

KOR_CLONES double carlson_rf(double x, double y, double z)
{
    const DoubleDouble mean = (two_sum(x, y) + z) * kThird;
    const double far_x = distance(mean, x), far_y = distance(mean, y), far_z = distance(mean, z);
    const double farthest = std::max({std::fabs(far_x), std::fabs(far_y), std::fabs(far_z)});
    ExtendedLanes w{{x, y, z, mean.hi}, {0.0, 0.0, 0.0, mean.lo}};
    double scale = 1.0; // 4^-n
    for (int n = 0; n < kMaxSteps && farthest * scale >= kNearForRf * w.hi[3]; ++n) {
        w = quarter_of_sum(w, sum_of_products(sqrt(w)));
        scale *= 0.25;
    }
    const double per_mean = scale / w.hi[3];
    const double dx = far_x * per_mean, dy = far_y * per_mean, dz = -(dx + dy);
    const double series = rf_series(dx * dy - dz * dz, dx * dy * dz);
    return over_root({1.0, series}, w[3]).rounded();
}

KOR_CLONES double carlson_rd(double x, double y, double z)
{
    if (const double size = std::max({x, y, z}); size < kSmall || size > kLarge) {
        const auto [factor, power] = scaling(size);
        return carlson_rd(x * factor, y * factor, z * factor) * power * power * power;
    }
    const DoubleDouble mean = (two_sum(x, y) + two_sum(2.0 * z, z)) * kFifth;
    const double far_x = distance(mean, x), far_y = distance(mean, y), far_z = distance(mean, z);
    const double farthest = std::max({std::fabs(far_x), std::fabs(far_y), std::fabs(far_z)});
    ExtendedLanes w{{x, y, z, mean.hi}, {0.0, 0.0, 0.0, mean.lo}};
    DoubleDouble sum{0.0};
    double scale = 1.0, reciprocal_scale = 1.0; // 4^-n, 4^n
    for (int n = 0; n < kMaxSteps && farthest * scale >= kNearForRj * w.hi[3]; ++n) {
        const ExtendedLanes roots = sqrt(w);
        const DoubleDouble lambda = sum_of_products(roots), root_z = roots[2];
        // 4^-n / (sqrt z (z + lambda)): the denominator with its rounding errors, the quotient without its own.
        const DoubleDouble z_lambda = two_sum(lambda.hi, w.hi[2]);
        const DoubleDouble product = two_product(root_z.hi, z_lambda.hi);
        const double lacking = product.lo + root_z.hi * (z_lambda.lo + (lambda.lo + w.lo[2])) + root_z.lo * z_lambda.hi;
        const double quotient = scale / product.hi;
        const DoubleDouble next = two_sum(sum.hi, quotient);
        sum = {next.hi, sum.lo + (next.lo - lacking * (quotient * (quotient * reciprocal_scale)))};

        w = quarter_of_sum(w, lambda);
        scale *= 0.25;
        reciprocal_scale *= 4.0;
    }
    const double per_mean = scale / w.hi[3];
    const double dx = far_x * per_mean, dy = far_y * per_mean, dz = -(dx + dy) / 3.0;
    const double xy = dx * dy, zz = dz * dz;
    const double series = rj_series(xy - 6.0 * zz, (3.0 * xy - 8.0 * zz) * dz, 3.0 * (xy - zz) * zz, xy * zz * dz);
    return (3.0 * sum + last_term(scale, series, w[3])).rounded();
}

KOR_CLONES double carlson_rj(double x, double y, double z, double p)
{
    if (const double size = std::max({x, y, z, p}); size < kSmall || size > kLarge) {
        const auto [factor, power] = scaling(size);
        return carlson_rj(x * factor, y * factor, z * factor, p * factor) * power * power * power;
    }
    DoubleDouble mean = (two_sum(x, y) + two_sum(z, 2.0 * p)) * kFifth;
    const double far_x = distance(mean, x), far_y = distance(mean, y), far_z = distance(mean, z),
                 far_p = distance(mean, p);
    const double farthest = std::max({std::fabs(far_x), std::fabs(far_y), std::fabs(far_z), std::fabs(far_p)});
    ExtendedLanes w{{x, y, z, p}, {0.0, 0.0, 0.0, 0.0}};
    DoubleDouble total{0.0};
    double scale = 1.0; // 4^-n
    for (int n = 0; n < kMaxSteps && farthest * scale >= kNearForRj * mean.hi; ++n) {
        const ExtendedLanes roots = sqrt(w);
        const DoubleDouble lambda = sum_of_products(roots), root_p = roots[3];
        // With d = (sqrt p + sqrt x)(sqrt p + sqrt y)(sqrt p + sqrt z) and a = 2 sqrt p (p + lambda) the term RC(1, a/d) / d
        // is RC(d/a, 1) / sqrt(a d), which has no cancellation.
        const ExtendedLanes factors = sum(roots, root_p);
        const DoubleDouble d = loose_product(loose_product(factors[0], factors[1]), factors[2]);
        const DoubleDouble a = loose_product(root_p.scaled(2.0), loose_sum(lambda, w[3]));
        const double reciprocal = 1.0 / a.hi, ratio = d.hi * reciprocal;
        const DoubleDouble rc = rc_of_ratio(ratio + (d.lo - ratio * a.lo) * reciprocal);
        const DoubleDouble term = over_root(rc, loose_product(a, d)).scaled(scale);
        total = loose_sum(total, term);

        w = quarter_of_sum(w, lambda);
        mean = loose_sum(mean, lambda).scaled(0.25);
        scale *= 0.25;
    }
    const double per_mean = scale / mean.hi;
    const double dx = far_x * per_mean, dy = far_y * per_mean, dz = far_z * per_mean, dp = -0.5 * (dx + dy + dz);
    const double xyz = dx * dy * dz, pp = dp * dp;
    const double e2 = dx * dy + dx * dz + dy * dz - 3.0 * pp;
    const double e3 = xyz + 2.0 * e2 * dp + 4.0 * pp * dp;
    const double e4 = (2.0 * xyz + e2 * dp + 3.0 * pp * dp) * dp;
    return (6.0 * total + last_term(scale, rj_series(e2, e3, e4, xyz * pp), mean)).rounded();
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
    for (; n < kMaxSteps && farthest * scale >= kNearForRf * std::abs(mean); ++n) {
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
    for (; n < kMaxSteps && farthest * scale >= kNearForRj * std::abs(mean); ++n) {
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
