// Inverses from triangular factors. With PA = LU, inverse(U) is formed first, and X L = inverse(U) P is solved for X
// (J. J. Du Croz and N. J. Higham, IMA J. Numer. Anal. 12 (1992) 1-19, method B).
#include "linalg/inverse.hpp"

#include <algorithm>

#include "frame/dispatch.hpp"
#include "frame/views.hpp"
#include "linalg/blas.hpp"
#include "linalg/cholesky.hpp"
#include "linalg/lapack.hpp"
#include "linalg/lu.hpp"

namespace kor::linalg {

namespace {

constexpr Integer kTriangle = 16; // order up to which a triangle is inverted in one piece

// Columns that are solved for at once: more where the products are long.
constexpr Integer block_of(Integer n) { return n < 256 ? 32 : 64; }

// Small matrices: inverse(L), which is a triangle, and the solution of U X = inverse(L), along the rows of X.
KOR_CLONES void invert_rows(Integer n, const double *a, std::ptrdiff_t tda, double *x, std::ptrdiff_t tdx)
{
    for (Integer i = 0; i < n; ++i) {
        double *const __restrict row = x + i * tdx;
        for (Integer j = 0; j < n; ++j) row[j] = i == j ? 1.0 : 0.0;
        for (Integer k = 0; k < i; ++k) {
            const double factor = a[i * tda + k], *const above = x + k * tdx;
            for (Integer j = 0; j <= k; ++j) row[j] -= factor * above[j];
        }
    }
    for (Integer i = n - 1; i >= 0; --i) {
        double *const __restrict row = x + i * tdx;
        for (Integer k = i + 1; k < n; ++k) {
            const double factor = a[i * tda + k], *const below = x + k * tdx;
            for (Integer j = 0; j < n; ++j) row[j] -= factor * below[j];
        }
        const double divisor = a[i * tda + i];
        for (Integer j = 0; j < n; ++j) row[j] /= divisor;
    }
}

// Replaces a small upper triangle by its inverse, row by row from the last.
KOR_CLONES void invert_triangle(Integer n, double *u, std::ptrdiff_t tdu)
{
    double sum[kTriangle];
    for (Integer i = n - 1; i >= 0; --i) {
        double *const row = u + i * tdu, reciprocal = 1.0 / row[i];
        for (Integer j = i + 1; j < n; ++j) sum[j] = 0.0;
        for (Integer k = i + 1; k < n; ++k) {
            const double factor = row[k], *const below = u + k * tdu;
            for (Integer j = k; j < n; ++j) sum[j] += factor * below[j];
        }
        row[i] = reciprocal;
        for (Integer j = i + 1; j < n; ++j) row[j] = -(sum[j] * reciprocal);
    }
}

// The same by halves: the block beside the two triangles is -inverse(U11) U12 inverse(U22).
void invert_upper(Integer n, double *u, Integer tdu)
{
    if (n <= kTriangle) return invert_triangle(n, u, tdu);
    const Integer half = (n / 2 + kTriangle - 1) / kTriangle * kTriangle, rest = n - half;
    double *const beside = u + half, *const second = u + std::ptrdiff_t{half} * tdu + half;
    blas::trsm(blas::kRowMajor, RightSide, UpperTriangle, NoTranspose, NotUnitTriangular, half, rest, -1.0, second, tdu,
               beside, tdu);
    invert_upper(half, u, tdu);
    blas::trmm(blas::kRowMajor, LeftSide, UpperTriangle, NoTranspose, NotUnitTriangular, half, rest, 1.0, u, tdu,
               beside, tdu);
    invert_upper(rest, second, tdu);
}

void invert_in_blocks(Integer n, RowMajor<const double> A, Integer tda, RowMajor<double> X, Integer tdx)
{
    for (Integer i = 0; i < n; ++i) {
        std::fill(X.row(i), X.row(i) + i, 0.0);
        std::copy(&A(i, i), &A(i, 0) + n, &X(i, i));
    }
    invert_upper(n, X.a, tdx);
    const Integer block = block_of(n);
    for (Integer first = (n - 1) / block * block; first >= 0; first -= block) {
        const Integer width = std::min(block, n - first), last = first + width;
        if (last < n)
            blas::gemm(blas::kRowMajor, NoTranspose, NoTranspose, n, width, n - last, -1.0, X.a + last, tdx,
                       &A(last, first), tda, 1.0, X.a + first, tdx);
        blas::trsm(blas::kRowMajor, RightSide, LowerTriangle, NoTranspose, UnitTriangular, n, width, 1.0,
                   &A(first, first), tda, X.a + first, tdx);
    }
}

} // namespace

void lu_inverse(Integer n, const double *a, Integer tda, const Integer *pivot, double *x, Integer tdx)
{
    const RowMajor<const double> A{a, tda};
    const RowMajor<double> X{x, tdx};
    if (n <= kSmallSystem)
        invert_rows(n, a, tda, x, tdx);
    else
        invert_in_blocks(n, A, tda, X, tdx);
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
