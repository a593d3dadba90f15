#include <kor/d02.h>

#include <cmath>
#include <limits>
#include <string>

#include <gtest/gtest.h>

#include "ode/initial_values.hpp"
#include "support/expect_report.hpp"

namespace {

using namespace kor::testing;

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr Integer kMethods[] = {Kor_RK_2_3, Kor_RK_4_5, Kor_RK_7_8};

// One problem in the hands of the suite.
struct Journey {
    Journey(InitialValues problem, double tend, double tol, Integer method, Integer task = Kor_RK_range,
            Integer errass = Kor_ErrorAssess_off, double thres = 1e-3)
        : problem{std::move(problem)}, y(this->problem.y0.size(), 99.0), yp(y), largest(y)
    {
        const Vector thresholds(y.size(), thres);
        d02pvc(neq(), this->problem.t0, this->problem.y0.data(), tend, tol, thresholds.data(), method, task, errass,
               0.0, &state, &fail);
    }
    ~Journey() { d02ppc(&state); }
    Journey(const Journey &) = delete;

    Integer neq() const { return problem.neq(); }
    Integer range(double twant)
    {
        d02pcc(neq(), evaluate, twant, &t, y.data(), yp.data(), largest.data(), &state, &problem, &fail);
        return fail.code;
    }
    // Goes on after warnings.
    Integer range_to(double twant)
    {
        while (range(twant) == NW_RK_TOO_MANY) {}
        return fail.code;
    }
    Integer step()
    {
        d02pdc(neq(), evaluate, &t, y.data(), yp.data(), &state, &problem, &fail);
        return fail.code;
    }
    Integer interpolate(double twant, Integer nwant, Integer reqest = Kor_SolDer)
    {
        d02pxc(neq(), twant, reqest, nwant, ywant, ypwant, evaluate, &state, &problem, &fail);
        return fail.code;
    }
    Integer end(double tend_new)
    {
        d02pwc(tend_new, &state, &fail);
        return fail.code;
    }
    Integer assessment()
    {
        d02pzc(neq(), rms, &largest_error, &where, &state, &fail);
        return fail.code;
    }
    double error() const { return problem.error(t, y.data()); }

    InitialValues problem;
    KorRKState state{};
    Record fail;
    double t = 99.0;
    Vector y, yp, largest;
    double ywant[8]{}, ypwant[8]{}, rms[8]{}, largest_error = 99.0, where = 99.0;
};

TEST(RungeKutta, ErrorFollowsTheTolerance)
{
    for (const Integer method : kMethods)
        for (double tol = 1e-3; tol > (method == Kor_RK_2_3 ? 1e-9 : 2e-13); tol *= 0.1) {
            for (const bool forward : {true, false}) {
                Journey wave{oscillator(), forward ? 7.3 : -7.3, tol, method};
                ASSERT_EQ(wave.range_to(forward ? 7.3 : -7.3), NE_NOERROR);
                EXPECT_LT(wave.error(), 15.0 * tol) << method << ' ' << tol;
            }
            Journey growth{logistic(), 20.0, tol, method};
            ASSERT_EQ(growth.range_to(20.0), NE_NOERROR);
            EXPECT_LT(growth.error(), 30.0 * tol * 20.0) << method << ' ' << tol;
        }
    Journey orbit{kepler(0.9), 20.0, 1e-12, Kor_RK_7_8};
    ASSERT_EQ(orbit.range_to(20.0), NE_NOERROR);
    EXPECT_LT(orbit.error(), 1e-8);
}

// Work is part of what a method promises: an order too low, or a control that loses its way, shows here.
TEST(RungeKutta, WorkStaysWithinBounds)
{
    const struct {
        Integer method;
        double tol;
        long most;
    } cases[] = {{Kor_RK_2_3, 1e-6, 2600}, {Kor_RK_4_5, 1e-8, 1300}, {Kor_RK_7_8, 1e-10, 1250}};
    for (const auto &[method, tol, most] : cases) {
        Journey orbit{kepler(0.3), 12.0, tol, method};
        ASSERT_EQ(orbit.range_to(12.0), NE_NOERROR);
        EXPECT_LT(orbit.problem.calls, most);
        EXPECT_GT(orbit.problem.calls, most / 3);
        Integer evaluations, cost, steps;
        double waste, next;
        d02pyc(&evaluations, &cost, &waste, &steps, &next, &orbit.state);
        EXPECT_EQ(evaluations, orbit.problem.calls);
        EXPECT_EQ(cost, method == Kor_RK_2_3 ? 3 : method == Kor_RK_4_5 ? 7 : 13);
        EXPECT_GE(waste, 0.0);
        EXPECT_LT(waste, 0.3);
        EXPECT_GT(next, 0.0);
        EXPECT_LT(std::fabs(steps * cost / (1.0 - waste) - evaluations), 0.15 * evaluations);
    }
}

// A step that shrinks in time does not fail: from the error alone one in twelve would on the way to the next pericentre.
TEST(RungeKutta, TheTrendOfTheErrorForeseesFailures)
{
    for (const auto &[method, tol] : {std::pair{Kor_RK_2_3, 1e-5}, std::pair{Kor_RK_4_5, 1e-7}}) {
        Journey orbit{kepler(0.9), 20.0, tol, method};
        ASSERT_EQ(orbit.range_to(20.0), NE_NOERROR);
        EXPECT_LT(orbit.state.steps_failed, 0.01 * orbit.state.steps_ok) << method;
    }
}

TEST(RungeKutta, OutputPointsNeitherCostNorDisturb)
{
    for (const Integer method : {Kor_RK_2_3, Kor_RK_4_5}) {
        const double tol = 1e-7;
        Journey few{oscillator(), 10.0, tol, method}, many{oscillator(), 10.0, tol, method};
        few.range_to(10.0);
        for (int i = 1; i <= 200; ++i) {
            ASSERT_EQ(many.range_to(0.05 * i), NE_NOERROR);
            ASSERT_EQ(many.t, 0.05 * i);
            EXPECT_LT(many.error(), 20.0 * tol);
            EXPECT_NEAR(many.yp[0], many.y[1], 300.0 * tol);
        }
        EXPECT_EQ(few.y, many.y);
        EXPECT_EQ(few.largest, many.largest);
        const long for_the_interpolant = method == Kor_RK_4_5 ? 3 * few.state.steps_ok : 0;
        EXPECT_LE(many.problem.calls, few.problem.calls + for_the_interpolant);
    }
}

TEST(RungeKutta, InterpolantJoinsTheSteps)
{
    for (const Integer method : {Kor_RK_2_3, Kor_RK_4_5}) {
        Journey run{kepler(0.5), 6.0, 1e-6, method, Kor_RK_onestep};
        Vector before = run.problem.y0, slope(4);
        run.problem.f(0.0, before.data(), slope.data());
        double t = 0.0, worst_inside = 0.0;
        while (run.step() == NE_NOERROR) {
            ASSERT_EQ(run.interpolate(t, 4), NE_NOERROR);
            for (int i = 0; i < 4; ++i) {
                EXPECT_NEAR(run.ywant[i], before[i], 1e-13); // coefficients up to 117 cancel there
                EXPECT_NEAR(run.ypwant[i], slope[i], 1e-11);
            }
            const long calls = run.problem.calls;
            run.interpolate(run.t, 2);
            EXPECT_EQ(run.ywant[0], run.y[0]);
            EXPECT_EQ(run.ypwant[1], run.yp[1]);
            run.interpolate(0.3 * t + 0.7 * run.t, 3);
            EXPECT_EQ(run.problem.calls, calls) << "the stages of the step are known already";
            for (int i = 0; i < 3; ++i)
                worst_inside =
                    std::max(worst_inside, std::fabs(run.ywant[i] - run.problem.solution(0.3 * t + 0.7 * run.t)[i]));
            t = run.t;
            before = run.y;
            slope = run.yp;
        }
        EXPECT_REPORT(run.fail, NE_RK_PDC_TEND, 6.0);
        EXPECT_LT(worst_inside, 3.0 * run.error() + 1e-6);
    }
}

TEST(RungeKutta, SelectsWhatIsWanted)
{
    Journey run{oscillator(), 6.0, 1e-6, Kor_RK_4_5, Kor_RK_onestep};
    run.step();
    run.ywant[0] = run.ypwant[0] = run.ywant[1] = 99.0;
    EXPECT_EQ(run.interpolate(0.5 * run.t, 1, Kor_Sol), NE_NOERROR);
    EXPECT_NE(run.ywant[0], 99.0);
    EXPECT_EQ(run.ywant[1], 99.0);
    EXPECT_EQ(run.ypwant[0], 99.0);
    run.ywant[0] = 99.0;
    EXPECT_EQ(run.interpolate(0.5 * run.t, 1, Kor_Der), NE_NOERROR);
    EXPECT_EQ(run.ywant[0], 99.0);
    EXPECT_NEAR(run.ypwant[0], std::cos(0.5 * run.t), 1e-5);
}

TEST(RungeKutta, SetupChecksItsArguments)
{
    const double tiny = std::sqrt(std::numeric_limits<double>::min()), eps = 0x1.004p-53;
    const double y[2] = {1.0, 1.0};
    KorRKState state{};
    Record fail;
    struct Arguments {
        Integer neq = 2;
        double tstart = 0.0, tend = 1.0, tol = 1e-6, thres[2] = {1e-8, 1e-8};
        Integer method = Kor_RK_4_5, task = Kor_RK_range, errass = Kor_ErrorAssess_off;
    };
    const auto setup = [&](const Arguments &a) {
        d02pvc(a.neq, a.tstart, y, a.tend, a.tol, a.thres, a.method, a.task, a.errass, 0.0, &state, &fail);
    };
    // Each offence together with all that stand behind it in the order of the checks.
    Arguments bad{0, 1.0, 1.0, 0.0100001, {1e-8, 0.0}, Kor_RK_range, Kor_RK_7_8, Kor_RK_2_3};
    setup(bad);
    EXPECT_REPORT(fail, NE_BAD_PARAM, "task");
    bad.task = Kor_RK_range;
    setup(bad);
    EXPECT_REPORT(fail, NE_INT_ARG_LT, "neq", "1", "neq", 0);
    bad.neq = 2;
    setup(bad);
    EXPECT_REPORT(fail, NE_BAD_PARAM, "errass");
    bad.errass = Kor_ErrorAssess_on;
    setup(bad);
    EXPECT_REPORT(fail, NE_BAD_PARAM, "method");
    bad.method = Kor_RK_2_3;
    setup(bad);
    EXPECT_REPORT(fail, NE_2_REAL_ARG_EQ, "tstart", 1.0, "tend", 1.0, "tstart", "tend");
    bad.tend = 1.0 + 1e-15;
    setup(bad);
    const char *rule = "10*machine precision  <= tol <= 0.01";
    EXPECT_REPORT(fail, NE_REAL_RANGE_CONS, "tol", 0.0100001, "10*machine precision", 10 * eps, "tol", rule);
    bad.tol = 10.0 * eps;
    setup(bad);
    EXPECT_REPORT(fail, NE_REAL_ARRAY_INPUT, "thres", 1, 0.0, "thres", 1, ">= ", tiny);
    bad.thres[1] = tiny;
    setup(bad);
    EXPECT_EQ(fail.code, NE_2_REAL_ARG_TOO_CLOSE);
    bad.tend = std::numeric_limits<double>::infinity();
    setup(bad);
    EXPECT_EQ(fail.code, NE_2_REAL_ARG_CONS);
    bad.tend = kNaN;
    setup(bad);
    EXPECT_EQ(fail.code, NE_2_REAL_ARG_CONS);
    for (const double tol : {10.0 * eps, 0.01}) {
        Arguments good;
        good.tol = tol;
        setup(good);
        EXPECT_SUCCESS(fail);
    }
    for (const double tol : {9.9 * eps, kNaN}) {
        Arguments close;
        close.tol = tol;
        setup(close);
        EXPECT_EQ(fail.code, NE_REAL_RANGE_CONS);
    }
    double t = 99.0, out[2];
    d02pcc(2, evaluate, 0.5, &t, out, out, out, &state, nullptr, &fail);
    EXPECT_REPORT(fail, NE_PREV_CALL, "kor_ode_ivp_rk_setup(d02pvc)");
    EXPECT_EQ(t, 99.0);
    d02ppc(&state);
}

// Every routine of the suite is refused where it has no business, with the reason that comes first.
TEST(RungeKutta, GuardsTheCallingOrder)
{
    const char *setup = "kor_ode_ivp_rk_setup(d02pvc)", *range = "kor_ode_ivp_rk_range(d02pcc)",
               *step = "kor_ode_ivp_rk_onestep(d02pdc)";
    const auto refused = [](Journey &run, auto... expected) {
        run.range(1.0);
        EXPECT_REPORT(run.fail, expected...);
        run.step();
        EXPECT_REPORT(run.fail, expected...);
        run.interpolate(0.5, 1);
        EXPECT_REPORT(run.fail, expected...);
        run.end(2.0);
        EXPECT_REPORT(run.fail, expected...);
        run.assessment();
        EXPECT_REPORT(run.fail, expected...);
    };
    {
        Journey run{oscillator(), 1.0, 1e-6, Kor_RK_4_5};
        d02ppc(&run.state);
        refused(run, NE_MEMORY_FREED, setup);
        d02ppc(&run.state);
        // Whatever an unstamped record holds, it is not taken for a state.
        run.state.stamp2 = 5;
        refused(run, NE_NO_SETUP, setup);
        EXPECT_EQ(run.t, 99.0);
    }
    {
        Journey run{oscillator(), 1.0, 1e-6, Kor_RK_4_5, Kor_RK_range};
        run.end(2.0);
        EXPECT_REPORT(run.fail, NE_RK_INVALID_CALL, range, "kor_ode_ivp_rk_reset_tend(d02pwc)");
        run.interpolate(0.5, 1);
        EXPECT_REPORT(run.fail, NE_PREV_CALL, setup);
        run.end(2.0);
        EXPECT_REPORT(run.fail, NE_PREV_CALL_INI);
    }
    {
        Journey run{oscillator(), 1.0, 1e-6, Kor_RK_4_5, Kor_RK_range};
        ASSERT_EQ(run.range(0.5), NE_NOERROR);
        run.step();
        EXPECT_REPORT(run.fail, NE_RK_INVALID_CALL, range, step);
        EXPECT_FALSE(run.state.range_mode);
        run.step();
        EXPECT_REPORT(run.fail, NE_PREV_CALL_INI);
        run.range(1.0);
        EXPECT_REPORT(run.fail, NE_PREV_CALL, setup);
    }
    {
        Journey run{oscillator(), 1.0, 1e-6, Kor_RK_7_8, Kor_RK_onestep};
        run.interpolate(0.5, 1);
        EXPECT_REPORT(run.fail, NE_MISSING_CALL, step);
        run.end(2.0);
        EXPECT_REPORT(run.fail, NE_MISSING_CALL, step);
        run.assessment();
        EXPECT_REPORT(run.fail, NE_ERRASS_REQ);
        d02pdc(3, evaluate, &run.t, run.y.data(), run.yp.data(), &run.state, &run.problem, &run.fail);
        EXPECT_REPORT(run.fail, NE_NEQ, 3, 2);
        ASSERT_EQ(run.step(), NE_NOERROR);
        for (int twice = 0; twice < 2; ++twice) {
            run.interpolate(0.5, 1);
            EXPECT_REPORT(run.fail, NE_RK_PX_METHOD);
        }
        run.range(1.0);
        EXPECT_REPORT(run.fail, NE_RK_INVALID_CALL, step, range);
    }
    {
        Journey run{oscillator(), 1.0, 1e-6, Kor_RK_4_5, Kor_RK_onestep, Kor_ErrorAssess_on};
        run.assessment();
        EXPECT_REPORT(run.fail, NE_RK_NOSTEP);
        ASSERT_EQ(run.step(), NE_NOERROR);
        std::string name;
        run.fail.handler = [](const char *, Integer, const char *routine) { EXPECT_STREQ(routine, "d02pwc"); };
        run.interpolate(0.5, 3);
        EXPECT_REPORT(run.fail, NE_2_INT_ARG_GT, "nwant", 3, "neq", 2, "nwant", "neq");
        run.interpolate(0.5, 0);
        EXPECT_REPORT(run.fail, NE_INT_ARG_LT, "nwant", "1", "nwant", 0);
        run.fail.handler = nullptr;
        run.interpolate(0.5, 0, Kor_RK_range);
        EXPECT_REPORT(run.fail, NE_BAD_PARAM, "reqest");
        run.end(0.0);
        EXPECT_REPORT(run.fail, NE_RK_DIRECTION_POS, "tend_new", 0.0, run.t);
        run.end(kNaN);
        EXPECT_EQ(run.fail.code, NE_RK_DIRECTION_POS);
        run.end(std::numeric_limits<double>::infinity());
        EXPECT_EQ(run.fail.code, NE_REAL_ARG_CONS);
        run.end(run.t * (1.0 + 4e-16));
        EXPECT_EQ(run.fail.code, NE_RK_STEP);
        // None of these has hurt the integration.
        while (run.step() == NE_NOERROR) {}
        EXPECT_REPORT(run.fail, NE_RK_PDC_TEND, 1.0);
        EXPECT_EQ(run.end(2.0), NE_NOERROR);
        while (run.step() == NE_NOERROR) {}
        EXPECT_EQ(run.t, 2.0);
        EXPECT_LT(run.error(), 1e-5);
    }
    {
        Journey back{oscillator(), -1.0, 1e-6, Kor_RK_2_3, Kor_RK_onestep};
        ASSERT_EQ(back.step(), NE_NOERROR);
        back.end(1.0);
        EXPECT_REPORT(back.fail, NE_RK_DIRECTION_NEG, "tend_new", 1.0, back.t);
    }
    KorRKState never{};
    d02ppc(&never);
    EXPECT_EQ(never.calls[7], 0);
    Integer count = 99;
    double real = 99.0;
    d02pyc(&count, &count, &real, &count, &real, &never);
    EXPECT_EQ(count, 99);
}

TEST(RungeKutta, RangeEndsWhereItWasSet)
{
    for (const Integer method : kMethods) {
        // Beyond its end the right-hand side does not exist.
        InitialValues circle{[](double t, const double *, double *yp) { yp[0] = std::sqrt(0.7 - t); }, 0.0, {0.0}};
        Journey run{circle, 0.7, 1e-7, method};
        const double first = 0.31;
        ASSERT_EQ(run.range(first), NE_NOERROR);
        run.range(first);
        EXPECT_REPORT(run.fail, NE_RK_TGOT_RANGE_TEND, first, first);
        run.range(0.8);
        EXPECT_REPORT(run.fail, NE_RK_TGOT_RANGE_TEND, 0.8, 0.7);
        run.range(std::nextafter(0.7, 1.0));
        EXPECT_EQ(run.fail.code, NE_RK_TGOT_RANGE_TEND_CLOSE);
        run.range(kNaN);
        EXPECT_EQ(run.fail.code, NE_RK_TGOT_RANGE_TEND);
        if (method == Kor_RK_7_8) {
            run.range(std::nextafter(first, 1.0));
            EXPECT_EQ(run.fail.code, NE_RK_TWANT_CLOSE_TGOT);
        }
        EXPECT_EQ(run.t, first);
        ASSERT_EQ(run.range_to(0.7), NE_NOERROR);
        EXPECT_EQ(run.t, 0.7);
        EXPECT_LE(run.problem.furthest, 0.7);
        EXPECT_NEAR(run.y[0], 2.0 / 3.0 * std::pow(0.7, 1.5), 1e-4) << method;
        for (int twice = 0; twice < 2; ++twice) {
            run.range(0.7);
            EXPECT_REPORT(run.fail, NE_RK_TGOT_EQ_TEND, 0.7);
        }
    }
}

TEST(RungeKutta, WarnsOfMuchWorkAndGoesOn)
{
    Journey run{oscillator(), 600.0, 1e-7, Kor_RK_4_5};
    int warnings = 0;
    while (run.range(600.0) == NW_RK_TOO_MANY) {
        EXPECT_REPORT(run.fail, NW_RK_TOO_MANY, 5000);
        EXPECT_LT(run.error(), 1e-4);
        ++warnings;
        ASSERT_LT(warnings, 10);
    }
    EXPECT_SUCCESS(run.fail);
    EXPECT_EQ(warnings, run.problem.calls / 5000);
    EXPECT_GE(warnings, 2);
}

TEST(RungeKutta, RecognisesStiffness)
{
    for (const Integer method : kMethods) {
        Journey run{relaxation(1e4), 20.0, 1e-4, method};
        while (run.range(20.0) == NW_RK_TOO_MANY) {}
        EXPECT_EQ(run.fail.code, NE_STIFF_PROBLEM) << method;
        // The text is that of another entry.
        EXPECT_EQ(std::string{run.fail.message}.find("NE_RK_STIFF:"), 0u) << run.fail.message;
        EXPECT_LT(run.problem.calls, 20000);
        EXPECT_LT(run.error(), 1e-3);
        // One may go on all the same.
        const double t = run.t;
        run.range(20.0);
        EXPECT_NE(run.fail.code, NE_PREV_CALL_INI);
        EXPECT_GE(run.t, t);
    }
    // Fast oscillations are not stiff, however long, nor when they are damped a little: stability keeps the steps short, but
    // that of other methods would, too. How much is a little depends on the pair.
    const struct {
        Integer method;
        double damping;
        bool stiff;
    } waves[] = {{Kor_RK_2_3, 0.0, false},  {Kor_RK_2_3, 0.085, false}, {Kor_RK_2_3, 0.15, true},
                 {Kor_RK_4_5, 0.15, false}, {Kor_RK_4_5, 0.25, true},   {Kor_RK_7_8, 0.05, false},
                 {Kor_RK_7_8, 0.12, true}};
    for (const auto &[method, damping, stiff] : waves) {
        InitialValues wave = oscillator();
        wave.f = [d = damping](double, const double *y, double *yp) {
            yp[0] = 1e2 * (y[1] - d * y[0]);
            yp[1] = -1e2 * (y[0] + d * y[1]);
        };
        Journey run{wave, 400.0, 1e-3, method};
        EXPECT_EQ(run.range_to(400.0), stiff ? NE_STIFF_PROBLEM : NE_NOERROR) << method << ' ' << damping;
    }
}

TEST(RungeKutta, EndsAtSingularitiesInBoundedWork)
{
    for (const Integer method : kMethods) {
        Journey blow_up{explosion(), 2.0, 1e-6, method, Kor_RK_onestep};
        while (blow_up.step() == NE_NOERROR || blow_up.fail.code == NW_RK_TOO_MANY) {}
        EXPECT_REPORT(blow_up.fail, NE_RK_PDC_STEP, blow_up.state.h, blow_up.t);
        EXPECT_NEAR(blow_up.t, 1.0, 1e-4);
        EXPECT_LT(blow_up.problem.calls, 20000);
        // What was found stays at hand; the integration does not go on.
        const double middle = 0.5 * (blow_up.state.told + blow_up.state.tnow);
        if (method != Kor_RK_7_8) {
            ASSERT_EQ(blow_up.interpolate(middle, 1), NE_NOERROR);
            const double left = std::min(blow_up.y[0], blow_up.ywant[0]);
            EXPECT_GT(blow_up.ywant[0], 0.5 * left);
            EXPECT_LT(blow_up.ywant[0], blow_up.y[0]);
        }
        blow_up.step();
        EXPECT_REPORT(blow_up.fail, NE_PREV_CALL_INI);

        Journey lost{lost_at(0.4), 1.0, 1e-6, method};
        EXPECT_EQ(lost.range(1.0), NE_RK_PDC_STEP);
        EXPECT_NEAR(lost.t, 0.4, 1e-9);
        EXPECT_NEAR(lost.y[0], 0.4, 1e-9);
        EXPECT_LT(lost.problem.calls, 3000);
        Journey lost_at_once{lost_at(0.0), 1.0, 1e-6, method};
        EXPECT_EQ(lost_at_once.range(1.0), NE_RK_PDC_STEP);
        EXPECT_LT(lost_at_once.problem.calls, 10000);
        EXPECT_EQ(lost_at_once.y[0], 0.0);
    }
}

TEST(RungeKutta, CrossesADiscontinuity)
{
    for (const Integer method : kMethods) {
        Journey run{kink(), 1.0, 1e-8, method};
        ASSERT_EQ(run.range_to(1.0), NE_NOERROR);
        EXPECT_LT(run.error(), 1e-7);
        EXPECT_LT(run.problem.calls, 1500);
    }
}

TEST(RungeKutta, AssessesTheGlobalError)
{
    for (const Integer method : kMethods) {
        Journey run{kepler(0.4), 11.0, 1e-6, method, Kor_RK_onestep, Kor_ErrorAssess_on, 1e-2};
        double worst = 0.0, worst_at = 0.0;
        Vector before = run.problem.y0;
        while (run.step() == NE_NOERROR || run.fail.code == NW_RK_TOO_MANY) {
            const Vector exact = run.problem.solution(run.t);
            for (int k = 0; k < 4; ++k) {
                const double weight = std::max(1e-2, 0.5 * (std::fabs(run.y[k]) + std::fabs(before[k])));
                const double error = std::fabs(run.y[k] - exact[k]) / weight;
                if (error > worst) worst_at = run.t;
                worst = std::max(worst, error);
            }
            before = run.y;
        }
        EXPECT_REPORT(run.fail, NE_RK_PDC_TEND, 11.0);
        ASSERT_EQ(run.assessment(), NE_NOERROR);
        EXPECT_NEAR(std::log10(run.largest_error / worst), 0.0, 0.5) << method;
        EXPECT_NEAR(run.where, worst_at, 6.0);
        for (int k = 0; k < 4; ++k) EXPECT_LE(run.rms[k], run.largest_error);
        Integer evaluations, unused;
        double real;
        d02pyc(&evaluations, &unused, &real, &unused, &real, &run.state);
        EXPECT_EQ(evaluations, run.problem.calls);
    }
    // Noise is too rough for it; the step is undone.
    const InitialValues noise{[](double t, const double *, double *yp) { yp[0] = std::sin(1e9 * t * t); }, 0.0, {1.0}};
    for (const bool from_start : {true, false}) {
        InitialValues rough = noise;
        rough.f = [=](double t, const double *y, double *yp) {
            t > 0.5 || from_start ? noise.f(t, y, yp) : void(yp[0] = -y[0]);
        };
        Journey run{rough, 1.0, from_start ? 1e-4 : 1e-7, Kor_RK_4_5, Kor_RK_range, Kor_ErrorAssess_on};
        run.range(1.0);
        const Integer code = from_start ? NE_RK_PDC_GLOBAL_ERROR_S : NE_RK_PDC_GLOBAL_ERROR_T;
        EXPECT_EQ(run.fail.code, code);
        EXPECT_LT(run.t, 0.7);
        run.range(1.0);
        EXPECT_REPORT(run.fail, NE_PREV_CALL_INI);
        run.assessment();
        EXPECT_EQ(run.fail.code, run.state.steps_ok == 0 ? NE_RK_NOSTEP : NE_NOERROR);
    }
}

TEST(RungeKutta, WarnsOfOutputThatHoldsItUp)
{
    Journey range{oscillator(), 10.0, 1e-6, Kor_RK_7_8};
    int i = 1;
    while (i < 1000 && range.range(0.01 * i) == NE_NOERROR) ++i;
    EXPECT_REPORT(range.fail, NE_RK_PCC_METHOD);
    EXPECT_NEAR(range.t, 0.01 * (i - 1), 1e-15);
    EXPECT_EQ(range.range(0.01 * i), NE_NOERROR);

    Journey step{oscillator(), 0.01, 1e-6, Kor_RK_4_5, Kor_RK_onestep};
    int stops = 0;
    while (stops < 1000 && step.step() == NE_NOERROR)
        if (step.t == 0.01 * (stops + 1)) step.end(0.01 * (++stops + 1));
    EXPECT_REPORT(step.fail, NE_RK_PDC_POINTS);
    EXPECT_EQ(stops, 100);
}

TEST(RungeKutta, InterleavedProblemsDoNotMeet)
{
    for (const Integer method : kMethods) {
        Journey alone{kepler(0.7), 9.0, 1e-9, method}, one{kepler(0.7), 9.0, 1e-9, method},
            other{logistic(), 9.0, 1e-5, method};
        for (int i = 1; i <= 9; ++i) alone.range_to(i);
        for (int i = 1; i <= 9; ++i) {
            one.range_to(i);
            other.range_to(i);
        }
        EXPECT_EQ(alone.y, one.y);
        EXPECT_EQ(alone.yp, one.yp);
    }
}

TEST(RungeKutta, ManyEquationsGoTheWayOfFew)
{
    for (const Integer method : kMethods) {
        Journey few{kepler(0.5), 3.0, 1e-8, method}, many{copies(kepler(0.5), 5), 3.0, 1e-8, method};
        ASSERT_EQ(few.range_to(2.3), NE_NOERROR);
        ASSERT_EQ(many.range_to(2.3), NE_NOERROR);
        for (int i = 0; i < 20; ++i) {
            EXPECT_EQ(many.y[i], few.y[i % 4]);
            EXPECT_EQ(many.yp[i], few.yp[i % 4]);
        }
        EXPECT_EQ(many.problem.calls, few.problem.calls);
    }
}

TEST(RungeKutta, FirstStepIsAsAskedOrFound)
{
    for (const Integer method : kMethods)
        for (const double half_waves : {1.0, 2.0, 10.0}) {
            const double tend = half_waves * 3.14159265358979323846;
            Journey run{hidden_slope(), tend, 1e-6, method};
            ASSERT_EQ(run.range_to(tend), NE_NOERROR);
            EXPECT_LT(run.error(), 1e-4);
        }
    for (const double hstart : {0.0, 1e-3, -1e-3, 1e3, 1e-300, kNaN}) {
        InitialValues problem = oscillator();
        KorRKState state{};
        Record fail;
        const double thres[2] = {1e-3, 1e-3};
        double t, y[2], yp[2];
        d02pvc(2, 0.0, problem.y0.data(), 10.0, 1e-3, thres, Kor_RK_4_5, Kor_RK_onestep, Kor_ErrorAssess_off, hstart,
               &state, &fail);
        d02pdc(2, evaluate, &t, y, yp, &state, &problem, &fail);
        EXPECT_SUCCESS(fail);
        EXPECT_EQ(t == 1e-3, std::fabs(hstart) == 1e-3) << hstart;
        EXPECT_TRUE(t == 1e-3 || t > 0.05) << hstart;
        d02ppc(&state);
    }
}

} // namespace
