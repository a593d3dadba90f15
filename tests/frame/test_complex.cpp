// The complex scalars beside mpmath, and the corners where they have a choice.
#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include <kor/a02.h>

#include "support/ulp.hpp"

namespace {

using kor::testing::ulps;

constexpr double kInf = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

// Modulus and argument are those of the C library.
constexpr double kLibrary = 1.0;

double worst_part(Complex computed, Complex exact)
{
    return std::fmax(ulps(computed.re, exact.re), ulps(computed.im, exact.im));
}

// Distance in units of 2^-53 of the modulus: what can be asked of products and powers, whose parts may cancel.
double distance(Complex computed, Complex exact)
{
    if (!std::isfinite(exact.re) || !std::isfinite(exact.im))
        return std::isfinite(computed.re) && std::isfinite(computed.im) ? kInf : 0.0;
    const double tiny = 0x1p-1022; // below it the spacing of doubles stays the same
    return std::hypot(computed.re - exact.re, computed.im - exact.im) /
           std::fmax(std::hypot(exact.re, exact.im), tiny) * 0x1p53;
}

struct Unary {
    const char *name;
    Complex (*routine)(Complex);
    Complex z, value;
};
struct Real {
    const char *name;
    double (*routine)(Complex);
    Complex z;
    double value;
};
struct Binary {
    const char *name;
    Complex (*routine)(Complex, Complex);
    Complex z1, z2, value;
};
struct IntegerPower {
    Complex z;
    Integer n;
    Complex value;
};
struct RealPower {
    Complex z;
    double r;
    Complex value;
};

// Each list takes its own lines out of the one file of reference values.
#define UNWRAPPED(...) __VA_ARGS__
#define UNARY(name, z, value) {#name, name, UNWRAPPED z, UNWRAPPED value},
#define REAL(name, z, value)
#define BINARY(name, z1, z2, value)
#define INTEGER_POWER(z, n, value)
#define REAL_POWER(z, r, value)
const Unary kUnary[] = {
#include "frame/complex_data.inc"
};
#undef UNARY
#define UNARY(name, z, value)
#undef REAL
#define REAL(name, z, value) {#name, name, UNWRAPPED z, value},
const Real kReal[] = {
#include "frame/complex_data.inc"
};
#undef REAL
#define REAL(name, z, value)
#undef BINARY
#define BINARY(name, z1, z2, value) {#name, name, UNWRAPPED z1, UNWRAPPED z2, UNWRAPPED value},
const Binary kBinary[] = {
#include "frame/complex_data.inc"
};
#undef BINARY
#define BINARY(name, z1, z2, value)
#undef INTEGER_POWER
#define INTEGER_POWER(z, n, value) {UNWRAPPED z, n, UNWRAPPED value},
const IntegerPower kIntegerPowers[] = {
#include "frame/complex_data.inc"
};
#undef INTEGER_POWER
#define INTEGER_POWER(z, n, value)
#undef REAL_POWER
#define REAL_POWER(z, r, value) {UNWRAPPED z, r, UNWRAPPED value},
const RealPower kRealPowers[] = {
#include "frame/complex_data.inc"
};

// Rounded once from extended precision: the nearest double, except where the exact value lies half-way to its neighbour.
TEST(Complex, ElementaryFunctionsRoundOnce)
{
    int neighbours = 0;
    for (const Unary &c : kUnary) {
        const double error = worst_part(c.routine(c.z), c.value);
        EXPECT_LE(error, 1.0) << c.name << " of " << c.z.re << ", " << c.z.im;
        neighbours += error > 0.0;
    }
    EXPECT_LE(neighbours, static_cast<int>(std::size(kUnary)) / 100);
}

TEST(Complex, ModulusAndArgument)
{
    for (const Real &c : kReal)
        EXPECT_LE(ulps(c.routine(c.z), c.value), kLibrary) << c.name << " of " << c.z.re << ", " << c.z.im;
    EXPECT_EQ(a02dbc({3e300, 4e300}), 5e300);
    EXPECT_EQ(a02dbc({0.0, 0.0}), 0.0);
    EXPECT_EQ(a02dbc({0.0, -7.0}), 7.0);
    EXPECT_EQ(a02dbc({1.7e308, 1.7e308}), kInf);
}

TEST(Complex, ProductsQuotientsAndPowers)
{
    constexpr double bound = 4.0; // three roundings in each part, two of them of whole terms
    for (const Binary &c : kBinary)
        EXPECT_LE(distance(c.routine(c.z1, c.z2), c.value), bound)
            << c.name << " of " << c.z1.re << ", " << c.z1.im << " and " << c.z2.re << ", " << c.z2.im;
    for (const IntegerPower &c : kIntegerPowers)
        EXPECT_LE(distance(a02ddc(c.z, c.n), c.value), 1.0 + std::fabs(c.n) / 1000.0)
            << c.z.re << ", " << c.z.im << " to " << c.n;
    for (const RealPower &c : kRealPowers)
        EXPECT_LE(distance(a02dec(c.z, c.r), c.value), 2.0) << c.z.re << ", " << c.z.im << " to " << c.r;
}

// The quotients that a careless formula loses to overflow and underflow: both parts count, not only the larger one.
TEST(Complex, HardQuotientsInBothParts)
{
    const auto expect = [](Complex z, Complex w, Complex value) {
        EXPECT_LE(worst_part(a02cdc(z, w), value), 3.0) << z.re << ", " << z.im << " over " << w.re << ", " << w.im;
    };
    expect({1.0, 1.0}, {1.0, 0x1p1023}, {0x1p-1023, -0x1p-1023});
    expect({1.0, 1.0}, {0x1p-1023, 0x1p-1023}, {0x1p1023, 0.0});
    expect({0x1p1023, 0x1p-1023}, {0x1p677, 0x1p-677}, {0x1p346, -0x1p-1008});
    expect({0x1p1023, 0x1p1023}, {1.0, 1.0}, {0x1p1023, 0.0});
    expect({0x1p1020, 0x1p-844}, {0x1p656, 0x1p-780}, {0x1p364, -0x1p-1072});
    expect({0x1p-71, 0x1p1021}, {0x1p1001, 0x1p-323}, {0x1p-1072, 0x1p20});
    expect({0x1p-347, 0x1p-54}, {0x1p-1037, 0x1p-1058}, {3.8981256045591133e289, 8.174961907852353577e295});
    expect({0x1p-1074, 0x1p-1074}, {0x1p-1073, 0x1p-1074}, {0.6, 0.2});
    expect({0x1p-622, 0x1p-1071}, {0x1p360, 0x1p-798}, {0x1p-982, 0.0});
    expect({0.0, 0x1p900}, {0x1p500, 0x1p-600}, {0x1p-700, 0x1p400});
}

TEST(Complex, PartsSumsAndComparisons)
{
    const Complex z = a02bac(1.5, -2.5);
    EXPECT_EQ(a02bbc(z), 1.5);
    EXPECT_EQ(a02bcc(z), -2.5);
    const Complex w{0.25, 8.0};
    const auto expect = [](Complex computed, double re, double im) {
        EXPECT_TRUE(computed.re == re && std::signbit(computed.re) == std::signbit(re)) << computed.re << " for " << re;
        EXPECT_TRUE(computed.im == im && std::signbit(computed.im) == std::signbit(im)) << computed.im << " for " << im;
    };
    expect(a02cac(z, w), 1.75, 5.5);
    expect(a02cbc(z, w), 1.25, -10.5);
    expect(a02cec({0.0, 2.5}), -0.0, -2.5);
    expect(a02cfc({1.5, 0.0}), 1.5, -0.0);
    expect(a02eic(z, -2.0), -3.0, 5.0);
    expect(a02ejc(z, -2.0), -3.0, 5.0); // the same operation under two names

    EXPECT_EQ(a02cgc(z, z), 1);
    EXPECT_EQ(a02cgc({0.0, 1.0}, {-0.0, 1.0}), 1);
    for (const Complex other : {Complex{1.5, 2.5}, Complex{-1.5, -2.5}, Complex{1.5, kNaN}}) {
        EXPECT_EQ(a02cgc(z, other), 0);
        EXPECT_EQ(a02chc(z, other), 1);
    }
    EXPECT_EQ(a02cgc({kNaN, 0.0}, {kNaN, 0.0}), 0);
    EXPECT_EQ(a02chc(z, z), 0);
}

// The root of the negative axis is +i sqrt|z| on both sides of the cut: for Im z = -0 the real part is that zero.
TEST(Complex, SquareRootOnItsCut)
{
    Complex root = a02dcc({-4.0, 0.0});
    EXPECT_TRUE(root.re == 0.0 && !std::signbit(root.re) && root.im == 2.0);
    root = a02dcc({-4.0, -0.0});
    EXPECT_TRUE(root.re == 0.0 && std::signbit(root.re) && root.im == 2.0);
    root = a02dcc({-4.0, -5e-324}); // just below the cut: the other branch, though the real part underflows
    EXPECT_TRUE(root.re == 0.0 && root.im == -2.0);
    root = a02dcc({0.0, 0.0});
    EXPECT_TRUE(root.re == 0.0 && root.im == 0.0);
}

TEST(Complex, PowersAtTheirLimits)
{
    for (const Complex z : {Complex{0.0, 0.0}, Complex{2.0, 3.0}, Complex{kInf, kNaN}}) {
        EXPECT_EQ(a02ddc(z, 0).re, 1.0);
        EXPECT_EQ(a02ddc(z, 0).im, 0.0);
    }
    constexpr Integer lowest = std::numeric_limits<Integer>::min();
    EXPECT_EQ(a02ddc({2.0, 0.0}, lowest).re, 0.0);
    EXPECT_EQ(a02ddc({-1.0, 0.0}, lowest).re, 1.0);
    EXPECT_EQ(a02ddc({0.0, 1.0}, -3).im, 1.0);
    EXPECT_EQ(a02ddc({2.0, 0.0}, 1023).re, 0x1p1023); // the square after the last one wanted would overflow
    EXPECT_EQ(a02ddc({kInf, 0.0}, -1).re, 0.0);
    EXPECT_EQ(a02ddc({2.0, 0.0}, -(lowest + 1)).re, kInf);
    EXPECT_EQ(a02ddc({30.0, 40.0}, -1000000).im, 0.0);
    EXPECT_EQ(a02ddc({1e200, 1e200}, -1).re, 5e-201);

    // Of zero the logarithm is minus infinity.
    EXPECT_EQ(a02dgc({0.0, 0.0}).re, -kInf);
    EXPECT_EQ(a02dec({0.0, 0.0}, 2.0).re, 0.0);
    EXPECT_TRUE(std::isnan(a02dfc({0.0, 0.0}, {0.0, 0.0}).re));
}

TEST(Complex, LogarithmNearTheUnitCircleKeepsItsRealPart)
{
    EXPECT_EQ(a02dgc({1.0, 0.0}).re, 0.0);
    EXPECT_EQ(a02dgc({1.0, 1e-100}).re, 5e-201);
    EXPECT_EQ(a02dgc({-1.0, 0.0}).im, std::acos(-1.0));
    EXPECT_EQ(a02dgc({-1.0, -0.0}).im, -std::acos(-1.0));
    EXPECT_LE(ulps(a02dgc({1.7e308, 1.7e308}).re, 710.0734104835083),
              1.0); // the modulus overflows, its logarithm does not
}

// Where one factor is exactly zero, the other may be as large as it likes.
TEST(Complex, ExponentialAndCircularFunctionsFarOut)
{
    EXPECT_EQ(a02dhc({800.0, 0.0}).re, kInf);
    EXPECT_EQ(a02dhc({800.0, 0.0}).im, 0.0);
    EXPECT_EQ(a02dhc({-800.0, 1.0}).re, 0.0);
    EXPECT_EQ(a02djc({0.0, 1e5}).re, 0.0);
    EXPECT_EQ(a02djc({0.0, 1e5}).im, kInf);
    EXPECT_EQ(a02djc({0.0, -kInf}).im, -kInf);
    EXPECT_EQ(a02dkc({0.0, 1e5}).re, kInf);
    EXPECT_EQ(a02dkc({0.0, 1e5}).im, 0.0);

    for (const double y : {5001.0, 1e300, kInf})
        for (const double x : {1.0, -1.0, 2.0}) {
            const Complex t = a02dlc({x, -y});
            EXPECT_TRUE(t.re == 0.0 && std::signbit(t.re) == (std::sin(2.0 * x) < 0.0)) << x << ", " << y;
            EXPECT_EQ(t.im, -1.0);
        }
    EXPECT_EQ(a02dlc({1.0, 4999.0}).im, 1.0);
    EXPECT_TRUE(std::isnan(a02dlc({kInf, 1.0}).re));
    EXPECT_TRUE(std::isnan(a02djc({1.0, kNaN}).re));
}

} // namespace
