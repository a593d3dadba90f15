// c05nbc: a zero of n functions of n variables; derivatives by differences.
#include <kor/c05.h>

#include "roots/powell_hybrid.hpp"

void c05nbc(Integer n, void (*fcn)(Integer n, const double x[], double fvec[], Integer *userflag), double x[],
            double fvec[], double xtol, KorError *fail)
{
    kor::roots::solve_by_differences(
        {"c05nbc", fail}, n, [=](const double *at, double *f, Integer *flag) { fcn(n, at, f, flag); }, x, fvec, xtol);
}
