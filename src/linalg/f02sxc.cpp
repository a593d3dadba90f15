// f02sxc: forms or applies the right-hand matrix of the reduction f02swc.
#include <kor/f02.h>

#include "linalg/singular_report.hpp"

void f02sxc(Integer n, double a[], Integer tda, Integer ncoly, double y[], Integer tdy, KorError *fail)
{
    const kor::Report report{"f02sxc", fail};
    kor::linalg::apply_right_factor(report, n, a, tda, ncoly, y, tdy);
}
