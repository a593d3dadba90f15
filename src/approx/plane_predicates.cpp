// On which side of a line, inside or outside a circle: signs that are right whatever the rounding errors.
//
// Each determinant is computed in double first; only when the result is less than the bound on its error, in the wider
// type, and in the end exactly, as an unevaluated sum of wide numbers. The idea and the bounds are those of J. R. Shewchuk,
// Discrete Comput. Geom. 18 (1997) 305-363. The range of exponents of the wide type leaves room for products of four
// coordinates, so that nothing overflows or underflows.
#include "approx/plane_predicates.hpp"

#include <cfloat>
#include <cmath>

namespace kor::approx {

namespace {

using Wide = long double;

constexpr double kUnit = DBL_EPSILON / 2;
constexpr Wide kWideUnit = LDBL_EPSILON / 2;
constexpr double kOrientationBound = (3.0 + 16.0 * kUnit) * kUnit;
constexpr double kCircleBound = (10.0 + 96.0 * kUnit) * kUnit;
constexpr Wide kWideCircleBound = (10.0L + 96.0L * kWideUnit) * kWideUnit;
// Sums of products below these may have lost digits to underflow.
constexpr double kOrientationFloor = 0x1p-960;
constexpr double kCircleFloor = 0x1p-900;

template <class Real>
int sign(Real x)
{
    return (x > 0) - (x < 0);
}

// high + low, exactly.
struct Pair {
    Wide high, low;
};

Pair two_sum(Wide a, Wide b)
{
    const Wide sum = a + b;
    const Wide b_part = sum - a;
    const Wide a_part = sum - b_part;
    return {sum, (a - a_part) + (b - b_part)};
}

Pair halves(Wide a)
{
    constexpr int bits = (LDBL_MANT_DIG + 1) / 2;
    constexpr Wide splitter = static_cast<Wide>(1ULL << bits) + 1.0L;
    const Wide c = splitter * a;
    const Wide high = c - (c - a);
    return {high, a - high};
}

Pair two_product(Wide a, Wide b)
{
    const Wide product = a * b;
    const Pair u = halves(a), v = halves(b);
    const Wide error = ((product - u.high * v.high) - u.low * v.high) - u.high * v.low;
    return {product, u.low * v.low - error};
}

// A sum of numbers that do not overlap, the least first, without zeros.
template <int capacity>
struct Expansion {
    int n = 0;
    Wide e[capacity];

    void add(Wide term)
    {
        int kept = 0;
        for (int i = 0; i < n; ++i) {
            const Pair s = two_sum(term, e[i]);
            if (s.low != 0) e[kept++] = s.low;
            term = s.high;
        }
        if (term != 0) e[kept++] = term;
        n = kept;
    }

    template <int others>
    void add(const Expansion<others> &other)
    {
        for (int i = 0; i < other.n; ++i) add(other.e[i]);
    }

    // Adds factor a b, where factor is 1 or -1.
    template <int na, int nb>
    void add_product(Wide factor, const Expansion<na> &a, const Expansion<nb> &b)
    {
        for (int i = 0; i < a.n; ++i)
            for (int j = 0; j < b.n; ++j) {
                const Pair p = two_product(factor * a.e[i], b.e[j]);
                add(p.low);
                add(p.high);
            }
    }

    int sign_of_sum() const { return n == 0 ? 0 : sign(e[n - 1]); }
};

using Difference = Expansion<2>;

Difference difference(double a, double b)
{
    Difference d;
    d.add(a);
    d.add(-static_cast<Wide>(b));
    return d;
}

int exact_orientation(const Point &a, const Point &b, const Point &c)
{
    const Difference ax = difference(a.x, c.x), ay = difference(a.y, c.y);
    const Difference bx = difference(b.x, c.x), by = difference(b.y, c.y);
    if (ax.n <= 1 && ay.n <= 1 && bx.n <= 1 && by.n <= 1) {
        // Rounding keeps the order: the products first, then what it has cut off.
        const auto only = [](const Difference &d) { return d.n == 0 ? 0.0L : d.e[0]; };
        const Pair left = two_product(only(ax), only(by)), right = two_product(only(ay), only(bx));
        return left.high != right.high ? sign(left.high - right.high) : sign(left.low - right.low);
    }
    Expansion<16> determinant;
    determinant.add_product(1.0L, ax, by);
    determinant.add_product(-1.0L, ay, bx);
    return determinant.sign_of_sum();
}

int exact_in_circle(const Point &a, const Point &b, const Point &c, const Point &d)
{
    struct Arm {
        Difference x, y;
        Expansion<16> square;
    };
    const auto arm = [&d](const Point &p) {
        Arm result{difference(p.x, d.x), difference(p.y, d.y), {}};
        result.square.add_product(1.0L, result.x, result.x);
        result.square.add_product(1.0L, result.y, result.y);
        return result;
    };
    const Arm arms[3] = {arm(a), arm(b), arm(c)};
    Expansion<1536> determinant;
    for (int i = 0; i < 3; ++i) {
        const Arm &next = arms[(i + 1) % 3], &after = arms[(i + 2) % 3];
        Expansion<16> minor;
        minor.add_product(1.0L, next.x, after.y);
        minor.add_product(-1.0L, after.x, next.y);
        determinant.add_product(1.0L, arms[i].square, minor);
    }
    return determinant.sign_of_sum();
}

// The determinant, and the sum of the moduli of its terms.
template <class Real>
struct Determinant {
    Real value, size;
};

template <class Real>
Determinant<Real> circle_determinant(const Point &a, const Point &b, const Point &c, const Point &d)
{
    const Real ax = Real{a.x} - d.x, ay = Real{a.y} - d.y;
    const Real bx = Real{b.x} - d.x, by = Real{b.y} - d.y;
    const Real cx = Real{c.x} - d.x, cy = Real{c.y} - d.y;
    const Real bc = bx * cy, cb = cx * by, ca = cx * ay, ac = ax * cy, ab = ax * by, ba = bx * ay;
    const Real a2 = ax * ax + ay * ay, b2 = bx * bx + by * by, c2 = cx * cx + cy * cy;
    return {a2 * (bc - cb) + b2 * (ca - ac) + c2 * (ab - ba), (std::fabs(bc) + std::fabs(cb)) * a2 +
                                                                  (std::fabs(ca) + std::fabs(ac)) * b2 +
                                                                  (std::fabs(ab) + std::fabs(ba)) * c2};
}

} // namespace

int orientation(const Point &a, const Point &b, const Point &c)
{
    const double left = (a.x - c.x) * (b.y - c.y), right = (a.y - c.y) * (b.x - c.x);
    const double determinant = left - right, size = std::fabs(left) + std::fabs(right);
    if (std::fabs(determinant) > kOrientationBound * size && size > kOrientationFloor && size <= DBL_MAX)
        return sign(determinant);
    return exact_orientation(a, b, c);
}

int in_circle(const Point &a, const Point &b, const Point &c, const Point &d)
{
    const auto quick = circle_determinant<double>(a, b, c, d);
    if (std::fabs(quick.value) > kCircleBound * quick.size && quick.size > kCircleFloor && quick.size <= DBL_MAX)
        return sign(quick.value);
    const auto wide = circle_determinant<Wide>(a, b, c, d);
    if (std::fabs(wide.value) > kWideCircleBound * wide.size) return sign(wide.value);
    return exact_in_circle(a, b, c, d);
}

} // namespace kor::approx
