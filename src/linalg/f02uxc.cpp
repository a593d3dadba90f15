// f02uxc: forms or applies the right-hand matrix of the reduction f02uwc.
#include <kor/f02.h>

#include "linalg/singular_report.hpp"

void f02uxc(Integer n, Complex a[], Integer tda, Integer ncoly, Complex y[], Integer tdy, KorError *fail)
{
    const kor::Report report{"f02uxc", fail};
    kor::linalg::apply_right_factor(report, n, a, tda, ncoly, y, tdy);
}
