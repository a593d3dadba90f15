// Bessel, modified Bessel, Airy and Kelvin functions of fixed order: values, failures, and what is between them.
#include <kor/s17.h>
#include <kor/s18.h>
#include <kor/s19.h>

#include <gtest/gtest.h>

#include "support/expect_report.hpp"
#include "support/ulp.hpp"

namespace kor::testing {
namespace {

using Function = double (*)(double x, KorError *fail);

// Sizes of the oscillations where values next to zeros are not promised relative to themselves.
double bessel_amplitude(double x) { return std::fabs(x) < 66.0 ? 0.0 : std::sqrt(0.6366 / std::fabs(x)); }
double airy_amplitude(double x) { return x > -20.6 ? 0.0 : 0.564 * std::pow(-x, -0.25); }
double airy_slope_amplitude(double x) { return x > -20.6 ? 0.0 : 0.564 * std::pow(-x, 0.25); }
double kelvin_amplitude(double x) { return x < 16.0 ? 0.0 : 1.2533 * std::exp(-0.70711 * x) / std::sqrt(x); }
double none(double) { return 0.0; }

struct Value {
    const char *name;
    Function f;
    double x, value;
};

const Value kValues[] = {
#define BESSEL_VALUE(name, x, value) {#name, name, x, value},
#include "special/bessel_data.inc"
#undef BESSEL_VALUE
};

double (*amplitude_of(Function f))(double)
{
    if (f == s17acc || f == s17adc || f == s17aec || f == s17afc) return bessel_amplitude;
    if (f == s17agc || f == s17ahc) return airy_amplitude;
    if (f == s17ajc || f == s17akc) return airy_slope_amplitude;
    if (f == s19acc || f == s19adc) return kelvin_amplitude;
    return none;
}

// Half an ulp is the rounding of the reference; the functions promise 1 ulp, 1.5 at the very double next to a zero.
constexpr double kUlps = 1.5;

TEST(Bessel, ValuesOverTheWholeDomain)
{
    for (const Value &v : kValues) {
        Record fail;
        const double computed = v.f(v.x, &fail);
        const double size = amplitude_of(v.f)(v.x);
        const double error =
            size > std::fabs(v.value) ? ulps(size + (computed - v.value), size) : ulps(computed, v.value);
        EXPECT_LE(error, kUlps) << v.name << "(" << v.x << ") = " << computed << ", not " << v.value;
        EXPECT_SUCCESS(fail) << v.name;
    }
}

TEST(Bessel, ParityAndLimitsAtInfinity)
{
    for (const Function even : {s17aec, s18aec, s18cec, s19aac, s19abc})
        for (const double x : {0.0, 1e-200, 0.7, 13.1, 40.3}) EXPECT_EQ(even(-x, nullptr), even(x, nullptr));
    for (const Function odd : {s17afc, s18afc, s18cfc})
        for (const double x : {0.0, 5e-324, 1e-200, 0.7, 13.1, 440.3}) {
            EXPECT_EQ(odd(-x, nullptr), -odd(x, nullptr));
            EXPECT_TRUE(std::signbit(odd(-0.0, nullptr)));
        }
    const double infinity = std::numeric_limits<double>::infinity();
    for (const Function decaying : {s17agc, s17ajc, s18acc, s18adc, s18ccc, s18cdc, s18cec, s18cfc}) {
        Record fail;
        EXPECT_EQ(decaying(infinity, &fail), 0.0);
        EXPECT_SUCCESS(fail);
    }
    EXPECT_EQ(s18acc(std::nextafter(705.1, 800.0), nullptr), 0.0);
    EXPECT_EQ(s18adc(std::nextafter(705.1, 800.0), nullptr), 0.0);
}

TEST(Bessel, NotANumberPassesThroughWithoutASuccess)
{
    for (const Function f : {s17acc, s17adc, s17aec, s17afc, s17agc, s17ahc, s17ajc, s17akc, s18acc, s18adc,
                             s18aec, s18afc, s18ccc, s18cdc, s18cec, s18cfc, s19aac, s19abc, s19acc, s19adc}) {
        Record fail;
        fail.code = NE_INTERNAL_ERROR;
        EXPECT_TRUE(std::isnan(f(std::numeric_limits<double>::quiet_NaN(), &fail)));
        EXPECT_EQ(fail.code, NE_NOERROR);
        EXPECT_STREQ(fail.message, "");
    }
}

TEST(Bessel, ArgumentsBeyondALimit)
{
    struct Beyond {
        Function f;
        double x, value;
        const char *name, *limit;
    };
    const double up = 1.0 + 0x1p-52, infinity = std::numeric_limits<double>::infinity();
    const Beyond cases[] = {
        {s17acc, 1e16 * up, std::sqrt(0.6366197723675813 / (1e16 * up)), "x", "  1e+16"},
        {s17adc, infinity, 0.0, "x", "  1e+16"},
        {s17aec, -1e16 * up, std::sqrt(0.6366197723675813 / (1e16 * up)), "|x|", "  1e+16"},
        {s17afc, -2e16, std::sqrt(0.6366197723675813 / 2e16), "|x|", "  1e+16"},
        {s17agc, -5.6e10 * up, 0.0, "-x", "5.6e+10"},
        {s17ahc, -infinity, 0.0, "-x", "5.6e+10"},
        {s17ahc, 104.1 * up, s17ahc(104.1, nullptr), "x", "  104.1"},
        {s17ajc, -1.8e9 * up, 0.0, "-x", "1.8e+09"},
        {s17akc, -1.8e9 * up, 0.0, "-x", "1.8e+09"},
        {s17akc, infinity, s17akc(104.1, nullptr), "x", "  104.1"},
        {s18aec, -711.6 * up, 1.7e307, "|x|", "  711.6"},
        {s18afc, -711.6 * up, -1.7e307, "|x|", "  711.6"},
        {s19aac, -44.625, 0.0, "|x|", " 44.625"},
        {s19abc, 44.625, 0.0, "|x|", " 44.625"},
        {s19acc, 997.26 * up, 0.0, "x", " 997.26"},
        {s19adc, infinity, 0.0, "x", " 997.26"},
    };
    for (const Beyond &c : cases) {
        Record fail;
        EXPECT_DOUBLE_EQ(c.f(c.x, &fail), c.value) << c.x;
        EXPECT_REPORT(fail, NE_REAL_ARG_GT, c.name, c.limit, "x", c.x);
    }
}

TEST(Bessel, ArgumentsAtAndNextToThePole)
{
    for (const Function f : {s17acc, s17adc, s18acc, s18adc, s18ccc, s18cdc, s19acc, s19adc})
        for (const double x : {0.0, -0.0, -1.5, -std::numeric_limits<double>::infinity()}) {
            Record fail;
            EXPECT_EQ(f(x, &fail), 0.0);
            EXPECT_REPORT(fail, NE_REAL_ARG_LE, "x", "0.0", "x", x);
        }
    const double x = 2.22e-308;
    const struct {
        Function f;
        double value;
    } poles[] = {{s17adc, -2.0 / (3.141592653589793 * 2.23e-308)},
                 {s18adc, 4.4843049327354256e307},
                 {s18cdc, 4.4843049327354256e307}};
    for (const auto &[f, value] : poles) {
        Record fail;
        EXPECT_DOUBLE_EQ(f(x, &fail), value);
        EXPECT_REPORT(fail, NE_REAL_ARG_TOO_SMALL, x);
    }
}

} // namespace
} // namespace kor::testing
