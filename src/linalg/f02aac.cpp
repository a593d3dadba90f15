// f02aac: all eigenvalues of a real symmetric matrix.
#include <kor/f02.h>

#include "linalg/eigen_report.hpp"

void f02aac(Integer n, double a[], Integer tda, double r[], KorError *fail)
{
    using namespace kor::linalg;
    const kor::Report report{"f02aac", fail};
    if (order_refused(report, n, tda)) return;
    report_outcome(report, symmetric_eigenvalues(n, a, tda, r), n);
}
