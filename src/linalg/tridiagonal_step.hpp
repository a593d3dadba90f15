// The tridiagonal iteration as a public step: tests and scaling around it.
#pragma once

#include <algorithm>

#include "linalg/eigen_report.hpp"
#include "linalg/magnitude.hpp"
#include "linalg/transpose.hpp"
#include "linalg/tridiagonal_ql.hpp"

namespace kor::linalg {

// The diagonal is d, and e[1..n-1] stands beside it; e becomes zero.
template <class Rows>
void iterate_and_report(const Report &report, Integer n, double eps, double *d, double *e, const Rows &rows)
{
    Magnitude magnitude;
    magnitude.take(n, d);
    magnitude.take(n - 1, e + 1);
    if (!magnitude.is_finite()) return report.error<NE_TOO_MANY_ITERATIONS>(iteration_limit(n));

    const double scaling = magnitude.scaling();
    const auto scale = [&](double factor) {
        for (Integer i = 0; i < n; ++i) {
            d[i] *= factor;
            e[i] *= factor;
        }
    };
    e[0] = 0.0;
    if (scaling != 1.0) scale(scaling);
    const bool converged = diagonalise(n, effective_precision(eps, kPrecision), d, e + 1, iteration_limit(n), rows);
    if (scaling != 1.0) scale(1.0 / scaling);
    report_outcome(report, converged ? EigenOutcome::success : EigenOutcome::no_convergence, n);
}

// The columns of z turn: for the time of the iteration they are rows.
template <Scalar T>
void iterate_and_report(const Report &report, Integer n, double eps, double *d, double *e, T *z, Integer tdz)
{
    transpose_in_place<false>(n, z, tdz);
    iterate_and_report(report, n, eps, d, e, TurningRows<T>{z, tdz, n});
    transpose_in_place<false>(n, z, tdz);
}

} // namespace kor::linalg
