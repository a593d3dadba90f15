// Tests and reports of the routines for boundary values.
#include "ode/boundary_calls.hpp"

#include <algorithm>

namespace kor::ode {

bool dimensions_accepted(const Report &report, Integer neq, double tol, double a, double b, const CallersMesh &mesh)
{
    if (neq < 1)
        report.error<NE_INT_ARG_LT>("neq", "1", "neq", neq);
    else if (!(tol > 0.0))
        report.error<NE_REAL_ARG_LE>("tol", "0.0", "tol", tol);
    else if (!(b > a))
        report.error<NE_2_REAL_ARG_LE>("b", b, "a", a, "b", "a");
    else if (*mesh.np != 0 && !(*mesh.np >= 4 && *mesh.np <= mesh.mnp))
        report.error<NE_INT_RANGE_CONS_2>("np", *mesh.np, "mnp", mesh.mnp, "np", "np = 0", "4 <= np <= mnp");
    else if (mesh.y.tda < mesh.mnp)
        report.error<NE_2_INT_ARG_LT>("tdy", static_cast<Integer>(mesh.y.tda), "mnp", mesh.mnp, "tdy", "mnp");
    else
        return true;
    return false;
}

bool strictly_increasing(const Report &report, Integer np, const double *x)
{
    for (Integer i = 1; i < np; ++i)
        if (!(x[i] > x[i - 1])) {
            report.error<NE_NOT_STRICTLY_INCREASING>("x", "x", i - 1, x[i - 1], "x", i, x[i]);
            return false;
        }
    return true;
}

bool mesh_accepted(const Report &report, double a, double b, const CallersMesh &mesh)
{
    const Integer np = *mesh.np;
    if (np == 0) return true;
    if (mesh.x[0] != a)
        report.error<NE_LF_B_MESH>(mesh.x[0], a);
    else if (mesh.x[np - 1] != b)
        report.error<NE_RT_B_MESH>(mesh.x[np - 1], b);
    else
        return strictly_increasing(report, np, mesh.x);
    return false;
}

// Only the solver needs this much room, so that it comes after all other tests.
bool size_accepted(const Report &report, Integer mnp)
{
    if (mnp >= kLeastMesh) return true;
    report.error<NE_INT_ARG_LT>("mnp", "32", "mnp", mnp);
    return false;
}

void spread(double a, double b, Integer np, double *x)
{
    for (Integer i = 0; i < np; ++i) {
        const double part = static_cast<double>(i) / (np - 1);
        x[i] = a * (1.0 - part) + b * part;
    }
}

void conclude(const Report &report, BoundaryStatus status, BoundarySolver &solver, const CallersMesh &mesh,
              double deleps)
{
    const auto show = [&] {
        *mesh.np = solver.points();
        std::copy_n(solver.x(), solver.points(), mesh.x);
        for (Integer i = 0; i < solver.points(); ++i)
            for (Integer c = 0; c < mesh.neq; ++c) mesh.y(c, i) = solver.y(i)[c];
    };
    switch (status) {
    case BoundaryStatus::solved:
        show();
        return report.success();
    case BoundaryStatus::mesh:
        show();
        return report.error<NE_CONV_MESH>(mesh.mnp);
    case BoundaryStatus::first_mesh:
        return report.error<NE_CONV_MESH_INIT>();
    case BoundaryStatus::roundoff:
        show();
        return report.error<NE_CONV_ROUNDOFF>();
    case BoundaryStatus::continuation:
        show();
        return report.error<NE_CONV_CONT>();
    case BoundaryStatus::singular_conditions:
        return report.error<NE_CONV_JACOBG>();
    case BoundaryStatus::no_dependence:
        return report.error<NE_CONV_CONT_DEP>();
    case BoundaryStatus::increment:
        show();
        return report.error<NE_CONV_CONT_DELEPS>(deleps);
    case BoundaryStatus::sizes:
        break;
    }
    report.error<NE_INTERNAL_ERROR>();
}

} // namespace kor::ode
