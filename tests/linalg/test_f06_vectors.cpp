// Operations on vectors: against element-by-element definitions, for increments of both signs and 0, lengths on either side
// of every change of method, and data at the ends of the range.
#include <algorithm>
#include <cfloat>

#include "linalg/reference.hpp"

#include "support/ulp.hpp"

namespace kor::testing {
namespace {

constexpr double kInf = std::numeric_limits<double>::infinity();
constexpr Integer kLengths[] = {-1, 0, 1, 2, 3, 8, 9, 20, 31, 32, 33, 100, 513, 2000};
constexpr Integer kIncrements[] = {1, -1, 2, -3, 0};

// A vector of the interface with room around it.
template <class T>
struct Vector {
    Vector(Integer n, Integer increment, Random &random) : length{n}, inc{increment}
    {
        array.resize(n > 0 ? static_cast<std::size_t>(n - 1) * std::abs(inc) + 1 : 1);
        for (T &a : array) {
            if constexpr (std::is_integral_v<T>)
                a = static_cast<T>(1000.0 * random.uniform());
            else
                a = random.number<T>();
        }
    }
    T &operator[](Integer i) { return array[static_cast<std::size_t>((i - (inc < 0 ? length - 1 : 0)) * inc)]; }
    T *data() { return array.data(); }

    Integer length, inc;
    std::vector<T> array;
};

double value_of(double a) { return a; }
std::complex<double> value_of(Complex a) { return {a.re, a.im}; }
Integer value_of(Integer a) { return a; }

// Runs `call` on two vectors and `define(x[i], y[i])`, element after element, on copies: every place must agree to `eps`.
template <class X, class Y, class Call, class Define>
void expect_elementwise(double eps, Call call, Define define)
{
    Random random;
    for (const Integer n : kLengths)
        for (const Integer incx : kIncrements)
            for (const Integer incy : kIncrements) {
                Vector<X> x{n, incx, random};
                Vector<Y> y{n, incy, random};
                Vector<X> u = x;
                Vector<Y> v = y;
                call(n, x.data(), incx, y.data(), incy);
                for (Integer i = 0; i < n; ++i) define(u[i], v[i]);
                const auto near = [&](auto a, auto b) {
                    return std::abs(value_of(a) - value_of(b)) <= eps * (1.0 + n * (incx == 0 || incy == 0));
                };
                ASSERT_TRUE(std::equal(x.array.begin(), x.array.end(), u.array.begin(), near))
                    << n << " " << incx << " " << incy;
                ASSERT_TRUE(std::equal(y.array.begin(), y.array.end(), v.array.begin(), near))
                    << n << " " << incx << " " << incy;
            }
}

template <class T>
Complex times(Complex a, T b)
{
    return narrowed<Complex>(wide(a) * wide(b));
}

TEST(Vectors, ElementwiseOperationsOnTwo)
{
    using C = Complex;
    const Complex z{0.48, -0.64}, w{-0.36, 0.48}; // |z| = 0.8, |w| = 0.6: a rotation
    const double c = 0.6, s = -0.8, tiny = 8 * kEps;
    expect_elementwise<double, double>(
        tiny, [](auto n, auto x, auto i, auto y, auto j) { f06ecc(n, 0.7, x, i, y, j); },
        [](double &x, double &y) { y += 0.7 * x; });
    expect_elementwise<double, double>(
        0, [](auto n, auto x, auto i, auto y, auto j) { f06efc(n, x, i, y, j); }, [](double &x, double &y) { y = x; });
    expect_elementwise<double, double>(
        0, [](auto n, auto x, auto i, auto y, auto j) { f06egc(n, x, i, y, j); },
        [](double &x, double &y) { std::swap(x, y); });
    for (const auto rotate : {f06epc, f06fpc})
        expect_elementwise<double, double>(
            tiny, [=](auto n, auto x, auto i, auto y, auto j) { rotate(n, x, i, y, j, c, s); },
            [=](double &x, double &y) {
                const double old = x;
                x = c * old + s * y;
                y = c * y - s * old;
            });
    for (const double sign : {1.0, -1.0})
        expect_elementwise<double, double>(
            0, [=](auto n, auto x, auto i, auto y, auto j) { f06fpc(n, x, i, y, j, 0.0, sign); },
            [=](double &x, double &y) {
                const double old = x;
                x = sign * y;
                y = -sign * old;
            });
    for (const double alpha : {0.0, 1.0, -1.0, 0.3})
        expect_elementwise<double, double>(
            tiny, [=](auto n, auto x, auto i, auto y, auto j) { f06fdc(n, alpha, x, i, y, j); },
            [=](double &x, double &y) { y = alpha * x; });
    expect_elementwise<double, double>(
        tiny, [](auto n, auto x, auto i, auto y, auto j) { f06fcc(n, x, i, y, j); },
        [](double &x, double &y) { y *= x; });
    expect_elementwise<double, C>(
        0, [](auto n, auto x, auto i, auto y, auto j) { f06kfc(n, x, i, y, j); },
        [](double &x, C &y) {
            y = {x, 0.0};
        });
    expect_elementwise<Integer, Integer>(
        0, [](auto n, auto x, auto i, auto y, auto j) { f06dfc(n, x, i, y, j); },
        [](Integer &x, Integer &y) { y = x; });
    expect_elementwise<C, C>(
        tiny, [=](auto n, auto x, auto i, auto y, auto j) { f06gcc(n, z, x, i, y, j); },
        [=](C &x, C &y) { y = narrowed<C>(wide(y) + wide(z) * wide(x)); });
    expect_elementwise<C, C>(
        0, [](auto n, auto x, auto i, auto y, auto j) { f06gfc(n, x, i, y, j); }, [](C &x, C &y) { y = x; });
    expect_elementwise<C, C>(
        0, [](auto n, auto x, auto i, auto y, auto j) { f06ggc(n, x, i, y, j); }, [](C &x, C &y) { std::swap(x, y); });
    expect_elementwise<C, C>(
        tiny, [=](auto n, auto x, auto i, auto y, auto j) { f06hpc(n, x, i, y, j, w, z); },
        [=](C &x, C &y) {
            const Z old = wide(x);
            x = narrowed<C>(wide(w) * old + wide(z) * wide(y));
            y = narrowed<C>(std::conj(wide(w)) * wide(y) - std::conj(wide(z)) * old);
        });
}

TEST(Vectors, ElementwiseOperationsOnOne)
{
    using C = Complex;
    const C z{0.3, -0.8};
    const double tiny = 8 * kEps;
    const auto one = [](auto call) { return [=](auto n, auto x, auto i, auto, auto) { call(n, x, i); }; };
    expect_elementwise<double, double>(tiny, one([](auto n, auto x, auto i) { f06edc(n, 0.7, x, i); }),
                                       [](double &x, double &) { x *= 0.7; });
    expect_elementwise<C, double>(tiny, one([=](auto n, auto x, auto i) { f06gdc(n, z, x, i); }),
                                  [=](C &x, double &) { x = times(x, z); });
    expect_elementwise<C, double>(tiny, one([](auto n, auto x, auto i) { f06jdc(n, 0.7, x, i); }),
                                  [](C &x, double &) { x = times(x, 0.7); });
    expect_elementwise<double, double>(0, one([](auto n, auto x, auto i) { f06fgc(n, x, i); }),
                                       [](double &x, double &) { x = -x; });
    expect_elementwise<C, double>(0, one([](auto n, auto x, auto i) { f06hgc(n, x, i); }), [](C &x, double &) {
        x = {-x.re, -x.im};
    });
    expect_elementwise<double, double>(0, one([](auto n, auto x, auto i) { f06fbc(n, 0.7, x, i); }),
                                       [](double &x, double &) { x = 0.7; });
    expect_elementwise<C, double>(0, one([=](auto n, auto x, auto i) { f06hbc(n, z, x, i); }),
                                  [=](C &x, double &) { x = z; });
    expect_elementwise<Integer, double>(0, one([](auto n, auto x, auto i) { f06dbc(n, 7, x, i); }),
                                        [](Integer &x, double &) { x = 7; });
}

TEST(Vectors, ZeroFactorsHideNothingThatAProductShows)
{
    for (const Integer n : {3, 40}) {
        std::vector<double> x(n, 1.0), y(n, 2.0);
        std::vector<Complex> z(n, Complex{1.0, 1.0});
        x[1] = kNan;
        x[2] = kInf;
        z[1].im = kNan;
        f06ecc(n, 0.0, x.data(), 1, y.data(), 1);
        EXPECT_EQ(y[1], 2.0) << "alpha = 0: y is left alone";
        f06fdc(n, 0.0, x.data(), 1, y.data(), 1);
        EXPECT_EQ(y[1], 0.0) << "alpha = 0: y is cleared";
        f06edc(n, 0.0, x.data(), 1);
        EXPECT_EQ(x[0], 0.0);
        EXPECT_TRUE(std::isnan(x[1]) && std::isnan(x[2]));
        f06jdc(n, 0.0, z.data(), 1);
        EXPECT_TRUE(std::isnan(z[1].im) && z[1].re == 0.0);
        z[2].re = kInf;
        f06gdc(n, Complex{0.0, 0.0}, z.data(), 1);
        EXPECT_TRUE(std::isnan(z[2].re));
    }
}

TEST(Vectors, SumsAndProducts)
{
    Random random;
    for (const Integer n : kLengths)
        for (const Integer incx : kIncrements)
            for (const Integer incy : kIncrements) {
                Vector<double> x{n, incx, random}, y{n, incy, random};
                Vector<Complex> u{n, incx, random}, v{n, incy, random};
                long double product = 0, size = 0, sum = 0, sum_z = 0;
                Z product_z = 0;
                for (Integer i = 0; i < n; ++i) {
                    product += static_cast<long double>(x[i]) * y[i];
                    size += std::fabs(x[i] * y[i]) + std::abs(wide(u[i]) * wide(v[i]));
                    sum += std::fabs(x[i]);
                    sum_z += std::fabs(u[i].re) + std::fabs(u[i].im);
                    product_z += std::conj(wide(u[i])) * wide(v[i]);
                }
                const long double bound = (n + 2) * kEps;
                ASSERT_LE(std::abs(f06eac(n, x.data(), incx, y.data(), incy) - product), bound * size);
                ASSERT_LE(std::abs(wide(f06gbc(n, u.data(), incx, v.data(), incy)) - product_z), 2 * bound * size);
                ASSERT_LE(std::abs(f06ekc(n, x.data(), incx) - sum), bound * sum);
                ASSERT_LE(std::abs(f06jkc(n, u.data(), incx) - sum_z), 2 * bound * sum_z);
            }
}

// Scales at which squares overflow, underflow, become subnormal, or do neither.
constexpr double kScales[] = {1.0, 1e160, 1e-170, 1e307 / 4, 0x1p-1060, 3.7e-150};

TEST(Norms, WithinAnUlpOverTheWholeRange)
{
    Random random;
    double worst = 0.0;
    for (const double scale : kScales)
        for (const Integer n : {1, 2, 3, 8, 9, 100, 600, 20000})
            for (const Integer inc : {1, -1, 3}) {
                if (scale > 1e306 && n > 100) continue; // the norm itself would overflow
                Vector<double> x{n, inc, random};
                Vector<Complex> z{n, inc, random};
                long double sum = 0, sum_z = 0;
                for (Integer i = 0; i < n; ++i) {
                    x[i] *= scale * (n > 100 ? 1e-3 : 0.1);
                    z[i].re *= scale * (n > 100 ? 1e-3 : 0.1);
                    z[i].im *= scale * (n > 100 ? 1e-3 : 0.1);
                    const long double re = z[i].re, im = z[i].im, a = x[i];
                    sum += a * a; // the exponent of long double has room for all these squares
                    sum_z += re * re + im * im;
                }
                const double exact = static_cast<double>(std::sqrt(sum)),
                             exact_z = static_cast<double>(std::sqrt(sum_z));
                worst =
                    std::max({worst, ulps(f06ejc(n, x.data(), inc), exact), ulps(f06jjc(n, z.data(), inc), exact_z)});
                double s = 0.0, q = 1.0, sz = 0.0, qz = 1.0;
                f06fjc(n, x.data(), inc, &s, &q);
                f06kjc(n, z.data(), inc, &sz, &qz);
                if (f06bmc(s, q) < 4e307) {
                    ASSERT_LE(std::abs(f06bmc(s, q) - exact), 4 * kEps * exact + DBL_TRUE_MIN) << scale << ", n " << n;
                }
                ASSERT_LE(std::abs(f06bmc(sz, qz) - exact_z), 4 * kEps * exact_z + DBL_TRUE_MIN)
                    << scale << ", n " << n;
            }
    EXPECT_LE(worst, 1.0);
}

TEST(Norms, GradedAndSpecialData)
{
    std::vector<double> graded(640);
    for (std::size_t i = 0; i < graded.size(); ++i)
        graded[i] = std::ldexp(1.0, 320 - static_cast<int>(i)); // squares: 2^640 .. 2^-638
    EXPECT_LE(ulps(f06ejc(640, graded.data(), 1), 0x1.279a74590331cp320), 1.0) << "2^320 times the root of 4/3";
    for (const Integer n : {2, 3, 50}) {
        std::vector<double> x(n, 0.0);
        EXPECT_EQ(f06ejc(n, x.data(), 1), 0.0);
        x[n - 1] = -kInf;
        EXPECT_EQ(f06ejc(n, x.data(), 1), kInf);
        x[0] = kInf;
        EXPECT_EQ(f06ejc(n, x.data(), 1), kInf);
        double s = 0.0, q = 1.0;
        f06fjc(n, x.data(), 1, &s, &q);
        EXPECT_EQ(f06bmc(s, q), kInf);
        x[0] = kNan;
        EXPECT_TRUE(std::isnan(f06ejc(n, x.data(), 1)));
        s = 0.0, q = 1.0;
        f06fjc(n, x.data(), 1, &s, &q);
        EXPECT_TRUE(std::isnan(f06bmc(s, q)));
    }
    const double huge[] = {DBL_MAX, DBL_MAX}, least[] = {DBL_TRUE_MIN, 0.0};
    EXPECT_EQ(f06ejc(2, huge, 1), kInf);
    EXPECT_EQ(f06ejc(1, huge, 1), DBL_MAX);
    EXPECT_EQ(f06ejc(2, least, 1), DBL_TRUE_MIN);
    EXPECT_EQ(f06ejc(0, huge, 1), 0.0);
    EXPECT_EQ(f06bmc(DBL_MAX, 4.0), 0x1p1022) << "a product beyond the bound is the bound";
}

TEST(ScaledSquares, UpdateKeepsItsDefinition)
{
    // An update in two parts is that of the whole; scale is the greatest modulus, of the old one too.
    Random random;
    for (const Integer n : {1, 5, 8, 9, 40, 1000}) {
        Vector<double> x{n, 2, random};
        for (const double start : {0.0, 1e-3, 50.0}) {
            double scale = start, sumsq = 1.25, greatest = start;
            long double exact = static_cast<long double>(start) * start * 1.25L;
            for (Integer i = 0; i < n; ++i) {
                exact += static_cast<long double>(x[i]) * x[i];
                greatest = std::max(greatest, std::fabs(x[i]));
            }
            f06fjc(n, x.data(), 2, &scale, &sumsq);
            EXPECT_EQ(scale, greatest);
            const long double got = static_cast<long double>(scale) * scale * sumsq;
            // The start with scale 0 has sumsq 1 by convention; its value does not count then.
            if (start == 0.0) {
                EXPECT_LE(std::abs(got - exact), 8 * kEps * exact);
            } else {
                EXPECT_LE(std::abs(got - exact), 8 * kEps * exact) << n << " " << start;
            }
        }
    }
    double scale = 0.0, sumsq = 1.0;
    const double zeros[20] = {};
    f06fjc(20, zeros, 1, &scale, &sumsq);
    EXPECT_EQ(scale, 0.0);
    EXPECT_EQ(sumsq, 1.0);
}

TEST(Greatest, FirstOfEqualsCountedFromOneInWalkingOrder)
{
    EXPECT_EQ(f06jlc(0, nullptr, 1), 0);
    EXPECT_EQ(f06jmc(0, nullptr, 1), 0);
    Random random;
    for (const Integer n : {1, 2, 8, 9, 33, 64, 600}) // 64: both of the tie in lanes
        for (const Integer inc : {1, -1, 2, -3}) {
            Vector<double> x{n, inc, random};
            Vector<Complex> z{n, inc, random};
            x[n / 2] = -5.0;
            x[n - 1] = 5.0; // a tie: the first counts
            z[n / 3] = {3.0, -4.0};
            z[n - 1] = {-5.0, 2.0};
            EXPECT_EQ(f06jlc(n, x.data(), inc), n / 2 + 1) << n << ", inc " << inc;
            EXPECT_EQ(f06jmc(n, z.data(), inc), n / 3 + 1) << n << ", inc " << inc;
            double most, least;
            f06flc(n, x.data(), inc, &most, &least);
            EXPECT_EQ(most, 5.0);
            double smallest = 5.0;
            for (Integer i = 0; i < n; ++i) smallest = std::min(smallest, std::fabs(x[i]));
            EXPECT_EQ(least, smallest);

            // NaN: in front the greatest, elsewhere passed over; all of them: an index in range.
            if (n > 2) {
                x[1] = kNan;
                EXPECT_EQ(f06jlc(n, x.data(), inc), (n == 2 ? 2 : n / 2 == 1 ? n : n / 2 + 1)) << n << ", inc " << inc;
            }
            x[0] = kNan;
            EXPECT_EQ(f06jlc(n, x.data(), inc), 1);
            f06flc(n, x.data(), inc, &most, &least);
            EXPECT_TRUE(std::isnan(most) && std::isnan(least));
            std::fill(x.array.begin(), x.array.end(), kNan);
            EXPECT_EQ(f06jlc(n, x.data(), inc), 1);
        }
    double most = 9.0, least = 9.0;
    f06flc(0, nullptr, 1, &most, &least);
    EXPECT_EQ(most, 0.0);
    EXPECT_EQ(least, 0.0);
}

TEST(LeadingElements, CountStopsAtTheFirstThatIsNegligible)
{
    const double x[] = {4.0, -1.0, 2.0, 1e-3, 3.0, 0.0};
    EXPECT_EQ(f06klc(6, x, 1, 1e-2), 3);
    EXPECT_EQ(f06klc(6, x, 1, 1e-4), 5);
    EXPECT_EQ(f06klc(6, x, 1, -1.0), 5);
    EXPECT_EQ(f06klc(5, x, 1, 0.0), 5) << "no element falls";
    EXPECT_EQ(f06klc(6, x, 1, 0.25), 1) << "equality is negligible";
    EXPECT_EQ(f06klc(6, x, -1, 0.0), 0) << "a zero in front";
    EXPECT_EQ(f06klc(3, x, 2, 0.4), 3);
    EXPECT_EQ(f06klc(3, x, 2, 0.6), 1);
    EXPECT_EQ(f06klc(0, x, 1, 0.0), 0);
    EXPECT_EQ(f06klc(-3, x, 1, 0.0), 0);
    const double with_nan[] = {1.0, kNan, 1.0};
    EXPECT_EQ(f06klc(3, with_nan, 1, 0.1), 1);
    const double at_eps[] = {1.0, 1.2e-16, 1.1e-16};
    EXPECT_EQ(f06klc(3, at_eps, 1, -1.0), 2);
}

} // namespace
} // namespace kor::testing
