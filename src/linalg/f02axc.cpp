// f02axc: all eigenvalues and eigenvectors of a complex Hermitian matrix.
#include <kor/f02.h>

#include "linalg/eigen_report.hpp"

void f02axc(Integer n, const Complex a[], Integer tda, double r[], Complex v[], Integer tdv, KorError *fail)
{
    using namespace kor::linalg;
    const kor::Report report{"f02axc", fail};
    if (order_refused(report, n, tda) || shorter(report, "tdv", tdv, "n", n) || diagonal_refused(report, n, a, tda))
        return;
    report_outcome(report, symmetric_eigenvectors(n, a, tda, r, v, tdv), n);
}
