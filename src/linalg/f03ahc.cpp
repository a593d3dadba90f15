// f03ahc: LU factorisation with scaled row interchanges and determinant of a complex matrix.
#include <kor/f03.h>

#include "linalg/lu_report.hpp"

void f03ahc(Integer n, Complex a[], Integer tda, Integer pivot[], Complex *det, Integer *dete, KorError *fail)
{
    const kor::Report report{"f03ahc", fail};
    kor::linalg::factorise_with_determinant(report, n, a, tda, pivot, det, dete);
}
