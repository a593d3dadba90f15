// f04jgc: real least squares, by QR factorisation, or by singular values where the rank is in doubt.
#include <kor/f04.h>

#include "linalg/dense_arguments.hpp"
#include "linalg/least_squares_report.hpp"

void f04jgc(Integer m, Integer n, double a[], Integer tda, double b[], double tol, Boolean *svd, double *sigma,
            Integer *irank, double work[], KorError *fail)
{
    using namespace kor::linalg;
    const kor::Report report{"f04jgc", fail};
    if (below_one(report, "m", m) || below_one(report, "n", n) || shorter(report, "tda", tda, "n", n)) return;
    constexpr bool kAlwaysSvd = false;
    solve_least_squares(report, m, n, a, tda, b, tol, kAlwaysSvd, svd, sigma, irank, work);
}
