// f04jdc: real least squares, with at most as many equations as unknowns, by singular values.
#include <kor/f04.h>

#include "linalg/dense_arguments.hpp"
#include "linalg/least_squares_report.hpp"

void f04jdc(Integer m, Integer n, double a[], Integer tda, double b[], double tol, Boolean *svd, double *sigma,
            Integer *irank, double work[], KorError *fail)
{
    using namespace kor::linalg;
    const kor::Report report{"f04jdc", fail};
    if (below_one(report, "m", m) || shorter(report, "n", n, "m", m) || shorter(report, "tda", tda, "n", n)) return;
    constexpr bool kAlwaysSvd = true;
    solve_least_squares(report, m, n, a, tda, b, tol, kAlwaysSvd, svd, sigma, irank, work);
}
