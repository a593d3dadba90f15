// What the least-squares routines report alike.
#pragma once

#include "frame/report.hpp"
#include "linalg/least_squares.hpp"
#include "linalg/singular_values.hpp"

namespace kor::linalg {

inline void solve_least_squares(const Report &report, Integer m, Integer n, double *a, Integer tda, double *b,
                                double tol, bool always_svd, Boolean *svd, double *sigma, Integer *irank, double *work)
{
    LeastSquares result;
    switch (least_squares(m, n, a, tda, b, tol, always_svd, work, result)) {
    case LeastSquaresOutcome::no_memory:
        return report.error<NE_ALLOC_FAIL>();
    case LeastSquaresOutcome::no_convergence:
        return report.error<NE_QR_FAIL_CONV>(step_limit(n));
    case LeastSquaresOutcome::success:
        break;
    }
    *svd = result.svd;
    *sigma = result.sigma;
    *irank = result.rank;
    report.success();
}

} // namespace kor::linalg
