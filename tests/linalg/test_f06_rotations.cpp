// Plane rotations: guarded division, the choice of one rotation over the whole range of doubles, and sequences of them,
// checked by forming the orthogonal matrix explicitly.
#include <cfloat>

#include "linalg/reference.hpp"

#include "support/ulp.hpp"

namespace kor::testing {
namespace {

constexpr double kInf = std::numeric_limits<double>::infinity();
constexpr double kH = 0x1p1022; // 1 / x02amc

TEST(GuardedDivision, Real)
{
    const struct {
        double a, b, quotient;
        bool fail;
    } cases[] = {
        {6.0, -3.0, -2.0, false},
        {0.0, 5.0, 0.0, false},
        {0.0, 0.0, 0.0, true},
        {-2.5, 0.0, -kH, true},
        {DBL_TRUE_MIN, 0.0, kH, true},
        // |b| < 1: overflow beyond h, in all four sign quadrants; h itself is no overflow
        {1e300, 1e-300, kH, true},
        {-1e300, 1e-300, -kH, true},
        {1e300, -1e-300, -kH, true},
        {-1e300, -1e-300, kH, true},
        {0x1p1000, 0x1p-22, kH, false},
        {0x1.0000000000001p1000, 0x1p-22, kH, true},
        {1.0, 0x1p-1074, kH, true},
        {DBL_TRUE_MIN, DBL_TRUE_MIN, 1.0, false},
        // |b| >= 1: large quotients are left alone, those below 1/h are 0
        {0x1p1023, 1.0, 0x1p1023, false},
        {DBL_MAX, -1.5, -DBL_MAX / 1.5, false},
        {1e-300, 1e300, 0.0, false},
        {-1e-300, 1e300, 0.0, false},
        {0x1p-22, 0x1p1000, 0x1p-1022, false},
        {0x1.fffffffffffffp-23, 0x1p1000, 0.0, false},
        {0x1p-1074, 1.0, 0.0, false},
        // |b| < 1 divides subnormal numbers
        {0x1p-1074, 0.5, 0x1p-1073, false},
        {kInf, 2.0, kInf, false},
        {kInf, 0.5, kH, true},
        {1.0, -kInf, 0.0, false},
        {kNan, 0.0, kNan, false},
        {1.0, kNan, kNan, false},
        {kInf, kInf, kNan, false},
    };
    for (const auto &c : cases) {
        Boolean fail = 7;
        EXPECT_EQ(ulps(f06blc(c.a, c.b, &fail), c.quotient), 0.0) << c.a << " / " << c.b;
        EXPECT_EQ(fail, c.fail) << c.a << " / " << c.b;
    }
}

TEST(GuardedDivision, ComplexOverAllExponents)
{
    Random random;
    for (int round = 0; round < 20000; ++round) {
        Complex a = random.number<Complex>(), b = random.number<Complex>();
        const auto spread = [&](double &part, double range) {
            part = std::ldexp(part, static_cast<int>(range * random.uniform()));
        };
        const double range = round % 2 == 0 ? 30 : 1020;
        spread(a.re, range), spread(a.im, range), spread(b.re, range), spread(b.im, range);
        if (round % 7 == 0) b.re = 0.0;
        if (round % 11 == 0) a.im = 0.0;

        Boolean fail = 7;
        const Z got = wide(f06clc(a, b, &fail)), exact = wide(a) / wide(b);
        const long double size = std::abs(exact);
        const bool small_divisor = std::abs(wide(b)) < 1.0L;
        if (small_divisor && size > kH * (1 + 1e-15L)) {
            ASSERT_TRUE(fail);
            ASSERT_LE(std::abs(got / Z{kH} - exact / size), 8 * kEps) << "the bound, in the direction of the quotient";
        } else if (!small_divisor && size < (1 - 1e-15L) / kH) {
            ASSERT_EQ(got, Z{});
            ASSERT_FALSE(fail);
        } else if (!(small_divisor && size > kH * (1 - 1e-15L)) && !(!small_divisor && size < (1 + 1e-15L) / kH)) {
            ASSERT_FALSE(fail);
            ASSERT_LE(std::abs(got - exact), 8 * kEps * size + 2 * DBL_TRUE_MIN) << round;
        }
    }
    Boolean fail;
    const Complex zero{}, z{3.0, -4.0};
    EXPECT_EQ(wide(f06clc(zero, z, &fail)), Z{});
    EXPECT_FALSE(fail);
    EXPECT_EQ(wide(f06clc(zero, zero, &fail)), Z{});
    EXPECT_TRUE(fail);
    EXPECT_LE(std::abs(wide(f06clc(z, zero, &fail)) - Z{0.6L * kH, -0.8L * kH}), 4 * kEps * kH);
    EXPECT_TRUE(fail);
    // |b| >= 1 though its parts are less: a quotient beyond the bound is left alone.
    const Complex large{0x1.8p1023, 0.0}, beyond_one{0.75, 0.75};
    EXPECT_LE(std::abs(wide(f06clc(large, beyond_one, &fail)) - wide(large) / wide(beyond_one)), 4 * kEps * 0x1.8p1023);
    EXPECT_FALSE(fail);
    EXPECT_TRUE(std::isnan(f06clc(z, Complex{kNan, 1.0}, &fail).re));
    EXPECT_FALSE(fail);
}

TEST(Lengths, OfPairsAndOfScaledSums)
{
    EXPECT_EQ(f06bnc(0.0, -3.5), 3.5);
    EXPECT_EQ(f06bnc(-3.5, 0.0), 3.5);
    EXPECT_EQ(f06bnc(3e300, -4e300), 5e300);
    EXPECT_EQ(f06bnc(3 * 0x1p-1070, 4 * 0x1p-1070), 5 * 0x1p-1070);
    EXPECT_EQ(f06bmc(3.0, 4.0), 6.0);
    EXPECT_EQ(f06bmc(0.0, 1.0), 0.0);
    EXPECT_EQ(f06bmc(0x1p1022, 1.0), kH);
    EXPECT_EQ(f06bmc(1e307, 1e4), kH);
    EXPECT_EQ(f06bmc(kInf, 1.0), kInf);
    EXPECT_TRUE(std::isnan(f06bmc(kNan, 1.0)) && std::isnan(f06bmc(1.0, kNan)));
}

// Tangents in every region, on either side of its borders.
const double kTangents[] = {0.0,   0x1p-1074, -1e-300, 1e-9,  1.0540e-8, -1.0542e-8, 1e-7,   0.3,
                            -0.75, 1.0,       12.7,    9.4e7, -9.5e7,    1e17,       -1e300, DBL_MAX};

TEST(Rotation, FromATangent)
{
    for (const double t : kTangents) {
        double c, s;
        f06bcc(t, &c, &s);
        const long double exact = 1.0L / std::sqrt(1.0L + static_cast<long double>(t) * t);
        EXPECT_LE(ulps(c, static_cast<double>(exact)), 2.0) << t;
        EXPECT_LE(ulps(s, static_cast<double>(exact * t)), 2.0) << t;
        for (const Z phase : {Z{1.0L, 0.0L}, Z{0.6L, -0.8L}}) {
            const Complex tz = narrowed<Complex>(phase * static_cast<long double>(t));
            Complex sz;
            f06ccc(tz, &c, &sz);
            const long double size = std::abs(wide(tz)), exact_c = 1.0L / std::sqrt(1.0L + size * size);
            EXPECT_LE(std::abs(c - exact_c), 6 * kEps * exact_c + DBL_TRUE_MIN) << t;
            EXPECT_LE(std::abs(wide(sz) - wide(tz) * exact_c), 6 * kEps * size * exact_c + DBL_TRUE_MIN) << t;
        }
    }
    double c, s;
    Complex sz;
    f06bcc(-kInf, &c, &s);
    EXPECT_EQ(c, 0.0);
    EXPECT_EQ(s, -1.0);
    f06bcc(kNan, &c, &s);
    EXPECT_TRUE(std::isnan(c) && std::isnan(s));
    f06ccc({1.5e308, -1.5e308}, &c, &sz); // |t| overflows
    EXPECT_LE(std::fabs(c - 1.0 / std::sqrt(2.0) / 1.5e308), 2 * DBL_TRUE_MIN);
    EXPECT_LE(std::abs(wide(sz) - Z{std::sqrt(0.5L), -std::sqrt(0.5L)}), 4 * kEps);
    f06ccc({0.0, kInf}, &c, &sz);
    EXPECT_EQ(c, 0.0);
    EXPECT_EQ(wide(sz), Z(0.0L, 1.0L));
}

TEST(Rotation, AnnihilatesTheSecondOfAPair)
{
    const double numbers[] = {0.0, 1.0, -3.7, 1e-300, -1e300, 0x1p-1074, 7e307, 2.2e-8};
    for (const double a : numbers)
        for (const double b : numbers) {
            const long double length = std::sqrt(static_cast<long double>(a) * a + static_cast<long double>(b) * b);
            const auto check = [&](double r, long double c, long double s, const char *what) {
                const long double tiny = 4 * DBL_TRUE_MIN;
                EXPECT_LE(std::abs(c * c + s * s - 1.0L), 8 * kEps) << what << " " << a << ", " << b;
                EXPECT_LE(std::abs(c * b - s * a), 8 * kEps * length + tiny) << what << " " << a << ", " << b;
                EXPECT_LE(std::abs(c * a + s * b - r), 8 * kEps * length + tiny) << what << " " << a << ", " << b;
            };
            double r = a, t = b, c, s;
            f06bac(&r, &t, &c, &s);
            check(r, c, s, "f06bac");
            if (b == 0.0) {
                EXPECT_TRUE(r == a && t == b && c == 1.0 && s == 0.0);
            } else {
                double c2, s2;
                f06bcc(t, &c2, &s2);
                EXPECT_TRUE(c2 == c && s2 == s) << "the tangent keeps the rotation";
            }

            r = a;
            double z = b;
            f06aac(&r, &z, &c, &s);
            if (length == 0.0) {
                EXPECT_TRUE(c == 1.0 && s == 0.0 && r == 0.0 && z == 0.0);
            } else {
                check(r, c, s, "f06aac");
                EXPECT_EQ(std::signbit(r), std::signbit(std::fabs(a) > std::fabs(b) ? a : b));
                const double expected = std::fabs(a) > std::fabs(b) ? s : c != 0.0 ? 1.0 / c : 1.0;
                EXPECT_LE(ulps(z, expected), 2.0) << a << ", " << b;
            }

            for (const Z turn : {Z{1.0L, 0.0L}, Z{0.8L, 0.6L}, Z{0.0L, -1.0L}}) {
                const Complex az{a, 0.25 * a}, bz = narrowed<Complex>(turn * static_cast<long double>(b));
                Complex rz = az, tz = bz, sz;
                f06cac(&rz, &tz, &c, &sz);
                const Z S = wide(sz);
                const long double size = std::hypot(std::abs(wide(az)), std::abs(wide(bz))), tiny = 8 * DBL_TRUE_MIN;
                EXPECT_LE(std::abs(c * static_cast<long double>(c) + std::norm(S) - 1.0L), 16 * kEps) << a << ", " << b;
                EXPECT_LE(std::abs(static_cast<long double>(c) * wide(bz) - S * wide(az)), 16 * kEps * size + tiny)
                    << a << ", " << b;
                EXPECT_LE(std::abs(static_cast<long double>(c) * wide(az) + std::conj(S) * wide(bz) - wide(rz)),
                          16 * kEps * size + tiny)
                    << a << ", " << b;
            }
        }
}

// ---- Sequences ----

struct Plane {
    Integer p, q; // rows from 0
    Integer k;    // which of c and s
};
std::vector<Plane> planes(Integer pivot, Integer direct, Integer k1, Integer k2)
{
    std::vector<Plane> all;
    for (Integer k = k1; k < k2; ++k)
        all.push_back(pivot == VariablePivot ? Plane{k - 1, k, k - 1}
                      : pivot == TopPivot    ? Plane{k1 - 1, k, k - 1}
                                             : Plane{k - 1, k2 - 1, k - 1});
    if (direct == BackwardSequence) std::reverse(all.begin(), all.end());
    return all;
}

// The product of the rotations of a sequence: the first acts first.
template <class S>
Dense orthogonal(Integer n, const std::vector<Plane> &sequence, const std::vector<double> &c, const std::vector<S> &s)
{
    Dense P = identity(n);
    for (const Plane &plane : sequence) {
        Dense one = identity(n);
        one(plane.p, plane.p) = one(plane.q, plane.q) = c[plane.k];
        one(plane.p, plane.q) = std::conj(wide(s[plane.k]));
        one(plane.q, plane.p) = -wide(s[plane.k]);
        P = one * P;
    }
    return P;
}
Dense adjoint(const Dense &a) { return op(ConjugateTranspose, a); }

constexpr double kFactor = 40.0; // eps of the Frobenius norm, for a dozen rotations

void expect_same(const Dense &got, const Dense &expected, const std::string &what)
{
    long double error = 0.0, size = 0.0;
    for (Integer i = 0; i < expected.m; ++i)
        for (Integer j = 0; j < expected.n; ++j) {
            error += std::norm(got(i, j) - expected(i, j));
            size += std::norm(expected(i, j));
        }
    ASSERT_LE(std::sqrt(error), kFactor * kEps * std::sqrt(size)) << what;
}

template <class S>
void random_rotations(Random &random, std::vector<double> &c, std::vector<S> &s)
{
    for (std::size_t k = 0; k < c.size(); ++k) {
        const double angle = 3.0 * random.uniform();
        c[k] = std::cos(angle);
        if constexpr (is_complex<S>) {
            const double phase = 3.0 * random.uniform();
            s[k] = {std::sin(angle) * std::cos(phase), std::sin(angle) * std::sin(phase)};
        } else {
            s[k] = std::sin(angle);
        }
    }
}

template <class S, class T, class Apply>
void expect_application(Apply apply)
{
    Random random;
    for (const auto &[m, n, k1, k2] :
         {std::tuple{5, 4, 1, 4}, {4, 6, 2, 4}, {7, 7, 3, 6}, {4, 4, 3, 3}, {5, 5, 4, 2}, {1, 1, 1, 1}})
        for (const Integer side : kSides)
            for (const Integer pivot : {VariablePivot, TopPivot, BottomPivot})
                for (const Integer direct : {ForwardSequence, BackwardSequence}) {
                    std::vector<double> c(8);
                    std::vector<S> s(8);
                    random_rotations(random, c, s);
                    const Integer tda = n + 2;
                    Stored<T> a = general<T>(m, n, tda, random);
                    const Dense P = orthogonal(side == LeftSide ? m : n, planes(pivot, direct, k1, k2), c, s);
                    const Dense expected = side == LeftSide ? P * a.dense() : a.dense() * adjoint(P);
                    apply(side, pivot, direct, m, n, k1, k2, c.data(), s.data(), a.data(), tda);
                    expect_same(a.dense(), expected, "apply");
                }
}

TEST(RotationSequence, AppliedToARectangle)
{
    expect_application<double, double>(f06qxc);
    expect_application<Complex, Complex>(f06txc);
    expect_application<double, Complex>(f06vxc);
}

template <class T, class Reduce>
void expect_reduction(Reduce reduce)
{
    Random random;
    for (const Integer n : {1, 2, 6})
        for (const Integer pivot : {VariablePivot, FixedPivot})
            for (const Integer direct : {ForwardSequence, BackwardSequence})
                for (const Integer incx : {1, -2}) {
                    T alpha = random.number<T>();
                    Stored<T> x = vector<T>(n, incx, random);
                    if (n > 2) x.array[column(n, incx)(1, 0)] = T{}; // a zero needs no rotation
                    const bool last = pivot == VariablePivot && direct == ForwardSequence;
                    Dense v{n + 1, 1};
                    for (Integer i = 0; i < n; ++i) v(last ? i : i + 1, 0) = x.dense()(i, 0);
                    v(last ? n : 0, 0) = wide(alpha);
                    std::vector<double> c(n);
                    std::vector<T> s(n);
                    reduce(pivot, direct, n, &alpha, x.data(), incx, c.data(), s.data());

                    const Integer kind = pivot == VariablePivot ? VariablePivot : TopPivot;
                    Dense expected{n + 1, 1};
                    expected(last ? n : 0, 0) = wide(alpha);
                    expect_same(orthogonal(n + 1, planes(kind, direct, 1, n + 1), c, s) * v, expected, "reduction");
                    const Dense t = x.dense();
                    for (Integer k = 0; k < n; ++k) {
                        // The tangent that is kept is that of the rotation as it was chosen, the target first.
                        const Z tangent = (last ? -std::conj(wide(s[k])) : wide(s[k])) / static_cast<long double>(c[k]);
                        EXPECT_LE(std::abs(t(k, 0) - tangent), 8 * kEps * std::abs(tangent));
                    }
                }
}

TEST(RotationSequence, ReducesAVectorToOneElement)
{
    expect_reduction<double>(f06fqc);
    expect_reduction<Complex>(f06hqc);
}

// Orders and ranges of the triangles; the strict lower triangle of the array is poison, and stays.
constexpr std::tuple<Integer, Integer, Integer> kRanges[] = {{1, 1, 1}, {2, 1, 2}, {6, 1, 6}, {6, 2, 5}, {7, 3, 7},
                                                             {7, 1, 4}, {5, 3, 3}, {5, 4, 2}, {0, 1, 0}};

template <class T>
Stored<T> upper(Integer n, Integer tda, Random &random)
{
    return {n, n, static_cast<std::size_t>(n) * tda, triangle(UpperTriangle, tda), random};
}
template <class T>
void expect_strict_lower_untouched(const Stored<T> &now, const std::vector<T> &before, Integer n, Integer tda)
{
    for (Integer i = 0; i < n; ++i)
        for (Integer j = 0; j < tda; ++j)
            if (j < i || j >= n) {
                ASSERT_EQ(std::memcmp(&now.array[i * tda + j], &before[i * tda + j], sizeof(T)), 0);
            }
}

template <class T, class Restore>
void expect_restored_from_the_other_side(Restore restore)
{
    Random random;
    for (const auto &[n, k1, k2] : kRanges)
        for (const Integer side : kSides) {
            const Integer tda = n + 2, direct = side == LeftSide ? ForwardSequence : BackwardSequence;
            std::vector<double> c(8);
            std::vector<T> s(8);
            random_rotations(random, c, s);
            Stored<T> u = upper<T>(n, tda, random);
            const Dense U = u.dense();
            const auto before = u.array;
            const auto sequence = planes(VariablePivot, direct, k1, k2);
            const Dense P = orthogonal(n, sequence, c, s);
            restore(side, n, k1, k2, c.data(), s.data(), u.data(), tda);
            const Dense Q = orthogonal(n, sequence, c, s);
            expect_same(u.dense(), side == LeftSide ? P * U * adjoint(Q) : Q * U * adjoint(P), "restored");
            expect_strict_lower_untouched(u, before, n, tda);
        }
}

TEST(RotationSequence, TriangleRestoredFromTheOtherSide)
{
    expect_restored_from_the_other_side<double>(f06qtc);
    expect_restored_from_the_other_side<Complex>(f06ttc);
}

// What a sequence leaves below the diagonal, in s: a subdiagonal, a spike in row k2, a spike in column k1.
enum class Shape { hessenberg, row_spike, column_spike };
void put_below(Dense &a, Shape shape, Integer k1, Integer k2, const std::vector<double> &s)
{
    for (Integer k = k1; k < k2; ++k) {
        if (shape == Shape::hessenberg) a(k, k - 1) = s[k - 1];
        if (shape == Shape::row_spike) a(k2 - 1, k - 1) = s[k - 1];
        if (shape == Shape::column_spike) a(k, k1 - 1) = s[k - 1];
    }
}

struct Family {
    const char *name;
    decltype(&f06qrc) restore;
    decltype(&f06qvc) make;
    Shape left_shape, right_shape;
    Integer left_pivot, right_pivot;
};
const Family kFamilies[] = {
    {"Hessenberg", f06qrc, f06qvc, Shape::hessenberg, Shape::hessenberg, VariablePivot, VariablePivot},
    {"spike", f06qsc, f06qwc, Shape::row_spike, Shape::column_spike, BottomPivot, TopPivot},
};

TEST(RotationSequence, FilledAndRestoredTriangles)
{
    Random random;
    for (const Family &family : kFamilies)
        for (const auto &[n, k1, k2] : kRanges)
            for (const Integer side : kSides) {
                const bool left = side == LeftSide;
                const Shape shape = left ? family.left_shape : family.right_shape;
                const Integer pivot = left ? family.left_pivot : family.right_pivot, tda = n + 1;
                const auto forwards = planes(pivot, ForwardSequence, k1, k2),
                           backwards = planes(pivot, BackwardSequence, k1, k2);

                // Made: backward from the left, forward from the right.
                Stored<double> u = upper<double>(n, tda, random);
                std::vector<double> c(8), s(8);
                random_rotations(random, c, s);
                const Dense U = u.dense(), P = orthogonal(n, left ? backwards : forwards, c, s);
                const auto before = u.array, cosines = c;
                family.make(side, n, k1, k2, c.data(), s.data(), u.data(), tda);
                Dense made = u.dense();
                put_below(made, shape, k1, k2, s);
                expect_same(made, left ? P * U : U * adjoint(P), std::string{family.name} + " made");
                EXPECT_EQ(c, cosines);
                expect_strict_lower_untouched(u, before, n, tda);

                // Restored, in the opposite order; a zero below the diagonal needs no rotation.
                if (k2 - k1 > 2) s[k1] = 0.0;
                made = u.dense();
                put_below(made, shape, k1, k2, s);
                family.restore(side, n, k1, k2, c.data(), s.data(), u.data(), tda);
                const Dense R = orthogonal(n, left ? forwards : backwards, c, s);
                expect_same(u.dense(), left ? R * made : made * adjoint(R), std::string{family.name} + " restored");
                expect_strict_lower_untouched(u, before, n, tda);
            }
}

TEST(RotationSequence, RowOrColumnMovedAndTriangleRestored)
{
    Random random;
    for (const auto &[n, k1, k2] : kRanges)
        for (const Integer side : kSides) {
            const Integer tda = n + 1;
            Stored<double> u = upper<double>(n, tda, random);
            const auto before = u.array;
            const Dense U = u.dense();
            std::vector<double> c(8, 1.0), s(8, 0.0);
            f06qnc(side, n, k1, k2, c.data(), s.data(), u.data(), tda);
            // Left: rows k2, k1, ..., k2-1. Right: columns k1+1, ..., k2, k1.
            Dense moved = U;
            for (Integer i = 0; i < n; ++i)
                for (Integer j = 0; j < n; ++j) {
                    const auto in_range = [&](Integer r) { return r >= k1 - 1 && r <= k2 - 1 && k1 < k2; };
                    if (side == LeftSide && in_range(i)) moved(i, j) = U(i == k1 - 1 ? k2 - 1 : i - 1, j);
                    if (side == RightSide && in_range(j)) moved(i, j) = U(i, j == k2 - 1 ? k1 - 1 : j + 1);
                }
            if (side == LeftSide)
                expect_same(u.dense(),
                            moved * adjoint(orthogonal(n, planes(VariablePivot, BackwardSequence, k1, k2), c, s)),
                            "moved row");
            else
                expect_same(u.dense(), orthogonal(n, planes(VariablePivot, ForwardSequence, k1, k2), c, s) * moved,
                            "moved column");
            expect_strict_lower_untouched(u, before, n, tda);
        }
}

TEST(RotationSequence, RowAddedToATriangle)
{
    Random random;
    for (const Integer n : {0, 1, 2, 6})
        for (const Integer incx : {1, -2})
            for (const double alpha : {0.0, 1.0, -0.7}) {
                const Integer tda = n + 1;
                Stored<double> u = upper<double>(n, tda, random), x = vector<double>(n, incx, random);
                const auto before = u.array;
                Dense stacked{n + 1, n}, expected{n + 1, n};
                for (Integer j = 0; j < n; ++j) {
                    for (Integer i = 0; i < n; ++i) stacked(i, j) = u.dense()(i, j);
                    stacked(n, j) = static_cast<long double>(alpha) * x.dense()(j, 0);
                }
                if (alpha == 0.0 && n > 0) poison(x.array[0]); // then x counts as zero, whatever it holds
                std::vector<double> c(n), s(n);
                f06qqc(n, alpha, x.data(), incx, u.data(), tda, c.data(), s.data());
                const Dense P = orthogonal(n + 1, planes(BottomPivot, ForwardSequence, 1, n + 1), c, s);
                for (Integer i = 0; i < n; ++i)
                    for (Integer j = 0; j < n; ++j) expected(i, j) = u.dense()(i, j);
                expect_same(P * stacked, expected, "row added");
                expect_strict_lower_untouched(u, before, n, tda);
            }
}

} // namespace
} // namespace kor::testing
