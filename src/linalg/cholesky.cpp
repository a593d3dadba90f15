// Cholesky factorisation by LAPACK's potrf on the transpose: a row-major upper triangle is a column-major lower one.
#include "linalg/cholesky.hpp"

#include <cmath>

#include "frame/views.hpp"
#include "linalg/lapack.hpp"

namespace kor::linalg {

Integer cholesky_factor(Integer uplo, Integer n, double *a, Integer tda)
{
    if (n == 0) return 0;
    const Integer info = lapack::potrf(lapack::other_triangle(uplo), n, a, tda);
    if (info != 0) return info;
    // A NaN passes some implementations' test for a positive pivot; wherever it stood, it reaches the diagonal.
    const RowMajor<double> factor{a, tda};
    for (Integer k = 0; k < n; ++k)
        if (std::isnan(factor(k, k))) return k + 1;
    return 0;
}

} // namespace kor::linalg
