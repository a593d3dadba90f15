// d02gac: a nonlinear boundary value problem with known values at both ends.
#include <kor/d02.h>

#include <algorithm>

#include "ode/boundary_calls.hpp"

using namespace kor::ode;

void d02gac(Integer neq, void (*fcn)(Integer neq, double x, const double y[], double f[], void *comm), double a,
            double b, const double u[], const Integer v[], double tol, Integer mnp, Integer *np, double x[], double y[],
            Integer tdy, void *comm, KorError *fail)
{
    const kor::Report report{"d02gac", fail};
    const CallersMesh mesh{neq, mnp, np, x, {y, tdy}};
    if (!dimensions_accepted(report, neq, tol, a, b, mesh)) return;
    Integer known[2] = {0, 0};
    for (Integer i = 0; i < 2 * neq; ++i) known[i % 2] += v[i] == 0;
    if (known[0] >= neq) return report.error<NE_LF_B_VAL>(known[0], neq);
    if (known[1] >= neq) return report.error<NE_RT_B_VAL>(known[1], neq);
    if (known[0] + known[1] != neq) return report.error<NE_LFRT_B_VAL>(known[0] + known[1], neq);
    if (!mesh_accepted(report, a, b, mesh) || !size_accepted(report, mnp)) return;

    const auto slope = [=](double at, double, const double *values, double *f) { fcn(neq, at, values, f, comm); };
    // The known values, those at the left end first.
    const auto conditions = [=](double, const double *ya, const double *yb, double *g) {
        Integer next = 0;
        for (int end = 0; end < 2; ++end)
            for (Integer c = 0; c < neq; ++c)
                if (v[2 * c + end] == 0) g[next++] = (end == 0 ? ya : yb)[c] - u[2 * c + end];
    };
    const auto conditions_jacobian = [=](double, const double *, const double *, double *ja, double *jb) {
        Integer next = 0;
        for (int end = 0; end < 2; ++end)
            for (Integer c = 0; c < neq; ++c)
                if (v[2 * c + end] == 0) kor::RowMajor<double>{end == 0 ? ja : jb, neq}(next++, c) = 1.0;
    };
    BoundaryProblem problem{neq, known[0], 0, slope, conditions};
    const ConditionsJacobian reference{conditions_jacobian};
    problem.conditions_jacobian = &reference;

    BoundarySolver solver;
    if (!solver.allocate(problem, mnp)) return report.error<NE_ALLOC_FAIL>();
    const Integer points = *np != 0 ? *np : kDefaultMesh;
    solver.set_mesh(points);
    if (*np != 0)
        std::copy_n(x, points, solver.x());
    else
        spread(a, b, points, solver.x());
    // A straight line between the known or estimated values.
    for (Integer i = 0; i < points; ++i)
        for (Integer c = 0; c < neq; ++c) {
            const double part = (solver.x()[i] - a) / (b - a);
            solver.y(i)[c] = (1.0 - part) * u[2 * c] + part * u[2 * c + 1];
        }
    conclude(report, solver.solve(problem, tol, nullptr), solver, mesh, 0.0);
}
