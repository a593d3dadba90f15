#include <kor/d02.h>

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include "ode/initial_values.hpp"
#include "support/expect_report.hpp"

namespace {

using namespace kor::testing;

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kPi = 3.14159265358979323846;
const char *const kSetup = "kor_ode_ivp_adams_setup(d02qwc)";

using EventFunction = std::function<double(double t, const double *y, const double *yp, Integer k)>;

// One problem in the hands of the integrator.
struct Journey {
    struct Settings {
        double tolerance = 1e-8;
        Integer neqg = 0;
        bool one_step = false, sophist = false, crit = false, alter_g = false;
        double tcrit = 0.0, hmax = 0.0;
        Integer max_step = 0;
    };

    Journey(InitialValues problem, Settings settings, EventFunction events = nullptr)
        : problem{std::move(problem)}, events{std::move(events)}, settings{settings}, t{this->problem.t0},
          y{this->problem.y0}
    {
        setup(Kor_NewStart);
    }
    ~Journey() { d02qyc(&opt); }
    Journey(const Journey &) = delete;

    Integer setup(Integer state)
    {
        const Settings &s = settings;
        d02qwc(state, problem.neq(), 0, &s.tolerance, &s.tolerance, s.one_step, s.crit, s.tcrit, s.hmax, s.max_step,
               s.neqg, s.alter_g, s.sophist, &opt, &fail);
        return fail.code;
    }
    Integer go(double tout)
    {
        const auto derivative = [](Integer n, double at, const double values[], double f[], void *comm) {
            evaluate(n, at, values, f, &static_cast<Journey *>(comm)->problem);
        };
        const auto g = [](Integer, double at, const double values[], const double yp[], Integer k, void *comm) {
            ++static_cast<Journey *>(comm)->event_calls;
            return static_cast<Journey *>(comm)->events(at, values, yp, k);
        };
        d02qfc(problem.neq(), derivative, &t, y.data(), tout, events ? +g : nullptr, this, &opt, &fail);
        return fail.code;
    }
    Integer interpolate(double twant, Integer nwant)
    {
        d02qzc(problem.neq(), twant, nwant, ywant, ypwant, &opt, &fail);
        return fail.code;
    }
    double error() const { return problem.error(t, y.data()); }

    InitialValues problem;
    EventFunction events;
    Settings settings;
    KorAdamsOptions opt{};
    Record fail;
    double t;
    Vector y;
    double ywant[8]{}, ypwant[8]{};
    long event_calls = 0;
};

TEST(Adams, ErrorFollowsTheTolerance)
{
    for (double tolerance = 1e-3; tolerance > 2e-13; tolerance *= 0.1) {
        for (const double tend : {7.3, -7.3}) {
            Journey wave{oscillator(), {.tolerance = tolerance}};
            ASSERT_EQ(wave.go(tend), NE_NOERROR);
            EXPECT_EQ(wave.t, tend);
            EXPECT_LT(wave.error(), 30.0 * tolerance) << tolerance;
        }
        Journey orbit{kepler(0.6), {.tolerance = tolerance}};
        ASSERT_EQ(orbit.go(20.0), NE_NOERROR);
        EXPECT_LT(orbit.error(), 4e3 * tolerance) << tolerance;
    }
}

TEST(Adams, FirstStepLooksAround)
{
    for (const double tend : {kPi, 2.0 * kPi, 10.0 * kPi}) {
        Journey run{hidden_slope(), {.tolerance = 1e-6}};
        ASSERT_EQ(run.go(tend), NE_NOERROR);
        EXPECT_LT(run.error(), 1e-4);
    }
}

// An order that does not rise, or coefficients that are a little wrong, cost work before they cost accuracy.
TEST(Adams, WorkStaysWithinBounds)
{
    Journey orbit{kepler(0.3), {.tolerance = 1e-10}};
    ASSERT_EQ(orbit.go(12.0), NE_NOERROR);
    EXPECT_LT(orbit.problem.calls, 550);
    EXPECT_LT(orbit.error(), 1e-8);
    EXPECT_GT(orbit.opt.order, 8);
    EXPECT_NEAR(orbit.problem.calls, 2.0 * orbit.opt.steps_taken, 30.0);
    // Long runs of equal steps, in which the order goes to and fro: coefficients are kept and continued.
    Journey wave{oscillator(5.0), {.tolerance = 1e-10}};
    ASSERT_EQ(wave.go(20.0), NE_NOERROR);
    EXPECT_LT(wave.problem.calls, 1620);
    EXPECT_LT(wave.error(), 1e-7);
}

// Where a solution comes to rest the order has to come down, but only after the errors of two lower orders both say so: one alone
// may vanish by chance, and an order that is lost then costs a quarter more work.
TEST(Adams, OrderFollowsTheTrendOfTheErrors)
{
    const struct {
        double tolerance;
        long most;
    } cases[] = {{1e-4, 50}, {1e-7, 95}, {1e-10, 165}};
    for (const auto &[tolerance, most] : cases) {
        Journey growth{logistic(), {.tolerance = tolerance}};
        ASSERT_EQ(growth.go(20.0), NE_NOERROR);
        EXPECT_LT(growth.problem.calls, most);
        EXPECT_LT(growth.error(), 100.0 * tolerance);
    }
}

TEST(Adams, OutputPointsNeitherCostNorDisturb)
{
    Journey few{kepler(0.5), {}}, many{kepler(0.5), {}};
    ASSERT_EQ(few.go(10.0), NE_NOERROR);
    for (int i = 1; i <= 500; ++i) {
        ASSERT_EQ(many.go(0.02 * i), NE_NOERROR);
        EXPECT_LT(many.error(), 1e-5);
    }
    EXPECT_EQ(many.problem.calls, few.problem.calls);
    EXPECT_EQ(many.y, few.y);
}

TEST(Adams, InterpolantJoinsTheSteps)
{
    Journey run{kepler(0.5), {.tolerance = 1e-7, .one_step = true}};
    Vector before = run.y, slope(4);
    run.problem.f(0.0, before.data(), slope.data());
    double t = 0.0;
    while (t < 6.0) {
        ASSERT_EQ(run.go(6.0), NE_NOERROR);
        ASSERT_EQ(run.interpolate(run.t, 4), NE_NOERROR);
        for (int i = 0; i < 4; ++i) EXPECT_EQ(run.ywant[i], run.y[i]);
        const Vector slope_now(run.ypwant, run.ypwant + 4);
        ASSERT_EQ(run.interpolate(t, 4), NE_NOERROR);
        for (int i = 0; i < 4; ++i) {
            EXPECT_NEAR(run.ywant[i], before[i], 2e-15);
            EXPECT_NEAR(run.ypwant[i], slope[i], 1e-12);
        }
        const double inside = 0.4 * t + 0.6 * run.t;
        run.interpolate(inside, 2);
        EXPECT_LT(std::fabs(run.ywant[1] - run.problem.solution(inside)[1]), 1e-5);
        EXPECT_LT(std::fabs(run.ypwant[1] - run.problem.solution(inside)[3]), 1e-5);
        t = run.t;
        before = run.y;
        slope = slope_now;
    }
    EXPECT_EQ(run.t, 6.0);
}

TEST(Adams, SetupChecksItsArguments)
{
    const double eps = 0x1.004p-53;
    KorAdamsOptions opt{};
    Record fail;
    double atol[2] = {0.0, 1e-6}, rtol[2] = {4.0 * eps, 1e-6};
    Integer neqf = 2, neqg = 0;
    Boolean crit = 0, vectol = 1, alter = 0;
    const auto setup = [&](Integer state) {
        d02qwc(state, neqf, vectol, atol, rtol, 0, crit, 1.0, -0.5, 0, neqg, alter, 0, &opt, &fail);
    };
    setup(Kor_Continue);
    EXPECT_REPORT(fail, NE_NO_SETUP, kSetup);
    neqf = 0;
    setup(Kor_NewStart);
    EXPECT_REPORT(fail, NE_INT_ARG_LT, "neqf", "1", "neqf", 0);
    neqf = 2;
    crit = 7;
    atol[1] = -1.0;
    setup(Kor_NewStart);
    EXPECT_REPORT(fail, NE_BOOL_NOT_SET, "crit");
    crit = 1;
    setup(Kor_NewStart);
    EXPECT_REPORT(fail, NE_REAL_ARG_LT, "a_tol[1]", "0.0", "a_tol[1]", -1.0);
    atol[1] = 0.0;
    rtol[1] = kNaN;
    setup(Kor_NewStart);
    EXPECT_EQ(fail.code, NE_REAL_ARG_LT);
    rtol[1] = 3.99 * eps;
    setup(Kor_NewStart);
    EXPECT_REPORT(fail, NE_REAL_LT_COND, "a_tol[1] = 0.0", "rtol[1]", "4*eps");
    double t = 0.0, y[2] = {0.0, 1.0};
    InitialValues problem = oscillator();
    d02qfc(2, evaluate, &t, y, 1.0, nullptr, &problem, &opt, &fail);
    EXPECT_REPORT(fail, NE_SETUP_ERROR, kSetup);
    d02qzc(2, 0.5, 1, y, y, &opt, &fail);
    EXPECT_REPORT(fail, NE_SETUP_ERROR, kSetup);
    rtol[1] = 4.0 * eps;
    setup(Kor_NewStart);
    EXPECT_SUCCESS(fail);
    EXPECT_EQ(opt.max_step, 1000);
    EXPECT_EQ(opt.hmax, 0.5);

    // Under way the shape of the problem stands.
    setup(12345);
    EXPECT_REPORT(fail, NE_STATE, "state");
    neqf = 3;
    setup(Kor_Continue);
    EXPECT_REPORT(fail, NE_NEQF_CHANGED, 3, 2);
    neqf = 2;
    vectol = 0;
    setup(Kor_ReStart);
    EXPECT_REPORT(fail, NE_VECTOL_CHANGED, "Kor_ReStart");
    setup(Kor_Continue);
    EXPECT_REPORT(fail, NE_VECTOL_CHANGED, "Kor_Continue");
    vectol = 1;
    neqg = 2;
    setup(Kor_Continue);
    EXPECT_REPORT(fail, NE_NEQG_CHANGED, 2, 0);
    d02qfc(2, evaluate, &t, y, 1.0, nullptr, &problem, &opt, &fail);
    EXPECT_REPORT(fail, NE_SETUP_ERROR, kSetup);
    alter = 1;
    setup(Kor_ReStart);
    EXPECT_SUCCESS(fail);
    d02qfc(2, evaluate, &t, y, 1.0, nullptr, &problem, &opt, &fail);
    EXPECT_REPORT(fail, NE_NO_G_FUN, 2);
    d02qyc(&opt);
    d02qfc(2, evaluate, &t, y, 1.0, nullptr, &problem, &opt, &fail);
    EXPECT_REPORT(fail, NE_NO_SETUP, kSetup);
    EXPECT_EQ(t, 0.0);
    d02qyc(&opt);
}

TEST(Adams, IntegrationChecksItsArguments)
{
    Journey run{oscillator(), {}};
    run.interpolate(0.0, 1);
    EXPECT_REPORT(run.fail, NE_NO_INTEGRATE);
    run.go(0.0);
    EXPECT_REPORT(run.fail, NE_T_SAME_TOUT, 0.0, 0.0);
    run.go(kNaN);
    EXPECT_EQ(run.fail.code, NE_2_REAL_ARG_CONS);
    Journey far{oscillator(), {}};
    far.t = -1.5e308;
    far.go(1.5e308);
    EXPECT_EQ(far.fail.code, NE_2_REAL_ARG_CONS);
    d02qfc(3, evaluate, &run.t, run.y.data(), 1.0, nullptr, nullptr, &run.opt, &run.fail);
    EXPECT_REPORT(run.fail, NE_NEQF, 3, 2);
    EXPECT_EQ(run.problem.calls, 0);
    ASSERT_EQ(run.go(1.0), NE_NOERROR);
    run.go(0.5);
    EXPECT_REPORT(run.fail, NE_DIRECTION_CHANGE);
    run.t = 1.25;
    run.go(2.0);
    EXPECT_REPORT(run.fail, NE_T_CHANGED, 1.25, 1.0);
    run.t = 1.0;
    EXPECT_EQ(run.go(1.0), NE_NOERROR);
    d02qzc(3, 0.9, 1, run.ywant, run.ypwant, &run.opt, &run.fail);
    EXPECT_REPORT(run.fail, NE_NEQF, 3, 2);
    run.interpolate(0.9, 3);
    EXPECT_REPORT(run.fail, NE_NWANT_GT, 3, 2);
    run.interpolate(0.9, 0);
    EXPECT_REPORT(run.fail, NE_INT_ARG_LT, "nwant", "1", "nwant", 0);
    EXPECT_EQ(run.ywant[0], 0.0);
    run.interpolate(9.0, 1);
    EXPECT_REPORT(run.fail, NW_EXTRAPOLATION, "twant", 9.0);
    EXPECT_NE(run.ywant[0], 0.0);

    run.settings.crit = true;
    run.settings.tcrit = 1.5;
    ASSERT_EQ(run.setup(Kor_Continue), NE_NOERROR);
    run.interpolate(0.9, 1);
    EXPECT_REPORT(run.fail, NE_NO_INTEGRATE);
    run.go(1.6);
    EXPECT_REPORT(run.fail, NE_TOUT_TCRIT, 1.6, 1.5);

    Journey lost{lost_at(-1.0), {}};
    lost.go(1.0);
    lost.interpolate(0.0, 1);
    EXPECT_REPORT(lost.fail, NE_NO_STEPS);
}

TEST(Adams, StaysBeforeTheCriticalPoint)
{
    for (const double end : {0.7, 0.7 + 1e-12}) {
        InitialValues root{[=](double t, const double *, double *yp) { yp[0] = std::sqrt(end - t); }, 0.0, {0.0}};
        Journey run{root, {.tolerance = 1e-7, .crit = true, .tcrit = end}};
        ASSERT_EQ(run.go(0.4), NE_NOERROR);
        ASSERT_EQ(run.go(end), NE_NOERROR);
        EXPECT_EQ(run.t, end);
        EXPECT_LE(run.problem.furthest, end);
        EXPECT_NEAR(run.y[0], 2.0 / 3.0 * std::pow(end, 1.5), 1e-4);
        // Without the word of the caller it looks ahead.
        Journey free{oscillator(), {}};
        free.go(0.7);
        EXPECT_GT(free.problem.furthest, 0.7);
    }
    Journey run{oscillator(), {.hmax = 0.01, .max_step = 2000}};
    ASSERT_EQ(run.go(5.0), NE_NOERROR);
    EXPECT_GE(run.opt.steps_taken, 500);
    EXPECT_LE(run.opt.hlast, 0.01);
}

TEST(Adams, CountsItsStepsAndRecognisesStiffness)
{
    Journey slow{oscillator(), {.max_step = 20}};
    int calls = 0;
    while (slow.go(60.0) == NE_MAX_STEP) {
        EXPECT_REPORT(slow.fail, NE_MAX_STEP, 20);
        EXPECT_LT(slow.error(), 1e-5);
        ASSERT_LT(++calls, 100);
    }
    EXPECT_SUCCESS(slow.fail);
    EXPECT_EQ(calls, (slow.opt.steps_taken - 1) / 20);
    EXPECT_LT(slow.error(), 1e-5);

    Journey stiff{relaxation(1e4), {.tolerance = 1e-4}};
    stiff.go(20.0);
    EXPECT_REPORT(stiff.fail, NE_STIFF_PROBLEM);
    EXPECT_LT(stiff.error(), 1e-3);
    Journey fast{oscillator(1e3), {.tolerance = 1e-4}};
    fast.go(20.0);
    EXPECT_REPORT(fast.fail, NE_MAX_STEP, 1000);
}

TEST(Adams, EndsAtSingularitiesInBoundedWork)
{
    Journey blow_up{explosion(), {.tolerance = 1e-6}};
    blow_up.go(2.0);
    EXPECT_REPORT(blow_up.fail, NE_ODE_TOL, blow_up.opt.tolfac);
    EXPECT_GT(blow_up.opt.tolfac, 1.0);
    EXPECT_NEAR(blow_up.t, 1.0, 1e-3);
    EXPECT_LT(blow_up.problem.calls, 3000);
    Journey lost{lost_at(0.4), {}};
    EXPECT_EQ(lost.go(1.0), NE_ODE_TOL);
    EXPECT_NEAR(lost.t, 0.4, 1e-6);
    EXPECT_NEAR(lost.y[0], lost.t, 1e-12);
    EXPECT_LT(lost.problem.calls, 1000);
    Journey lost_at_once{lost_at(-1.0), {}};
    EXPECT_EQ(lost_at_once.go(1.0), NE_ODE_TOL);
    EXPECT_LT(lost_at_once.problem.calls, 1000);
    // Growth beyond the range: what is infinite is no solution.
    Journey growth{{[](double, const double *y, double *yp) { yp[0] = y[0]; }, 0.0, {1.0}}, {.tolerance = 1e-3}};
    EXPECT_NE(growth.go(720.0), NE_NOERROR);
    EXPECT_TRUE(std::isfinite(growth.y[0]));
    EXPECT_NEAR(growth.t, 709.8, 2.0);
    Journey kinked{kink(), {}};
    ASSERT_EQ(kinked.go(1.0), NE_NOERROR);
    EXPECT_LT(kinked.error(), 1e-6);
    EXPECT_LT(kinked.problem.calls, 600);
}

TEST(Adams, TellsWhatIsWrongWithTolerances)
{
    // Zero by the solution: no relative accuracy can be had there.
    const double tolerance = 1e-6, none = 0.0;
    InitialValues problem = oscillator();
    KorAdamsOptions opt{};
    Record fail;
    double t = 0.0, y[2] = {1.0, 0.0};
    d02qwc(Kor_NewStart, 2, 0, &none, &tolerance, 0, 0, 0.0, 0.0, 0, 0, 0, 0, &opt, &fail);
    d02qfc(2, evaluate, &t, y, 1.0, nullptr, &problem, &opt, &fail);
    EXPECT_REPORT(fail, NE_WEIGHT_ZERO, 2, 0.0);
    EXPECT_EQ(fail.errnum, 2);
    d02qwc(opt.state, 2, 0, &tolerance, &tolerance, 0, 0, 0.0, 0.0, 0, 0, 0, 0, &opt, &fail);
    d02qfc(2, evaluate, &t, y, 1.0, nullptr, &problem, &opt, &fail);
    EXPECT_SUCCESS(fail);
    EXPECT_NEAR(y[0], std::cos(1.0), 1e-4);
    d02qyc(&opt);

    // Beyond the precision of doubles: with the factor advised it goes on from where it is.
    Journey tight{kepler(0.3), {.tolerance = 1e-17}};
    EXPECT_EQ(tight.go(1.0), NE_ODE_TOL);
    tight.settings.tolerance *= 10.0 * tight.opt.tolfac;
    ASSERT_EQ(tight.setup(tight.opt.state), NE_NOERROR);
    EXPECT_EQ(tight.go(1.0), NE_NOERROR);
    EXPECT_LT(tight.error(), 1e-13);
}

TEST(Adams, RestartsFromAnotherState)
{
    Journey run{oscillator(), {}};
    run.go(1.0);
    // A kick: continuing would not see it.
    run.y = {0.5, 0.0};
    run.t = 2.0;
    ASSERT_EQ(run.setup(Kor_ReStart), NE_NOERROR);
    ASSERT_EQ(run.go(3.0), NE_NOERROR);
    EXPECT_NEAR(run.y[0], 0.5 * std::cos(1.0), 1e-6);
    // A setup to continue what has not begun begins it.
    Journey changed{oscillator(), {}};
    ASSERT_EQ(changed.setup(Kor_Continue), NE_NOERROR);
    ASSERT_EQ(changed.go(1.0), NE_NOERROR);
    EXPECT_LT(changed.error(), 1e-6);
    // Back again is a start, too.
    ASSERT_EQ(run.setup(Kor_ReStart), NE_NOERROR);
    ASSERT_EQ(run.go(2.0), NE_NOERROR);
    EXPECT_NEAR(run.y[0], 0.5, 1e-6);
}

TEST(AdamsEvents, ComeInOrderAndExactly)
{
    // Several in one step, of several functions; y[0] = sin t.
    const EventFunction functions = [](double t, const double *y, const double *yp, Integer k) {
        switch (k) {
        case 1:
            return y[0];
        case 2:
            return yp[0]; // cos t
        case 3:
            return y[0] - 0.25;
        default:
            return t - 4.0;
        }
    };
    const struct {
        double t;
        Integer k;
    } expected[] = {{std::asin(0.25), 3}, {0.5 * kPi, 2}, {kPi - std::asin(0.25), 3}, {kPi, 1}, {4.0, 4},
                    {1.5 * kPi, 2}};
    for (const bool sophist : {false, true}) {
        Journey run{oscillator(), {.tolerance = 1e-12, .neqg = 4, .sophist = sophist}, functions};
        for (const auto &[t, k] : expected) {
            ASSERT_EQ(run.go(5.0), NE_NOERROR);
            EXPECT_TRUE(run.opt.root_found);
            EXPECT_EQ(run.opt.root_index, k);
            EXPECT_NEAR(run.t, t, 2e-11);
            EXPECT_LT(run.error(), 1e-10);
        }
        // 4 is no matter of the solution: there the event is exact to rounding.
        ASSERT_EQ(run.go(5.0), NE_NOERROR);
        EXPECT_FALSE(run.opt.root_found);
        EXPECT_EQ(run.opt.root_index, 0);
        EXPECT_EQ(run.t, 5.0);
        EXPECT_LT(run.event_calls, sophist ? 2500 : 700);
    }
}

TEST(AdamsEvents, AreExactToRounding)
{
    for (const double where : {0.1, 1.0 / 3.0, 2.7, 4.99}) {
        Journey run{oscillator(), {.neqg = 2}, [=](double t, const double *, const double *, Integer k) {
                        return k == 1 ? t - where : std::exp(t) - std::exp(where);
                    }};
        ASSERT_EQ(run.go(5.0), NE_NOERROR);
        EXPECT_NEAR(run.t, where, 4e-16 * 5.0);
        const Integer first = run.opt.root_index;
        // Its twin coincides with it, and still comes.
        ASSERT_EQ(run.go(5.0), NE_NOERROR);
        EXPECT_EQ(run.opt.root_index, 3 - first);
        EXPECT_NEAR(run.t, where, 1e-15 * 5.0);
        ASSERT_EQ(run.go(5.0), NE_NOERROR);
        EXPECT_EQ(run.t, 5.0);
    }
}

TEST(AdamsEvents, AThoroughSearchFindsPairsAndTouches)
{
    // sin t > 0.9995 for 0.06 only, in the middle of a long step; (sin t)^2 touches zero.
    const auto found = [](bool sophist, double level, int power, double tolerance) {
        int count = 0;
        Journey run{oscillator(),
                    {.tolerance = tolerance, .neqg = 1, .sophist = sophist},
                    [=](double, const double *y, const double *, Integer) { return std::pow(y[0], power) - level; }};
        while (run.go(3.0 * kPi + 0.5) == NE_NOERROR && run.opt.root_found) ++count;
        EXPECT_SUCCESS(run.fail);
        return count;
    };
    EXPECT_EQ(found(true, 0.9995, 1, 1e-6), 4);
    EXPECT_LT(found(false, 0.9995, 1, 1e-6), 4);
    EXPECT_EQ(found(true, 0.0, 2, 1e-9), 3);
    EXPECT_EQ(found(false, 0.0, 2, 1e-9), 0);
    EXPECT_EQ(found(true, 1.0 + 1e-4, 1, 1e-9), 0);
}

TEST(AdamsEvents, ZeroAtTheStartIsNone)
{
    Journey run{oscillator(), {.neqg = 1}, [](double, const double *y, const double *, Integer) { return y[0]; }};
    ASSERT_EQ(run.go(4.0), NE_NOERROR);
    EXPECT_NEAR(run.t, kPi, 1e-6);
    // Nor is the event that the integration starts again from.
    ASSERT_EQ(run.setup(Kor_ReStart), NE_NOERROR);
    ASSERT_EQ(run.go(7.0), NE_NOERROR);
    EXPECT_NEAR(run.t, 2.0 * kPi, 1e-6);
    // The same by changing the functions.
    run.settings.alter_g = true;
    ASSERT_EQ(run.setup(Kor_Continue), NE_NOERROR);
    ASSERT_EQ(run.go(7.0), NE_NOERROR);
    EXPECT_EQ(run.t, 7.0);
}

TEST(AdamsEvents, FunctionsMayChangeUnderWay)
{
    Journey run{oscillator(), {.neqg = 1}, [](double, const double *y, const double *, Integer) { return y[0]; }};
    ASSERT_EQ(run.go(4.0), NE_NOERROR);
    run.events = [](double t, const double *y, const double *, Integer k) { return k == 1 ? y[1] : t - 3.9; };
    run.settings.neqg = 2;
    run.settings.alter_g = true;
    ASSERT_EQ(run.setup(Kor_Continue), NE_NOERROR);
    ASSERT_EQ(run.go(6.0), NE_NOERROR);
    EXPECT_NEAR(run.t, 3.9, 1e-15);
    ASSERT_EQ(run.go(6.0), NE_NOERROR);
    EXPECT_EQ(run.opt.root_index, 1);
    EXPECT_NEAR(run.t, 1.5 * kPi, 1e-6);
}

TEST(AdamsEvents, PolesJumpsAndRubbishAreToldApart)
{
    Journey pole{
        oscillator(), {.neqg = 1}, [](double t, const double *, const double *, Integer) { return 1.0 / (t - 2.3); }};
    pole.go(5.0);
    EXPECT_REPORT(pole.fail, NE_SINGULAR_POINT);
    EXPECT_NEAR(pole.t, 2.3, 1e-14);
    EXPECT_EQ(pole.opt.root_index, 1);
    EXPECT_LT(pole.error(), 1e-6);
    EXPECT_EQ(pole.go(5.0), NE_NOERROR);
    Journey jump{oscillator(), {.neqg = 1}, [](double t, const double *, const double *, Integer) {
                     return t < 2.3 ? -1.0 : 2.0;
                 }};
    ASSERT_EQ(jump.go(5.0), NE_NOERROR);
    EXPECT_NEAR(jump.t, 2.3, 1e-15);
    Journey rubbish{oscillator(), {.neqg = 1}, [](double, const double *, const double *, Integer) { return kNaN; }};
    ASSERT_EQ(rubbish.go(5.0), NE_NOERROR);
    EXPECT_EQ(rubbish.t, 5.0);
}

TEST(AdamsEvents, ComeBackwardsToo)
{
    for (const bool sophist : {false, true}) {
        InitialValues wave = oscillator();
        wave.t0 = 4.0;
        wave.y0 = wave.solution(4.0);
        Journey run{wave,
                    {.neqg = 2, .sophist = sophist, .crit = true, .tcrit = 0.3},
                    [](double, const double *y, const double *, Integer k) { return y[k - 1]; }};
        ASSERT_EQ(run.go(0.3), NE_NOERROR);
        EXPECT_NEAR(run.t, kPi, 1e-6);
        ASSERT_EQ(run.go(0.3), NE_NOERROR);
        EXPECT_NEAR(run.t, 0.5 * kPi, 1e-6);
        EXPECT_EQ(run.opt.root_index, 2);
        ASSERT_EQ(run.go(0.3), NE_NOERROR);
        EXPECT_EQ(run.t, 0.3);
        EXPECT_LT(run.error(), 1e-6);
        run.go(0.2);
        EXPECT_REPORT(run.fail, NE_TOUT_TCRIT, 0.2, 0.3);
    }
}

TEST(AdamsEvents, StopEachStepWhereAsked)
{
    Journey run{oscillator(), {.neqg = 1, .one_step = true}, [](double, const double *y, const double *, Integer) {
                    return y[0];
                }};
    double t = 0.0;
    int events = 0, returns = 0;
    while (run.t < 7.0) {
        ASSERT_EQ(run.go(7.0), NE_NOERROR);
        EXPECT_GT(run.t, t);
        EXPECT_LT(run.error(), 1e-6);
        t = run.t;
        events += run.opt.root_found;
        ++returns;
    }
    EXPECT_EQ(events, 2);
    EXPECT_EQ(run.t, 7.0);
    EXPECT_NEAR(returns, run.opt.steps_taken + events, 1.0);
}

TEST(Adams, ManyEquationsGoTheWayOfFew)
{
    Journey many{copies(kepler(0.5), 5), {}};
    ASSERT_EQ(many.go(2.3), NE_NOERROR);
    EXPECT_LT(many.error(), 1e-6);
    for (int i = 4; i < 20; ++i) EXPECT_EQ(many.y[i], many.y[i % 4]);
}

TEST(Adams, InterleavedProblemsDoNotMeet)
{
    const EventFunction g = [](double, const double *y, const double *, Integer) { return y[1]; };
    Journey alone{kepler(0.7), {.neqg = 1}, g}, one{kepler(0.7), {.neqg = 1}, g},
        other{logistic(), {.tolerance = 1e-5}};
    while (alone.t < 9.0) alone.go(9.0);
    while (one.t < 9.0) {
        one.go(9.0);
        other.go(other.t + 1.0);
    }
    EXPECT_EQ(alone.y, one.y);
    EXPECT_EQ(alone.event_calls, one.event_calls);
}

} // namespace
