// Boundary value problems: solutions in closed form and published ones, hard problems, and every way to fail.
#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <numbers>
#include <vector>

#include <gtest/gtest.h>

#include <kor/d02.h>

#include "support/expect_report.hpp"

namespace kor::testing {
namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kPi = std::numbers::pi;

// A problem with room for its solution: functions as the caller likes to write them, called through comm.
struct Boundary {
    Integer neq, mnp, np = 0;
    std::vector<double> x, y, errest;
    std::function<void(double x, double eps, const double *y, double *f)> slope;
    std::function<void(double eps, const double *ya, const double *yb, double *g)> conditions;
    std::function<void(double x, double eps, const double *y, double *j)> jacobian, slope_by_eps;
    std::function<void(double eps, const double *ya, const double *yb, double *ja, double *jb)> conditions_jacobian;
    long calls = 0;
    Record fail;

    Boundary(Integer neq, Integer mnp) : neq{neq}, mnp{mnp}, x(mnp), y(neq * mnp), errest(neq) {}
    double value(Integer component, Integer point) const { return y[component * mnp + point]; }

    static Boundary &of(void *comm) { return *static_cast<Boundary *>(comm); }
    static void f(Integer, double x, const double y[], double f[], void *comm)
    {
        ++of(comm).calls;
        of(comm).slope(x, 1.0, y, f);
    }
    static void feps(Integer, double x, double eps, const double y[], double f[], void *comm)
    {
        ++of(comm).calls;
        of(comm).slope(x, eps, y, f);
    }
    static void g(Integer, double eps, const double ya[], const double yb[], double bc[], void *comm)
    {
        of(comm).conditions(eps, ya, yb, bc);
    }
    static void matrix(Integer, double x, double f[], void *comm) { of(comm).slope(x, 1.0, nullptr, f); }
    static void force(Integer, double x, double g[], void *comm) { of(comm).slope_by_eps(x, 1.0, nullptr, g); }
    static void j(Integer, double x, double eps, const double y[], double f[], void *comm)
    {
        of(comm).jacobian(x, eps, y, f);
    }
    static void jg(Integer, double eps, const double ya[], const double yb[], double ja[], double jb[], void *comm)
    {
        of(comm).conditions_jacobian(eps, ya, yb, ja, jb);
    }
    static void je(Integer, double x, double eps, const double y[], double f[], void *comm)
    {
        of(comm).slope_by_eps(x, eps, y, f);
    }
    static void jge(Integer, double, const double[], const double[], double[], void *) {}

    void known_values(double a, double b, std::vector<double> u, std::vector<Integer> v, double tol)
    {
        d02gac(neq, f, a, b, u.data(), v.data(), tol, mnp, &np, x.data(), y.data(), mnp, this, &fail);
    }
    void linear(double a, double b, std::vector<double> c, std::vector<double> d, std::vector<double> gamma, double tol)
    {
        d02gbc(neq, matrix, slope_by_eps ? force : nullptr, a, b, c.data(), d.data(), gamma.data(), tol, mnp, &np,
               x.data(), y.data(), mnp, this, &fail);
    }
    void general(double a, double b, Integer points, double deleps, Integer left, Integer mixed, double tol)
    {
        np = points;
        x[0] = a;
        x[np - 1] = b;
        d02rac(neq, &deleps, feps, left, mixed, g, Kor_DefInitMesh, mnp, &np, x.data(), y.data(), mnp, errest.data(),
               tol, jacobian ? j : nullptr, conditions_jacobian ? jg : nullptr, jacobian && deleps > 0.0 ? je : nullptr,
               jacobian && deleps > 0.0 ? jge : nullptr, this, &fail);
    }
    double worst(Integer component, const std::function<double(double)> &exact) const
    {
        double error = 0.0;
        for (Integer i = 0; i < np; ++i) error = std::max(error, std::fabs(value(component, i) - exact(x[i])));
        return error;
    }
};

// ---- Solutions ----

void bratu(double, double eps, const double *y, double *f)
{
    f[0] = y[1];
    f[1] = -eps * std::exp(y[0]);
}

TEST(Boundary, BratuHasItsClosedSolution)
{
    double theta = 1.5;
    for (int i = 0; i < 50; ++i)
        theta -= (theta - std::sqrt(2.0) * std::cosh(theta / 4)) / (1.0 - std::sqrt(2.0) / 4 * std::sinh(theta / 4));
    for (const double tol : {1e-3, 1e-6, 1e-10, 1e-13}) {
        Boundary p{2, 200};
        p.slope = bratu;
        p.known_values(0.0, 1.0, {0, 0, 0.5, -0.5}, {0, 0, 1, 1}, tol);
        EXPECT_SUCCESS(p.fail);
        EXPECT_EQ(p.x[0], 0.0);
        EXPECT_EQ(p.x[p.np - 1], 1.0);
        EXPECT_LE(
            p.worst(0,
                    [&](double x) { return -2.0 * std::log(std::cosh((x - 0.5) * theta / 2) / std::cosh(theta / 4)); }),
            tol);
    }
}

TEST(Boundary, FindsLayers)
{
    // eps y'' + y' = 0 with a layer at the left end, and one within the range: eps y'' + x y' = ...
    for (const double eps : {1e-1, 1e-3, 1e-6})
        for (const double tol : {1e-4, 1e-8}) {
            Boundary p{2, 300};
            p.slope = [eps](double, double, const double *, double *f) {
                f[1] = 1.0 / eps;
                f[3] = -1.0 / eps;
            };
            p.linear(0.0, 1.0, {1, 0, 0, 0}, {0, 0, 1, 0}, {0, 1}, tol);
            EXPECT_SUCCESS(p.fail) << eps;
            EXPECT_LE(p.worst(0, [eps](double x) { return std::expm1(-x / eps) / std::expm1(-1.0 / eps); }), tol)
                << eps;

            Boundary q{2, 400};
            const double root = std::sqrt(eps);
            q.slope = [eps, root](double x, double, const double *, double *f) {
                f[1] = 1.0 / root;
                f[3] = -x / eps;
            };
            q.slope_by_eps = [eps, root](double x, double, const double *, double *g) {
                g[1] = -(eps * kPi * kPi * std::cos(kPi * x) + kPi * x * std::sin(kPi * x)) / root;
            };
            q.linear(-1.0, 1.0, {1, 0, 0, 0}, {0, 0, 1, 0}, {-2, 0}, tol);
            EXPECT_SUCCESS(q.fail) << eps;
            const double scale = std::erf(1.0 / std::sqrt(2 * eps));
            EXPECT_LE(
                q.worst(0, [&](double x) { return std::cos(kPi * x) + std::erf(x / std::sqrt(2 * eps)) / scale; }), tol)
                << eps;
        }
}

TEST(Boundary, TroeschByContinuation)
{
    for (const bool analytic : {false, true}) {
        Boundary p{2, 300};
        p.slope = [](double, double eps, const double *y, double *f) {
            f[0] = y[1];
            f[1] = 10.0 * eps * std::sinh(10.0 * eps * y[0]);
        };
        p.conditions = [](double, const double *ya, const double *yb, double *g) {
            g[0] = ya[0];
            g[1] = yb[0] - 1.0;
        };
        if (analytic) {
            p.jacobian = [](double, double eps, const double *y, double *j) {
                j[1] = 1.0;
                j[2] = 100.0 * eps * eps * std::cosh(10.0 * eps * y[0]);
            };
            p.slope_by_eps = [](double, double eps, const double *y, double *f) {
                f[1] = 10.0 * std::sinh(10.0 * eps * y[0]) + 100.0 * eps * y[0] * std::cosh(10.0 * eps * y[0]);
            };
            p.conditions_jacobian = [](double, const double *, const double *, double *ja, double *jb) {
                ja[0] = jb[2] = 1.0;
            };
        }
        p.general(0.0, 1.0, 17, 0.1, 1, 0, 1e-8);
        EXPECT_SUCCESS(p.fail);
        EXPECT_NEAR(p.value(1, 0), 3.583377846e-4,
                    1e-12); // M. R. Scott, in Numerical Solutions of BVPs for ODEs (1975)
        // The first integral: y'^2 - 2 cosh 10 y is constant.
        for (Integer i = 0; i < p.np; ++i) {
            const double slope =
                std::sqrt(p.value(1, 0) * p.value(1, 0) + 4.0 * std::pow(std::sinh(5.0 * p.value(0, i)), 2));
            EXPECT_NEAR(p.value(1, i), slope, 1e-8);
        }
        EXPECT_LE(*std::max_element(p.errest.begin(), p.errest.end()), 1e-8);
    }
}

TEST(Boundary, FalknerSkanFromAPlainEstimate)
{
    // f''(0) to 10 digits: D. R. Hartree, Proc. Camb. Phil. Soc. 33 (1937), with the digits of later work.
    for (const auto &[beta, curvature] : {std::pair{0.0, 0.46959998836}, {0.5, 0.92768003984}, {1.0, 1.23258765682}}) {
        Boundary p{3, 64};
        p.slope = [beta = beta](double, double, const double *y, double *f) {
            f[0] = y[1];
            f[1] = y[2];
            f[2] = -y[0] * y[2] - beta * (1.0 - y[1] * y[1]);
        };
        p.np = 26;
        for (Integer i = 0; i < p.np; ++i) p.x[i] = 10.0 * i / 25;
        p.known_values(0.0, 10.0, {0, 10, 0, 1, 0, 0}, {0, 1, 0, 0, 1, 1}, 1e-9);
        EXPECT_SUCCESS(p.fail) << beta;
        EXPECT_NEAR(p.value(2, 0), curvature, 1e-9) << beta;
    }
}

TEST(Boundary, ConditionsMayMixBothEnds)
{
    // y'' = y - 2 cos x with period 2 pi: cos x, in modes that grow and decay.
    Boundary p{2, 64};
    p.slope = [](double, double, const double *, double *f) { f[1] = f[2] = 1.0; };
    p.slope_by_eps = [](double x, double, const double *, double *g) { g[1] = -2.0 * std::cos(x); };
    p.linear(0.0, 2 * kPi, {1, 0, 0, 1}, {-1, 0, 0, -1}, {0, 0}, 1e-9);
    EXPECT_SUCCESS(p.fail);
    EXPECT_LE(p.worst(0, [](double x) { return std::cos(x); }), 1e-9);

    // Two plates turn in opposite directions (swirling flow), one condition written across both ends: f(1-x) = -f(x).
    double curvature[2];
    for (const int fine : {0, 1}) {
        Boundary q{6, 500};
        q.slope = [](double, double eps, const double *y, double *f) {
            const double e = 1.0 - 0.99 * eps;
            f[0] = y[1];
            f[1] = y[2];
            f[2] = y[3];
            f[3] = -(y[0] * y[3] + y[4] * y[5]) / e;
            f[4] = y[5];
            f[5] = (y[1] * y[4] - y[0] * y[5]) / e;
        };
        q.conditions = [](double, const double *ya, const double *yb, double *g) {
            g[0] = ya[0];
            g[1] = ya[1];
            g[2] = ya[4] + yb[4];
            g[3] = yb[0];
            g[4] = yb[1];
            g[5] = yb[4] - 1.0;
        };
        q.general(0.0, 1.0, 21, 0.1, 2, 1, fine ? 1e-9 : 1e-5);
        EXPECT_SUCCESS(q.fail);
        curvature[fine] = q.value(2, 0);
        EXPECT_NEAR(q.value(2, q.np - 1), -q.value(2, 0), fine ? 1e-8 : 1e-4);
        EXPECT_NEAR(q.value(5, q.np - 1), q.value(5, 0), fine ? 1e-8 : 1e-4);
    }
    EXPECT_NEAR(curvature[0], curvature[1], 1e-5);
    EXPECT_GT(std::fabs(curvature[1]), 0.01);
}

TEST(Boundary, FindsTheSolutionNearTheOneThatIsGiven)
{
    // Bratu's problem has two; theta = sqrt(2) cosh(theta / 4) has a second root. The mesh is uneven.
    double theta = 11.0;
    for (int i = 0; i < 50; ++i)
        theta -= (theta - std::sqrt(2.0) * std::cosh(theta / 4)) / (1.0 - std::sqrt(2.0) / 4 * std::sinh(theta / 4));
    Boundary p{2, 100};
    p.slope = bratu;
    p.conditions = [](double, const double *ya, const double *yb, double *g) {
        g[0] = ya[0];
        g[1] = yb[0];
    };
    p.np = 21;
    for (Integer i = 0; i < p.np; ++i) {
        const double x = p.x[i] = std::pow(i / 20.0, 1.3);
        p.y[i] = 16.0 * x * (1.0 - x);
        p.y[p.mnp + i] = 16.0 * (1.0 - 2.0 * x);
    }
    double deleps = 0.0;
    d02rac(2, &deleps, Boundary::feps, 1, 0, Boundary::g, Kor_UserInitMesh, p.mnp, &p.np, p.x.data(), p.y.data(), p.mnp,
           p.errest.data(), 1e-8, nullptr, nullptr, nullptr, nullptr, &p, &p.fail);
    EXPECT_SUCCESS(p.fail);
    EXPECT_LE(
        p.worst(0, [&](double x) { return -2.0 * std::log(std::cosh((x - 0.5) * theta / 2) / std::cosh(theta / 4)); }),
        1e-8);
}

TEST(Boundary, ReordersTheConditionsOfALinearProblem)
{
    // y' = 0: y3(b) = 1, y1(a) + y2(b) = 2, y1(a) - y2(a) = 4; one on the right end, a mixed one, one on the left end.
    double c[9] = {0, 0, 0, 1, 0, 0, 1, -1, 0}, d[9] = {0, 0, 1, 0, 1, 0, 0, 0, 0}, gamma[3] = {1, 2, 4}, x[40], y[120];
    Integer np = 0;
    Record fail;
    d02gbc(
        3, [](Integer, double, double[], void *) {}, nullptr, 0.0, 1.0, c, d, gamma, 1e-6, 40, &np, x, y, 40, nullptr,
        &fail);
    EXPECT_SUCCESS(fail);
    EXPECT_EQ(std::vector<double>(gamma, gamma + 3), (std::vector<double>{4, 2, 1}));
    EXPECT_EQ(std::vector<double>(c, c + 9), (std::vector<double>{1, -1, 0, 1, 0, 0, 0, 0, 0}));
    EXPECT_EQ(std::vector<double>(d, d + 9), (std::vector<double>{0, 0, 0, 0, 1, 0, 0, 0, 1}));
    EXPECT_NEAR(y[0], 3.0, 1e-14);
    EXPECT_NEAR(y[40], -1.0, 1e-14);
    EXPECT_NEAR(y[80], 1.0, 1e-14);
}

// ---- Failures ----

TEST(Boundary, SaysWhyItCannotSolve)
{
    const auto ends = [](double, const double *ya, const double *yb, double *g) {
        g[0] = ya[0];
        g[1] = yb[0];
    };
    {
        Boundary p{2, 64}; // five times the slope has no solution
        p.slope = [](double x, double eps, const double *y, double *f) { bratu(x, 5.0 * eps, y, f); };
        p.known_values(0.0, 1.0, {0, 0, 0, 0}, {0, 0, 1, 1}, 1e-6);
        EXPECT_REPORT(p.fail, NE_CONV_MESH_INIT);
        EXPECT_EQ(p.np, 0);
        EXPECT_LT(p.calls, 2000000);
        p.conditions = ends;
        p.general(0.0, 1.0, 17, 0.2, 1, 0, 1e-6);
        EXPECT_EQ(p.fail.code, NE_CONV_CONT_DELEPS);
        EXPECT_NEAR(p.value(0, p.np / 2), 1.19, 0.15); // the turning point
    }
    {
        Boundary p{2, 32};
        p.slope = [](double, double, const double *, double *f) {
            f[1] = 1e6;
            f[3] = -1e6;
        };
        p.linear(0.0, 1.0, {1, 0, 0, 0}, {0, 0, 1, 0}, {0, 1}, 1e-12);
        EXPECT_REPORT(p.fail, NE_CONV_MESH, 32);
        EXPECT_LE(p.np, 32);
    }
    {
        Boundary p{2, 100};
        p.slope = bratu;
        p.known_values(0.0, 1.0, {0, 0, 0.5, -0.5}, {0, 0, 1, 1}, 1e-18);
        EXPECT_REPORT(p.fail, NE_CONV_ROUNDOFF);
        EXPECT_NEAR(p.value(1, 0), 0.549352726, 1e-8);
    }
    {
        Boundary p{2, 64};
        p.slope = [](double x, double, const double *y, double *f) { bratu(x, 1.0, y, f); };
        p.conditions = ends;
        p.general(0.0, 1.0, 9, 0.5, 1, 0, 1e-6);
        EXPECT_REPORT(p.fail, NE_CONV_CONT_DEP);
        p.conditions = [](double, const double *ya, const double *, double *g) {
            g[0] = ya[0];
            g[1] = 2.0 * ya[0] - 1.0;
        };
        p.general(0.0, 1.0, 9, 0.0, 0, 2, 1e-6);
        EXPECT_REPORT(p.fail, NE_CONV_JACOBG);
    }
    for (const double from : {0.0, 0.5}) { // not a number in half of the range, or all of it
        Boundary p{2, 64};
        p.slope = [from](double x, double, const double *y, double *f) {
            f[0] = y[1];
            f[1] = x >= from ? kNaN : 1.0;
        };
        p.known_values(0.0, 1.0, {0, 0, 0, 0}, {0, 0, 1, 1}, 1e-6);
        EXPECT_REPORT(p.fail, NE_CONV_MESH_INIT);
        EXPECT_LT(p.calls, 2000000);
    }
}

TEST(Boundary, RefusesBadArgumentsInOrder)
{
    struct Arguments {
        Integer neq = 2;
        double tol = 1e-6, a = 0.0, b = 1.0;
        std::vector<Integer> v = {0, 0, 1, 1};
        Integer mnp = 40, np = 5, tdy = 40;
        std::vector<double> x = {0.0, 0.25, 0.5, 0.75, 1.0};
    };
    const auto run = [](Arguments q) {
        const double u[4] = {};
        std::vector<double> y(80, 9.0);
        const std::vector<double> before = q.x;
        q.x.resize(40);
        Record fail;
        d02gac(q.neq, Boundary::f, q.a, q.b, u, q.v.data(), q.tol, q.mnp, &q.np, q.x.data(), y.data(), q.tdy, nullptr,
               &fail);
        EXPECT_EQ(y, std::vector<double>(80, 9.0));
        return fail;
    };
    EXPECT_REPORT(run({.neq = 0, .tol = 0.0}), NE_INT_ARG_LT, "neq", "1", "neq", 0);
    EXPECT_REPORT(run({.tol = kNaN, .b = 0.0}), NE_REAL_ARG_LE, "tol", "0.0", "tol", kNaN);
    EXPECT_REPORT(run({.b = 0.0, .np = 3}), NE_2_REAL_ARG_LE, "b", 0.0, "a", 0.0, "b", "a");
    for (const Integer np : {3, -1, 41})
        EXPECT_REPORT(run({.np = np}), NE_INT_RANGE_CONS_2, "np", np, "mnp", 40, "np", "np = 0", "4 <= np <= mnp");
    EXPECT_REPORT(run({.tdy = 39}), NE_2_INT_ARG_LT, "tdy", 39, "mnp", 40, "tdy", "mnp");
    EXPECT_REPORT(run({.v = {0, 1, 0, 1}}), NE_LF_B_VAL, 2, 2);
    EXPECT_REPORT(run({.v = {1, 0, 1, 0}}), NE_RT_B_VAL, 2, 2);
    EXPECT_REPORT(run({.v = {0, 1, 1, 1}}), NE_LFRT_B_VAL, 1, 2);
    EXPECT_REPORT(run({.x = {0.1, 0.25, 0.5, 0.75, 1.0}}), NE_LF_B_MESH, 0.1, 0.0);
    EXPECT_REPORT(run({.x = {0.0, 0.25, 0.5, 0.75, 1.1}}), NE_RT_B_MESH, 1.1, 1.0);
    EXPECT_REPORT(run({.x = {0.0, 0.25, 0.25, 0.75, 1.0}}), NE_NOT_STRICTLY_INCREASING, "x", "x", 1, 0.25, "x", 2,
                  0.25);
    EXPECT_REPORT(run({.mnp = 31}), NE_INT_ARG_LT, "mnp", "32", "mnp", 31);
}

TEST(Boundary, TestsTheConditionsOfALinearProblem)
{
    const auto run = [](std::vector<double> c, std::vector<double> d, Integer mnp = 40) {
        Boundary p{2, mnp};
        p.slope = [](double, double, const double *, double *f) { f[1] = 1.0; };
        p.linear(0.0, 1.0, std::move(c), std::move(d), {1, 2}, 1e-6);
        return p.fail;
    };
    EXPECT_REPORT(run({1, 0, 0, 0}, {0, 1, 0, 0}), NE_BOUND_COND_ROW, 1);
    EXPECT_REPORT(run({1, 0, 1, 0}, {0, 0, 0, 0}), NE_BOUND_COND_COL, 3);
    EXPECT_REPORT(run({1, 0, 0, 1}, {0, 0, 0, 0}), NE_BOUND_COND_MAT, 2);
    EXPECT_REPORT(run({1, 2, 2, 4}, {1, 0, 2, 0}), NE_BOUND_COND_LC, 1);
    EXPECT_REPORT(run({1, 1, 3, 3 + 1e-15}, {0.1, 0, 0.1 + 0.1 + 0.1, 0}), NE_BOUND_COND_NLC, 1);
    EXPECT_REPORT(run({1, 0, 0, 0}, {0, 0, 1, 0}, 31), NE_INT_ARG_LT, "mnp", "32", "mnp", 31);
    EXPECT_SUCCESS(run({1, 0, 0, 0}, {0, 0, 1, 0}));
}

TEST(Boundary, TestsWhatAGeneralProblemIsGiven)
{
    struct Arguments {
        Integer np = 5, numbeg = 1, nummix = 0, init = Kor_DefInitMesh, mnp = 40;
        double deleps = 0.0, last = 1.0;
        int functions = 0; // bits: jacobf, jacobg, jaceps, jacgep
        double second = 0.25;
    };
    const auto run = [](Arguments q) {
        std::vector<double> x = {0.0, q.second, 0.5, 0.75, q.last}, y(80, 9.0), errest(2, 9.0);
        x.resize(40);
        Record fail;
        d02rac(2, &q.deleps, Boundary::feps, q.numbeg, q.nummix, Boundary::g, q.init, q.mnp, &q.np, x.data(), y.data(),
               40, errest.data(), 1e-6, q.functions & 1 ? Boundary::j : nullptr,
               q.functions & 2 ? Boundary::jg : nullptr, q.functions & 4 ? Boundary::je : nullptr,
               q.functions & 8 ? Boundary::jge : nullptr, nullptr, &fail);
        EXPECT_EQ(y, std::vector<double>(80, 9.0));
        EXPECT_EQ(errest, std::vector<double>(2, 9.0));
        return fail;
    };
    for (const Integer np : {0, 3, 41})
        EXPECT_REPORT(run({.np = np}), NE_INT_RANGE_CONS, "np", np, "mnp", 40, "np", "4 <= np <= mnp");
    for (const Integer numbeg : {-1, 2})
        EXPECT_REPORT(run({.numbeg = numbeg}), NE_INT_RANGE_CONS, "numbeg", numbeg, "neq", 2, "numbeg",
                      "0 <= numbeg < neq");
    EXPECT_REPORT(run({.nummix = 2}), NE_INT_RANGE_CONS, "nummix", 2, "neq-numbeg", 1, "nummix",
                  "0 <= nummix <= neq-numbeg");
    EXPECT_REPORT(run({.numbeg = 0}), NE_2_INT_ARG_ZERO, "numbeg", "nummix");
    EXPECT_REPORT(run({.init = Kor_DefInitMesh + 1}), NE_BAD_PARAM, "init");
    EXPECT_REPORT(run({.last = 0.0}), NE_2_REAL_ARG_LE, "x[0]", 0.0, "x[np-1]", 0.0, "x[np-1]", "x[0]");
    EXPECT_REPORT(run({.init = Kor_UserInitMesh, .second = 0.5}), NE_NOT_STRICTLY_INCREASING, "x", "x", 1, 0.5, "x", 2,
                  0.5);
    for (const int one : {1, 2}) EXPECT_REPORT(run({.functions = one}), NE_INVALID_FUN_JAC);
    for (const int some : {4, 8, 12}) {
        EXPECT_REPORT(run({.deleps = 0.1, .functions = some}), NE_INVALID_FUN_NO_JAC_CONT);
        EXPECT_REPORT(run({.functions = 3 + some}), NE_INVALID_FUN_JAC_NO_CONT);
    }
    for (const int some : {3, 7, 11}) EXPECT_REPORT(run({.deleps = 0.1, .functions = some}), NE_INVALID_FUN_JAC_CONT);
    EXPECT_REPORT(run({.mnp = 31}), NE_INT_ARG_LT, "mnp", "32", "mnp", 31);
}

} // namespace
} // namespace kor::testing
