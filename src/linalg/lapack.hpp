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
