// The one way to BLAS: the CBLAS operations on the scalars and enumerators of this library, one name for real and complex.
//
// Arguments are not tested here: a wrong one reaches the error handler of the BLAS library, which may end the process.
// Matrices come in either layout; the leading dimension of a row-major matrix is its trailing dimension.
#pragma once

#include <cblas.h>

#include <cstddef>

#include <kor.h>

namespace kor::blas {

enum class Layout { row_major = CblasRowMajor, column_major = CblasColMajor };
inline constexpr Layout kRowMajor = Layout::row_major;
inline constexpr Layout kColumnMajor = Layout::column_major;

// What CBLAS takes in the place of a matrix layout and of the enumerators of the interface.
constexpr CBLAS_ORDER native(Layout layout) { return static_cast<CBLAS_ORDER>(layout); }
constexpr CBLAS_TRANSPOSE trans_of(Integer trans)
{
    return static_cast<CBLAS_TRANSPOSE>(CblasNoTrans + (trans - NoTranspose));
}
constexpr CBLAS_UPLO uplo_of(Integer uplo) { return static_cast<CBLAS_UPLO>(CblasUpper + (uplo - UpperTriangle)); }
constexpr CBLAS_SIDE side_of(Integer side) { return static_cast<CBLAS_SIDE>(CblasLeft + (side - LeftSide)); }
constexpr CBLAS_DIAG diag_of(Integer diag) { return diag == UnitTriangular ? CblasUnit : CblasNonUnit; }
static_assert(trans_of(Transpose) == CblasTrans && trans_of(ConjugateTranspose) == CblasConjTrans);
static_assert(uplo_of(LowerTriangle) == CblasLower && side_of(RightSide) == CblasRight);

// ---- Vectors ----

inline double dot(Integer n, const double *x, Integer incx, const double *y, Integer incy)
{
    return cblas_ddot(n, x, incx, y, incy);
}
// conj(x)' y
inline Complex dot(Integer n, const Complex *x, Integer incx, const Complex *y, Integer incy)
{
    Complex sum;
    cblas_zdotc_sub(n, x, incx, y, incy, &sum);
    return sum;
}
inline void rot(Integer n, double *x, Integer incx, double *y, Integer incy, double c, double s)
{
    cblas_drot(n, x, incx, y, incy, c, s);
}
inline void scal(Integer n, double alpha, Complex *x, Integer incx) { cblas_zdscal(n, alpha, x, incx); }
inline void axpy(Integer n, double alpha, const double *x, Integer incx, double *y, Integer incy)
{
    cblas_daxpy(n, alpha, x, incx, y, incy);
}
inline void axpy(Integer n, const Complex &alpha, const Complex *x, Integer incx, Complex *y, Integer incy)
{
    cblas_zaxpy(n, &alpha, x, incx, y, incy);
}
inline void scal(Integer n, double alpha, double *x, Integer incx) { cblas_dscal(n, alpha, x, incx); }
inline void scal(Integer n, const Complex &alpha, Complex *x, Integer incx) { cblas_zscal(n, &alpha, x, incx); }
inline void copy(Integer n, const double *x, Integer incx, double *y, Integer incy)
{
    cblas_dcopy(n, x, incx, y, incy);
}
inline void copy(Integer n, const Complex *x, Integer incx, Complex *y, Integer incy)
{
    cblas_zcopy(n, x, incx, y, incy);
}
inline void swap(Integer n, double *x, Integer incx, double *y, Integer incy) { cblas_dswap(n, x, incx, y, incy); }
inline void swap(Integer n, Complex *x, Integer incx, Complex *y, Integer incy) { cblas_zswap(n, x, incx, y, incy); }

// ---- Matrix and vector ----

inline void gemv(Layout layout, Integer trans, Integer m, Integer n, double alpha, const double *a, Integer lda,
                 const double *x, Integer incx, double beta, double *y, Integer incy)
{
    cblas_dgemv(native(layout), trans_of(trans), m, n, alpha, a, lda, x, incx, beta, y, incy);
}
inline void gemv(Layout layout, Integer trans, Integer m, Integer n, const Complex &alpha, const Complex *a,
                 Integer lda, const Complex *x, Integer incx, const Complex &beta, Complex *y, Integer incy)
{
    // OpenBLAS 0.3.21 reads elements beyond the end of an x that is not contiguous, where x holds the factors of a combination
    // of columns, as it sees them: x is gathered then.
    constexpr Integer kPart = 128;
    const bool by_rows = layout == kRowMajor;
    const bool combines = by_rows == (trans != NoTranspose);
    const Integer count = by_rows ? m : n;
    if (!combines || incx == 1 || count < 1) {
        cblas_zgemv(native(layout), trans_of(trans), m, n, &alpha, a, lda, x, incx, &beta, y, incy);
        return;
    }
    const Complex one{1.0, 0.0};
    const Complex *const first = incx > 0 ? x : x - std::ptrdiff_t{count - 1} * incx;
    for (Integer done = 0; done < count; done += kPart) {
        const Integer part = count - done < kPart ? count - done : kPart;
        Complex gathered[kPart];
        for (std::ptrdiff_t i = 0; i < part; ++i) gathered[i] = first[(done + i) * incx];
        cblas_zgemv(native(layout), trans_of(trans), by_rows ? part : m, by_rows ? n : part, &alpha,
                    a + std::ptrdiff_t{done} * lda, lda, gathered, 1, done == 0 ? &beta : &one, y, incy);
    }
}
inline void gbmv(Layout layout, Integer trans, Integer m, Integer n, Integer kl, Integer ku, double alpha,
                 const double *a, Integer lda, const double *x, Integer incx, double beta, double *y, Integer incy)
{
    cblas_dgbmv(native(layout), trans_of(trans), m, n, kl, ku, alpha, a, lda, x, incx, beta, y, incy);
}
inline void gbmv(Layout layout, Integer trans, Integer m, Integer n, Integer kl, Integer ku, const Complex &alpha,
                 const Complex *a, Integer lda, const Complex *x, Integer incx, const Complex &beta, Complex *y,
                 Integer incy)
{
    cblas_zgbmv(native(layout), trans_of(trans), m, n, kl, ku, &alpha, a, lda, x, incx, &beta, y, incy);
}
// Symmetric if real, Hermitian if complex: hemv, hbmv, hpmv, her, hpr, her2, hpr2.
inline void hemv(Layout layout, Integer uplo, Integer n, double alpha, const double *a, Integer lda, const double *x,
                 Integer incx, double beta, double *y, Integer incy)
{
    cblas_dsymv(native(layout), uplo_of(uplo), n, alpha, a, lda, x, incx, beta, y, incy);
}
inline void hemv(Layout layout, Integer uplo, Integer n, const Complex &alpha, const Complex *a, Integer lda,
                 const Complex *x, Integer incx, const Complex &beta, Complex *y, Integer incy)
{
    cblas_zhemv(native(layout), uplo_of(uplo), n, &alpha, a, lda, x, incx, &beta, y, incy);
}
inline void hbmv(Layout layout, Integer uplo, Integer n, Integer k, double alpha, const double *a, Integer lda,
                 const double *x, Integer incx, double beta, double *y, Integer incy)
{
    cblas_dsbmv(native(layout), uplo_of(uplo), n, k, alpha, a, lda, x, incx, beta, y, incy);
}
inline void hbmv(Layout layout, Integer uplo, Integer n, Integer k, const Complex &alpha, const Complex *a, Integer lda,
                 const Complex *x, Integer incx, const Complex &beta, Complex *y, Integer incy)
{
    cblas_zhbmv(native(layout), uplo_of(uplo), n, k, &alpha, a, lda, x, incx, &beta, y, incy);
}
inline void hpmv(Layout layout, Integer uplo, Integer n, double alpha, const double *ap, const double *x, Integer incx,
                 double beta, double *y, Integer incy)
{
    cblas_dspmv(native(layout), uplo_of(uplo), n, alpha, ap, x, incx, beta, y, incy);
}
inline void hpmv(Layout layout, Integer uplo, Integer n, const Complex &alpha, const Complex *ap, const Complex *x,
                 Integer incx, const Complex &beta, Complex *y, Integer incy)
{
    cblas_zhpmv(native(layout), uplo_of(uplo), n, &alpha, ap, x, incx, &beta, y, incy);
}
inline void her(Layout layout, Integer uplo, Integer n, double alpha, const double *x, Integer incx, double *a,
                Integer lda)
{
    cblas_dsyr(native(layout), uplo_of(uplo), n, alpha, x, incx, a, lda);
}
inline void her(Layout layout, Integer uplo, Integer n, double alpha, const Complex *x, Integer incx, Complex *a,
                Integer lda)
{
    cblas_zher(native(layout), uplo_of(uplo), n, alpha, x, incx, a, lda);
}
inline void hpr(Layout layout, Integer uplo, Integer n, double alpha, const double *x, Integer incx, double *ap)
{
    cblas_dspr(native(layout), uplo_of(uplo), n, alpha, x, incx, ap);
}
inline void hpr(Layout layout, Integer uplo, Integer n, double alpha, const Complex *x, Integer incx, Complex *ap)
{
    cblas_zhpr(native(layout), uplo_of(uplo), n, alpha, x, incx, ap);
}
inline void her2(Layout layout, Integer uplo, Integer n, double alpha, const double *x, Integer incx, const double *y,
                 Integer incy, double *a, Integer lda)
{
    cblas_dsyr2(native(layout), uplo_of(uplo), n, alpha, x, incx, y, incy, a, lda);
}
inline void her2(Layout layout, Integer uplo, Integer n, const Complex &alpha, const Complex *x, Integer incx,
                 const Complex *y, Integer incy, Complex *a, Integer lda)
{
    cblas_zher2(native(layout), uplo_of(uplo), n, &alpha, x, incx, y, incy, a, lda);
}
inline void hpr2(Layout layout, Integer uplo, Integer n, double alpha, const double *x, Integer incx, const double *y,
                 Integer incy, double *ap)
{
    cblas_dspr2(native(layout), uplo_of(uplo), n, alpha, x, incx, y, incy, ap);
}
inline void hpr2(Layout layout, Integer uplo, Integer n, const Complex &alpha, const Complex *x, Integer incx,
                 const Complex *y, Integer incy, Complex *ap)
{
    cblas_zhpr2(native(layout), uplo_of(uplo), n, &alpha, x, incx, y, incy, ap);
}
inline void trmv(Layout layout, Integer uplo, Integer trans, Integer diag, Integer n, const double *a, Integer lda,
                 double *x, Integer incx)
{
    cblas_dtrmv(native(layout), uplo_of(uplo), trans_of(trans), diag_of(diag), n, a, lda, x, incx);
}
inline void trmv(Layout layout, Integer uplo, Integer trans, Integer diag, Integer n, const Complex *a, Integer lda,
                 Complex *x, Integer incx)
{
    cblas_ztrmv(native(layout), uplo_of(uplo), trans_of(trans), diag_of(diag), n, a, lda, x, incx);
}
inline void tbmv(Layout layout, Integer uplo, Integer trans, Integer diag, Integer n, Integer k, const double *a,
                 Integer lda, double *x, Integer incx)
{
    cblas_dtbmv(native(layout), uplo_of(uplo), trans_of(trans), diag_of(diag), n, k, a, lda, x, incx);
}
inline void tbmv(Layout layout, Integer uplo, Integer trans, Integer diag, Integer n, Integer k, const Complex *a,
                 Integer lda, Complex *x, Integer incx)
{
    cblas_ztbmv(native(layout), uplo_of(uplo), trans_of(trans), diag_of(diag), n, k, a, lda, x, incx);
}
inline void tpmv(Layout layout, Integer uplo, Integer trans, Integer diag, Integer n, const double *ap, double *x,
                 Integer incx)
{
    cblas_dtpmv(native(layout), uplo_of(uplo), trans_of(trans), diag_of(diag), n, ap, x, incx);
}
inline void tpmv(Layout layout, Integer uplo, Integer trans, Integer diag, Integer n, const Complex *ap, Complex *x,
                 Integer incx)
{
    cblas_ztpmv(native(layout), uplo_of(uplo), trans_of(trans), diag_of(diag), n, ap, x, incx);
}
inline void trsv(Layout layout, Integer uplo, Integer trans, Integer diag, Integer n, const double *a, Integer lda,
                 double *x, Integer incx)
{
    cblas_dtrsv(native(layout), uplo_of(uplo), trans_of(trans), diag_of(diag), n, a, lda, x, incx);
}
inline void trsv(Layout layout, Integer uplo, Integer trans, Integer diag, Integer n, const Complex *a, Integer lda,
                 Complex *x, Integer incx)
{
    cblas_ztrsv(native(layout), uplo_of(uplo), trans_of(trans), diag_of(diag), n, a, lda, x, incx);
}
inline void tbsv(Layout layout, Integer uplo, Integer trans, Integer diag, Integer n, Integer k, const double *a,
                 Integer lda, double *x, Integer incx)
{
    cblas_dtbsv(native(layout), uplo_of(uplo), trans_of(trans), diag_of(diag), n, k, a, lda, x, incx);
}
inline void tbsv(Layout layout, Integer uplo, Integer trans, Integer diag, Integer n, Integer k, const Complex *a,
                 Integer lda, Complex *x, Integer incx)
{
    cblas_ztbsv(native(layout), uplo_of(uplo), trans_of(trans), diag_of(diag), n, k, a, lda, x, incx);
}
inline void tpsv(Layout layout, Integer uplo, Integer trans, Integer diag, Integer n, const double *ap, double *x,
                 Integer incx)
{
    cblas_dtpsv(native(layout), uplo_of(uplo), trans_of(trans), diag_of(diag), n, ap, x, incx);
}
inline void tpsv(Layout layout, Integer uplo, Integer trans, Integer diag, Integer n, const Complex *ap, Complex *x,
                 Integer incx)
{
    cblas_ztpsv(native(layout), uplo_of(uplo), trans_of(trans), diag_of(diag), n, ap, x, incx);
}
// A := alpha x y' + A, and with the conjugate of y.
inline void geru(Layout layout, Integer m, Integer n, double alpha, const double *x, Integer incx, const double *y,
                 Integer incy, double *a, Integer lda)
{
    cblas_dger(native(layout), m, n, alpha, x, incx, y, incy, a, lda);
}
inline void geru(Layout layout, Integer m, Integer n, const Complex &alpha, const Complex *x, Integer incx,
                 const Complex *y, Integer incy, Complex *a, Integer lda)
{
    cblas_zgeru(native(layout), m, n, &alpha, x, incx, y, incy, a, lda);
}
inline void gerc(Layout layout, Integer m, Integer n, const Complex &alpha, const Complex *x, Integer incx,
                 const Complex *y, Integer incy, Complex *a, Integer lda)
{
    cblas_zgerc(native(layout), m, n, &alpha, x, incx, y, incy, a, lda);
}

// ---- Matrix and matrix ----

inline void gemm(Layout layout, Integer transa, Integer transb, Integer m, Integer n, Integer k, double alpha,
                 const double *a, Integer lda, const double *b, Integer ldb, double beta, double *c, Integer ldc)
{
    cblas_dgemm(native(layout), trans_of(transa), trans_of(transb), m, n, k, alpha, a, lda, b, ldb, beta, c, ldc);
}
inline void gemm(Layout layout, Integer transa, Integer transb, Integer m, Integer n, Integer k, const Complex &alpha,
                 const Complex *a, Integer lda, const Complex *b, Integer ldb, const Complex &beta, Complex *c,
                 Integer ldc)
{
    cblas_zgemm(native(layout), trans_of(transa), trans_of(transb), m, n, k, &alpha, a, lda, b, ldb, &beta, c, ldc);
}
inline void symm(Layout layout, Integer side, Integer uplo, Integer m, Integer n, double alpha, const double *a,
                 Integer lda, const double *b, Integer ldb, double beta, double *c, Integer ldc)
{
    cblas_dsymm(native(layout), side_of(side), uplo_of(uplo), m, n, alpha, a, lda, b, ldb, beta, c, ldc);
}
inline void symm(Layout layout, Integer side, Integer uplo, Integer m, Integer n, const Complex &alpha,
                 const Complex *a, Integer lda, const Complex *b, Integer ldb, const Complex &beta, Complex *c,
                 Integer ldc)
{
    cblas_zsymm(native(layout), side_of(side), uplo_of(uplo), m, n, &alpha, a, lda, b, ldb, &beta, c, ldc);
}
inline void hemm(Layout layout, Integer side, Integer uplo, Integer m, Integer n, const Complex &alpha,
                 const Complex *a, Integer lda, const Complex *b, Integer ldb, const Complex &beta, Complex *c,
                 Integer ldc)
{
    cblas_zhemm(native(layout), side_of(side), uplo_of(uplo), m, n, &alpha, a, lda, b, ldb, &beta, c, ldc);
}
inline void trmm(Layout layout, Integer side, Integer uplo, Integer transa, Integer diag, Integer m, Integer n,
                 double alpha, const double *a, Integer lda, double *b, Integer ldb)
{
    cblas_dtrmm(native(layout), side_of(side), uplo_of(uplo), trans_of(transa), diag_of(diag), m, n, alpha, a, lda, b,
                ldb);
}
inline void trmm(Layout layout, Integer side, Integer uplo, Integer transa, Integer diag, Integer m, Integer n,
                 const Complex &alpha, const Complex *a, Integer lda, Complex *b, Integer ldb)
{
    cblas_ztrmm(native(layout), side_of(side), uplo_of(uplo), trans_of(transa), diag_of(diag), m, n, &alpha, a, lda, b,
                ldb);
}
inline void trsm(Layout layout, Integer side, Integer uplo, Integer transa, Integer diag, Integer m, Integer n,
                 double alpha, const double *a, Integer lda, double *b, Integer ldb)
{
    cblas_dtrsm(native(layout), side_of(side), uplo_of(uplo), trans_of(transa), diag_of(diag), m, n, alpha, a, lda, b,
                ldb);
}
inline void trsm(Layout layout, Integer side, Integer uplo, Integer transa, Integer diag, Integer m, Integer n,
                 const Complex &alpha, const Complex *a, Integer lda, Complex *b, Integer ldb)
{
    cblas_ztrsm(native(layout), side_of(side), uplo_of(uplo), trans_of(transa), diag_of(diag), m, n, &alpha, a, lda, b,
                ldb);
}
inline void syrk(Layout layout, Integer uplo, Integer trans, Integer n, Integer k, double alpha, const double *a,
                 Integer lda, double beta, double *c, Integer ldc)
{
    cblas_dsyrk(native(layout), uplo_of(uplo), trans_of(trans), n, k, alpha, a, lda, beta, c, ldc);
}
inline void syrk(Layout layout, Integer uplo, Integer trans, Integer n, Integer k, const Complex &alpha,
                 const Complex *a, Integer lda, const Complex &beta, Complex *c, Integer ldc)
{
    cblas_zsyrk(native(layout), uplo_of(uplo), trans_of(trans), n, k, &alpha, a, lda, &beta, c, ldc);
}
inline void herk(Layout layout, Integer uplo, Integer trans, Integer n, Integer k, double alpha, const Complex *a,
                 Integer lda, double beta, Complex *c, Integer ldc)
{
    cblas_zherk(native(layout), uplo_of(uplo), trans_of(trans), n, k, alpha, a, lda, beta, c, ldc);
}
inline void syr2k(Layout layout, Integer uplo, Integer trans, Integer n, Integer k, double alpha, const double *a,
                  Integer lda, const double *b, Integer ldb, double beta, double *c, Integer ldc)
{
    cblas_dsyr2k(native(layout), uplo_of(uplo), trans_of(trans), n, k, alpha, a, lda, b, ldb, beta, c, ldc);
}
inline void syr2k(Layout layout, Integer uplo, Integer trans, Integer n, Integer k, const Complex &alpha,
                  const Complex *a, Integer lda, const Complex *b, Integer ldb, const Complex &beta, Complex *c,
                  Integer ldc)
{
    cblas_zsyr2k(native(layout), uplo_of(uplo), trans_of(trans), n, k, &alpha, a, lda, b, ldb, &beta, c, ldc);
}
inline void her2k(Layout layout, Integer uplo, Integer trans, Integer n, Integer k, const Complex &alpha,
                  const Complex *a, Integer lda, const Complex *b, Integer ldb, double beta, Complex *c, Integer ldc)
{
    cblas_zher2k(native(layout), uplo_of(uplo), trans_of(trans), n, k, &alpha, a, lda, b, ldb, beta, c, ldc);
}

} // namespace kor::blas
