// The one way to LAPACK: prototypes of our own for the Fortran routines in use, and one name for real and complex.
//
// Matrices are column-major. A row-major matrix handed over as it stands is taken for its transpose: its upper triangle
// for a lower one.
#pragma once

#include <cstddef>

#include <kor.h>

extern "C" {
// A Fortran character argument is a pointer, and its length comes at the end of the list.
void dpotrf_(const char *uplo, const Integer *n, double *a, const Integer *lda, Integer *info, std::size_t uplo_length);
void dgetrf_(const Integer *m, const Integer *n, double *a, const Integer *lda, Integer *ipiv, Integer *info);
void dgetrs_(const char *trans, const Integer *n, const Integer *nrhs, const double *a, const Integer *lda,
             const Integer *ipiv, double *b, const Integer *ldb, Integer *info, size_t);
void dgbtrf_(const Integer *m, const Integer *n, const Integer *kl, const Integer *ku, double *ab, const Integer *ldab,
             Integer *ipiv, Integer *info);
void dgbtrs_(const char *trans, const Integer *n, const Integer *kl, const Integer *ku, const Integer *nrhs,
             const double *ab, const Integer *ldab, const Integer *ipiv, double *b, const Integer *ldb, Integer *info,
             size_t);
void zpotrf_(const char *uplo, const Integer *n, Complex *a, const Integer *lda, Integer *info,
             std::size_t uplo_length);
void dpotri_(const char *uplo, const Integer *n, double *a, const Integer *lda, Integer *info, std::size_t uplo_length);
void dtrtri_(const char *uplo, const char *diag, const Integer *n, double *a, const Integer *lda, Integer *info,
             std::size_t uplo_length, std::size_t diag_length);
void dgelqf_(const Integer *m, const Integer *n, double *a, const Integer *lda, double *tau, double *work,
             const Integer *lwork, Integer *info);
void dorglq_(const Integer *m, const Integer *n, const Integer *k, double *a, const Integer *lda, const double *tau,
             double *work, const Integer *lwork, Integer *info);
void dgebal_(const char *job, const Integer *n, double *a, const Integer *lda, Integer *ilo, Integer *ihi,
             double *scale, Integer *info, size_t);
void dgehrd_(const Integer *n, const Integer *ilo, const Integer *ihi, double *a, const Integer *lda, double *tau,
             double *work, const Integer *lwork, Integer *info);
void dhseqr_(const char *job, const char *compz, const Integer *n, const Integer *ilo, const Integer *ihi, double *h,
             const Integer *ldh, double *wr, double *wi, double *z, const Integer *ldz, double *work,
             const Integer *lwork, Integer *info, size_t, size_t);
void dtrevc_(const char *side, const char *howmny, Integer *select, const Integer *n, const double *t,
             const Integer *ldt, double *vl, const Integer *ldvl, double *vr, const Integer *ldvr, const Integer *mm,
             Integer *m, double *work, Integer *info, size_t, size_t);
void dtrsna_(const char *job, const char *howmny, const Integer *select, const Integer *n, const double *t,
             const Integer *ldt, const double *vl, const Integer *ldvl, const double *vr, const Integer *ldvr,
             double *s, double *sep, const Integer *mm, Integer *m, double *work, const Integer *ldwork, Integer *iwork,
             Integer *info, size_t, size_t);
}

namespace kor::lapack {

constexpr char uplo_of(Integer uplo) { return uplo == UpperTriangle ? 'U' : 'L'; }
constexpr Integer other_triangle(Integer uplo) { return uplo == UpperTriangle ? LowerTriangle : UpperTriangle; }

// Cholesky factorisation, A = U'U or LL'. Returns 0, or the order of the first leading minor that is not positive.
inline Integer potrf(Integer uplo, Integer n, double *a, Integer lda)
{
    const char triangle = uplo_of(uplo);
    Integer info = 0;
    dpotrf_(&triangle, &n, a, &lda, &info, 1);
    return info;
}
inline Integer potrf(Integer uplo, Integer n, Complex *a, Integer lda)
{
    const char triangle = uplo_of(uplo);
    Integer info = 0;
    zpotrf_(&triangle, &n, a, &lda, &info, 1);
    return info;
}

// LU factors with row interchanges, and the solution of linear systems by them: full and banded matrices.
inline Integer getrf(Integer m, Integer n, double *a, Integer lda, Integer *ipiv)
{
    Integer info = 0;
    dgetrf_(&m, &n, a, &lda, ipiv, &info);
    return info;
}

inline Integer getrs(char trans, Integer n, Integer nrhs, const double *a, Integer lda, const Integer *ipiv, double *b,
                     Integer ldb)
{
    Integer info = 0;
    dgetrs_(&trans, &n, &nrhs, a, &lda, ipiv, b, &ldb, &info, 1);
    return info;
}

inline Integer gbtrf(Integer m, Integer n, Integer kl, Integer ku, double *ab, Integer ldab, Integer *ipiv)
{
    Integer info = 0;
    dgbtrf_(&m, &n, &kl, &ku, ab, &ldab, ipiv, &info);
    return info;
}

inline Integer gbtrs(char trans, Integer n, Integer kl, Integer ku, Integer nrhs, const double *ab, Integer ldab,
                     const Integer *ipiv, double *b, Integer ldb)
{
    Integer info = 0;
    dgbtrs_(&trans, &n, &kl, &ku, &nrhs, ab, &ldab, ipiv, b, &ldb, &info, 1);
    return info;
}

// The inverse of A from its Cholesky factor, in the same triangle.
inline Integer potri(Integer uplo, Integer n, double *a, Integer lda)
{
    const char triangle = uplo_of(uplo);
    Integer info = 0;
    dpotri_(&triangle, &n, a, &lda, &info, 1);
    return info;
}

// The inverse of a triangle.
inline Integer trtri(Integer uplo, Integer diag, Integer n, double *a, Integer lda)
{
    const char triangle = uplo_of(uplo), diagonal = diag == UnitTriangular ? 'U' : 'N';
    Integer info = 0;
    dtrtri_(&triangle, &diagonal, &n, a, &lda, &info, 1, 1);
    return info;
}

// The factors of A = L Q; orglq makes the rows of Q.
inline Integer gelqf(Integer m, Integer n, double *a, Integer lda, double *tau, double *work, Integer lwork)
{
    Integer info = 0;
    dgelqf_(&m, &n, a, &lda, tau, work, &lwork, &info);
    return info;
}

inline Integer orglq(Integer m, Integer n, Integer k, double *a, Integer lda, const double *tau, double *work,
                     Integer lwork)
{
    Integer info = 0;
    dorglq_(&m, &n, &k, a, &lda, tau, work, &lwork, &info);
    return info;
}

// Balancing, Hessenberg form, eigenvalues, eigenvectors and condition numbers of a matrix that is not symmetric.
inline Integer gebal(char job, Integer n, double *a, Integer lda, Integer *ilo, Integer *ihi, double *scale)
{
    Integer info = 0;
    dgebal_(&job, &n, a, &lda, ilo, ihi, scale, &info, 1);
    return info;
}

inline Integer gehrd(Integer n, Integer ilo, Integer ihi, double *a, Integer lda, double *tau, double *work,
                     Integer lwork)
{
    Integer info = 0;
    dgehrd_(&n, &ilo, &ihi, a, &lda, tau, work, &lwork, &info);
    return info;
}

inline Integer hseqr(char job, char compz, Integer n, Integer ilo, Integer ihi, double *h, Integer ldh, double *wr,
                     double *wi, double *z, Integer ldz, double *work, Integer lwork)
{
    Integer info = 0;
    dhseqr_(&job, &compz, &n, &ilo, &ihi, h, &ldh, wr, wi, z, &ldz, work, &lwork, &info, 1, 1);
    return info;
}

inline Integer trevc(char side, char howmny, Integer *select, Integer n, const double *t, Integer ldt, double *vl,
                     Integer ldvl, double *vr, Integer ldvr, Integer mm, Integer *m, double *work)
{
    Integer info = 0;
    dtrevc_(&side, &howmny, select, &n, t, &ldt, vl, &ldvl, vr, &ldvr, &mm, m, work, &info, 1, 1);
    return info;
}

inline Integer trsna(char job, char howmny, const Integer *select, Integer n, const double *t, Integer ldt,
                     const double *vl, Integer ldvl, const double *vr, Integer ldvr, double *s, double *sep, Integer mm,
                     Integer *m, double *work, Integer ldwork, Integer *iwork)
{
    Integer info = 0;
    dtrsna_(&job, &howmny, select, &n, t, &ldt, vl, &ldvl, vr, &ldvr, s, sep, &mm, m, work, &ldwork, iwork, &info, 1,
            1);
    return info;
}

} // namespace kor::lapack

// ---- Eigenvalues and singular values ----

extern "C" {
void dsytrd_(const char *uplo, const Integer *n, double *a, const Integer *lda, double *d, double *e, double *tau,
             double *work, const Integer *lwork, Integer *info, std::size_t);
void zhetrd_(const char *uplo, const Integer *n, Complex *a, const Integer *lda, double *d, double *e, Complex *tau,
             Complex *work, const Integer *lwork, Integer *info, std::size_t);
void dorgtr_(const char *uplo, const Integer *n, double *a, const Integer *lda, const double *tau, double *work,
             const Integer *lwork, Integer *info, std::size_t);
void zungtr_(const char *uplo, const Integer *n, Complex *a, const Integer *lda, const Complex *tau, Complex *work,
             const Integer *lwork, Integer *info, std::size_t);
void dsyevd_(const char *job, const char *uplo, const Integer *n, double *a, const Integer *lda, double *w,
             double *work, const Integer *lwork, Integer *iwork, const Integer *liwork, Integer *info, std::size_t,
             std::size_t);
void zheevd_(const char *job, const char *uplo, const Integer *n, Complex *a, const Integer *lda, double *w,
             Complex *work, const Integer *lwork, double *rwork, const Integer *lrwork, Integer *iwork,
             const Integer *liwork, Integer *info, std::size_t, std::size_t);
void dsygst_(const Integer *itype, const char *uplo, const Integer *n, double *a, const Integer *lda, const double *b,
             const Integer *ldb, Integer *info, std::size_t);
void dgesdd_(const char *job, const Integer *m, const Integer *n, double *a, const Integer *lda, double *s, double *u,
             const Integer *ldu, double *vt, const Integer *ldvt, double *work, const Integer *lwork, Integer *iwork,
             Integer *info, std::size_t);
void zgesdd_(const char *job, const Integer *m, const Integer *n, Complex *a, const Integer *lda, double *s, Complex *u,
             const Integer *ldu, Complex *vt, const Integer *ldvt, Complex *work, const Integer *lwork, double *rwork,
             Integer *iwork, Integer *info, std::size_t);
void zgelqf_(const Integer *m, const Integer *n, Complex *a, const Integer *lda, Complex *tau, Complex *work,
             const Integer *lwork, Integer *info);
void dormlq_(const char *side, const char *trans, const Integer *m, const Integer *n, const Integer *k, const double *a,
             const Integer *lda, const double *tau, double *c, const Integer *ldc, double *work, const Integer *lwork,
             Integer *info, std::size_t, std::size_t);
void zunmlq_(const char *side, const char *trans, const Integer *m, const Integer *n, const Integer *k,
             const Complex *a, const Integer *lda, const Complex *tau, Complex *c, const Integer *ldc, Complex *work,
             const Integer *lwork, Integer *info, std::size_t, std::size_t);
void dormhr_(const char *side, const char *trans, const Integer *m, const Integer *n, const Integer *ilo,
             const Integer *ihi, const double *a, const Integer *lda, const double *tau, double *c, const Integer *ldc,
             double *work, const Integer *lwork, Integer *info, std::size_t, std::size_t);
void zunmhr_(const char *side, const char *trans, const Integer *m, const Integer *n, const Integer *ilo,
             const Integer *ihi, const Complex *a, const Integer *lda, const Complex *tau, Complex *c,
             const Integer *ldc, Complex *work, const Integer *lwork, Integer *info, std::size_t, std::size_t);
void dgebak_(const char *job, const char *side, const Integer *n, const Integer *ilo, const Integer *ihi,
             const double *scale, const Integer *m, double *v, const Integer *ldv, Integer *info, std::size_t,
             std::size_t);
void zgebak_(const char *job, const char *side, const Integer *n, const Integer *ilo, const Integer *ihi,
             const double *scale, const Integer *m, Complex *v, const Integer *ldv, Integer *info, std::size_t,
             std::size_t);
void dhsein_(const char *side, const char *source, const char *initial, Integer *select, const Integer *n,
             const double *h, const Integer *ldh, double *wr, const double *wi, double *vl, const Integer *ldvl,
             double *vr, const Integer *ldvr, const Integer *mm, Integer *m, double *work, Integer *ifaill,
             Integer *ifailr, Integer *info, std::size_t, std::size_t, std::size_t);
void zhsein_(const char *side, const char *source, const char *initial, const Integer *select, const Integer *n,
             const Complex *h, const Integer *ldh, Complex *w, Complex *vl, const Integer *ldvl, Complex *vr,
             const Integer *ldvr, const Integer *mm, Integer *m, Complex *work, double *rwork, Integer *ifaill,
             Integer *ifailr, Integer *info, std::size_t, std::size_t, std::size_t);
void zgebal_(const char *job, const Integer *n, Complex *a, const Integer *lda, Integer *ilo, Integer *ihi,
             double *scale, Integer *info, std::size_t);
void zgehrd_(const Integer *n, const Integer *ilo, const Integer *ihi, Complex *a, const Integer *lda, Complex *tau,
             Complex *work, const Integer *lwork, Integer *info);
void zhseqr_(const char *job, const char *compz, const Integer *n, const Integer *ilo, const Integer *ihi, Complex *h,
             const Integer *ldh, Complex *w, Complex *z, const Integer *ldz, Complex *work, const Integer *lwork,
             Integer *info, std::size_t, std::size_t);
void dgeev_(const char *jobvl, const char *jobvr, const Integer *n, double *a, const Integer *lda, double *wr,
            double *wi, double *vl, const Integer *ldvl, double *vr, const Integer *ldvr, double *work,
            const Integer *lwork, Integer *info, std::size_t, std::size_t);
void dggev_(const char *jobvl, const char *jobvr, const Integer *n, double *a, const Integer *lda, double *b,
            const Integer *ldb, double *alphar, double *alphai, double *beta, double *vl, const Integer *ldvl,
            double *vr, const Integer *ldvr, double *work, const Integer *lwork, Integer *info, std::size_t,
            std::size_t);
void dbdsqr_(const char *uplo, const Integer *n, const Integer *ncvt, const Integer *nru, const Integer *ncc, double *d,
             double *e, double *vt, const Integer *ldvt, double *u, const Integer *ldu, double *c, const Integer *ldc,
             double *work, Integer *info, std::size_t);
void dgebrd_(const Integer *m, const Integer *n, double *a, const Integer *lda, double *d, double *e, double *tauq,
             double *taup, double *work, const Integer *lwork, Integer *info);
void zgebrd_(const Integer *m, const Integer *n, Complex *a, const Integer *lda, double *d, double *e, Complex *tauq,
             Complex *taup, Complex *work, const Integer *lwork, Integer *info);
}

namespace kor::lapack {

// Room of a computation, in elements: complex or real, real beside complex, integers.
struct Room {
    Integer work, rwork, iwork;
};

// A = Q T conj(Q)', T tridiagonal; orgtr makes Q. lwork = -1 asks for the best lwork, in work[0].
inline Integer hetrd(char uplo, Integer n, double *a, Integer lda, double *d, double *e, double *tau, double *work,
                     Integer lwork)
{
    Integer info = 0;
    dsytrd_(&uplo, &n, a, &lda, d, e, tau, work, &lwork, &info, 1);
    return info;
}
inline Integer hetrd(char uplo, Integer n, Complex *a, Integer lda, double *d, double *e, Complex *tau, Complex *work,
                     Integer lwork)
{
    Integer info = 0;
    zhetrd_(&uplo, &n, a, &lda, d, e, tau, work, &lwork, &info, 1);
    return info;
}
inline Integer orgtr(char uplo, Integer n, double *a, Integer lda, const double *tau, double *work, Integer lwork)
{
    Integer info = 0;
    dorgtr_(&uplo, &n, a, &lda, tau, work, &lwork, &info, 1);
    return info;
}
inline Integer orgtr(char uplo, Integer n, Complex *a, Integer lda, const Complex *tau, Complex *work, Integer lwork)
{
    Integer info = 0;
    zungtr_(&uplo, &n, a, &lda, tau, work, &lwork, &info, 1);
    return info;
}

// Eigenvalues ascending, and eigenvectors in the columns of a (job 'V'), by divide and conquer.
inline Integer heevd(char job, char uplo, Integer n, double *a, Integer lda, double *w, double *work, double *,
                     Integer *iwork, Room room)
{
    Integer info = 0;
    dsyevd_(&job, &uplo, &n, a, &lda, w, work, &room.work, iwork, &room.iwork, &info, 1, 1);
    return info;
}
inline Integer heevd(char job, char uplo, Integer n, Complex *a, Integer lda, double *w, Complex *work, double *rwork,
                     Integer *iwork, Room room)
{
    Integer info = 0;
    zheevd_(&job, &uplo, &n, a, &lda, w, work, &room.work, rwork, &room.rwork, iwork, &room.iwork, &info, 1, 1);
    return info;
}

// A := U'^-1 A U^-1 or L^-1 A L'^-1, with the Cholesky factor in b.
inline Integer sygst(char uplo, Integer n, double *a, Integer lda, const double *b, Integer ldb)
{
    constexpr Integer kQuotient = 1;
    Integer info = 0;
    dsygst_(&kQuotient, &uplo, &n, a, &lda, b, &ldb, &info, 1);
    return info;
}

// Singular values descending, thin U and conj(V)' (job 'S') or none (job 'N'), by divide and conquer.
inline Integer gesdd(char job, Integer m, Integer n, double *a, Integer lda, double *s, double *u, Integer ldu,
                     double *vt, Integer ldvt, double *work, Integer lwork, double *, Integer *iwork)
{
    Integer info = 0;
    dgesdd_(&job, &m, &n, a, &lda, s, u, &ldu, vt, &ldvt, work, &lwork, iwork, &info, 1);
    return info;
}
inline Integer gesdd(char job, Integer m, Integer n, Complex *a, Integer lda, double *s, Complex *u, Integer ldu,
                     Complex *vt, Integer ldvt, Complex *work, Integer lwork, double *rwork, Integer *iwork)
{
    Integer info = 0;
    zgesdd_(&job, &m, &n, a, &lda, s, u, &ldu, vt, &ldvt, work, &lwork, rwork, iwork, &info, 1);
    return info;
}

inline Integer gelqf(Integer m, Integer n, Complex *a, Integer lda, Complex *tau, Complex *work, Integer lwork)
{
    Integer info = 0;
    zgelqf_(&m, &n, a, &lda, tau, work, &lwork, &info);
    return info;
}
// C := op(Q) C or C op(Q), Q of gelqf.
inline Integer ormlq(char side, char trans, Integer m, Integer n, Integer k, const double *a, Integer lda,
                     const double *tau, double *c, Integer ldc, double *work, Integer lwork)
{
    Integer info = 0;
    dormlq_(&side, &trans, &m, &n, &k, a, &lda, tau, c, &ldc, work, &lwork, &info, 1, 1);
    return info;
}
inline Integer ormlq(char side, char trans, Integer m, Integer n, Integer k, const Complex *a, Integer lda,
                     const Complex *tau, Complex *c, Integer ldc, Complex *work, Integer lwork)
{
    Integer info = 0;
    zunmlq_(&side, &trans, &m, &n, &k, a, &lda, tau, c, &ldc, work, &lwork, &info, 1, 1);
    return info;
}

// The complex twins of balancing, Hessenberg form and eigenvalues; the real ones stand above.
inline Integer gebal(char job, Integer n, Complex *a, Integer lda, Integer *ilo, Integer *ihi, double *scale)
{
    Integer info = 0;
    zgebal_(&job, &n, a, &lda, ilo, ihi, scale, &info, 1);
    return info;
}
inline Integer gehrd(Integer n, Integer ilo, Integer ihi, Complex *a, Integer lda, Complex *tau, Complex *work,
                     Integer lwork)
{
    Integer info = 0;
    zgehrd_(&n, &ilo, &ihi, a, &lda, tau, work, &lwork, &info);
    return info;
}
inline Integer hseqr(char job, char compz, Integer n, Integer ilo, Integer ihi, Complex *h, Integer ldh, Complex *w,
                     Complex *z, Integer ldz, Complex *work, Integer lwork)
{
    Integer info = 0;
    zhseqr_(&job, &compz, &n, &ilo, &ihi, h, &ldh, w, z, &ldz, work, &lwork, &info, 1, 1);
    return info;
}

// C := op(Q) C or C op(Q), Q of gehrd.
inline Integer ormhr(char side, char trans, Integer m, Integer n, Integer ilo, Integer ihi, const double *a,
                     Integer lda, const double *tau, double *c, Integer ldc, double *work, Integer lwork)
{
    Integer info = 0;
    dormhr_(&side, &trans, &m, &n, &ilo, &ihi, a, &lda, tau, c, &ldc, work, &lwork, &info, 1, 1);
    return info;
}
inline Integer ormhr(char side, char trans, Integer m, Integer n, Integer ilo, Integer ihi, const Complex *a,
                     Integer lda, const Complex *tau, Complex *c, Integer ldc, Complex *work, Integer lwork)
{
    Integer info = 0;
    zunmhr_(&side, &trans, &m, &n, &ilo, &ihi, a, &lda, tau, c, &ldc, work, &lwork, &info, 1, 1);
    return info;
}

// Vectors of the matrix before it was balanced by gebal.
inline Integer gebak(char job, char side, Integer n, Integer ilo, Integer ihi, const double *scale, Integer m,
                     double *v, Integer ldv)
{
    Integer info = 0;
    dgebak_(&job, &side, &n, &ilo, &ihi, scale, &m, v, &ldv, &info, 1, 1);
    return info;
}
inline Integer gebak(char job, char side, Integer n, Integer ilo, Integer ihi, const double *scale, Integer m,
                     Complex *v, Integer ldv)
{
    Integer info = 0;
    zgebak_(&job, &side, &n, &ilo, &ihi, scale, &m, v, &ldv, &info, 1, 1);
    return info;
}

// Right eigenvectors of a Hessenberg matrix for the selected eigenvalues, which come from hseqr, by inverse iteration; of a
// real pair the first is selected, and two columns are set. ifail[j] is not 0 where a vector was not found.
inline Integer hsein(Integer *select, Integer n, const double *h, Integer ldh, double *wr, const double *wi, double *vr,
                     Integer ldvr, Integer mm, Integer *m, double *work, Integer *ifail)
{
    double no_left;
    Integer info = 0, no_fail;
    dhsein_("R", "Q", "N", select, &n, h, &ldh, wr, wi, &no_left, &n, vr, &ldvr, &mm, m, work, &no_fail, ifail, &info,
            1, 1, 1);
    return info;
}
inline Integer hsein(const Integer *select, Integer n, const Complex *h, Integer ldh, Complex *w, Complex *vr,
                     Integer ldvr, Integer mm, Integer *m, Complex *work, double *rwork, Integer *ifail)
{
    Complex no_left;
    Integer info = 0, no_fail;
    zhsein_("R", "Q", "N", select, &n, h, &ldh, w, &no_left, &n, vr, &ldvr, &mm, m, work, rwork, &no_fail, ifail, &info,
            1, 1, 1);
    return info;
}

// Eigenvalues, and left (vl) or right eigenvectors (vr) of a general matrix.
inline Integer geev(char jobvl, char jobvr, Integer n, double *a, Integer lda, double *wr, double *wi, double *vl,
                    Integer ldvl, double *vr, Integer ldvr, double *work, Integer lwork)
{
    Integer info = 0;
    dgeev_(&jobvl, &jobvr, &n, a, &lda, wr, wi, vl, &ldvl, vr, &ldvr, work, &lwork, &info, 1, 1);
    return info;
}

// The same of a pair: A x = (alpha / beta) B x.
inline Integer ggev(char jobvl, char jobvr, Integer n, double *a, Integer lda, double *b, Integer ldb, double *alphar,
                    double *alphai, double *beta, double *vl, Integer ldvl, double *vr, Integer ldvr, double *work,
                    Integer lwork)
{
    Integer info = 0;
    dggev_(&jobvl, &jobvr, &n, a, &lda, b, &ldb, alphar, alphai, beta, vl, &ldvl, vr, &ldvr, work, &lwork, &info, 1, 1);
    return info;
}

// Singular values alone of an upper bidiagonal matrix, to high relative accuracy (dqds). `work` has 4 n elements. Returns
// the number of values that have not converged.
inline Integer bdsqr(Integer n, double *d, double *e, double *work)
{
    constexpr Integer kNone = 0, kOne = 1;
    double unused;
    Integer info = 0;
    dbdsqr_("U", &n, &kNone, &kNone, &kNone, d, e, &unused, &kOne, &unused, &kOne, &unused, &kOne, work, &info, 1);
    return info;
}

// A = Q B conj(P)', B real bidiagonal.
inline Integer gebrd(Integer m, Integer n, double *a, Integer lda, double *d, double *e, double *tauq, double *taup,
                     double *work, Integer lwork)
{
    Integer info = 0;
    dgebrd_(&m, &n, a, &lda, d, e, tauq, taup, work, &lwork, &info);
    return info;
}
inline Integer gebrd(Integer m, Integer n, Complex *a, Integer lda, double *d, double *e, Complex *tauq, Complex *taup,
                     Complex *work, Integer lwork)
{
    Integer info = 0;
    zgebrd_(&m, &n, a, &lda, d, e, tauq, taup, work, &lwork, &info);
    return info;
}

} // namespace kor::lapack
