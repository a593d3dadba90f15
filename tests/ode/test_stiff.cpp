// The stiff integrator: published problems, promises of the driver, and the protocol of the kernels.
#include <algorithm>
#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <kor/d02.h>

#include "support/expect_report.hpp"

namespace kor::testing {
namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

struct Problem {
    const char *name;
    void (*f)(Integer, double, const double[], double[], void *);
    double x0, x1;
    std::vector<double> start, end;
    double amplification; // of an error of one tolerance in each step, over the whole range
};

void robertson(Integer, double, const double y[], double f[], void *)
{
    f[0] = -0.04 * y[0] + 1e4 * y[1] * y[2];
    f[2] = 3e7 * y[1] * y[1];
    f[1] = -f[0] - f[2];
}
void van_der_pol(Integer, double, const double y[], double f[], void *)
{
    f[0] = y[1];
    f[1] = 1000.0 * (1.0 - y[0] * y[0]) * y[1] - y[0];
}
void hires(Integer, double, const double y[], double f[], void *)
{
    f[0] = -1.71 * y[0] + 0.43 * y[1] + 8.32 * y[2] + 0.0007;
    f[1] = 1.71 * y[0] - 8.75 * y[1];
    f[2] = -10.03 * y[2] + 0.43 * y[3] + 0.035 * y[4];
    f[3] = 8.32 * y[1] + 1.71 * y[2] - 1.12 * y[3];
    f[4] = -1.745 * y[4] + 0.43 * y[5] + 0.43 * y[6];
    f[5] = -280.0 * y[5] * y[7] + 0.69 * y[3] + 1.71 * y[4] - 0.43 * y[5] + 0.69 * y[6];
    f[6] = 280.0 * y[5] * y[7] - 1.81 * y[6];
    f[7] = -f[6];
}
void oregonator(Integer, double, const double y[], double f[], void *)
{
    f[0] = 77.27 * (y[1] + y[0] * (1.0 - 8.375e-6 * y[0] - y[1]));
    f[1] = (y[2] - (1.0 + y[0]) * y[1]) / 77.27;
    f[2] = 0.161 * (y[0] - y[2]);
}
void prothero_robinson(Integer, double x, const double y[], double f[], void *)
{
    f[0] = -1e6 * (y[0] - std::sin(x + 0.5)) + std::cos(x + 0.5);
}

// Solutions from the test set of F. Mazzia and C. Magherini, release 2.4 (2008); the last one is sin(x + 0.5).
const Problem kProblems[] = {
    {"Robertson",
     robertson,
     0.0,
     1e11,
     {1, 0, 0},
     {2.083340149701255e-8, 8.333360770334713e-14, 0.9999999791665050},
     40},
    {"van der Pol", van_der_pol, 0.0, 2000.0, {2, 0}, {1.706167732170483, -8.928097010247975e-4}, 40},
    {"HIRES",
     hires,
     0.0,
     321.8122,
     {1, 0, 0, 0, 0, 0, 0, 0.0057},
     {7.371312573325668e-4, 1.442485726316185e-4, 5.888729740967575e-5, 1.175651343283149e-3, 2.386356198831331e-3,
      6.238968252742796e-3, 2.849998395185769e-3, 2.850001604814231e-3},
     200},
    {"Oregonator", oregonator, 0.0, 360.0, {1, 2, 3}, {1.000814870318523, 1228.178521549917, 132.0554942846706}, 400},
    {"Prothero-Robinson", prothero_robinson, 0.0, 10.0, {std::sin(0.5)}, {std::sin(10.5)}, 1},
};

TEST(Stiff, AchievesErrorsInProportionToTheTolerance)
{
    for (const Problem &p : kProblems)
        for (const double tol : {1e-4, 1e-6, 1e-8, 1e-10, 1e-12}) {
            std::vector<double> y = p.start;
            double x = p.x0;
            Record fail;
            d02ejc(static_cast<Integer>(y.size()), p.f, nullptr, &x, y.data(), p.x1, tol, Kor_Relative, nullptr,
                   nullptr, nullptr, &fail);
            EXPECT_SUCCESS(fail) << p.name;
            EXPECT_EQ(x, p.x1);
            for (std::size_t i = 0; i < y.size(); ++i)
                EXPECT_LE(std::fabs(y[i] / p.end[i] - 1.0), p.amplification * tol + 1e-10)
                    << p.name << ' ' << i << ' ' << tol;
        }
}

TEST(Stiff, TakesJumpsKinksAndScalesAsTheyCome)
{
    struct Case {
        const char *name;
        double (*f)(double x, double y);
        double start, end;
        double (*exact)(double x);
        double factor; // of the tolerance
    };
    const Case cases[] = {
        {"jump", [](double x, double y) { return x < 1 ? -1e3 * (y - 1) : -1e3 * (y + 1); }, 0, 2,
         [](double) { return -1.0; }, 1},
        {"fast start", [](double x, double y) { return -1e12 * (y - std::cos(x)); }, 0, 1,
         [](double x) { return std::cos(x); }, 1},
        {"kinks", [](double x, double y) { return -1e6 * (y - std::fabs(std::sin(x))); }, 0, 10,
         [](double x) { return std::fabs(std::sin(x)) + std::cos(x) * 1e-6; }, 1},
        {"rest", [](double, double) { return 0.0; }, 3, 1e6, [](double) { return 3.0; }, 0},
        {"straight", [](double, double) { return 2.0; }, 3, 1e6, [](double x) { return 3.0 + 2.0 * x; }, 1},
        {"short", [](double, double y) { return -y; }, 1, 1e-14, [](double x) { return std::exp(-x); }, 1},
        {"great", [](double, double y) { return -1e-300 * y; }, 1e300, 1e300,
         [](double) { return 1e300 * std::exp(-1.0); }, 200},
    };
    struct Data {
        const Case *c;
        long calls;
    };
    for (const Case &c : cases) {
        Data data{&c, 0};
        double x = 0.0, y[1] = {c.start};
        Record fail;
        d02ejc(
            1,
            [](Integer, double x, const double y[], double f[], void *comm) {
                auto *d = static_cast<Data *>(comm);
                ++d->calls;
                f[0] = d->c->f(x, y[0]);
            },
            nullptr, &x, y, c.end, 1e-8, Kor_Relative, nullptr, nullptr, &data, &fail);
        EXPECT_SUCCESS(fail) << c.name;
        EXPECT_LE(std::fabs(y[0] / c.exact(x) - 1.0), c.factor * 1e-8) << c.name;
        EXPECT_LT(data.calls, 2000) << c.name;
    }
}

// Either driver, as one without a Jacobian.
using Driver = void (*)(Integer, void (*)(Integer, double, const double[], double[], void *), double *, double[],
                        double, double, Integer, void (*)(Integer, double *, const double[], void *),
                        double (*)(Integer, double, const double[], void *), void *, KorError *);
const Driver kDrivers[] = {d02cjc, [](Integer neq, auto *fcn, double *x, double y[], double xend, double tol,
                                      Integer err_c, auto *output, auto *g, void *comm, KorError *fail) {
                               d02ejc(neq, fcn, nullptr, x, y, xend, tol, err_c, output, g, comm, fail);
                           }};

// u_t = u_xx / 100 + u^2 (1 - u) / 4 on a line of 200 points.
struct Line {
    static constexpr Integer n = 200;
    long calls = 0;
    double far = 0.0; // how much a point depends on a distant one
    static void slopes(Integer, double, const double u[], double f[], void *comm)
    {
        ++static_cast<Line *>(comm)->calls;
        const double far = static_cast<Line *>(comm)->far;
        constexpr double k = (n - 1.0) * (n - 1.0) / 100.0;
        for (Integer i = 0; i < n; ++i) {
            const double left = u[i > 0 ? i - 1 : 1], right = u[i < n - 1 ? i + 1 : n - 2];
            f[i] = k * (left - 2.0 * u[i] + right) + 10.0 * u[i] * u[i] * (1.0 - u[i]);
        }
        f[150] += far * (u[20] - u[150]);
    }
    static void jacobian(Integer, double, const double u[], double pw[], void *)
    {
        constexpr double k = (n - 1.0) * (n - 1.0) / 100.0;
        for (Integer i = 0; i < n; ++i) {
            pw[i * n + i] = -2.0 * k + 20.0 * u[i] - 30.0 * u[i] * u[i];
            pw[i * n + (i > 0 ? i - 1 : 1)] += k;
            pw[i * n + (i < n - 1 ? i + 1 : n - 2)] += k;
        }
    }
};

TEST(Stiff, FindsTheBandOfAJacobianByDifferences)
{
    std::vector<double> by_differences(Line::n), analytic;
    for (Integer i = 0; i < Line::n; ++i) by_differences[i] = 1.0 / (1.0 + std::exp(0.2 * (i - 60)));
    analytic = by_differences;
    Line with, without;
    double x = 0.0;
    Record fail;
    d02ejc(Line::n, Line::slopes, nullptr, &x, by_differences.data(), 3.0, 1e-8, Kor_Mixed, nullptr, nullptr, &with,
           &fail);
    EXPECT_SUCCESS(fail);
    x = 0.0;
    d02ejc(Line::n, Line::slopes, Line::jacobian, &x, analytic.data(), 3.0, 1e-8, Kor_Mixed, nullptr, nullptr, &without,
           &fail);
    EXPECT_SUCCESS(fail);
    for (Integer i = 0; i < Line::n; ++i) EXPECT_NEAR(by_differences[i], analytic[i], 1e-6) << i;
    // A few columns to find it, then three calls for each Jacobian.
    EXPECT_LT(with.calls, without.calls + without.calls / 3);

    // What no sampled column shows is found out all the same: then the Jacobian is formed in full, and serves well.
    Line deceptive;
    deceptive.far = 1e4;
    x = 0.0;
    d02ejc(Line::n, Line::slopes, nullptr, &x, by_differences.data(), 3.0, 1e-8, Kor_Mixed, nullptr, nullptr,
           &deceptive, &fail);
    EXPECT_SUCCESS(fail);
    EXPECT_GT(deceptive.calls, Line::n);
    EXPECT_NEAR(by_differences[150], by_differences[20], 1e-3);
}

// What the functions of a caller see.
struct Watcher {
    std::vector<double> wanted, seen, values;
    std::size_t next = 0;
    double furthest = 0.0, level = 0.5;
    long calls = 0;

    static void decay(Integer, double x, const double y[], double f[], void *comm)
    {
        auto *w = static_cast<Watcher *>(comm);
        ++w->calls;
        w->furthest = std::max(w->furthest, x);
        f[0] = -y[0];
    }
    static void output(Integer, double *xsol, const double y[], void *comm)
    {
        auto *w = static_cast<Watcher *>(comm);
        w->seen.push_back(*xsol);
        w->values.push_back(y[0]);
        *xsol = w->wanted[std::min(w->next++, w->wanted.size() - 1)];
    }
    static double g(Integer, double, const double y[], void *comm)
    {
        return y[0] - static_cast<Watcher *>(comm)->level;
    }
};

class EitherDriver : public ::testing::TestWithParam<Driver> {};

TEST_P(EitherDriver, ShowsTheSolutionWhereItIsWantedAndStopsAtTheRoot)
{
    const Driver driver = GetParam();
    Watcher w;
    w.wanted = {0.25, 0.25 + 1e-9, 0.5, 2.0, 99.0};
    double x = 0.0, y[1] = {1.0};
    Record fail;
    driver(1, Watcher::decay, &x, y, 2.0, 1e-9, Kor_Mixed, Watcher::output, nullptr, &w, &fail);
    EXPECT_SUCCESS(fail);
    EXPECT_EQ(w.seen, (std::vector<double>{0.0, 0.25, 0.25 + 1e-9, 0.5, 2.0}));
    for (std::size_t i = 0; i < w.seen.size(); ++i) EXPECT_NEAR(w.values[i], std::exp(-w.seen[i]), 2e-8);
    EXPECT_EQ(w.furthest, 2.0);

    // The root lies where the computed solution has it; outputs behind it do not come. Backwards as well as forwards.
    for (const double end : {3.0, -3.0}) {
        Watcher r;
        r.level = end > 0 ? 0.5 : 3.0;
        r.wanted = {end / 6, end / 2};
        x = 0.0;
        y[0] = 1.0;
        driver(1, Watcher::decay, &x, y, end, 1e-10, Kor_Relative, Watcher::output, Watcher::g, &r, &fail);
        EXPECT_SUCCESS(fail);
        EXPECT_NEAR(x, -std::log(r.level), 1e-8);
        EXPECT_NEAR(y[0], r.level, 1e-15 * r.level);
        EXPECT_EQ(r.seen.size(), 2u);
    }

    // A start at a zero of g, and two roots that lie close together: the first one counts.
    struct Close {
        static void slope(Integer, double, const double[], double f[], void *) { f[0] = 1.0; }
        static double g(Integer, double x, const double y[], void *) { return x * (y[0] - 2.0) * (y[0] - 3.0); }
    };
    x = 0.0;
    y[0] = 0.0;
    driver(1, Close::slope, &x, y, 5.0, 1e-3, Kor_Mixed, nullptr, Close::g, nullptr, &fail);
    EXPECT_SUCCESS(fail);
    EXPECT_NEAR(x, 2.0, 1e-14);

    Watcher never;
    never.level = -1.0;
    x = 0.0;
    y[0] = 1.0;
    driver(1, Watcher::decay, &x, y, 2.0, 1e-9, Kor_Mixed, nullptr, Watcher::g, &never, &fail);
    EXPECT_REPORT(fail, NE_NO_SIGN_CHANGE);
    EXPECT_EQ(x, 2.0);
    EXPECT_NEAR(y[0], std::exp(-2.0), 1e-7);
}

TEST_P(EitherDriver, RefusesWrongOutputPoints)
{
    const Driver driver = GetParam();
    const auto run = [driver](std::vector<double> wanted, double &x) {
        Watcher w;
        w.wanted = std::move(wanted);
        double y[1] = {1.0};
        Record fail;
        x = 0.0;
        driver(1, Watcher::decay, &x, y, 2.0, 1e-9, Kor_Mixed, Watcher::output, nullptr, &w, &fail);
        return fail;
    };
    double x;
    EXPECT_REPORT(run({-1.0}, x), NE_XSOL_SET_WRONG, -1.0, 0.0);
    EXPECT_REPORT(run({kNaN}, x), NE_XSOL_SET_WRONG, kNaN, 0.0);
    EXPECT_REPORT(run({0.0}, x), NE_XSOL_NOT_RESET, 2); // never moved at all
    EXPECT_EQ(x, 0.0);
    EXPECT_REPORT(run({1.0, 1.0}, x), NE_XSOL_NOT_RESET, 2);
    EXPECT_EQ(x, 1.0);
    EXPECT_REPORT(run({1.0, 0.5}, x), NE_XSOL_INCONSIST, 0.5, 1.0);
}

TEST_P(EitherDriver, RefusesBadArgumentsInOrder)
{
    const Driver driver = GetParam();
    const auto run = [driver](Integer neq, double tol, double xend, Integer measure) {
        Watcher w;
        double x = 1.0, y[1] = {1.0};
        Record fail;
        driver(neq, Watcher::decay, &x, y, xend, tol, measure, nullptr, nullptr, &w, &fail);
        EXPECT_EQ(x, 1.0);
        EXPECT_EQ(y[0], 1.0);
        return fail;
    };
    EXPECT_REPORT(run(0, 0.0, 1.0, 0), NE_INT_ARG_LT, "neq", "1", "neq", 0);
    EXPECT_REPORT(run(1, 0.0, 1.0, 0), NE_REAL_ARG_LE, "tol", "0.0", "tol", 0.0);
    EXPECT_REPORT(run(1, kNaN, 1.0, 0), NE_REAL_ARG_LE, "tol", "0.0", "tol", kNaN);
    EXPECT_REPORT(run(1, 1e-6, 1.0, 0), NE_2_REAL_ARG_EQ, "x", 1.0, "tend", 1.0, "x", "tend");
    EXPECT_REPORT(run(1, 1e-6, 2.0, Kor_Relative - 1), NE_BAD_PARAM, "err_c");
    EXPECT_REPORT(run(1, 1e-6, 2.0, Kor_Mixed + 1), NE_BAD_PARAM, "err_c");
    for (const Integer measure : {Kor_Relative, Kor_Absolute, Kor_Mixed})
        EXPECT_REPORT(run(1, 1e-18, 2.0, measure), NE_TOL_TOO_SMALL, 1e-18);
    EXPECT_REPORT(run(1, 1e-6, kNaN, Kor_Mixed), NE_TOL_TOO_SMALL, 1e-6);
    EXPECT_REPORT(run(1, 1e-6, HUGE_VAL, Kor_Mixed), NE_TOL_TOO_SMALL, 1e-6);
}

TEST_P(EitherDriver, EndsWithBoundedWorkAtSingularities)
{
    const Driver driver = GetParam();
    struct Case {
        double (*f)(double x, double y);
        double last; // where the solution ends
    };
    const Case cases[] = {
        {[](double, double y) { return y * y; }, 1.0},
        {[](double x, double y) { return x < 0.7 ? -y : kNaN; }, 0.7},
        {[](double x, double) { return 1.0 / (0.3 - x); }, 0.3},
    };
    struct Data {
        const Case *c;
        long calls;
    };
    for (const Case &c : cases) {
        Data data{&c, 0};
        double x = 0.0, y[1] = {1.0};
        Record fail;
        driver(
            1,
            [](Integer, double x, const double y[], double f[], void *comm) {
                auto *d = static_cast<Data *>(comm);
                ++d->calls;
                f[0] = d->c->f(x, y[0]);
            },
            &x, y, 2.0, 1e-8, Kor_Mixed, nullptr, nullptr, &data, &fail);
        EXPECT_REPORT(fail, NE_TOL_PROGRESS, 1e-8, x);
        EXPECT_NEAR(x, c.last, 1e-6);
        EXPECT_LT(data.calls, 20000);
    }
    double x = 0.0, y[1] = {1.0};
    Record fail;
    driver(
        1, [](Integer, double, const double[], double f[], void *) { f[0] = kNaN; }, &x, y, 2.0, 1e-8, Kor_Mixed,
        nullptr, nullptr, nullptr, &fail);
    EXPECT_REPORT(fail, NE_TOL_TOO_SMALL, 1e-8);
    EXPECT_EQ(x, 0.0);
}

INSTANTIATE_TEST_SUITE_P(Drivers, EitherDriver, ::testing::ValuesIn(kDrivers));

// ---- The kernels ----

struct Kernel {
    KorBdfState st{};
    std::vector<double> ysav, work, y, ydot, res, pw;
    std::vector<Integer> iwork;
    double t = 0.0, rtol = 1e-7, atol = 1e-9;
    Integer irevcm = 0, status = 9;
    const Problem &p;

    explicit Kernel(const Problem &problem)
        : ysav(6 * problem.start.size()), work(problem.start.size() * (problem.start.size() + 5)), y(problem.start),
          ydot(y.size()), res(y.size()), pw(y.size() * y.size()), iwork(y.size()), p{problem}
    {
        d02nvc(n(), 6, 5, &st, &status);
        EXPECT_EQ(status, 0);
        d02nsc(n(), "Numerical", &st, &status);
        EXPECT_EQ(status, 0);
        st.ysav = ysav.data();
        st.work = work.data();
        st.iwork = iwork.data();
    }
    Integer n() const { return static_cast<Integer>(y.size()); }
    void call(double tout)
    {
        d02nmc(n(), &t, tout, y.data(), ydot.data(), &rtol, &atol, 1, res.data(), pw.data(), &st, &irevcm, &status);
        if (irevcm == 1) p.f(n(), t, y.data(), ydot.data(), nullptr);
    }
    void integrate(double tout)
    {
        do call(tout);
        while (irevcm != 0);
    }
};

TEST(StiffKernels, ProblemsMayBeInterleaved)
{
    Kernel alone{kProblems[1]}, first{kProblems[1]}, second{kProblems[3]};
    alone.integrate(900.0);
    bool going = true;
    for (bool other = true; going || other;) {
        if (going) first.call(900.0);
        going = first.irevcm != 0;
        if (other) second.call(300.0);
        other = second.irevcm != 0;
    }
    EXPECT_EQ(first.y, alone.y);
    EXPECT_EQ(first.st.derivatives, alone.st.derivatives);
    EXPECT_EQ(second.status, 0);
}

TEST(StiffKernels, InterpolatesWithinTheLastStepOnly)
{
    Kernel k{kProblems[4]};
    k.integrate(1.0);
    EXPECT_EQ(k.status, 0);
    EXPECT_EQ(k.t, 1.0);
    EXPECT_GE(k.st.t, 1.0);
    Integer status;
    double sol[1] = {99.0};
    const auto at = [&](double x) {
        d02xkc(x, sol, 1, k.st.ysav, 1, 6, &k.st, &status);
        return status;
    };
    for (const double part : {0.0, 0.3, 0.99, 1.0}) {
        const double x = k.st.t - part * k.st.hlast;
        EXPECT_LE(at(x), part == 1.0 ? 3 : 0);
        EXPECT_NEAR(sol[0], std::sin(x + 0.5), 1e-7);
    }
    EXPECT_EQ(at(k.st.t + 0.5 * k.st.hlast), 3);
    // A new target within the last step needs no new step.
    const Integer steps = k.st.steps;
    k.integrate(k.st.t - 0.5 * k.st.hlast);
    EXPECT_EQ(k.status, 0);
    EXPECT_EQ(k.st.steps, steps);
    k.integrate(0.5);
    EXPECT_EQ(k.status, 1);
}

TEST(StiffKernels, TellFaultsByTheirStatus)
{
    Kernel k{kProblems[1]};
    KorBdfState blank{};
    Integer status;
    double sol[2];
    for (const auto &[neq, nhist, maxord] : {std::tuple{0, 6, 5}, {1, 5, 5}, {1, 7, 6}, {1, 6, 0}}) {
        d02nvc(neq, nhist, maxord, &blank, &status);
        EXPECT_EQ(status, 1);
    }
    d02nsc(2, "ANALYT", &blank, &status);
    EXPECT_EQ(status, 2);
    d02nsc(2, "NUMER", &k.st, &status);
    EXPECT_EQ(status, 1);
    d02nsc(3, "NUMERI", &k.st, &status);
    EXPECT_EQ(status, 1);
    d02xkc(0.0, sol, 3, k.st.ysav, 2, 6, &k.st, &status);
    EXPECT_EQ(status, 1);
    d02xkc(0.0, sol, 2, k.st.ysav, 2, 6, &k.st, &status); // no step yet
    EXPECT_EQ(status, 2);
    k.rtol = -1.0;
    k.call(1.0);
    EXPECT_EQ(k.status, 1);
    k.rtol = k.atol = 0.0;
    k.integrate(1.0);
    EXPECT_EQ(k.status, 3);
    k.call(1.0);
    EXPECT_EQ(k.status, 2);

    const double v[2] = {3e200, 4e200}, w[2] = {1e-100, 1e-100}, tiny[2] = {3e-200, 4e-200}, one[2] = {1.0, 1.0},
                 none[2] = {};
    EXPECT_DOUBLE_EQ(d02zac(2, v, w, &status), std::sqrt(12.5) * 1e300);
    EXPECT_DOUBLE_EQ(d02zac(2, tiny, one, &status), std::sqrt(12.5) * 1e-200);
    EXPECT_EQ(d02zac(2, none, none, &status), 0.0);
    EXPECT_EQ(d02zac(2, one, none, &status), HUGE_VAL);
    EXPECT_EQ(status, 0);
    d02zac(0, v, w, &status);
    EXPECT_EQ(status, 1);
}

} // namespace
} // namespace kor::testing
