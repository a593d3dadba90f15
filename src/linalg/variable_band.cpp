// Factorisation and substitution along the rows of a variable band: A. George and J. W. Liu, Computer Solution of Large Sparse
// Positive Definite Systems (1981), chapter 4; a row of L D is formed first, then divided by D.
#include "linalg/variable_band.hpp"

#include <algorithm>

#include "frame/constants.hpp"
#include "linalg/vector_operations.hpp"

namespace kor::linalg {

Integer band_factor(Integer n, const double *a, const Integer *row, double *l, double *d)
{
    // Where the diagonal elements stand; row i reaches back from there.
    double *diagonal = l - 1;
    for (Integer i = 0; i < n; ++i) {
        const Integer width = row[i] - 1, first = i - width;
        double *const current = diagonal + 1; // element (i, first)
        std::copy(a + (current - l), a + (current - l) + width + 1, current);
        diagonal = current + width;

        // Elements of L D: row j of L, as far as both rows reach, is taken off.
        double *above = diagonal - width; // just behind the diagonal of row i - 1
        std::ptrdiff_t back = 0;
        for (Integer j = first; j < i; ++j) back += row[j];
        above -= back;
        for (Integer j = first; j < i; ++j) {
            const Integer reach = std::min(j - first, row[j] - 1);
            above += row[j];
            current[j - first] -= dot(reach, current + (j - first) - reach, 1, above - 1 - reach, 1);
        }
        double pivot = *diagonal;
        for (Integer j = first; j < i; ++j) {
            const double element = current[j - first] / d[j];
            pivot -= current[j - first] * element;
            current[j - first] = element;
        }
        *diagonal = 1.0;
        d[i] = pivot;
        if (!(pivot > 0.0 && pivot <= kLargest)) return i + 1;
    }
    return 0;
}

void band_solve_lower(Integer n, const double *l, const Integer *row, double *x, std::ptrdiff_t step)
{
    for (Integer i = 0; i < n; ++i) {
        const Integer width = row[i] - 1;
        x[i * step] -= dot(width, l, 1, x + (i - width) * step, static_cast<Integer>(step));
        x[i * step] /= l[width];
        l += row[i];
    }
}

void band_solve_upper(Integer n, const double *l, const Integer *row, double *x, std::ptrdiff_t step)
{
    l += band_length(n, row);
    for (Integer i = n - 1; i >= 0; --i) {
        const Integer width = row[i] - 1;
        l -= row[i];
        x[i * step] /= l[width];
        axpy(width, -x[i * step], l, 1, x + (i - width) * step, static_cast<Integer>(step));
    }
}

} // namespace kor::linalg
