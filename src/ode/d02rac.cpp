// d02rac: a nonlinear boundary value problem with general conditions, by continuation where it is hard.
#include <kor/d02.h>

#include <algorithm>
#include <cstddef>

#include "ode/boundary_calls.hpp"

using namespace kor::ode;

void d02rac(Integer neq, double *deleps,
            void (*fcn)(Integer neq, double x, double eps, const double y[], double f[], void *comm), Integer numbeg,
            Integer nummix,
            void (*g)(Integer neq, double eps, const double ya[], const double yb[], double bc[], void *comm),
            Integer init, Integer mnp, Integer *np, double x[], double y[], Integer tdy, double errest[], double tol,
            void (*jacobf)(Integer neq, double x, double eps, const double y[], double f[], void *comm),
            void (*jacobg)(Integer neq, double eps, const double ya[], const double yb[], double jya[], double jyb[],
                           void *comm),
            void (*jaceps)(Integer neq, double x, double eps, const double y[], double f[], void *comm),
            void (*jacgep)(Integer neq, double eps, const double ya[], const double yb[], double bceps[], void *comm),
            void *comm, KorError *fail)
{
    const kor::Report report{"d02rac", fail};
    const CallersMesh mesh{neq, mnp, np, x, {y, tdy}};
    if (neq < 1) return report.error<NE_INT_ARG_LT>("neq", "1", "neq", neq);
    if (!(tol > 0.0)) return report.error<NE_REAL_ARG_LE>("tol", "0.0", "tol", tol);
    if (*np < 4 || *np > mnp) return report.error<NE_INT_RANGE_CONS>("np", *np, "mnp", mnp, "np", "4 <= np <= mnp");
    if (tdy < mnp) return report.error<NE_2_INT_ARG_LT>("tdy", tdy, "mnp", mnp, "tdy", "mnp");
    if (numbeg < 0 || numbeg >= neq)
        return report.error<NE_INT_RANGE_CONS>("numbeg", numbeg, "neq", neq, "numbeg", "0 <= numbeg < neq");
    if (nummix < 0 || nummix > neq - numbeg)
        return report.error<NE_INT_RANGE_CONS>("nummix", nummix, "neq-numbeg", neq - numbeg, "nummix",
                                               "0 <= nummix <= neq-numbeg");
    if (numbeg == 0 && nummix == 0) return report.error<NE_2_INT_ARG_ZERO>("numbeg", "nummix");
    if (init != Kor_UserInitMesh && init != Kor_DefInitMesh) return report.error<NE_BAD_PARAM>("init");
    if (!(x[0] < x[*np - 1]))
        return report.error<NE_2_REAL_ARG_LE>("x[0]", x[0], "x[np-1]", x[*np - 1], "x[np-1]", "x[0]");
    if (init == Kor_UserInitMesh && !strictly_increasing(report, *np, x)) return;

    const bool follows = *deleps > 0.0;
    if ((jacobf == nullptr) != (jacobg == nullptr)) return report.error<NE_INVALID_FUN_JAC>();
    if (follows && jacobf == nullptr && (jaceps != nullptr || jacgep != nullptr))
        return report.error<NE_INVALID_FUN_NO_JAC_CONT>();
    if (!follows && jacobf != nullptr && (jaceps != nullptr || jacgep != nullptr))
        return report.error<NE_INVALID_FUN_JAC_NO_CONT>();
    if (follows && jacobf != nullptr && (jaceps == nullptr || jacgep == nullptr))
        return report.error<NE_INVALID_FUN_JAC_CONT>();
    if (!size_accepted(report, mnp)) return;

    const auto slope = [=](double at, double eps, const double *values, double *f) {
        fcn(neq, at, eps, values, f, comm);
    };
    const auto conditions = [=](double eps, const double *ya, const double *yb, double *bc) {
        g(neq, eps, ya, yb, bc, comm);
    };
    const auto jacobian = [=](double at, double eps, const double *values, double *j) {
        jacobf(neq, at, eps, values, j, comm);
    };
    const auto conditions_jacobian = [=](double eps, const double *ya, const double *yb, double *ja, double *jb) {
        jacobg(neq, eps, ya, yb, ja, jb, comm);
    };
    const auto slope_by_eps = [=](double at, double eps, const double *values, double *f) {
        std::fill_n(f, neq, 0.0);
        jaceps(neq, at, eps, values, f, comm);
    };
    const auto conditions_by_eps = [=](double eps, const double *ya, const double *yb, double *bc) {
        std::fill_n(bc, neq, 0.0);
        jacgep(neq, eps, ya, yb, bc, comm);
    };
    const JacobianFunction jacobian_reference{jacobian};
    const SlopeFunction by_eps_reference{slope_by_eps};
    const ConditionsJacobian conditions_reference{conditions_jacobian};
    const ConditionsFunction conditions_by_eps_reference{conditions_by_eps};
    BoundaryProblem problem{neq, numbeg, nummix, slope, conditions};
    if (jacobf != nullptr) {
        problem.jacobian = &jacobian_reference;
        problem.conditions_jacobian = &conditions_reference;
        if (follows) {
            problem.slope_by_eps = &by_eps_reference;
            problem.conditions_by_eps = &conditions_by_eps_reference;
        }
    }

    BoundarySolver solver;
    if (!solver.allocate(problem, mnp)) return report.error<NE_ALLOC_FAIL>();
    solver.set_mesh(*np);
    if (init == Kor_UserInitMesh) {
        std::copy_n(x, *np, solver.x());
        for (Integer i = 0; i < *np; ++i)
            for (Integer k = 0; k < neq; ++k) solver.y(i)[k] = mesh.y(k, i);
    } else {
        spread(x[0], x[*np - 1], *np, solver.x());
        std::fill_n(solver.y(0), std::ptrdiff_t{neq} * *np, 0.0);
    }
    const BoundaryStatus status = solver.solve(problem, tol, follows ? deleps : nullptr);
    if (status == BoundaryStatus::solved || status == BoundaryStatus::mesh || status == BoundaryStatus::roundoff)
        std::copy_n(solver.error_estimates(), neq, errest);
    conclude(report, status, solver, mesh, *deleps);
}
