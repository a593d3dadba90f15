// What the public routines for boundary values share: tests of the mesh, and the way from and to the caller's arrays.
#pragma once

#include "frame/report.hpp"
#include "frame/views.hpp"
#include "ode/boundary_solver.hpp"

namespace kor::ode {

// The caller's mesh and solution: component c at point i in y(c, i).
struct CallersMesh {
    Integer neq, mnp;
    Integer *np;
    double *x;
    RowMajor<double> y;
};

// Each reports the first offence; false when there is one.
bool dimensions_accepted(const Report &report, Integer neq, double tol, double a, double b, const CallersMesh &mesh);
bool strictly_increasing(const Report &report, Integer np, const double *x);
bool mesh_accepted(const Report &report, double a, double b, const CallersMesh &mesh);
bool size_accepted(const Report &report, Integer mnp);

// `np` equally spaced points; both ends are met exactly.
void spread(double a, double b, Integer np, double *x);

// Copies the mesh out where there is one to show, and closes with a report.
void conclude(const Report &report, BoundaryStatus status, BoundarySolver &solver, const CallersMesh &mesh,
              double deleps);

} // namespace kor::ode
