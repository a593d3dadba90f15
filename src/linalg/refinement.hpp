// Iterative refinement of the solutions of linear systems, with residuals in doubled precision.
#pragma once

#include <algorithm>
#include <cmath>

#include "frame/constants.hpp"
#include "frame/views.hpp"
#include "frame/workspace.hpp"

namespace kor::linalg {

// r := b - A x for one right-hand side; the vectors have elements tdx, tdb, tdr apart. Products are exact, and summed in
// doubled precision. work has 2 n elements.
void residual(Integer n, const double *a, Integer tda, const double *x, Integer tdx, const double *b, Integer tdb,
              double *r, Integer tdr, double *work);

// A NaN is greater than everything, and stays.
inline double greater_or_nan(double a, double b) { return b > a || std::isnan(b) ? b : a; }

// Solves A X = B to full accuracy: solve(R) replaces R, n by nrhs with the stride tdr, by an approximation of
// inverse(A) R. R holds the residuals at the end, iterations the number of solutions. False if a correction was not at
// most half of the one before it, relative to X, and no correction was small enough: A is too ill-conditioned.
// work has 2 n elements.
template <class Solve>
bool refine(Integer n, Integer nrhs, const double *a, Integer tda, Solve solve, const double *b, Integer tdb, double *x,
            Integer tdx, double *r, Integer tdr, Integer &iterations, double *work)
{
    constexpr Integer kMaxIterations = 100; // halving each time, the corrections reach the precision long before
    const RowMajor<const double> B{b, tdb};
    const RowMajor<double> X{x, tdx}, R{r, tdr};
    for (Integer i = 0; i < n; ++i) {
        std::copy(B.row(i), B.row(i) + nrhs, R.row(i));
        std::fill(X.row(i), X.row(i) + nrhs, 0.0);
    }
    iterations = 0;
    double previous = 0.0;
    while (iterations < kMaxIterations) {
        solve(r, tdr);
        ++iterations;
        double ratio = 0.0;
        bool settled = true;
        for (Integer j = 0; j < nrhs; ++j) {
            double greatest = 0.0, correction = 0.0;
            for (Integer i = 0; i < n; ++i) {
                X(i, j) += R(i, j);
                greatest = greater_or_nan(greatest, std::fabs(X(i, j)));
                correction = greater_or_nan(correction, std::fabs(R(i, j)));
            }
            if (!(greatest == 0.0 && correction == 0.0)) {
                ratio = greater_or_nan(ratio, correction / greatest);
                settled &= correction <= 2.0 * kPrecision * greatest && greatest <= kLargest;
            }
            residual(n, a, tda, x + j, tdx, b + j, tdb, r + j, tdr, work);
        }
        if (settled) return true;
        if (iterations > 1 && !(ratio <= 0.5 * previous)) return false;
        previous = ratio;
    }
    return false;
}

} // namespace kor::linalg
