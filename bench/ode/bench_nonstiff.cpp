// Non-stiff initial value problems beside GSL, SUNDIALS and Boost: evaluations and time for an achieved error of 1e-6, how the error
// follows the tolerance, and what a method costs besides the evaluations.
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <vector>

#include <kor/d02.h>

#include "ode/cheapest_run.hpp"
#include "ode/nonstiff_problems.hpp"
#include "support/ratio_table.hpp"

#ifdef KOR_HAVE_GSL
#include <gsl/gsl_errno.h>
#include <gsl/gsl_odeiv2.h>
#endif
#ifdef KOR_HAVE_BOOST
#include <boost/numeric/odeint.hpp>
#endif
#ifdef KOR_HAVE_SUNDIALS
#include <arkode/arkode_erkstep.h>
#include <cvode/cvode.h>
#include <nvector/nvector_serial.h>
#include <sunnonlinsol/sunnonlinsol_fixedpoint.h>
#endif

namespace {

using kor::bench::Problem;
using Vector = std::vector<double>;

constexpr double kWanted = 1e-6;
constexpr long kPatience = 100000;

const kor::bench::Heading heading{"Non-stiff initial value problems: evaluations for an achieved error of 1e-6",
                                  "achieved error"};

kor::bench::CountedRate<Problem> rate;

// y at the end; tolerances are relative and absolute alike.
using Solver = bool (*)(double tolerance, Vector &y);

void kor_rate(Integer, double t, const double y[], double yp[], void *) { rate(t, y, yp); }

bool kor_runge_kutta(Integer method, double tolerance, Vector &y)
{
    const auto n = static_cast<Integer>(y.size());
    KorRKState state{};
    KorError fail{};
    Vector yp(n), largest(n), thresholds(n, 1.0);
    double t;
    d02pvc(n, 0.0, rate.problem->y0.data(), rate.problem->t_end, tolerance, thresholds.data(), method, Kor_RK_range,
           Kor_ErrorAssess_off, 0.0, &state, &fail);
    do d02pcc(n, kor_rate, rate.problem->t_end, &t, y.data(), yp.data(), largest.data(), &state, nullptr, &fail);
    while (fail.code == NW_RK_TOO_MANY);
    d02ppc(&state);
    return fail.code == NE_NOERROR;
}
bool kor_87(double tolerance, Vector &y) { return kor_runge_kutta(Kor_RK_7_8, tolerance, y); }
bool kor_54(double tolerance, Vector &y) { return kor_runge_kutta(Kor_RK_4_5, tolerance, y); }
bool kor_32(double tolerance, Vector &y) { return kor_runge_kutta(Kor_RK_2_3, tolerance, y); }

bool kor_adams(double tolerance, Vector &y)
{
    const auto n = static_cast<Integer>(y.size());
    KorAdamsOptions opt{};
    KorError fail{};
    double t = 0.0;
    y = rate.problem->y0;
    d02qwc(Kor_NewStart, n, 0, &tolerance, &tolerance, 0, 0, 0.0, 0.0, 100000, 0, 0, 0, &opt, &fail);
    d02qfc(n, kor_rate, &t, y.data(), rate.problem->t_end, nullptr, nullptr, &opt, &fail);
    d02qyc(&opt);
    return fail.code == NE_NOERROR;
}

#ifdef KOR_HAVE_GSL
bool gsl(const gsl_odeiv2_step_type *type, double tolerance, Vector &y)
{
    gsl_set_error_handler_off();
    gsl_odeiv2_system system{[](double t, const double *values, double *slopes, void *) {
                                 rate(t, values, slopes);
                                 return 0;
                             },
                             nullptr, y.size(), nullptr};
    gsl_odeiv2_driver *driver = gsl_odeiv2_driver_alloc_y_new(&system, type, 1e-3, tolerance, tolerance);
    double t = 0.0;
    y = rate.problem->y0;
    const int status = gsl_odeiv2_driver_apply(driver, &t, rate.problem->t_end, y.data());
    gsl_odeiv2_driver_free(driver);
    return status == GSL_SUCCESS;
}
bool gsl_87(double tolerance, Vector &y) { return gsl(gsl_odeiv2_step_rk8pd, tolerance, y); }
bool gsl_54(double tolerance, Vector &y) { return gsl(gsl_odeiv2_step_rkck, tolerance, y); }
bool gsl_32(double tolerance, Vector &y) { return gsl(gsl_odeiv2_step_rk2, tolerance, y); }
bool gsl_adams(double tolerance, Vector &y) { return gsl(gsl_odeiv2_step_msadams, tolerance, y); }
#endif

#ifdef KOR_HAVE_BOOST
template <class Stepper>
bool boost_controlled(double tolerance, Vector &y)
{
    namespace odeint = boost::numeric::odeint;
    y = rate.problem->y0;
    const auto system = [](const Vector &values, Vector &slopes, double t) { rate(t, values.data(), slopes.data()); };
    odeint::integrate_adaptive(odeint::make_controlled(tolerance, tolerance, Stepper{}), system, y, 0.0,
                               rate.problem->t_end, 1e-3);
    return true;
}
bool boost_87(double tolerance, Vector &y)
{
    return boost_controlled<boost::numeric::odeint::runge_kutta_fehlberg78<Vector>>(tolerance, y);
}
bool boost_54(double tolerance, Vector &y)
{
    return boost_controlled<boost::numeric::odeint::runge_kutta_dopri5<Vector>>(tolerance, y);
}
#endif

#ifdef KOR_HAVE_SUNDIALS
int sundials_rate(realtype t, N_Vector y, N_Vector yp, void *)
{
    rate(t, NV_DATA_S(y), NV_DATA_S(yp));
    return 0;
}
bool cvode_adams(double tolerance, Vector &y)
{
    SUNContext context;
    SUNContext_Create(nullptr, &context);
    N_Vector state = N_VNew_Serial(static_cast<sunindextype>(y.size()), context);
    std::copy(rate.problem->y0.begin(), rate.problem->y0.end(), NV_DATA_S(state));
    void *memory = CVodeCreate(CV_ADAMS, context);
    CVodeInit(memory, sundials_rate, 0.0, state);
    CVodeSStolerances(memory, tolerance, tolerance);
    CVodeSetMaxNumSteps(memory, 50000);
    CVodeSetErrFile(memory, nullptr);
    SUNNonlinearSolver solver = SUNNonlinSol_FixedPoint(state, 0, context);
    CVodeSetNonlinearSolver(memory, solver);
    CVodeSetStopTime(memory, rate.problem->t_end);
    realtype t = 0.0;
    const int status = CVode(memory, rate.problem->t_end, state, &t, CV_NORMAL);
    std::copy_n(NV_DATA_S(state), y.size(), y.begin());
    SUNNonlinSolFree(solver);
    CVodeFree(&memory);
    N_VDestroy(state);
    SUNContext_Free(&context);
    return status >= 0;
}
bool arkode(ARKODE_ERKTableID table, double tolerance, Vector &y)
{
    SUNContext context;
    SUNContext_Create(nullptr, &context);
    N_Vector state = N_VNew_Serial(static_cast<sunindextype>(y.size()), context);
    std::copy(rate.problem->y0.begin(), rate.problem->y0.end(), NV_DATA_S(state));
    void *memory = ERKStepCreate(sundials_rate, 0.0, state, context);
    ERKStepSStolerances(memory, tolerance, tolerance);
    ERKStepSetMaxNumSteps(memory, 50000);
    ERKStepSetErrFile(memory, nullptr);
    ERKStepSetTableNum(memory, table);
    ERKStepSetStopTime(memory, rate.problem->t_end);
    realtype t = 0.0;
    const int status = ERKStepEvolve(memory, rate.problem->t_end, state, &t, ARK_NORMAL);
    std::copy_n(NV_DATA_S(state), y.size(), y.begin());
    ERKStepFree(&memory);
    N_VDestroy(state);
    SUNContext_Free(&context);
    return status >= 0;
}
bool arkode_87(double tolerance, Vector &y) { return arkode(ARKODE_FEHLBERG_13_7_8, tolerance, y); }
bool arkode_32(double tolerance, Vector &y) { return arkode(ARKODE_BOGACKI_SHAMPINE_4_2_3, tolerance, y); }
bool arkode_54(double tolerance, Vector &y) { return arkode(ARKODE_DORMAND_PRINCE_7_4_5, tolerance, y); }
#endif

using kor::bench::Cheapest;
using kor::bench::Run;

Run run(const Problem &problem, Solver solve, double tolerance)
{
    rate = {&problem};
    Vector y(problem.y0.size());
    Run result;
    if (!solve(tolerance, y)) return result;
    result.calls = rate.calls;
    double worst = 0.0;
    for (std::size_t i = 0; i < y.size(); ++i) {
        const double error = std::fabs(y[i] - problem.solution[i]);
        if (!(error <= worst)) worst = error;
        if (std::isnan(worst)) return result;
    }
    result.error = worst;
    return result;
}

Cheapest cheapest(const Problem &problem, Solver solve)
{
    return kor::bench::cheapest_run(
        {.rungs_in_a_decade = 8, .lowest_decade = 12, .wanted = kWanted, .patience = kPatience},
        [&](double tolerance) { return run(problem, solve, tolerance); });
}

struct Implementation {
    const char *class_name, *name;
    Solver solve;
};

const std::vector<Implementation> implementations{
    {"order 8(7)", "KOR", kor_87},       {"order 5(4)", "KOR", kor_54},       {"Adams", "KOR", kor_adams},
#ifdef KOR_HAVE_GSL
    {"order 8(7)", "GSL", gsl_87},       {"order 5(4)", "GSL", gsl_54},       {"Adams", "GSL", gsl_adams},
#endif
#ifdef KOR_HAVE_BOOST
    {"order 8(7)", "Boost", boost_87},   {"order 5(4)", "Boost", boost_54},
#endif
#ifdef KOR_HAVE_SUNDIALS
    {"order 8(7)", "ARKODE", arkode_87}, {"order 5(4)", "ARKODE", arkode_54}, {"Adams", "CVODE", cvode_adams},
#endif
};

// Whose order is too low for an error of 1e-6: only what they cost besides the evaluations is of interest.
const std::vector<Implementation> low_order{
    {"order 3(2)", "KOR", kor_32},
#ifdef KOR_HAVE_GSL
    {"order 3(2)", "GSL", gsl_32},
#endif
#ifdef KOR_HAVE_SUNDIALS
    {"order 3(2)", "ARKODE", arkode_32},
#endif
};

void add_classics()
{
    static std::vector<Problem> problems = kor::bench::classic_problems();
    for (Problem &problem : problems) {
        problem.solution = kor::bench::reference_solution(problem);
        for (const Implementation &one : implementations) {
            const Cheapest best = cheapest(problem, one.solve);
            kor::bench::add(
                problem.name + ", " + one.class_name + "/" + one.name,
                [&problem, solve = one.solve, tolerance = best.tolerance] { run(problem, solve, tolerance); },
                {.error = best.run.error, .calls = static_cast<double>(best.run.calls)});
        }
    }
}

void add_detest()
{
    static std::vector<Problem> problems = kor::bench::detest_problems();
    for (Problem &problem : problems) problem.solution = kor::bench::reference_solution(problem);
    for (const Implementation &one : implementations) {
        Vector tolerances;
        double total = 0.0, worst = 0.0;
        for (const Problem &problem : problems) {
            const Cheapest best = cheapest(problem, one.solve);
            tolerances.push_back(best.tolerance);
            total += static_cast<double>(best.run.calls);
            worst = std::max(worst, best.run.error);
        }
        kor::bench::add(std::string{"DETEST, "} + one.class_name + "/" + one.name,
                        [solve = one.solve, tolerances] {
                            for (std::size_t i = 0; i < problems.size(); ++i) run(problems[i], solve, tolerances[i]);
                        },
                        {.error = worst, .calls = total});
    }
}

// What a method costs besides the evaluations: an oscillator, whose rate takes next to no time.
void add_overhead()
{
    static Problem problem = kor::bench::problem("oscillator", 1000.0, {0.0, 1.0}, [](auto, const auto *y, auto *d) {
        d[0] = y[1];
        d[1] = -y[0];
    });
    problem.solution = {std::sin(1000.0), std::cos(1000.0)};
    const auto add = [](const Implementation &one, double tolerance) {
        const Run once = run(problem, one.solve, tolerance);
        const auto calls = static_cast<double>(once.calls);
        kor::bench::add(std::string{"per evaluation, "} + one.class_name + "/" + one.name,
                        [solve = one.solve, tolerance] { run(problem, solve, tolerance); },
                        {.error = once.error, .calls = calls, .items = calls});
    };
    for (const Implementation &one : implementations) add(one, 1e-8);
    for (const Implementation &one : low_order) add(one, 1e-5);
}

// The error divided by the tolerance, over the tolerances: the closer to a constant, the more the tolerance means.
void note_proportionality()
{
    std::vector<Problem> problems = kor::bench::classic_problems();
    for (Problem &problem : problems) {
        problem.solution = kor::bench::reference_solution(problem);
        for (const Implementation &one : implementations) {
            if (std::string{one.name} != "KOR") continue;
            std::string line = problem.name + ", " + one.class_name + ": error/tolerance at 1e-3, 1e-4, ...:";
            for (int i = 3; i <= 13; ++i) {
                const double tolerance = std::pow(10.0, -i);
                char text[32];
                std::snprintf(text, sizeof text, " %.2g", run(problem, one.solve, tolerance).error / tolerance);
                line += text;
            }
            kor::bench::note(line);
        }
    }
}

const bool registered = [] {
    add_classics();
    add_detest();
    add_overhead();
    note_proportionality();
    return true;
}();

} // namespace
