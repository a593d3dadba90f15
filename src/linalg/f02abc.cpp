// f02abc: all eigenvalues and eigenvectors of a real symmetric matrix.
#include <kor/f02.h>

#include "linalg/eigen_report.hpp"

void f02abc(Integer n, const double a[], Integer tda, double r[], double v[], Integer tdv, KorError *fail)
{
    using namespace kor::linalg;
    const kor::Report report{"f02abc", fail};
    if (order_refused(report, n, tda) || shorter(report, "tdv", tdv, "n", n)) return;
    report_outcome(report, symmetric_eigenvectors(n, a, tda, r, v, tdv), n);
}
