// The standard operations on matrices, one template for real and complex: argument tests in the order of the list, quick
// returns, then BLAS in row-major order. `routine` is the name that a report of an illegal argument carries.
#pragma once

#include "frame/views.hpp"
#include "linalg/arguments.hpp"
#include "linalg/blas.hpp"
#include "linalg/scalar.hpp"
#include "linalg/tiny.hpp"

namespace kor::linalg {

// C := beta C; with beta = 0 C is cleared, whatever it holds.
template <Scalar T>
void scale_rows(Integer m, Integer n, const T &beta, T *c, Integer tdc)
{
    const RowMajor<T> C{c, tdc};
    for (Integer i = 0; i < m; ++i)
        for (Integer j = 0; j < n; ++j) C(i, j) = beta == T{} ? T{} : beta * C(i, j);
}

// C := alpha op(A) op(B) + beta C
template <Scalar T>
void gemm(const char *routine, Integer transa, Integer transb, Integer m, Integer n, Integer k, const T &alpha,
          const T *a, Integer tda, const T *b, Integer tdb, const T &beta, T *c, Integer tdc)
{
    if (!accepted(routine, argument(1, is_transpose(transa)), argument(2, is_transpose(transb)), argument(3, m >= 0),
                  argument(4, n >= 0), argument(5, k >= 0), argument(8, row_fits(tda, transa == NoTranspose ? k : m)),
                  argument(10, row_fits(tdb, transb == NoTranspose ? n : k)), argument(13, row_fits(tdc, n))))
        return;
    if (m == 0 || n == 0 || ((k == 0 || alpha == T{}) && beta == one<T>())) return;
    // Kernels for small matrices multiply by alpha = 0, and a NaN in A or B would show.
    if (alpha == T{}) return scale_rows(m, n, beta, c, tdc);
    if (is_tiny(kTinyMatrixProduct, m, n, k))
        return tiny_gemm(transa, transb, m, n, k, alpha, a, tda, b, tdb, beta, c, tdc);
    blas::gemm(blas::kRowMajor, transa, transb, m, n, k, alpha, a, tda, b, tdb, beta, c, tdc);
}

// The arguments of C := alpha A B + beta C or alpha B A + beta C, A symmetric or Hermitian.
inline bool accepted_symm(const char *routine, Integer side, Integer uplo, Integer m, Integer n, Integer tda,
                          Integer tdb, Integer tdc)
{
    return accepted(routine, argument(1, is_side(side)), argument(2, is_triangle(uplo)), argument(3, m >= 0),
                    argument(4, n >= 0), argument(7, row_fits(tda, side == LeftSide ? m : n)),
                    argument(9, row_fits(tdb, n)), argument(12, row_fits(tdc, n)));
}

// A symmetric
template <Scalar T>
void symm(const char *routine, Integer side, Integer uplo, Integer m, Integer n, const T &alpha, const T *a,
          Integer tda, const T *b, Integer tdb, const T &beta, T *c, Integer tdc)
{
    if (!accepted_symm(routine, side, uplo, m, n, tda, tdb, tdc)) return;
    if (m == 0 || n == 0 || (alpha == T{} && beta == one<T>())) return;
    blas::symm(blas::kRowMajor, side, uplo, m, n, alpha, a, tda, b, tdb, beta, c, tdc);
}

// A Hermitian
inline void hemm(const char *routine, Integer side, Integer uplo, Integer m, Integer n, const Complex &alpha,
                 const Complex *a, Integer tda, const Complex *b, Integer tdb, const Complex &beta, Complex *c,
                 Integer tdc)
{
    if (!accepted_symm(routine, side, uplo, m, n, tda, tdb, tdc)) return;
    if (m == 0 || n == 0 || (alpha == Complex{} && beta == one<Complex>())) return;
    blas::hemm(blas::kRowMajor, side, uplo, m, n, alpha, a, tda, b, tdb, beta, c, tdc);
}

// The arguments of products and solutions with a triangular matrix.
inline bool accepted_trmm(const char *routine, Integer side, Integer uplo, Integer transa, Integer diag, Integer m,
                          Integer n, Integer tda, Integer tdb)
{
    return accepted(routine, argument(1, is_side(side)), argument(2, is_triangle(uplo)),
                    argument(3, is_transpose(transa)), argument(4, is_diagonal(diag)), argument(5, m >= 0),
                    argument(6, n >= 0), argument(9, row_fits(tda, side == LeftSide ? m : n)),
                    argument(11, row_fits(tdb, n)));
}

// B := alpha op(A) B or alpha B op(A), A triangular.
template <Scalar T>
void trmm(const char *routine, Integer side, Integer uplo, Integer transa, Integer diag, Integer m, Integer n,
          const T &alpha, const T *a, Integer tda, T *b, Integer tdb)
{
    if (!accepted_trmm(routine, side, uplo, transa, diag, m, n, tda, tdb)) return;
    if (m == 0 || n == 0) return;
    blas::trmm(blas::kRowMajor, side, uplo, transa, diag, m, n, alpha, a, tda, b, tdb);
}

// B := alpha op(A)^-1 B or alpha B op(A)^-1, A triangular.
template <Scalar T>
void trsm(const char *routine, Integer side, Integer uplo, Integer transa, Integer diag, Integer m, Integer n,
          const T &alpha, const T *a, Integer tda, T *b, Integer tdb)
{
    if (!accepted_trmm(routine, side, uplo, transa, diag, m, n, tda, tdb)) return;
    if (m == 0 || n == 0) return;
    blas::trsm(blas::kRowMajor, side, uplo, transa, diag, m, n, alpha, a, tda, b, tdb);
}

// Which values `trans` may take: all in a real update; in a complex one only the transposition that its symmetry needs.
template <Scalar T>
constexpr bool is_symmetric_update(Integer trans)
{
    return std::is_same_v<T, double> ? is_transpose(trans) : trans == NoTranspose || trans == Transpose;
}
constexpr bool is_hermitian_update(Integer trans) { return trans == NoTranspose || trans == ConjugateTranspose; }

// The arguments of an update of rank k; A is n by k, or k by n when transposed.
inline bool accepted_rank_k(const char *routine, Integer uplo, Integer trans, bool trans_legal, Integer n, Integer k,
                            Integer tda, Integer tdc)
{
    return accepted(routine, argument(1, is_triangle(uplo)), argument(2, trans_legal), argument(3, n >= 0),
                    argument(4, k >= 0), argument(7, row_fits(tda, trans == NoTranspose ? k : n)),
                    argument(10, row_fits(tdc, n)));
}
inline bool accepted_rank_2k(const char *routine, Integer uplo, Integer trans, bool trans_legal, Integer n, Integer k,
                             Integer tda, Integer tdb, Integer tdc)
{
    const Integer columns = trans == NoTranspose ? k : n;
    return accepted(routine, argument(1, is_triangle(uplo)), argument(2, trans_legal), argument(3, n >= 0),
                    argument(4, k >= 0), argument(7, row_fits(tda, columns)), argument(9, row_fits(tdb, columns)),
                    argument(12, row_fits(tdc, n)));
}

// C := alpha A A' + beta C or alpha A' A + beta C, C symmetric.
template <Scalar T>
void syrk(const char *routine, Integer uplo, Integer trans, Integer n, Integer k, const T &alpha, const T *a,
          Integer tda, const T &beta, T *c, Integer tdc)
{
    if (!accepted_rank_k(routine, uplo, trans, is_symmetric_update<T>(trans), n, k, tda, tdc)) return;
    if (n == 0 || ((k == 0 || alpha == T{}) && beta == one<T>())) return;
    blas::syrk(blas::kRowMajor, uplo, trans, n, k, alpha, a, tda, beta, c, tdc);
}

// C := alpha A conj(A)' + beta C or alpha conj(A)' A + beta C, C Hermitian, alpha and beta real.
inline void herk(const char *routine, Integer uplo, Integer trans, Integer n, Integer k, double alpha, const Complex *a,
                 Integer tda, double beta, Complex *c, Integer tdc)
{
    if (!accepted_rank_k(routine, uplo, trans, is_hermitian_update(trans), n, k, tda, tdc)) return;
    if (n == 0 || ((k == 0 || alpha == 0.0) && beta == 1.0)) return;
    blas::herk(blas::kRowMajor, uplo, trans, n, k, alpha, a, tda, beta, c, tdc);
}

// C := alpha A B' + alpha B A' + beta C or alpha A' B + alpha B' A + beta C, C symmetric.
template <Scalar T>
void syr2k(const char *routine, Integer uplo, Integer trans, Integer n, Integer k, const T &alpha, const T *a,
           Integer tda, const T *b, Integer tdb, const T &beta, T *c, Integer tdc)
{
    if (!accepted_rank_2k(routine, uplo, trans, is_symmetric_update<T>(trans), n, k, tda, tdb, tdc)) return;
    if (n == 0 || ((k == 0 || alpha == T{}) && beta == one<T>())) return;
    blas::syr2k(blas::kRowMajor, uplo, trans, n, k, alpha, a, tda, b, tdb, beta, c, tdc);
}

// C := alpha A conj(B)' + conj(alpha) B conj(A)' + beta C, or the same with A and B conjugate-transposed; C Hermitian.
inline void her2k(const char *routine, Integer uplo, Integer trans, Integer n, Integer k, const Complex &alpha,
                  const Complex *a, Integer tda, const Complex *b, Integer tdb, double beta, Complex *c, Integer tdc)
{
    if (!accepted_rank_2k(routine, uplo, trans, is_hermitian_update(trans), n, k, tda, tdb, tdc)) return;
    if (n == 0 || ((k == 0 || alpha == Complex{}) && beta == 1.0)) return;
    blas::her2k(blas::kRowMajor, uplo, trans, n, k, alpha, a, tda, b, tdb, beta, c, tdc);
}

} // namespace kor::linalg
