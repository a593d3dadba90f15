// Inverses from triangular factors. With PA = LU, inverse(U) is formed first, and X L = inverse(U) P is solved for X
// (J. J. Du Croz and N. J. Higham, IMA J. Numer. Anal. 12 (1992) 1-19, method B).
#include "linalg/inverse.hpp"

#include <algorithm>

#include "frame/dispatch.hpp"
#include "frame/views.hpp"
#include "linalg/blas.hpp"
#include "linalg/cholesky.hpp"
#include "linalg/lanes.hpp"
#include "linalg/lapack.hpp"
#include "linalg/lu.hpp"

namespace kor::linalg {

namespace {

constexpr Integer kTriangle = 16; // order up to which a triangle is inverted in one piece

// Columns that are solved for at once: more where the products are long.
constexpr Integer block_of(Integer n) { return n < 256 ? 32 : 64; }

// The inverse of a small LU, eight columns at a time: inverse(L) first, which is a triangle, then the solution of
// U Y = inverse(L). What a row becomes stays in its register until it is done. Column j of Y is column place[j] of X.
KOR_CLONES void invert_small(Integer n, const double *a, std::ptrdiff_t tda, const Integer *place, double *x,
                             std::ptrdiff_t tdx)
{
    Lanes rows[kSmallSystem];
    for (Integer first = 0; first < n; first += kWidth) {
        const auto last = std::min<Integer>(first + kWidth, n);
        for (Integer i = 0; i < n; ++i) {
            Lanes row{};
            if (i >= first && i < last) row[i - first] = 1.0;
            for (Integer k = first; k < i; ++k) row -= a[i * tda + k] * rows[k];
            rows[i] = row;
        }
        for (Integer i = n - 1; i >= 0; --i) {
            Lanes row = rows[i];
            for (Integer k = i + 1; k < n; ++k) row -= a[i * tda + k] * rows[k];
            rows[i] = row / a[i * tda + i];
        }
        for (Integer i = 0; i < n; ++i)
            for (Integer j = first; j < last; ++j) x[i * tdx + place[j]] = rows[i][j - first];
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
    // The interchanges of rows of A, undone in the columns of X.
    if (n <= kSmallSystem) {
        Integer column[kSmallSystem], place[kSmallSystem];
        for (Integer k = 0; k < n; ++k) column[k] = k;
        for (Integer k = n - 1; k >= 0; --k) std::swap(column[k], column[pivot[k] - 1]);
        for (Integer k = 0; k < n; ++k) place[column[k]] = k;
        return invert_small(n, a, tda, place, x, tdx);
    }
    const RowMajor<double> X{x, tdx};
    invert_in_blocks(n, RowMajor<const double>{a, tda}, tda, X, tdx);
    // Each row stays in the cache meanwhile.
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
