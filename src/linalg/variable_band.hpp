// Symmetric matrices in variable-band storage, and their factors L D L'.
//
// Row i of the lower triangle is stored from its first element that is not zero up to the diagonal: row[i] elements, 1 to
// i + 1, the rows one after another.
#pragma once

#include <cstdint>

#include <kor.h>

namespace kor::linalg {

// A = L D L', L unit lower triangular with the same row lengths, its diagonal of ones stored. l may be a. Returns 0, or the
// row, from 1, whose element of D is not a positive number.
Integer band_factor(Integer n, const double *a, const Integer *row, double *l, double *d);

// x := inverse(L) x and inverse(L') x, x with elements step apart; L as it is stored, its diagonal included.
void band_solve_lower(Integer n, const double *l, const Integer *row, double *x, std::ptrdiff_t step);
void band_solve_upper(Integer n, const double *l, const Integer *row, double *x, std::ptrdiff_t step);

// Number of elements of the first n rows.
inline std::int64_t band_length(Integer n, const Integer *row)
{
    std::int64_t sum = 0;
    for (Integer i = 0; i < n; ++i) sum += row[i];
    return sum;
}

// The first row whose length is not between 1 and i + 1; n if there is none.
inline Integer first_bad_row(Integer n, const Integer *row)
{
    Integer i = 0;
    while (i < n && row[i] >= 1 && row[i] <= i + 1) ++i;
    return i;
}

} // namespace kor::linalg
