// Inverses from triangular factors. With PA = LU, inverse(U) is formed first, and X L = inverse(U) P is solved for X
// (J. J. Du Croz and N. J. Higham, IMA J. Numer. Anal. 12 (1992) 1-19, method B).
#include "linalg/inverse.hpp"

#include <algorithm>

#include "frame/views.hpp"
#include "linalg/blas.hpp"
#include "linalg/cholesky.hpp"
#include "linalg/lapack.hpp"
#include "linalg/lu.hpp"

namespace kor::linalg {

namespace {
constexpr Integer kBlock = 32;
}

void lu_inverse(Integer n, const double *a, Integer tda, const Integer *pivot, double *x, Integer tdx)
{
    const RowMajor<const double> A{a, tda};
    const RowMajor<double> X{x, tdx};
    if (n <= kSmallSystem) {
        for (Integer i = 0; i < n; ++i) {
            std::fill(X.row(i), X.row(i) + n, 0.0);
            X(i, i) = 1.0;
        }
        return lu_solve(n, n, a, tda, pivot, x, tdx);
    }
    for (Integer i = 0; i < n; ++i) {
        std::fill(X.row(i), X.row(i) + i, 0.0);
        std::copy(&A(i, i), &A(i, 0) + n, &X(i, i));
    }
    // A row-major upper triangle is a column-major lower one, and so are their inverses.
    lapack::trtri(LowerTriangle, NotUnitTriangular, n, x, tdx);
    for (Integer first = (n - 1) / kBlock * kBlock; first >= 0; first -= kBlock) {
        const Integer width = std::min(kBlock, n - first), last = first + width;
        if (last < n)
            blas::gemm(blas::kRowMajor, NoTranspose, NoTranspose, n, width, n - last, -1.0, x + last, tdx,
                       &A(last, first), tda, 1.0, x + first, tdx);
        blas::trsm(blas::kRowMajor, RightSide, LowerTriangle, NoTranspose, UnitTriangular, n, width, 1.0,
                   &A(first, first), tda, x + first, tdx);
    }
    // The interchanges of rows of A, undone in the columns of X; each row stays in the cache meanwhile.
    for (Integer i = 0; i < n; ++i)
        for (Integer k = n - 1; k >= 0; --k) std::swap(X(i, k), X(i, pivot[k] - 1));
}

bool positive_definite_inverse(Integer n, double *a, Integer tda)
{
    if (cholesky_factor(UpperTriangle, n, a, tda) != 0) return false;
    lapack::potri(LowerTriangle, n, a, tda);
    reflect_upper(n, a, tda, a, tda);
    return true;
}

} // namespace kor::linalg
