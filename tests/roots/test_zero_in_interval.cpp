// The scalar zero finder: outcomes, protocol, the watch for poles, and awkward functions.
#include <cmath>
#include <limits>
#include <vector>

#include <gtest/gtest.h>

#include <kor/c05.h>

#include "support/expect_report.hpp"

namespace kor::testing {
namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kUntouched = 99.0;

// A function with its calls counted, for the twin that passes data.
struct Counted {
    double (*f)(double);
    int calls = 0;
    static double call(double x, void *self)
    {
        auto *counted = static_cast<Counted *>(self);
        ++counted->calls;
        return counted->f(x);
    }
};

struct Problem {
    const char *name;
    double (*f)(double);
    double a, b;
    double zero; // from closed forms, or to 17 digits by bisection in 40-digit arithmetic
};

// Published test functions of zero finders, with simple, multiple and nearly flat zeros.
const Problem kProblems[] = {
    {"sqrt 2", [](double x) { return x * x - 2.0; }, 0.0, 2.0, 1.4142135623730951},
    {"exp(-x) = x", [](double x) { return std::exp(-x) - x; }, 0.0, 1.0, 0.56714329040978387},
    {"cos x = x", [](double x) { return std::cos(x) - x; }, 0.0, 1.5, 0.73908513321516064},
    {"sine beyond a turn", [](double x) { return std::sin(x); }, 3.0, 4.0, 3.141592653589793},
    {"cubic of Wallis", [](double x) { return x * x * x - 2.0 * x - 5.0; }, 2.0, 3.0, 2.0945514815423266},
    {"steep exponential", [](double x) { return std::expm1(50.0 * (x - 0.3)); }, -1.0, 4.0, 0.3},
    {"ninth power", [](double x) { return std::pow(x - 0.25, 9.0); }, -1.0, 4.0, 0.25},
    {"flat exponential",
     [](double x) { return x == 0.75 ? 0.0 : std::copysign(std::exp(-1.0 / std::fabs(x - 0.75)), x - 0.75); }, 0.5, 2.0,
     0.75},
    {"backwards", [](double x) { return std::log(x); }, 7.0, 0.1, 1.0},
    {"step", [](double x) { return x < 0.625 ? -1.0 : 1.0; }, 0.0, 1.0, 0.625},
};

TEST(ZeroInInterval, FindsZerosToTheToleranceAsked)
{
    for (const Problem &problem : kProblems)
        for (const double xtol : {1e-3, 1e-8, 1e-13}) {
            Record fail;
            double x = kUntouched, twin = kUntouched;
            Counted counted{problem.f};
            c05adc(problem.a, problem.b, &x, problem.f, xtol, 0.0, &fail);
            EXPECT_SUCCESS(fail) << problem.name;
            c05sdc(problem.a, problem.b, &twin, Counted::call, xtol, 0.0, &counted, &fail);
            EXPECT_SUCCESS(fail);
            EXPECT_EQ(x, twin) << problem.name;
            // The flat ones underflow near the zero: all that a function of doubles can tell is where it vanishes.
            const bool vanishes = problem.f(x) == 0.0;
            if (!vanishes) {
                EXPECT_NEAR(x, problem.zero, xtol) << problem.name << ", xtol " << xtol;
            }
            // One bisection in every four steps: at most four times the count of bisection.
            const double halvings = std::log2(std::fabs(problem.b - problem.a) / xtol) + 2.0;
            EXPECT_LE(counted.calls, 4.0 * halvings + 2.0) << problem.name << ", xtol " << xtol;
        }
}

TEST(ZeroInInterval, RefusesBadArguments)
{
    const auto f = [](double x) { return x; };
    Record fail;
    double x = kUntouched;
    for (const double xtol : {0.0, -1.0}) {
        c05adc(-1.0, 1.0, &x, f, xtol, 0.0, &fail);
        EXPECT_REPORT(fail, NE_REAL_ARG_LE, "xtol", "0.0", "xtol", xtol);
    }
    c05adc(-1.0, 1.0, &x, f, kNan, 0.0, &fail);
    EXPECT_EQ(fail.code, NE_REAL_ARG_LE);
    c05adc(1.0, 1.0, &x, f, 1e-3, 0.0, &fail);
    EXPECT_REPORT(fail, NE_2_REAL_ARG_EQ, "a", 1.0, "b", 1.0, "a", "b");
    c05adc(1.0, 1.0, &x, f, 0.0, 0.0, &fail);
    EXPECT_EQ(fail.code, NE_REAL_ARG_LE) << "the first offence is the one reported";
    EXPECT_EQ(x, kUntouched);
}

TEST(ZeroInInterval, SmallValueAtAnEndIsAcceptedBeforeTheSigns)
{
    Record fail;
    Counted at_a{[](double x) { return x - 1.0; }};
    double x = kUntouched;
    c05sdc(1.0, 2.0, &x, Counted::call, 1e-3, 0.0, &at_a, &fail);
    EXPECT_SUCCESS(fail);
    EXPECT_EQ(x, 1.0);
    EXPECT_EQ(at_a.calls, 1) << "f(b) is not wanted when a is a zero";

    Counted near_b{[](double x) { return x - 1.99; }};
    c05sdc(3.0, 2.0, &x, Counted::call, 1e-3, 0.1, &near_b, &fail);
    EXPECT_SUCCESS(fail);
    EXPECT_EQ(x, 2.0);
}

TEST(ZeroInInterval, SameSignAtTheEnds)
{
    for (const double sign : {1.0, -1.0}) {
        Record fail;
        double x = kUntouched;
        auto scaled = [](double, void *s) { return *static_cast<double *>(s); };
        double s = sign;
        c05sdc(0.0, 3.0, &x, scaled, 1e-3, 0.0, &s, &fail);
        EXPECT_REPORT(fail, NE_FUNC_END_VAL, "a", "b", "a");
        EXPECT_EQ(x, 3.0);
    }
}

TEST(ZeroInInterval, TellsAPoleFromAZero)
{
    const auto pole = [](double t) { return 1.0 / (t - 1.0); };
    Record fail;
    double x;
    for (const double xtol : {1e-10, 1e-14}) {
        c05adc(0.0, 2.0001, &x, pole, xtol, 0.0, &fail);
        EXPECT_REPORT(fail, NE_PROBABLE_POLE, "[a,b]");
        EXPECT_NEAR(x, 1.0, xtol);
    }
    // The watch needs |f| beyond 1/sqrt(precision) times the first values: a loose tolerance never gets there.
    c05adc(0.0, 2.0001, &x, pole, 1e-5, 0.0, &fail);
    EXPECT_SUCCESS(fail);
    // Infinite right at the pole, on either side of it.
    c05adc(
        0.0, 2.0, &x, [](double t) { return t == 1.0 ? INFINITY : 1.0 / (t - 1.0); }, 1e-10, 0.0, &fail);
    EXPECT_EQ(fail.code, NE_PROBABLE_POLE);
}

TEST(ZeroInInterval, ToleranceBelowTheSpacingOfDoubles)
{
    Record fail;
    double x;
    c05adc(
        0.0, 2.0, &x, [](double t) { return t * t - 2.0; }, 1e-300, 0.0, &fail);
    EXPECT_REPORT(fail, NE_XTOL_TOO_SMALL, 1e-300);
    EXPECT_NEAR(x, std::sqrt(2.0), 4e-16);
}

TEST(ZeroInInterval, NanIsNeverAZeroAndNeverHangs)
{
    Record fail;
    double x = kUntouched;
    c05adc(
        0.0, 1.0, &x, [](double) { return kNan; }, 1e-10, 1e300, &fail);
    EXPECT_EQ(fail.code, NE_FUNC_END_VAL) << "a NaN counts as negative at the ends";
    Counted hole{[](double t) { return t > 0.3 && t < 0.7 ? kNan : t - 0.5; }};
    c05sdc(0.0, 1.0, &x, Counted::call, 1e-10, 0.0, &hole, &fail);
    EXPECT_LT(hole.calls, 10000);
    // A long bracket.
    c05adc(
        -1.5e150, 1.7e150, &x, [](double t) { return t - 1.0; }, 1e-10, 0.0, &fail);
    EXPECT_SUCCESS(fail);
    EXPECT_NEAR(x, 1.0, 1e-10);
}

TEST(ZeroByReverseCommunication, FollowsTheProtocol)
{
    const auto f = [](double t) { return t * t - 2.0; };
    for (const Integer ir : {0, 1, 2}) {
        Record fail;
        double x = 0.0, y = 2.0, fx = 0.0, c[17];
        std::vector<Integer> states;
        Integer ind = 1;
        do {
            fail.code = NE_INTERNAL_ERROR;
            fail.message[0] = '\0';
            c05azc(&x, &y, &fx, 1e-12, ir, c, &ind, &fail);
            states.push_back(ind);
            EXPECT_EQ(fail.code, NE_NOERROR);
            if (ind != 0) {
                EXPECT_STREQ(fail.message, "") << "work requested: no report";
            }
            fx = f(x);
        } while (ind != 0);
        EXPECT_SUCCESS(fail);
        EXPECT_NEAR(x, std::sqrt(2.0), 2e-12);
        EXPECT_LE(std::fabs(y - x), 3e-12);
        EXPECT_EQ((std::vector<Integer>{states[0], states[1], states[2]}), (std::vector<Integer>{2, 3, 4}));

        // With both values in hand the first return already asks for a new point: the same one.
        double x2 = 0.0, y2 = 2.0, fx2 = f(0.0), c2[17] = {f(2.0)};
        Integer ind2 = -1;
        c05azc(&x2, &y2, &fx2, 1e-12, ir, c2, &ind2, &fail);
        EXPECT_EQ(ind2, 4);
    }
}

TEST(ZeroByReverseCommunication, Refusals)
{
    Record fail;
    double x = 0.0, y = 2.0, fx = 1.0, c[17] = {1.0};
    for (const Integer bad : {0, -2, 5}) {
        Integer ind = bad;
        c05azc(&x, &y, &fx, 0.0, 7, c, &ind, &fail);
        EXPECT_REPORT(fail, NE_ARG_INVALID, "ind", bad, "ind", "-1, 1, 2, 3, 4");
        EXPECT_EQ(ind, bad);
    }
    Integer ind = 1;
    c05azc(&x, &y, &fx, 0.0, 7, c, &ind, &fail);
    EXPECT_REPORT(fail, NE_REAL_ARG_LE, "xtol", "0.0", "xtol", 0.0);
    EXPECT_EQ(ind, 0);
    ind = 1;
    c05azc(&x, &y, &fx, 1.0, 7, c, &ind, &fail);
    EXPECT_REPORT(fail, NE_ARG_INVALID, "ir", 7, "ir", "0, 1, 2");
    EXPECT_EQ(ind, 0);
    ind = -1;
    c05azc(&x, &y, &fx, 1.0, 1, c, &ind, &fail);
    EXPECT_REPORT(fail, NE_FUNC_END_VAL, "x", "y", "x");
    EXPECT_EQ(ind, 0);
}

TEST(ZeroByReverseCommunication, PoleLeavesYAndTheUnfilledText)
{
    Record fail;
    double x = 0.0, y = 2.0001, fx = 0.0, c[17], last_y = y;
    Integer ind = 1;
    for (;;) {
        c05azc(&x, &y, &fx, 1e-12, 1, c, &ind, &fail);
        if (ind == 0) break;
        last_y = y;
        fx = 1.0 / (x - 1.0);
    }
    EXPECT_EQ(fail.code, NE_PROBABLE_POLE);
    EXPECT_STREQ(fail.message, kor_errlist[NE_PROBABLE_POLE]);
    EXPECT_EQ(y, last_y);
}

} // namespace
} // namespace kor::testing
