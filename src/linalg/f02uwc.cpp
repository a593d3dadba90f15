// f02uwc: reduces a complex upper triangular matrix to real bidiagonal form.
#include <kor/f02.h>

#include "linalg/singular_report.hpp"

void f02uwc(Integer n, Complex a[], Integer tda, double d[], double e[], Integer ncoly, Complex y[], Integer tdy,
            Boolean wantq, Complex q[], Integer tdq, KorError *fail)
{
    const kor::Report report{"f02uwc", fail};
    kor::linalg::bidiagonalise_triangle(report, n, a, tda, d, e, ncoly, y, tdy, wantq != 0, q, tdq);
}
