// Functions of chapters s01 to s15 and s20 to s22: values over their domains, failures and their values, limits.
#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include <kor/s01.h>
#include <kor/s07.h>
#include <kor/s10.h>
#include <kor/s11.h>
#include <kor/s13.h>
#include <kor/s14.h>
#include <kor/s15.h>
#include <kor/s20.h>
#include <kor/s21.h>
#include <kor/s22.h>
#include <kor/x02.h>

#include "support/expect_report.hpp"
#include "support/ulp.hpp"

namespace kor::testing {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

// A routine with or without a record.
struct Function {
    double (*with_record)(double x, KorError *fail) = nullptr;
    double (*plain)(double x) = nullptr;
    Function(double (*f)(double, KorError *)) : with_record{f} {}
    Function(double (*f)(double)) : plain{f} {}
    double operator()(double x, KorError *fail) const { return plain != nullptr ? plain(x) : with_record(x, fail); }
};

// The routines promise 1 ulp of the true value (2 for the Fresnel integrals); the reference is rounded by half an ulp.
double allowed(const std::string &name) { return name[1] == '2' ? 2.5 : 1.5; }

TEST(SpecialFunctions, ValuesOverTheWholeDomain)
{
    const struct {
        const char *name;
        Function f;
        double x, value;
    } values[] = {
#define FUNCTION_VALUE(name, x, value) {#name, name, x, value},
#define CARLSON_VALUE(...)
#define INCOMPLETE_GAMMA(...)
#define POLYGAMMA(...)
#define THETA(...)
#define JACOBI(...)
#define ELLIPTIC(...)
#include "special/elementary_data.inc"
#undef FUNCTION_VALUE
    };
    for (const auto &v : values) {
        Record fail;
        const double computed = v.f(v.x, &fail);
        EXPECT_LE(ulps(computed, v.value), allowed(v.name))
            << v.name << "(" << v.x << ") = " << computed << ", not " << v.value;
        EXPECT_EQ(fail.code, NE_NOERROR) << v.name << " " << v.x;
    }
}

TEST(SpecialFunctions, CarlsonIntegrals)
{
    constexpr double kUlps = 2.5;
    Record fail;
#define FUNCTION_VALUE(...)
#undef CARLSON_VALUE
#define CARLSON_VALUE(x, y, z, r, rc, rf, rd, rj)                                                                      \
    EXPECT_LE(ulps(s21bac(x, y, &fail), rc), kUlps) << #x " " #y;                                                      \
    EXPECT_LE(ulps(s21bbc(x, y, z, &fail), rf), kUlps) << #x " " #y " " #z;                                            \
    EXPECT_LE(ulps(s21bcc(x, y, z, &fail), rd), kUlps) << #x " " #y " " #z;                                            \
    EXPECT_LE(ulps(s21bdc(x, y, z, r, &fail), rj), kUlps) << #x " " #y " " #z " " #r;
#include "special/elementary_data.inc"
#undef CARLSON_VALUE
#define CARLSON_VALUE(...)
}

TEST(SpecialFunctions, IncompleteGammaHasBothTails)
{
    Record fail;
    double p, q;
#undef INCOMPLETE_GAMMA
#define INCOMPLETE_GAMMA(a, x, exact_p, exact_q)                                                                       \
    s14bac(a, x, 0.0, &p, &q, &fail);                                                                                  \
    EXPECT_SUCCESS(fail);                                                                                              \
    EXPECT_NEAR(p / (exact_p), 1.0, 2e-15) << #a " " #x;                                                               \
    EXPECT_NEAR(q / (exact_q), 1.0, 2e-15) << #a " " #x;
#include "special/elementary_data.inc"
#undef INCOMPLETE_GAMMA
#define INCOMPLETE_GAMMA(...)
}

void expect_close(Complex computed, double re, double im, double relative, const char *what)
{
    EXPECT_LE(std::hypot(computed.re - re, computed.im - im), relative * std::hypot(re, im)) << what;
}

TEST(SpecialFunctions, ComplexArguments)
{
    constexpr double kRelative = 2e-15;
    Record fail;
    Complex sn, cn, dn;
#undef POLYGAMMA
#define POLYGAMMA(k, x, y, re, im) expect_close(s14afc({x, y}, k, &fail), re, im, kRelative, "psi " #k " " #x);
#undef JACOBI
#define JACOBI(x, y, m, s1, s2, c1, c2, d1, d2)                                                                        \
    s21cbc({x, y}, m, &sn, &cn, &dn, &fail);                                                                           \
    expect_close(sn, s1, s2, kRelative, "sn " #x);                                                                     \
    expect_close(cn, c1, c2, kRelative, "cn " #x);                                                                     \
    expect_close(dn, d1, d2, kRelative, "dn " #x);
#undef ELLIPTIC
#define ELLIPTIC(x, y, akp, re, im) expect_close(s21dac({x, y}, akp, &fail), re, im, kRelative, "elliptic " #x);
#undef THETA
#define THETA(k, x, q, value) EXPECT_NEAR(s21ccc(k, x, q, &fail) / (value), 1.0, kRelative) << #k " " #x " " #q;
#include "special/elementary_data.inc"
    EXPECT_SUCCESS(fail);
}

TEST(SpecialFunctions, DigammaOfRealArgument)
{
    Record fail;
    EXPECT_LE(ulps(s14aec(1.0, 0, &fail), -0.5772156649015329), 1.0);
    EXPECT_LE(ulps(s14aec(0.5, 1, &fail), 4.934802200544679), 1.0);
    s14aec(1.0, 7, &fail);
    EXPECT_REPORT(fail, NE_INT, "k", 7, "0 <= k <= 6");
    s14aec(-3.0, 0, &fail);
    EXPECT_REPORT(fail, NE_REAL, "x", -3.0, "x must not be too close to a non-positive integer");
}

TEST(SpecialFunctions, LegendreSequences)
{
    Record fail;
    double p[4] = {9.0, 9.0, 9.0, 9.0};
    s22aac(1, 0.5, 0, 3, p, &fail);
    EXPECT_SUCCESS(fail);
    EXPECT_EQ(p[3], -0.4375);
    s22aac(1, 0.6, 2, 3, p, &fail); // 3 (1 - x^2), 15 x (1 - x^2)
    EXPECT_EQ(p[1], 0.0);
    EXPECT_NEAR(p[2], 1.92, 1e-15);
    EXPECT_NEAR(p[3], 5.76, 4e-15);
    s22aac(2, 0.6, 0, 2, p, &fail);
    EXPECT_NEAR(p[2], std::sqrt(2.5) * 0.5 * (3.0 * 0.36 - 1.0), 1e-15);
    s22aac(3, 2.0, 40, -1, p, &fail);
    EXPECT_REPORT(fail, NE_INT, "mode", 3, "mode = 1 or 2");
    s22aac(1, 2.0, 40, -1, p, &fail);
    EXPECT_REPORT(fail, NE_REAL, "x", 2.0, "abs(x) <= 1.0");
    s22aac(1, 1.0, -28, -1, p, &fail);
    EXPECT_REPORT(fail, NE_INT, "m", -28, "abs(m) <= 27");
    s22aac(1, 1.0, -27, -1, p, &fail);
    EXPECT_REPORT(fail, NE_INT, "nl", -1, "nl >= 0");
    s22aac(1, 1.0, 0, 101, p, &fail);
    EXPECT_REPORT(fail, NE_INT, "nl", 101, "nl <= 100 when m = 0");
    s22aac(1, 1.0, -3, 53, p, &fail);
    EXPECT_REPORT(fail, NE_INT, "nl", 53, "nl <= 55 - ABS(m) when m != 0");
}

TEST(SpecialFunctions, FailuresGiveTheirValues)
{
    const struct {
        const char *name;
        double (*f)(double x, KorError *fail);
        double x;
        Integer code;
        double value;
    } failures[] = {
        {"s01bac", s01bac, -1.0, NE_REAL_ARG_LE, 0.0},
        {"s07aac", s07aac, 1.1e10, NE_REAL_ARG_GT, 0.0},
        {"s10abc", s10abc, -709.0, NE_REAL_ARG_GT, s10abc(-708.0, nullptr)},
        {"s10acc", s10acc, -kInfinity, NE_REAL_ARG_GT, s10acc(708.0, nullptr)},
        {"s11aac", s11aac, -1.0, NE_REAL_ARG_GE, 0.0},
        {"s11acc", s11acc, 0.999, NE_REAL_ARG_LT, 0.0},
        {"s13aac", s13aac, 0.0, NE_REAL_ARG_LE, 0.0},
        {"s13acc", s13acc, -1.0, NE_REAL_ARG_LE, 0.0},
        {"s14aac", s14aac, 171.0, NE_REAL_ARG_GT, 4.3e304},
        {"s14aac", s14aac, -171.0, NE_REAL_ARG_LT, 0.0},
        {"s14aac", s14aac, 0.0, NE_REAL_ARG_TOO_SMALL, 4.4843049327354256e307},
        {"s14aac", s14aac, -1e-310, NE_REAL_ARG_TOO_SMALL, -4.4843049327354256e307},
        {"s14aac", s14aac, -2.0, NE_REAL_ARG_NEG_INT, 4.3e304},
        {"s14abc", s14abc, 0.0, NE_REAL_ARG_LE, 0.0},
        {"s14abc", s14abc, 2.6e305, NE_REAL_ARG_GT, 1.79e308},
    };
    for (const auto &failure : failures) {
        Record fail;
        EXPECT_EQ(failure.f(failure.x, &fail), failure.value) << failure.name << " " << failure.x;
        EXPECT_EQ(fail.code, failure.code) << failure.name << " " << failure.x;
    }
    Record fail;
    s01bac(-1.5, &fail);
    EXPECT_REPORT(fail, NE_REAL_ARG_LE, "x", "-1.0", "x", -1.5);
    s14aac(171.5, &fail);
    EXPECT_REPORT(fail, NE_REAL_ARG_GT, "x", "  2e+02", "x", 171.5); // the limit by "%7.1g"
    EXPECT_GT(std::fabs(s07aac(1.5707963267948966, &fail)), 1e13);
    EXPECT_EQ(s21ccc(3, 2.0, 1.0, &fail), x02alc());
    EXPECT_REPORT(fail, NE_INFINITE);
    s21ccc(5, 0.0, 0.5, &fail);
    EXPECT_REPORT(fail, NE_INT, "k", 5, "0 <= k <= 4");
    s21bac(1.0, 0.0, &fail);
    EXPECT_REPORT(fail, NE_REAL_ARG_EQ, "y", "0.0", "y", 0.0);
    double p = 7.0, q = 7.0;
    s14bac(0.0, 1.0, 0.0, &p, &q, &fail);
    EXPECT_REPORT(fail, NE_REAL_ARG_LE, "a", "0.0", "a", 0.0);
    s14bac(1.0, -1.0, 0.0, &p, &q, &fail);
    EXPECT_REPORT(fail, NE_REAL_ARG_LT, "x", "0.0", "x", -1.0);
    EXPECT_EQ(p, 7.0);
}

TEST(SpecialFunctions, LimitsAndNan)
{
    EXPECT_EQ(s10aac(kInfinity), 1.0);
    EXPECT_EQ(s10aac(-19.0), -1.0);
    EXPECT_EQ(s15adc(26.6), 0.0);
    EXPECT_EQ(s15adc(-6.25), 2.0);
    EXPECT_EQ(s15aec(6.25), 1.0);
    EXPECT_EQ(s15abc(-kInfinity), 0.0);
    EXPECT_EQ(s15acc(-kInfinity), 1.0);
    EXPECT_EQ(s20acc(-kInfinity), -0.5);
    EXPECT_EQ(s13aac(708.4, nullptr), 0.0);
    EXPECT_TRUE(std::signbit(s10abc(-0.0, nullptr)));
    for (double (*f)(double) : {s10aac, s11abc, s13adc, s15abc, s15acc, s15adc, s15aec, s20acc, s20adc})
        EXPECT_TRUE(std::isnan(f(kNan)));
    for (double (*f)(double, KorError *) :
         {s01bac, s07aac, s10abc, s10acc, s11aac, s11acc, s13aac, s13acc, s14aac, s14abc})
        EXPECT_TRUE(std::isnan(f(kNan, nullptr)));
}

} // namespace
} // namespace kor::testing
