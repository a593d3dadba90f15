// The standard operations on a matrix and a vector, one template for real and complex: argument tests in the order of the
// list, quick returns, then BLAS in row-major order. `routine` is the name that a report of an illegal argument carries.
#pragma once

#include "linalg/arguments.hpp"
#include "linalg/blas.hpp"
#include "linalg/scalar.hpp"
#include "linalg/tiny.hpp"

namespace kor::linalg {

// ---- General matrices ----

// y := alpha op(A) x + beta y, A general.
template <Scalar T>
void gemv(const char *routine, Integer trans, Integer m, Integer n, const T &alpha, const T *a, Integer tda, const T *x,
          Integer incx, const T &beta, T *y, Integer incy)
{
    if (!accepted(routine, argument(1, is_transpose(trans)), argument(2, m >= 0), argument(3, n >= 0),
                  argument(6, row_fits(tda, n)), argument(8, incx != 0), argument(11, incy != 0)))
        return;
    if (m == 0 || n == 0 || (alpha == T{} && beta == one<T>())) return;
    if (is_tiny(kTinyProduct, m, n) && !(alpha == T{})) {
        const bool turned = trans != NoTranspose;
        return tiny_gemv(trans, turned ? n : m, turned ? m : n, alpha, a, tda, x, incx, beta, y, incy);
    }
    blas::gemv(blas::kRowMajor, trans, m, n, alpha, a, tda, x, incx, beta, y, incy);
}

// y := alpha op(A) x + beta y, A a band of kl diagonals below and ku above the main one.
template <Scalar T>
void gbmv(const char *routine, Integer trans, Integer m, Integer n, Integer kl, Integer ku, const T &alpha, const T *a,
          Integer tda, const T *x, Integer incx, const T &beta, T *y, Integer incy)
{
    if (!accepted(routine, argument(1, is_transpose(trans)), argument(2, m >= 0), argument(3, n >= 0),
                  argument(4, kl >= 0), argument(5, ku >= 0), argument(8, band_fits(tda, kl, ku)),
                  argument(10, incx != 0), argument(13, incy != 0)))
        return;
    if (m == 0 || n == 0 || (alpha == T{} && beta == one<T>())) return;
    blas::gbmv(blas::kRowMajor, trans, m, n, kl, ku, alpha, a, tda, x, incx, beta, y, incy);
}

// A := alpha x y' + A
template <Scalar T>
void geru(const char *routine, Integer m, Integer n, const T &alpha, const T *x, Integer incx, const T *y, Integer incy,
          T *a, Integer tda)
{
    if (!accepted(routine, argument(1, m >= 0), argument(2, n >= 0), argument(5, incx != 0), argument(7, incy != 0),
                  argument(9, row_fits(tda, n))))
        return;
    if (m == 0 || n == 0 || alpha == T{}) return;
    if (is_tiny(kTinyProduct, m, n)) return tiny_ger(m, n, alpha, x, incx, y, incy, a, tda);
    blas::geru(blas::kRowMajor, m, n, alpha, x, incx, y, incy, a, tda);
}

// A := alpha x conj(y)' + A
inline void gerc(const char *routine, Integer m, Integer n, const Complex &alpha, const Complex *x, Integer incx,
                 const Complex *y, Integer incy, Complex *a, Integer tda)
{
    if (!accepted(routine, argument(1, m >= 0), argument(2, n >= 0), argument(5, incx != 0), argument(7, incy != 0),
                  argument(9, row_fits(tda, n))))
        return;
    if (m == 0 || n == 0 || alpha == Complex{}) return;
    blas::gerc(blas::kRowMajor, m, n, alpha, x, incx, y, incy, a, tda);
}

// ---- Symmetric matrices if real, Hermitian if complex ----

// y := alpha A x + beta y
template <Scalar T>
void hemv(const char *routine, Integer uplo, Integer n, const T &alpha, const T *a, Integer tda, const T *x,
          Integer incx, const T &beta, T *y, Integer incy)
{
    if (!accepted(routine, argument(1, is_triangle(uplo)), argument(2, n >= 0), argument(5, row_fits(tda, n)),
                  argument(7, incx != 0), argument(10, incy != 0)))
        return;
    if (n == 0 || (alpha == T{} && beta == one<T>())) return;
    blas::hemv(blas::kRowMajor, uplo, n, alpha, a, tda, x, incx, beta, y, incy);
}

// y := alpha A x + beta y, A a band of k diagonals on either side of the main one.
template <Scalar T>
void hbmv(const char *routine, Integer uplo, Integer n, Integer k, const T &alpha, const T *a, Integer tda, const T *x,
          Integer incx, const T &beta, T *y, Integer incy)
{
    if (!accepted(routine, argument(1, is_triangle(uplo)), argument(2, n >= 0), argument(3, k >= 0),
                  argument(6, band_fits(tda, k)), argument(8, incx != 0), argument(11, incy != 0)))
        return;
    if (n == 0 || (alpha == T{} && beta == one<T>())) return;
    blas::hbmv(blas::kRowMajor, uplo, n, k, alpha, a, tda, x, incx, beta, y, incy);
}

// y := alpha A x + beta y, A packed.
template <Scalar T>
void hpmv(const char *routine, Integer uplo, Integer n, const T &alpha, const T *ap, const T *x, Integer incx,
          const T &beta, T *y, Integer incy)
{
    if (!accepted(routine, argument(1, is_triangle(uplo)), argument(2, n >= 0), argument(6, incx != 0),
                  argument(9, incy != 0)))
        return;
    if (n == 0 || (alpha == T{} && beta == one<T>())) return;
    blas::hpmv(blas::kRowMajor, uplo, n, alpha, ap, x, incx, beta, y, incy);
}

// A := alpha x conj(x)' + A, alpha real.
template <Scalar T>
void her(const char *routine, Integer uplo, Integer n, double alpha, const T *x, Integer incx, T *a, Integer tda)
{
    if (!accepted(routine, argument(1, is_triangle(uplo)), argument(2, n >= 0), argument(5, incx != 0),
                  argument(7, row_fits(tda, n))))
        return;
    if (n == 0 || alpha == 0.0) return;
    blas::her(blas::kRowMajor, uplo, n, alpha, x, incx, a, tda);
}

// A := alpha x conj(x)' + A, alpha real, A packed.
template <Scalar T>
void hpr(const char *routine, Integer uplo, Integer n, double alpha, const T *x, Integer incx, T *ap)
{
    if (!accepted(routine, argument(1, is_triangle(uplo)), argument(2, n >= 0), argument(5, incx != 0))) return;
    if (n == 0 || alpha == 0.0) return;
    blas::hpr(blas::kRowMajor, uplo, n, alpha, x, incx, ap);
}

// A := alpha x conj(y)' + conj(alpha) y conj(x)' + A
template <Scalar T>
void her2(const char *routine, Integer uplo, Integer n, const T &alpha, const T *x, Integer incx, const T *y,
          Integer incy, T *a, Integer tda)
{
    if (!accepted(routine, argument(1, is_triangle(uplo)), argument(2, n >= 0), argument(5, incx != 0),
                  argument(7, incy != 0), argument(9, row_fits(tda, n))))
        return;
    if (n == 0 || alpha == T{}) return;
    blas::her2(blas::kRowMajor, uplo, n, alpha, x, incx, y, incy, a, tda);
}

// A := alpha x conj(y)' + conj(alpha) y conj(x)' + A, A packed.
template <Scalar T>
void hpr2(const char *routine, Integer uplo, Integer n, const T &alpha, const T *x, Integer incx, const T *y,
          Integer incy, T *ap)
{
    if (!accepted(routine, argument(1, is_triangle(uplo)), argument(2, n >= 0), argument(5, incx != 0),
                  argument(7, incy != 0)))
        return;
    if (n == 0 || alpha == T{}) return;
    blas::hpr2(blas::kRowMajor, uplo, n, alpha, x, incx, y, incy, ap);
}

// ---- Triangular matrices: products x := op(A) x and solutions x := op(A)^-1 x ----

// The arguments before the matrix, which all triangular operations share.
inline bool accepted_triangle(const char *routine, Integer uplo, Integer trans, Integer diag, Integer n)
{
    return accepted(routine, argument(1, is_triangle(uplo)), argument(2, is_transpose(trans)),
                    argument(3, is_diagonal(diag)), argument(4, n >= 0));
}

template <Scalar T>
void trmv(const char *routine, Integer uplo, Integer trans, Integer diag, Integer n, const T *a, Integer tda, T *x,
          Integer incx)
{
    if (!accepted_triangle(routine, uplo, trans, diag, n) ||
        !accepted(routine, argument(6, row_fits(tda, n)), argument(8, incx != 0)))
        return;
    if (n <= kTinyTriangle) return tiny_trmv(uplo, trans, diag, n, a, tda, x, incx);
    blas::trmv(blas::kRowMajor, uplo, trans, diag, n, a, tda, x, incx);
}

template <Scalar T>
void trsv(const char *routine, Integer uplo, Integer trans, Integer diag, Integer n, const T *a, Integer tda, T *x,
          Integer incx)
{
    if (!accepted_triangle(routine, uplo, trans, diag, n) ||
        !accepted(routine, argument(6, row_fits(tda, n)), argument(8, incx != 0)))
        return;
    if constexpr (std::is_same_v<T, double>)
        if (n <= kTinyTriangle) return tiny_trsv(uplo, trans, diag, n, a, tda, x, incx);
    if (n > 0) blas::trsv(blas::kRowMajor, uplo, trans, diag, n, a, tda, x, incx);
}

template <Scalar T>
void tbmv(const char *routine, Integer uplo, Integer trans, Integer diag, Integer n, Integer k, const T *a, Integer tda,
          T *x, Integer incx)
{
    if (!accepted_triangle(routine, uplo, trans, diag, n) ||
        !accepted(routine, argument(5, k >= 0), argument(7, band_fits(tda, k)), argument(9, incx != 0)))
        return;
    if (n > 0) blas::tbmv(blas::kRowMajor, uplo, trans, diag, n, k, a, tda, x, incx);
}

template <Scalar T>
void tbsv(const char *routine, Integer uplo, Integer trans, Integer diag, Integer n, Integer k, const T *a, Integer tda,
          T *x, Integer incx)
{
    if (!accepted_triangle(routine, uplo, trans, diag, n) ||
        !accepted(routine, argument(5, k >= 0), argument(7, band_fits(tda, k)), argument(9, incx != 0)))
        return;
    if (n > 0) blas::tbsv(blas::kRowMajor, uplo, trans, diag, n, k, a, tda, x, incx);
}

template <Scalar T>
void tpmv(const char *routine, Integer uplo, Integer trans, Integer diag, Integer n, const T *ap, T *x, Integer incx)
{
    if (!accepted_triangle(routine, uplo, trans, diag, n) || !accepted(routine, argument(7, incx != 0))) return;
    if (n > 0) blas::tpmv(blas::kRowMajor, uplo, trans, diag, n, ap, x, incx);
}

template <Scalar T>
void tpsv(const char *routine, Integer uplo, Integer trans, Integer diag, Integer n, const T *ap, T *x, Integer incx)
{
    if (!accepted_triangle(routine, uplo, trans, diag, n) || !accepted(routine, argument(7, incx != 0))) return;
    if (n > 0) blas::tpsv(blas::kRowMajor, uplo, trans, diag, n, ap, x, incx);
}

} // namespace kor::linalg
