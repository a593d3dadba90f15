// Stiff initial value problems beside SUNDIALS and GSL: evaluations and time for an achieved error of 1e-6, how the error follows
// the tolerance, and what a step costs besides the evaluations. Jacobians are by differences, and their slopes count.
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

#include <kor/d02.h>

#include "ode/cheapest_run.hpp"
#include "support/ratio_table.hpp"

#ifdef KOR_HAVE_GSL
#include <gsl/gsl_errno.h>
#include <gsl/gsl_odeiv2.h>
#endif
#ifdef KOR_HAVE_SUNDIALS
#include <arkode/arkode_arkstep.h>
#include <cvode/cvode.h>
#include <nvector/nvector_serial.h>
#include <sunlinsol/sunlinsol_band.h>
#include <sunlinsol/sunlinsol_dense.h>
#include <sunmatrix/sunmatrix_band.h>
#include <sunmatrix/sunmatrix_dense.h>
#endif

namespace {

using Vector = std::vector<double>;

constexpr double kWanted = 1e-6;
constexpr long kPatience = 200000; // evaluations; a solver that needs more has lost

const kor::bench::Heading heading{"Stiff problems: evaluations for an achieved error of 1e-6",
                                  "largest relative error of a component at the end"};

struct Problem {
    const char *name;
    void (*f)(double t, const double *y, double *f);
    double end;
    Vector start, solution;
    double absolute; // tolerance, in units of the relative one
    bool banded = false;
};

void robertson(double, const double *y, double *f)
{
    f[0] = -0.04 * y[0] + 1e4 * y[1] * y[2];
    f[2] = 3e7 * y[1] * y[1];
    f[1] = -f[0] - f[2];
}
void van_der_pol(double, const double *y, double *f)
{
    f[0] = y[1];
    f[1] = 1e3 * (1.0 - y[0] * y[0]) * y[1] - y[0];
}
void van_der_pol_fast(double, const double *y, double *f)
{
    f[0] = y[1];
    f[1] = 1e6 * ((1.0 - y[0] * y[0]) * y[1] - y[0]);
}
void hires(double, const double *y, double *f)
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
void oregonator(double, const double *y, double *f)
{
    f[0] = 77.27 * (y[1] + y[0] * (1.0 - 8.375e-6 * y[0] - y[1]));
    f[1] = (y[2] - (1.0 + y[0]) * y[1]) / 77.27;
    f[2] = 0.161 * (y[0] - y[2]);
}
void prothero_robinson(double t, const double *y, double *f)
{
    f[0] = -1e6 * (y[0] - std::sin(t + 0.5)) + std::cos(t + 0.5);
}
constexpr int kLine = 1000;
void reaction_diffusion(double, const double *u, double *f)
{
    constexpr double k = (kLine - 1.0) * (kLine - 1.0) / 400.0;
    for (int i = 0; i < kLine; ++i) {
        const double left = u[i > 0 ? i - 1 : 1], right = u[i < kLine - 1 ? i + 1 : kLine - 2];
        f[i] = k * (left - 2.0 * u[i] + right) + 40.0 * u[i] * u[i] * (1.0 - u[i]);
    }
}

kor::bench::CountedRate<Problem> rate;

using Solver = bool (*)(double tolerance, Vector &y);

bool kor(double tolerance, Vector &y)
{
    const auto n = static_cast<Integer>(y.size());
    const double absolute = tolerance * rate.problem->absolute;
    KorBdfState st;
    Integer status, request = 0;
    d02nvc(n, 6, 5, &st, &status);
    d02nsc(n, "NUMERI", &st, &status);
    Vector ysav(6 * y.size()), work(y.size() * (y.size() + 5)), slope(y.size()), res(y.size()),
        jacobian(y.size() * y.size());
    std::vector<Integer> pivots(y.size());
    st.ysav = ysav.data();
    st.work = work.data();
    st.iwork = pivots.data();
    st.crit = 1;
    st.tcrit = rate.problem->end;
    y = rate.problem->start;
    double t = 0.0;
    do {
        d02nmc(n, &t, rate.problem->end, y.data(), slope.data(), &tolerance, &absolute, 1, res.data(), jacobian.data(),
               &st, &request, &status);
        if (request == 1) rate(t, y.data(), slope.data());
    } while (request != 0);
    return status == 0;
}

#ifdef KOR_HAVE_SUNDIALS
struct Sundials {
    SUNContext context;
    N_Vector y;
    SUNMatrix matrix;
    SUNLinearSolver solver;
    explicit Sundials(const Vector &start)
    {
        const auto n = static_cast<sunindextype>(start.size());
        SUNContext_Create(nullptr, &context);
        y = N_VNew_Serial(n, context);
        std::copy(start.begin(), start.end(), NV_DATA_S(y));
        matrix = rate.problem->banded ? SUNBandMatrix(n, 1, 1, context) : SUNDenseMatrix(n, n, context);
        solver = rate.problem->banded ? SUNLinSol_Band(y, matrix, context) : SUNLinSol_Dense(y, matrix, context);
    }
    ~Sundials()
    {
        SUNLinSolFree(solver);
        SUNMatDestroy(matrix);
        N_VDestroy(y);
        SUNContext_Free(&context);
    }
};
int sundials_rate(realtype t, N_Vector y, N_Vector yp, void *)
{
    rate(t, NV_DATA_S(y), NV_DATA_S(yp));
    return 0;
}
bool cvode(double tolerance, Vector &y)
{
    Sundials s{rate.problem->start};
    void *memory = CVodeCreate(CV_BDF, s.context);
    CVodeInit(memory, sundials_rate, 0.0, s.y);
    CVodeSStolerances(memory, tolerance, tolerance * rate.problem->absolute);
    CVodeSetMaxNumSteps(memory, 100000);
    CVodeSetErrFile(memory, nullptr);
    CVodeSetLinearSolver(memory, s.solver, s.matrix);
    CVodeSetStopTime(memory, rate.problem->end);
    realtype t = 0.0;
    const int status = CVode(memory, rate.problem->end, s.y, &t, CV_NORMAL);
    std::copy_n(NV_DATA_S(s.y), y.size(), y.begin());
    CVodeFree(&memory);
    return status >= 0;
}
bool arkode(double tolerance, Vector &y)
{
    Sundials s{rate.problem->start};
    void *memory = ARKStepCreate(nullptr, sundials_rate, 0.0, s.y, s.context);
    ARKStepSStolerances(memory, tolerance, tolerance * rate.problem->absolute);
    ARKStepSetOrder(memory, 5);
    ARKStepSetMaxNumSteps(memory, 100000);
    ARKStepSetErrFile(memory, nullptr);
    ARKStepSetLinearSolver(memory, s.solver, s.matrix);
    ARKStepSetStopTime(memory, rate.problem->end);
    realtype t = 0.0;
    const int status = ARKStepEvolve(memory, rate.problem->end, s.y, &t, ARK_NORMAL);
    std::copy_n(NV_DATA_S(s.y), y.size(), y.begin());
    ARKStepFree(&memory);
    return status >= 0;
}
#endif

#ifdef KOR_HAVE_GSL
// GSL wants a Jacobian: plain differences, as the others make them.
int gsl_jacobian(double t, const double y[], double *dfdy, double dfdt[], void *)
{
    const std::size_t n = rate.problem->start.size();
    Vector base(n), shifted(n), point(y, y + n);
    rate(t, y, base.data());
    for (std::size_t j = 0; j < n; ++j) {
        const double step = 1.5e-8 * std::max(std::fabs(y[j]), 1e-8);
        point[j] += step;
        rate(t, point.data(), shifted.data());
        for (std::size_t i = 0; i < n; ++i) dfdy[i * n + j] = (shifted[i] - base[i]) / (point[j] - y[j]);
        point[j] = y[j];
    }
    std::fill_n(dfdt, n, 0.0);
    return GSL_SUCCESS;
}
bool gsl(double tolerance, Vector &y)
{
    gsl_set_error_handler_off();
    gsl_odeiv2_system system{[](double t, const double *values, double *slopes, void *) {
                                 rate(t, values, slopes);
                                 return rate.calls < kPatience ? 0 : static_cast<int>(GSL_EBADFUNC);
                             },
                             gsl_jacobian, y.size(), nullptr};
    gsl_odeiv2_driver *driver = gsl_odeiv2_driver_alloc_y_new(&system, gsl_odeiv2_step_msbdf, rate.problem->end * 1e-8,
                                                              tolerance * rate.problem->absolute, tolerance);
    double t = 0.0;
    y = rate.problem->start;
    const int status = gsl_odeiv2_driver_apply(driver, &t, rate.problem->end, y.data());
    gsl_odeiv2_driver_free(driver);
    return status == GSL_SUCCESS;
}
#endif

using kor::bench::Cheapest;
using kor::bench::Run;

Run run(const Problem &problem, Solver solve, double tolerance)
{
    rate = {&problem};
    Vector y(problem.start.size());
    Run result;
    if (!solve(tolerance, y)) return result;
    result.calls = rate.calls;
    result.error = 0.0;
    for (std::size_t i = 0; i < y.size(); ++i) {
        const double error = std::fabs(y[i] / problem.solution[i] - 1.0);
        if (!(error <= result.error)) result.error = error;
    }
    return result;
}

Cheapest cheapest(const Problem &problem, Solver solve)
{
    return kor::bench::cheapest_run(
        {.rungs_in_a_decade = 4, .lowest_decade = 11, .wanted = kWanted, .patience = kPatience},
        [&](double tolerance) { return run(problem, solve, tolerance); });
}

// Solutions from the test set of F. Mazzia and C. Magherini, release 2.4 (2008), sin(t + 0.5), and by our own method at 1e-13
// (`solution` empty), which agrees with CVODE at 1e-12 to 2e-10.
std::vector<Problem> problems = {
    {"Robertson to 40", robertson, 40.0, {1, 0, 0}, {}, 1e-8},
    {"Robertson to 1e11",
     robertson,
     1e11,
     {1, 0, 0},
     {2.083340149701255e-8, 8.333360770334713e-14, 0.9999999791665050},
     1e-8},
    {"van der Pol 1e3", van_der_pol, 2000.0, {2, 0}, {1.706167732170483, -8.928097010247975e-4}, 1e-3},
    {"van der Pol 1e6", van_der_pol_fast, 2.0, {2, -0.66}, {}, 1e-3},
    {"HIRES",
     hires,
     321.8122,
     {1, 0, 0, 0, 0, 0, 0, 0.0057},
     {7.371312573325668e-4, 1.442485726316185e-4, 5.888729740967575e-5, 1.175651343283149e-3, 2.386356198831331e-3,
      6.238968252742796e-3, 2.849998395185769e-3, 2.850001604814231e-3},
     1e-3},
    {"Oregonator", oregonator, 360.0, {1, 2, 3}, {1.000814870318523, 1228.178521549917, 132.0554942846706}, 1e-3},
    {"Prothero-Robinson", prothero_robinson, 10.0, {std::sin(0.5)}, {std::sin(10.5)}, 1e-3},
    {"diffusion, 1000", reaction_diffusion, 3.0, Vector(kLine), {}, 1e-2, true},
};

const bool registered = [] {
    Vector &line = problems.back().start;
    for (int i = 0; i < kLine; ++i) line[i] = 0.01 + 0.98 / (1.0 + std::exp(0.04 * (i - 300)));
    struct Named {
        const char *name;
        Solver solve;
    };
    const std::vector<Named> solvers = {
        {"KOR", kor},
#ifdef KOR_HAVE_SUNDIALS
        {"CVODE", cvode},
        {"ARKODE 5", arkode},
#endif
#ifdef KOR_HAVE_GSL
        {"GSL", gsl},
#endif
    };
    for (Problem &problem : problems) {
        if (problem.solution.empty()) {
            rate = {&problem};
            Vector y(problem.start.size());
            kor(1e-13, y);
            problem.solution = y;
        }
        for (const auto &[name, solve] : solvers) {
            if (problem.banded && std::string{name} == "GSL") continue; // it has no banded matrices
            const Cheapest best = cheapest(problem, solve);
            if (best.tolerance == 0.0) {
                kor::bench::note(std::string{problem.name} + ": " + name + " does not reach 1e-6");
                continue;
            }
            kor::bench::add(std::string{problem.name} + "/" + name,
                            [&problem, solve = solve, tolerance = best.tolerance] { run(problem, solve, tolerance); },
                            {best.run.error, double(best.run.calls), double(best.run.calls)});
        }
    }
    // How the error follows the tolerance.
    for (const Problem &problem : problems) {
        if (problem.banded) continue;
        std::string line = std::string{problem.name} + ", error / tolerance at 1e-3, 1e-4, ... 1e-12:";
        for (int k = 3; k <= 12; ++k) {
            char text[32];
            std::snprintf(text, sizeof text, " %.2g", run(problem, kor, std::pow(10.0, -k)).error / std::pow(10.0, -k));
            line += text;
        }
        kor::bench::note(line);
    }
    return true;
}();

} // namespace
