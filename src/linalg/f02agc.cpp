// f02agc: all eigenvalues and eigenvectors of a real general matrix.
#include <kor/f02.h>

#include "linalg/eigen_report.hpp"
#include "linalg/general_eigen.hpp"

void f02agc(Integer n, double a[], Integer tda, Complex r[], Complex v[], Integer tdv, Integer iter[], KorError *fail)
{
    using namespace kor::linalg;
    const kor::Report report{"f02agc", fail};
    if (order_refused(report, n, tda) || shorter(report, "tdv", tdv, "n", n)) return;
    report_outcome(report, general_eigenvalues(n, a, tda, r, v, tdv, iter), n);
}
