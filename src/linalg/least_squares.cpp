// Linear least squares: QR factorisation while the rank is out of doubt (P. A. Businger and G. H. Golub, Numer. Math. 7
// (1965) 269-276), else the singular value decomposition (G. H. Golub and C. Reinsch, Numer. Math. 14 (1970) 403-420).
#include "linalg/least_squares.hpp"

#include <algorithm>
#include <cmath>

#include "frame/constants.hpp"
#include "linalg/blas.hpp"
#include "linalg/copies.hpp"
#include "linalg/householder.hpp"
#include "linalg/norm.hpp"
#include "linalg/singular_values.hpp"
#include "linalg/triangle_condition.hpp"

namespace kor::linalg {

namespace {

// tol, if it is one: not below the precision, and below 1.
double effective(double tol) { return tol >= kPrecision && tol < 1.0 ? tol : kPrecision; }

double residual_over_freedom(double norm, Integer m, Integer rank)
{
    return m > rank ? norm / std::sqrt(static_cast<double>(m - rank)) : 0.0;
}

} // namespace

LeastSquaresOutcome least_squares(Integer m, Integer n, double *a, Integer tda, double *b, double tol, bool always_svd,
                                  double *values, LeastSquares &result)
{
    tol = effective(tol);
    const Integer r = std::min(m, n);
    const Workspace<double> copies{Count{m} * n + m};
    if (!copies) return LeastSquaresOutcome::no_memory;
    double *const A = copies.data(), *const c = A + std::ptrdiff_t{m} * n;
    std::copy(b, b + m, c);
    copy_rows(m, n, a, tda, A, n);

    if (!always_svd && m >= n) {
        const Workspace<double> memory{Count{n} * n + n};
        const Workspace<double> work{reflection_work(m, n)};
        if (!memory || !work) return LeastSquaresOutcome::no_memory;
        double *const zeta = memory.data(), *const triangle = zeta + n;
        qr_factor(m, n, A, n, zeta, work.data());
        copy_rows(n, n, A, n, triangle, n);
        if (condition_of_triangle(n, triangle) * tol <= 1.0) {
            qr_apply(true, m, n, A, n, zeta, 1, c, 1, work.data());
            result = {false, residual_over_freedom(euclidean_norm(m - n, c + n, 1), m, n), n};
            blas::trsv(blas::kRowMajor, UpperTriangle, NoTranspose, NotUnitTriangular, n, A, n, c, 1);
            std::copy(c, c + n, b);
            copy_rows(m, n, A, n, a, tda);
            return LeastSquaresOutcome::success;
        }
        copy_rows(m, n, a, tda, A, n);
    }

    const Workspace<double> found{Count{n} + r};
    if (!found) return LeastSquaresOutcome::no_memory;
    double *const x = found.data(), *const s = x + n;
    IterationRecord record{nullptr};
    switch (singular_decomposition(m, n, A, n, 1, c, 1, s, {nullptr, 0, A, n}, record)) {
    case SingularOutcome::success:
        break;
    case SingularOutcome::no_memory:
        return LeastSquaresOutcome::no_memory;
    case SingularOutcome::no_convergence:
        return LeastSquaresOutcome::no_convergence;
    }
    const auto rank = static_cast<Integer>(std::count_if(s, s + r, [&](double value) { return value > tol * s[0]; }));
    result = {true, residual_over_freedom(euclidean_norm(m - rank, c + rank, 1), m, rank), rank};
    for (Integer k = 0; k < rank; ++k) c[k] /= s[k];
    std::fill(x, x + n, 0.0);
    if (rank > 0) blas::gemv(blas::kRowMajor, Transpose, rank, n, 1.0, A, n, c, 1, 0.0, x, 1);
    std::copy(x, x + n, b);
    std::copy(s, s + r, values);
    copy_rows(r, n, A, n, a, tda);
    return LeastSquaresOutcome::success;
}

} // namespace kor::linalg
