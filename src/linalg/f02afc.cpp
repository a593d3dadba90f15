// f02afc: all eigenvalues of a real general matrix.
#include <kor/f02.h>

#include "linalg/eigen_report.hpp"
#include "linalg/general_eigen.hpp"

void f02afc(Integer n, double a[], Integer tda, Complex r[], Integer iter[], KorError *fail)
{
    using namespace kor::linalg;
    const kor::Report report{"f02afc", fail};
    if (order_refused(report, n, tda)) return;
    report_outcome(report, general_eigenvalues(n, a, tda, r, nullptr, n, iter), n);
}
