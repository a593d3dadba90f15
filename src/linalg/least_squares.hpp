// Linear least squares, of least length where the solution is not unique.
#pragma once

#include <kor.h>

namespace kor::linalg {

enum class LeastSquaresOutcome { success, no_memory, no_convergence };

struct LeastSquares {
    bool svd;     // by singular values, not by R alone
    double sigma; // |b - A x| / sqrt(m - rank), 0 if the rank is m
    Integer rank;
};

// Minimises |b - A x|; among several x takes the shortest. If always_svd is false, and the condition number of R, times
// tol, is at most 1, A has full rank, and R is all that is needed. Else a singular value counts if it exceeds tol times
// the greatest. b has max(m, n) elements, and holds x at the end. a then holds R and the reflections of qr_factor, or, in
// its first min(m, n) rows, the singular vectors conj(P)'; values the singular values. Nothing is touched without success.
LeastSquaresOutcome least_squares(Integer m, Integer n, double *a, Integer tda, double *b, double tol, bool always_svd,
                                  double *values, LeastSquares &result);

} // namespace kor::linalg
