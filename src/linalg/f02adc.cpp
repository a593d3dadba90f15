// f02adc: all eigenvalues of A x = lambda B x, A symmetric, B symmetric positive-definite.
#include <kor/f02.h>

#include "linalg/eigen_report.hpp"

void f02adc(Integer n, double a[], Integer tda, double b[], Integer tdb, double r[], KorError *fail)
{
    using namespace kor::linalg;
    const kor::Report report{"f02adc", fail};
    if (order_refused(report, n, tda) || shorter(report, "tdb", tdb, "n", n)) return;
    report_outcome(report, definite_eigenvalues(n, a, tda, b, tdb, r), n);
}
