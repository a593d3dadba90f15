// Systems of nonlinear equations: the published test set, the protocol with the user's function, refusals, and the check
// of Jacobians.
#include <limits>

#include <gtest/gtest.h>

#include <kor/c05.h>

#include "roots/nonlinear_systems.hpp"
#include "support/expect_report.hpp"

namespace kor::testing {
namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

struct Problem {
    const NonlinearSystem *system;
    int values = 0;
    int jacobians = 0;
    Integer stop_at = 0; // raise the flag at this call
    int wrong = -1;      // element of the Jacobian to spoil
    double factor = 1.0; // how
};

void value_only(Integer n, const double x[], double fvec[], Integer *userflag, void *comm)
{
    auto *problem = static_cast<Problem *>(comm);
    problem->system->f(n, x, fvec);
    if (++problem->values == problem->stop_at) *userflag = -7;
}

void value_or_jacobian(Integer n, const double x[], double fvec[], double fjac[], Integer tdfjac, Integer *userflag,
                       void *comm)
{
    auto *problem = static_cast<Problem *>(comm);
    if (*userflag == 1) {
        problem->system->f(n, x, fvec);
        ++problem->values;
    } else {
        difference_jacobian(*problem->system, x, fjac, tdfjac);
        if (problem->wrong >= 0) fjac[problem->wrong / n * tdfjac + problem->wrong % n] *= problem->factor;
        ++problem->jacobians;
    }
}

TEST(NonlinearSystems, SolvesThePublishedSet)
{
    // From the standard starting points, some of which lead to a minimum of |f| instead: which, is up to rounding errors.
    int solved = 0, with_jacobian = 0, all = 0;
    for (const NonlinearSystem &system : nonlinear_systems()) {
        ++all;
        const int n = system.n;
        Problem problem{&system};
        Record fail;
        Vector x = system.start(n), fvec(n);
        c05tbc(n, value_only, x.data(), fvec.data(), 1e-10, &problem, &fail);
        EXPECT_LE(problem.values, 200 * (n + 1) + n) << system.name;
        Vector again(n);
        system.f(n, x.data(), again.data());
        EXPECT_EQ(fvec, again) << system.name << ": fvec belongs to x";
        if (fail.code == NE_NOERROR && norm2(fvec) < 1e-8) ++solved;

        const int td = n + 3;
        Vector xj = system.start(n), jacobian(n * td, kNan);
        problem = {&system};
        c05ubc(n, value_or_jacobian, xj.data(), fvec.data(), jacobian.data(), td, 1e-10, &problem, &fail);
        EXPECT_LE(problem.values, 100 * (n + 1)) << system.name;
        if (fail.code == NE_NOERROR && norm2(fvec) < 1e-8) ++with_jacobian;
        for (int i = 0; i < n; ++i) {
            // Rows of Q are of unit length, and what lies behind a row is not ours.
            double square = 0.0;
            for (int j = 0; j < n; ++j) square += jacobian[i * td + j] * jacobian[i * td + j];
            EXPECT_NEAR(square, 1.0, 1e-12 * n) << system.name;
            EXPECT_TRUE(std::isnan(jacobian[i * td + n]));
        }
    }
    EXPECT_GE(solved, all - 4);
    EXPECT_GE(with_jacobian, all - 4);
}

TEST(NonlinearSystems, TwinsAgree)
{
    const auto f = [](Integer, const double x[], double fvec[], Integer *) {
        fvec[0] = x[0] * x[0] + x[1] * x[1] - 1.0;
        fvec[1] = x[0] - x[1];
    };
    Record fail;
    double x[2] = {1.0, 0.5}, fvec[2];
    c05nbc(2, f, x, fvec, 1e-12, &fail);
    EXPECT_SUCCESS(fail);
    EXPECT_NEAR(x[0], std::sqrt(0.5), 1e-12);
    EXPECT_NEAR(x[1], std::sqrt(0.5), 1e-12);

    const auto g = [](Integer, const double at[], double values[], double fjac[], Integer td, Integer *flag) {
        if (*flag == 1) {
            values[0] = at[0] * at[0] + at[1] * at[1] - 1.0;
            values[1] = at[0] - at[1];
        } else {
            fjac[0] = 2.0 * at[0], fjac[1] = 2.0 * at[1], fjac[td] = 1.0, fjac[td + 1] = -1.0;
        }
    };
    double y[2] = {1.0, 0.5}, fjac[4];
    c05pbc(2, g, y, fvec, fjac, 2, 1e-12, &fail);
    EXPECT_SUCCESS(fail);
    EXPECT_NEAR(y[0], std::sqrt(0.5), 1e-12);
    c05zbc(2, y, fvec, fjac, 2, g, &fail);
    EXPECT_SUCCESS(fail);
}

TEST(NonlinearSystems, Refusals)
{
    const NonlinearSystem &system = nonlinear_systems()[0];
    Problem problem{&system};
    Record fail;
    double x[2] = {5.0, 6.0}, fvec[2] = {7.0, 8.0}, fjac[4] = {1.0, 2.0, 3.0, 4.0};
    for (const Integer n : {0, -3}) {
        c05tbc(n, value_only, x, fvec, -1.0, &problem, &fail);
        EXPECT_REPORT(fail, NE_INT_ARG_LE, "n", "0", "n", n);
        c05ubc(n, value_or_jacobian, x, fvec, fjac, -1, -1.0, &problem, &fail);
        EXPECT_REPORT(fail, NE_INT_ARG_LE, "n", "0", "n", n);
        c05zcc(n, x, fvec, fjac, -1, value_or_jacobian, &problem, &fail);
        EXPECT_REPORT(fail, NE_INT_ARG_LE, "n", "0", "n", n);
    }
    c05ubc(2, value_or_jacobian, x, fvec, fjac, 1, -1.0, &problem, &fail);
    EXPECT_REPORT(fail, NE_2_INT_ARG_LT, "tdfjac", 1, "n", 2, "tdfjac", "n");
    c05zcc(2, x, fvec, fjac, 1, value_or_jacobian, &problem, &fail);
    EXPECT_REPORT(fail, NE_2_INT_ARG_LT, "tdfjac", 1, "n", 2, "tdfjac", "n");
    c05tbc(2, value_only, x, fvec, -1.0, &problem, &fail);
    EXPECT_REPORT(fail, NE_REAL_ARG_LT, "xtol", "0.0", "xtol", -1.0);
    c05ubc(2, value_or_jacobian, x, fvec, fjac, 2, kNan, &problem, &fail);
    EXPECT_EQ(fail.code, NE_REAL_ARG_LT);
    EXPECT_EQ(problem.values, 0);
    EXPECT_EQ(x[0], 5.0);
    EXPECT_EQ(fvec[1], 8.0);
    EXPECT_EQ(fjac[3], 4.0);
}

TEST(NonlinearSystems, StopsWhenTheUserSaysSo)
{
    const NonlinearSystem &system = nonlinear_systems()[3];
    for (int call = 1; call <= 12; ++call) {
        Problem problem{&system};
        problem.stop_at = call;
        Record fail;
        Vector x = system.start(4), fvec(4);
        c05tbc(4, value_only, x.data(), fvec.data(), 1e-10, &problem, &fail);
        EXPECT_REPORT(fail, NE_USER_STOP, -7);
        EXPECT_EQ(fail.errnum, -7);
        EXPECT_EQ(problem.values, call);
    }
}

TEST(NonlinearSystems, OtherEnds)
{
    Record fail;
    double x[1] = {2.0}, fvec[1];
    c05nbc(
        1, [](Integer, const double at[], double f[], Integer *) { f[0] = at[0] * at[0] - 3.0; }, x, fvec, 0.0, &fail);
    EXPECT_TRUE(fail.code == NE_NOERROR || fail.code == NE_XTOL_TOO_SMALL);
    EXPECT_NEAR(x[0], std::sqrt(3.0), 4e-16);

    // No zero: a minimum of |f|.
    x[0] = 1.0;
    c05nbc(
        1, [](Integer, const double at[], double f[], Integer *) { f[0] = at[0] * at[0] + 1.0; }, x, fvec, 1e-10,
        &fail);
    EXPECT_REPORT(fail, NE_NO_IMPROVEMENT);

    // A chain of steps that never gets anywhere fast: the limit counts evaluations.
    const auto count_only = [](Integer n, const double at[], double f[], Integer *) {
        for (Integer i = 0; i < n; ++i) f[i] = std::exp(-at[i] * 1e-3);
    };
    c05nbc(1, count_only, x, fvec, 1e-14, &fail);
    EXPECT_NE(fail.code, NE_NOERROR);

    for (const double odd : {kNan, static_cast<double>(INFINITY)}) {
        const auto f = [](Integer, const double[], double values[], Integer *, void *comm) {
            values[0] = values[1] = *static_cast<double *>(comm);
        };
        double y[2] = {1.0, 2.0}, values[2], number = odd;
        c05tbc(2, f, y, values, 1e-10, &number, &fail);
        EXPECT_NE(fail.code, NE_NOERROR);
    }
    // Already there.
    double zero[2] = {1.0, 1.0}, f2[2];
    Problem problem{&nonlinear_systems()[0]};
    c05tbc(2, value_only, zero, f2, 1e-10, &problem, &fail);
    EXPECT_SUCCESS(fail);
    EXPECT_EQ(zero[0], 1.0);
}

TEST(JacobianCheck, FindsEachSingleWrongElement)
{
    for (const NonlinearSystem &system : nonlinear_systems()) {
        const int n = system.n;
        if (n > 10) continue;
        Vector x = scaled_start(system, 1.0), fvec(n), jacobian(n * n);
        for (int j = 0; j < n; ++j) x[j] = x[j] == 0.0 ? 0.3 + 0.1 * j : 1.1 * x[j] + 0.01 * j;
        Problem problem{&system};
        Record fail;
        c05zcc(n, x.data(), fvec.data(), jacobian.data(), n, value_or_jacobian, &problem, &fail);
        EXPECT_SUCCESS(fail) << system.name;

        const Vector right = jacobian;
        for (int k = 0; k < n * n; ++k) {
            // Elements that are small beside their row, moved by a unit of x, cannot be told from rounding.
            double largest = 0.0;
            for (int j = 0; j < n; ++j) largest = std::max(largest, std::fabs(right[k / n * n + j] * x[j]));
            if (std::fabs(right[k] * x[k % n]) < 3e-3 * std::max(largest, 1e-3 * std::fabs(fvec[k / n]))) continue;
            for (const double factor : {-1.0, 0.0, 2.0, 0.9}) {
                problem.wrong = k;
                problem.factor = factor;
                c05zcc(n, x.data(), fvec.data(), jacobian.data(), n, value_or_jacobian, &problem, &fail);
                EXPECT_EQ(fail.code, NE_DERIV_ERRORS) << system.name << ", element " << k << " times " << factor;
            }
        }
    }
}

TEST(JacobianCheck, PassesRightOnesAtBadScales)
{
    const auto scaled = [](Integer, const double x[], double fvec[], double fjac[], Integer td, Integer *flag) {
        // Unknowns of size 1e10 and 1e-10, equations of size 1e20 and 1e-12.
        if (*flag == 1) {
            fvec[0] = x[0] * x[0] + 1e30 * x[1];
            fvec[1] = 1e-22 * x[0] + std::sin(1e10 * x[1]) * 1e-12;
        } else {
            fjac[0] = 2.0 * x[0], fjac[1] = 1e30;
            fjac[td] = 1e-22, fjac[td + 1] = 1e-2 * std::cos(1e10 * x[1]);
        }
    };
    Record fail;
    const double x[2] = {1.3e10, 0.7e-10};
    double fvec[2], fjac[4];
    c05zbc(2, x, fvec, fjac, 2, scaled, &fail);
    EXPECT_SUCCESS(fail);
    // A double zero: the derivative is zero there, and rightly so.
    const double zero[1] = {0.0};
    c05zbc(
        1, zero, fvec, fjac, 1,
        [](Integer, const double at[], double f[], double j[], Integer, Integer *flag) {
            (*flag == 1 ? f[0] : j[0]) = *flag == 1 ? at[0] * at[0] : 2.0 * at[0];
        },
        &fail);
    EXPECT_SUCCESS(fail);
}

} // namespace
} // namespace kor::testing
