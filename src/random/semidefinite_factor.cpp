// Cholesky factor of a positive semi-definite matrix, column by column; each takes its part from those behind it.
#include "random/semidefinite_factor.hpp"

#include <algorithm>
#include <cmath>

#include "frame/constants.hpp"
#include "frame/dispatch.hpp"

namespace kor::random {

namespace {

KOR_CLONES void subtract_multiple(std::ptrdiff_t n, double factor, const double *__restrict from, double *__restrict to)
{
    for (std::ptrdiff_t i = 0; i < n; ++i) to[i] -= factor * from[i];
}

} // namespace

bool factor_semidefinite(Integer n, double tolerance, double packed[], const double diagonal[])
{
    // What rounding may leave of a pivot that is 0.
    const double eta = std::max(tolerance, 4.0 * n * kPrecision);
    double *column = packed;
    for (std::ptrdiff_t j = 0; j < n; column += n - j, ++j) {
        const std::ptrdiff_t below = n - j - 1;
        const double pivot = column[0], noise = eta * std::fabs(diagonal[j]);
        if (!(std::fabs(diagonal[j]) <= kLargest)) return false;
        if (pivot > noise) {
            const double root = std::sqrt(pivot);
            column[0] = root;
            for (std::ptrdiff_t i = 1; i <= below; ++i) column[i] /= root;
        } else {
            if (!(pivot >= -noise)) return false;
            for (std::ptrdiff_t i = 1; i <= below; ++i)
                if (!(std::fabs(column[i]) <= std::sqrt(noise) * std::sqrt(std::fabs(diagonal[j + i])))) return false;
            std::fill(column, column + below + 1, 0.0);
            continue;
        }
        double *later_column = column + below + 1;
        for (std::ptrdiff_t k = 1; k <= below; later_column += n - j - k, ++k)
            subtract_multiple(below - k + 1, column[k], column + k, later_column);
    }
    return true;
}

} // namespace kor::random
