// f02aec: all eigenvalues and eigenvectors of A x = lambda B x, A symmetric, B symmetric positive-definite.
#include <kor/f02.h>

#include "linalg/eigen_report.hpp"

void f02aec(Integer n, double a[], Integer tda, double b[], Integer tdb, double r[], double v[], Integer tdv,
            KorError *fail)
{
    using namespace kor::linalg;
    const kor::Report report{"f02aec", fail};
    if (order_refused(report, n, tda) || shorter(report, "tdb", tdb, "n", n) || shorter(report, "tdv", tdv, "n", n))
        return;
    report_outcome(report, definite_eigenvectors(n, a, tda, b, tdb, r, v, tdv), n);
}
