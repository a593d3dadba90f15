// d02gbc: a linear boundary value problem with general conditions.
#include <kor/d02.h>

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "frame/constants.hpp"
#include "frame/workspace.hpp"
#include "ode/boundary_calls.hpp"

using namespace kor::ode;

namespace {

bool is_zero(const double *v, Integer n)
{
    return std::all_of(v, v + n, [](double e) { return e == 0.0; });
}

enum class Dependence { none, exact, rounded };

// Gaussian elimination of the rows of [C, D], in `m`: the first row that is used up by those before it.
Dependence find_dependence(Integer neq, kor::RowMajor<double> m, double *sizes, Integer &row)
{
    const Integer columns = 2 * neq;
    const auto size = [&](Integer i) {
        const double *r = m.row(i);
        return std::fabs(
            *std::max_element(r, r + columns, [](double p, double q) { return std::fabs(p) < std::fabs(q); }));
    };
    for (Integer i = 0; i < neq; ++i) sizes[i] = size(i);
    for (row = 0; row < neq; ++row) {
        const double left = size(row);
        if (left == 0.0) return Dependence::exact;
        constexpr double kLost = 64.0 * kor::kPrecision;
        if (!(left > kLost * neq * sizes[row])) return Dependence::rounded;
        const double *r = m.row(row);
        const auto pivot =
            std::max_element(r, r + columns, [](double p, double q) { return std::fabs(p) < std::fabs(q); }) - r;
        for (Integer i = row + 1; i < neq; ++i) {
            const double factor = m(i, pivot) / r[pivot];
            for (Integer j = 0; j < columns; ++j) m(i, j) -= factor * r[j];
            m(i, pivot) = 0.0;
        }
    }
    return Dependence::none;
}

// Left conditions first, then those on both ends, then right ones.
int kind_of_row(const double *c, const double *d, Integer neq) { return is_zero(d, neq) ? 0 : is_zero(c, neq) ? 2 : 1; }

} // namespace

void d02gbc(Integer neq, void (*fcnf)(Integer neq, double x, double f[], void *comm),
            void (*fcng)(Integer neq, double x, double g[], void *comm), double a, double b, double c[], double d[],
            double gamma[], double tol, Integer mnp, Integer *np, double x[], double y[], Integer tdy, void *comm,
            KorError *fail)
{
    const kor::Report report{"d02gbc", fail};
    const CallersMesh mesh{neq, mnp, np, x, {y, tdy}};
    if (!dimensions_accepted(report, neq, tol, a, b, mesh) || !mesh_accepted(report, a, b, mesh)) return;
    const std::ptrdiff_t n = neq;

    for (Integer i = 0; i < neq; ++i)
        if (is_zero(c + n * i, neq) && is_zero(d + n * i, neq)) return report.error<NE_BOUND_COND_ROW>(i);
    Integer zero_columns = 0;
    for (Integer j = 0; j < neq; ++j)
        for (const double *m : {c, d}) {
            bool zero = true;
            for (Integer i = 0; i < neq; ++i) zero = zero && m[n * i + j] == 0.0;
            zero_columns += zero;
        }
    if (zero_columns > neq) return report.error<NE_BOUND_COND_COL>(zero_columns);
    if (is_zero(c, neq * neq) || is_zero(d, neq * neq)) return report.error<NE_BOUND_COND_MAT>(neq);

    kor::Workspace<double> work{kor::Count{neq} * (kor::Count{neq} * 4 + 3)};
    BoundarySolver solver;
    if (!work) return report.error<NE_ALLOC_FAIL>();
    const kor::RowMajor<double> both{work.data(), 2 * n};
    for (Integer i = 0; i < neq; ++i) {
        std::copy_n(c + n * i, neq, both.row(i));
        std::copy_n(d + n * i, neq, both.row(i) + neq);
    }
    Integer row;
    switch (find_dependence(neq, both, work.data() + 2 * n * n, row)) {
    case Dependence::exact:
        return report.error<NE_BOUND_COND_LC>(row);
    case Dependence::rounded:
        return report.error<NE_BOUND_COND_NLC>(row);
    case Dependence::none:
        break;
    }
    if (!size_accepted(report, mnp)) return;

    // The conditions in the order of their kinds.
    Integer counts[3] = {0, 0, 0};
    double *const ordered_c = work.data(), *const ordered_d = ordered_c + n * n,
                  *const ordered_gamma = ordered_d + n * n;
    Integer next = 0;
    for (int kind = 0; kind < 3; ++kind)
        for (Integer i = 0; i < neq; ++i) {
            if (kind_of_row(c + n * i, d + n * i, neq) != kind) continue;
            std::copy_n(c + n * i, neq, ordered_c + n * next);
            std::copy_n(d + n * i, neq, ordered_d + n * next);
            ordered_gamma[next++] = gamma[i];
            ++counts[kind];
        }

    double *const matrix = ordered_gamma + n, *const force = matrix + n * n;
    const auto slope = [=](double at, double, const double *values, double *f) {
        std::fill_n(matrix, n * n, 0.0);
        fcnf(neq, at, matrix, comm);
        std::fill_n(force, neq, 0.0);
        if (fcng != nullptr) fcng(neq, at, force, comm);
        for (Integer i = 0; i < neq; ++i) {
            double sum = force[i];
            for (Integer j = 0; j < neq; ++j) sum += matrix[n * i + j] * values[j];
            f[i] = sum;
        }
    };
    const auto conditions = [=](double, const double *ya, const double *yb, double *g) {
        for (Integer i = 0; i < neq; ++i) {
            double sum = -ordered_gamma[i];
            for (Integer j = 0; j < neq; ++j) sum += ordered_c[n * i + j] * ya[j] + ordered_d[n * i + j] * yb[j];
            g[i] = sum;
        }
    };
    const auto jacobian = [=](double at, double, const double *, double *j) { fcnf(neq, at, j, comm); };
    const auto conditions_jacobian = [=](double, const double *, const double *, double *ja, double *jb) {
        std::copy_n(ordered_c, n * n, ja);
        std::copy_n(ordered_d, n * n, jb);
    };
    const JacobianFunction jacobian_reference{jacobian};
    const ConditionsJacobian conditions_reference{conditions_jacobian};
    BoundaryProblem problem{neq, counts[0], counts[1], slope, conditions};
    problem.jacobian = &jacobian_reference;
    problem.conditions_jacobian = &conditions_reference;

    if (!solver.allocate(problem, mnp)) return report.error<NE_ALLOC_FAIL>();
    std::copy_n(ordered_c, n * n, c);
    std::copy_n(ordered_d, n * n, d);
    std::copy_n(ordered_gamma, neq, gamma);
    const Integer points = *np != 0 ? *np : kDefaultMesh;
    solver.set_mesh(points);
    if (*np != 0)
        std::copy_n(x, points, solver.x());
    else
        spread(a, b, points, solver.x());
    std::fill_n(solver.y(0), n * points, 0.0);
    conclude(report, solver.solve(problem, tol, nullptr), solver, mesh, 0.0);
}
