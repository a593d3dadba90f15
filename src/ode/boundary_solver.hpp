// Two-point boundary value problems y' = f(x, y, eps) with n conditions: the kernel behind d02gac, d02gbc and d02rac.
//
// On a mesh, Simpson's equations (with the cubic through values and slopes in the middle) are solved by a damped Newton iteration.
// Corrections raise their order 4 to 8: the defects in Lobatto's equations of five points go through the linear system of these
// equations, whose inner nodes are eliminated interval by interval; being implicit, they stay small where a problem is stiff but
// smooth. The defects in the equations of four points, through their own system, estimate the error (of order 6); what it gains
// from point to point tells where the mesh must be finer. A problem may be reached through a parameter eps that goes from 0 to 1,
// or through a factor of all slopes that grows to 1.
#pragma once

#include <kor.h>

#include "frame/constants.hpp"
#include "frame/function_ref.hpp"
#include "frame/workspace.hpp"
#include "ode/block_system.hpp"
#include "ode/interval_tables.hpp"

namespace kor::ode {

using SlopeFunction = FunctionRef<void(double x, double eps, const double *y, double *f)>;
using JacobianFunction = FunctionRef<void(double x, double eps, const double *y, double *j)>;
using ConditionsFunction = FunctionRef<void(double eps, const double *ya, const double *yb, double *g)>;
using ConditionsJacobian = FunctionRef<void(double eps, const double *ya, const double *yb, double *ja, double *jb)>;

// Matrices are n by n, row-major. The conditions stand in the order left, mixed, right.
struct BoundaryProblem {
    Integer n, left, mixed;
    SlopeFunction slope;
    ConditionsFunction conditions;
    // What is null is found by differences. Matrices come filled with zeros.
    const JacobianFunction *jacobian = nullptr;
    const ConditionsJacobian *conditions_jacobian = nullptr;
    const SlopeFunction *slope_by_eps = nullptr;
    const ConditionsFunction *conditions_by_eps = nullptr;
};

inline constexpr int kNewtonLimit = 60;               // steps of the iteration
inline constexpr double kRounding = 1e3 * kPrecision; // parts of the solution that small may be rounding errors

// Simpson's equations on an interval of length h take this value in its middle.
inline double middle_value(double h, double y0, double y1, double f0, double f1)
{
    return 0.5 * (y0 + y1) + 0.125 * h * (f0 - f1);
}

// The cubic through values and slopes at both ends, at the part u of the interval.
inline double cubic(double u, double h, double y0, double y1, double f0, double f1)
{
    const double v = 1.0 - u;
    return v * v * (1.0 + 2.0 * u) * y0 + u * u * (1.0 + 2.0 * v) * y1 + h * u * v * (v * f0 - u * f1);
}

// The numbers are the statuses of the kernel.
enum class BoundaryStatus : Integer {
    solved = 0,
    sizes = 1,
    mesh = 2,
    first_mesh = 3,
    roundoff = 4,
    continuation = 5,
    singular_conditions = 6,
    no_dependence = 7,
    increment = 8
};

inline constexpr Integer kLeastMesh = 32;   // of points that must be allowed
inline constexpr Integer kDefaultMesh = 17; // points to begin with

class BoundarySolver {
  public:
    // Room for meshes of up to mnp points. False when there is no memory.
    bool allocate(const BoundaryProblem &problem, Integer mnp);

    // The mesh to begin with, and the first approximation: component c at point i in y(i)[c].
    void set_mesh(Integer points) { intervals_ = points - 1; }
    double *x() { return x_; }
    double *y(Integer i) { return y_ + std::ptrdiff_t{n_} * i; }
    Integer points() const { return intervals_ + 1; }
    const double *error_estimates() const { return errors_; }

    // deleps > 0: from eps = 0 to 1, with steps that begin with deleps; it becomes the last step. Otherwise eps = 1.
    BoundaryStatus solve(const BoundaryProblem &problem, double tol, double *deleps);

  private:
    struct Snapshot {
        Integer intervals = 0;
        double *x, *y;
    };
    enum class Path { eps, strength };

    std::ptrdiff_t size() const { return std::ptrdiff_t{n_} * (intervals_ + 1); }
    double *at_point(Integer i) { return jacobians_.data() + std::ptrdiff_t{n_} * n_ * 2 * i; }
    double *at_middle(Integer i) { return at_point(i) + std::ptrdiff_t{n_} * n_; }

    // boundary_equations.cpp: on one mesh
    void slope(double x, const double *y, double *f);
    void find_slopes(const double *y);
    double find_conditions(const double *y);
    bool residual(const double *y);
    bool find_nodes(const LobattoRule &rule, Integer i, const double *y, double tol);
    bool residual(const LobattoRule &rule, const double *y, double tol);
    void jacobian(double x, const double *y, const double *f, double *j);
    void conditions_jacobian();
    bool find_jacobians();
    bool factor();
    bool build(const LobattoRule &rule);
    void find_scales();
    double norm(const double *delta) const;
    bool negligible(const double *delta, double tol) const;
    bool newton(double tol, int limit);
    bool correct(double tol);

    // boundary_mesh.cpp: from mesh to mesh
    void save(Snapshot &snapshot) const;
    void load(const Snapshot &snapshot);
    void put_point(Integer at, Integer interval, double x);
    void adopt(Integer intervals);
    void subdivide(const Integer *parts);
    bool halve();
    void redistribute(Integer intervals);
    void measure_variation();
    bool refine(double tol);
    bool only_roundoff(double tol) const;
    BoundaryStatus adapt(double tol);

    // boundary_path.cpp: from problem to problem
    void set_parameter(double value);
    bool tangent();
    bool depends_on_parameter(double other);
    double stiffness();
    BoundaryStatus follow(Path path, double start, double end, double tol, double *step);

    const BoundaryProblem *problem_ = nullptr;
    Integer n_ = 0, mnp_ = 0, intervals_ = 0;

    Path path_ = Path::eps;
    double parameter_ = 1.0; // of the path: eps_, or the logarithm of strength_
    double eps_ = 1.0;
    double strength_ = 1.0; // a factor of all slopes

    bool conditions_singular_ = false;
    bool smooth_ = false;     // the corrections converge, and errors_ and defects_ can be trusted
    Integer full_meshes_ = 0; // meshes of mnp points so far

    BlockSystem system_;
    Workspace<double> block_, jacobians_;
    Workspace<double> stages_; // factors for the inner nodes, 3n by 3n for each interval
    Workspace<Integer> pivots_, parts_;

    // A vector at each point, or in each interval.
    double *y_, *f_, *middle_, *rows_, *delta_, *bar_, *trial_, *new_y_, *tangent_, *guess_;
    // A number for each point, or each interval.
    double *x_, *new_x_, *defects_;
    Snapshot kept_, good_, first_,
        best_; // the last mesh solved, the last point of the path, the start, the direct attempt
    // One vector, or a few.
    double *conditions_, *scales_, *errors_, *shifted_, *nodes_;
    // Matrices.
    double *at_left_, *at_right_, *a_, *b_;
    double *inner_, *by_left_, *by_right_; // of the inner nodes: Jacobians, derivatives by the values at the ends
};

} // namespace kor::ode
