// f03afc: LU factorisation with scaled row interchanges and determinant of a real matrix.
#include <kor/f03.h>

#include "linalg/lu_report.hpp"

void f03afc(Integer n, double a[], Integer tda, Integer pivot[], double *det, Integer *dete, KorError *fail)
{
    const kor::Report report{"f03afc", fail};
    kor::linalg::factorise_with_determinant(report, n, a, tda, pivot, det, dete);
}
