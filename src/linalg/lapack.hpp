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

} // namespace kor::lapack
