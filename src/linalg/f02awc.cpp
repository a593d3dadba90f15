// f02awc: all eigenvalues of a complex Hermitian matrix.
#include <kor/f02.h>

#include "linalg/eigen_report.hpp"

void f02awc(Integer n, Complex a[], Integer tda, double r[], KorError *fail)
{
    using namespace kor::linalg;
    const kor::Report report{"f02awc", fail};
    if (order_refused(report, n, tda) || diagonal_refused(report, n, a, tda)) return;
    report_outcome(report, symmetric_eigenvalues(n, a, tda, r), n);
}
