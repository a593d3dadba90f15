// f02swc: reduces a real upper triangular matrix to real bidiagonal form.
#include <kor/f02.h>

#include "linalg/singular_report.hpp"

void f02swc(Integer n, double a[], Integer tda, double d[], double e[], Integer ncoly, double y[], Integer tdy,
            Boolean wantq, double q[], Integer tdq, KorError *fail)
{
    const kor::Report report{"f02swc", fail};
    kor::linalg::bidiagonalise_triangle(report, n, a, tda, d, e, ncoly, y, tdy, wantq != 0, q, tdq);
}
