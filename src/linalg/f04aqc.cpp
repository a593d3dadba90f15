// f04aqc: solution of one system with the factors L D L' of a variable-band matrix, in place.
#include <kor/f04.h>

#include "linalg/variable_band.hpp"

void f04aqc(Integer n, const double al[], const double d[], const Integer row[], double b[])
{
    using namespace kor::linalg;
    // There is no record to tell in: what cannot be walked through is left alone.
    if (n < 1 || first_bad_row(n, row) < n) return;
    band_solve_lower(n, al, row, b, 1);
    for (Integer i = 0; i < n; ++i) b[i] /= d[i];
    band_solve_upper(n, al, row, b, 1);
}
