// Cholesky factorisation: small matrices by plain loops along rows, others by LAPACK's potrf on the transpose: a row-major
// upper triangle is a column-major lower one.
#include "linalg/cholesky.hpp"

#include <cmath>

#include "frame/dispatch.hpp"
#include "frame/views.hpp"
#include "linalg/lapack.hpp"

namespace kor::linalg {

namespace {

// Orders up to which the loops are quicker: see bench/linalg/bench_cholesky.
constexpr Integer kSmall = 24;
constexpr Integer kSmallLower = 4;

// A = U'U. Row k, once it is final, is taken off the rows below it.
KOR_CLONES Integer factor_upper(Integer n, double *a, std::ptrdiff_t tda)
{
    // The next pivot waits for the quotients by this one, but not for its root, unless they might overflow.
    constexpr double kPlainPivot = 0x1p-500;
    for (Integer k = 0; k < n; ++k) {
        double *const __restrict pivot_row = a + k * tda;
        const double pivot = pivot_row[k], root = std::sqrt(pivot);
        if (!(pivot > 0.0)) return k + 1;
        const bool plain = pivot > kPlainPivot;
        const double divisor = plain ? pivot : 1.0;
        pivot_row[k] = root;
        if (!plain)
            for (Integer j = k + 1; j < n; ++j) pivot_row[j] /= root;
        for (Integer i = k + 1; i < n; ++i) {
            double *const __restrict row = a + i * tda;
            const double factor = pivot_row[i] / divisor;
            for (Integer j = i; j < n; ++j) row[j] -= factor * pivot_row[j];
        }
        if (plain)
            for (Integer j = k + 1; j < n; ++j) pivot_row[j] /= root;
    }
    return 0;
}

// A = LL'. An element of L is what the rows before it leave, by a scalar product of rows.
Integer factor_lower(Integer n, double *a, std::ptrdiff_t tda)
{
    for (Integer i = 0; i < n; ++i) {
        double *const row = a + i * tda;
        double diagonal = row[i];
        for (Integer j = 0; j < i; ++j) {
            const double *const above = a + j * tda;
            double sum = row[j];
            for (Integer k = 0; k < j; ++k) sum -= row[k] * above[k];
            row[j] = sum / above[j];
            diagonal -= row[j] * row[j];
        }
        if (!(diagonal > 0.0)) return i + 1;
        row[i] = std::sqrt(diagonal);
    }
    return 0;
}

// The same through the transpose, whose rows need no scalar products.
Integer factor_lower_transposed(Integer n, double *a, std::ptrdiff_t tda)
{
    double transpose[kSmall * kSmall];
    for (Integer i = 0; i < n; ++i)
        for (Integer j = 0; j <= i; ++j) transpose[j * n + i] = a[i * tda + j];
    const Integer minor = factor_upper(n, transpose, n);
    for (Integer i = 0; i < n; ++i)
        for (Integer j = 0; j <= i; ++j) a[i * tda + j] = transpose[j * n + i];
    return minor;
}

} // namespace

Integer cholesky_factor(Integer uplo, Integer n, double *a, Integer tda)
{
    if (n <= kSmall) {
        if (uplo == UpperTriangle) return factor_upper(n, a, tda);
        return n <= kSmallLower ? factor_lower(n, a, tda) : factor_lower_transposed(n, a, tda);
    }

    const Integer info = lapack::potrf(lapack::other_triangle(uplo), n, a, tda);
    if (info != 0) return info;
    // A NaN passes some implementations' test for a positive pivot; wherever it stood, it reaches the diagonal.
    const RowMajor<double> factor{a, tda};
    for (Integer k = 0; k < n; ++k)
        if (std::isnan(factor(k, k))) return k + 1;
    return 0;
}

} // namespace kor::linalg
