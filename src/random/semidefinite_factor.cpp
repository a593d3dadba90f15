// Triangular factor of a positive semi-definite matrix, singular or not.
//
// Cholesky's factorisation without exchanges, where it goes through: then its backward error is small, whatever the
// condition. Where a pivot fails, the matrix is singular to rounding error or indefinite, and pivots have to be chosen: the
// largest left in relation to its variance, until nothing is left. That gives c = A A' with A of full rank, and an LQ
// factorisation makes A triangular. N. J. Higham, in Reliable Numerical Computation (1990) 161-185.
//
// In plain loops, not through BLAS: a stream is to give the same vectors on every processor.
#include "random/semidefinite_factor.hpp"

#include <algorithm>
#include <cmath>

#include "frame/constants.hpp"
#include "frame/dispatch.hpp"
#include "frame/workspace.hpp"

namespace kor::random {

namespace {

KOR_CLONES void subtract_multiple(std::ptrdiff_t n, double factor, const double *__restrict from, double *__restrict to)
{
    for (std::ptrdiff_t i = 0; i < n; ++i) to[i] -= factor * from[i];
}

bool cholesky(std::ptrdiff_t n, double packed[])
{
    double *column = packed;
    for (std::ptrdiff_t left = n; left > 0; column += left, --left) {
        if (!(column[0] > 0.0 && column[0] <= kLargest)) return false;
        const double root = std::sqrt(column[0]);
        for (std::ptrdiff_t i = 0; i < left; ++i) column[i] /= root;
        double *behind = column + left;
        for (std::ptrdiff_t k = 1; k < left; behind += left - k, ++k)
            subtract_multiple(left - k, column[k], column + k, behind);
    }
    return true;
}

// Scales symmetric s by powers of 2, exactly, so that variances lie between 1 and 4 or are 0. False when a variance is
// negative, or an element not finite.
bool equilibrate(Integer n, RowMajor<double> s, double scale[])
{
    for (Integer i = 0; i < n; ++i) {
        if (!(s(i, i) >= 0.0 && s(i, i) <= kLargest)) return false;
        scale[i] = s(i, i) > 0.0 ? std::ldexp(1.0, std::ilogb(s(i, i)) / 2) : 1.0;
    }
    for (Integer i = 0; i < n; ++i)
        for (Integer j = 0; j < n; ++j) {
            s(i, j) = s(i, j) / scale[i] / scale[j];
            if (!(std::fabs(s(i, j)) <= kLargest)) return false;
        }
    return true;
}

// s = A A' with the columns of A in the rows of `factor`; returns their number, and leaves in s what A does not explain.
Integer complete_cholesky(Integer n, RowMajor<double> s, double tolerance, const double variance[],
                          RowMajor<double> factor)
{
    for (Integer rank = 0; rank < n; ++rank) {
        Integer pivot = 0;
        double largest = 0.0;
        for (Integer i = 0; i < n; ++i)
            if (s(i, i) > largest * variance[i]) {
                pivot = i;
                largest = s(i, i) / variance[i];
            }
        if (largest <= tolerance) return rank;
        double *column = factor.row(rank);
        const double root = std::sqrt(s(pivot, pivot));
        for (Integer i = 0; i < n; ++i) column[i] = s(pivot, i) / root;
        for (Integer i = 0; i < n; ++i) subtract_multiple(n, column[i], column, s.row(i));
        // Exactly nothing is left of the pivot.
        for (Integer i = 0; i < n; ++i) s(pivot, i) = s(i, pivot) = 0.0;
    }
    return n;
}

// Turns the rows of `factor` against one another until element j of all rows behind row j is 0: then they are the columns
// of a lower triangular matrix with the same A A'.
void triangularise(Integer n, Integer rank, RowMajor<double> factor)
{
    for (Integer j = 0; j < std::min(n, rank); ++j)
        for (Integer k = j + 1; k < rank; ++k) {
            const double largest = std::max(std::fabs(factor(j, j)), std::fabs(factor(k, j)));
            if (largest == 0.0) continue;
            const double a = factor(j, j) / largest, b = factor(k, j) / largest, length = std::sqrt(a * a + b * b);
            const double c = a / length, s = b / length;
            for (Integer i = j; i < n; ++i) {
                const double upper = factor(j, i), lower = factor(k, i);
                factor(j, i) = c * upper + s * lower;
                factor(k, i) = c * lower - s * upper;
            }
            factor(k, j) = 0.0;
        }
}

Factored factor_singular(Integer n, RowMajor<const double> c, double tolerance, double packed[])
{
    Workspace<double> matrix{Count{n} * n}, columns{Count{n} * n}, vectors{Count{2} * n};
    if (!matrix || !columns || !vectors) return Factored::no_memory;
    const RowMajor<double> s{matrix.data(), n}, factor{columns.data(), n};
    double *const scale = vectors.data(), *const variance = scale + n;
    for (Integer i = 0; i < n; ++i)
        for (Integer j = 0; j <= i; ++j) s(i, j) = s(j, i) = c(i, j);
    if (!equilibrate(n, s, scale)) return Factored::not_semidefinite;
    for (Integer i = 0; i < n; ++i) variance[i] = s(i, i);

    constexpr double kRounding = 8.0; // of n machine precisions that rounding may leave
    const double eta = std::max(tolerance, kRounding * n * kPrecision);
    const Integer rank = complete_cholesky(n, s, eta, variance, factor);
    for (Integer i = 0; i < n; ++i)
        for (Integer j = 0; j < n; ++j)
            if (!(std::fabs(s(i, j)) <= eta * std::sqrt(variance[i] * variance[j]))) return Factored::not_semidefinite;

    triangularise(n, rank, factor);
    for (Integer j = 0; j < n; ++j)
        for (Integer i = j; i < n; ++i) {
            const double sign = j < rank && factor(j, j) < 0.0 ? -1.0 : 1.0;
            *packed++ = j < rank ? sign * factor(j, i) * scale[i] : 0.0;
        }
    return Factored::yes;
}

} // namespace

Factored factor_semidefinite(Integer n, RowMajor<const double> c, double tolerance, double packed[])
{
    double *next = packed;
    for (Integer j = 0; j < n; ++j)
        for (Integer i = j; i < n; ++i) *next++ = c(i, j);
    return cholesky(n, packed) ? Factored::yes : factor_singular(n, c, tolerance, packed);
}

} // namespace kor::random
