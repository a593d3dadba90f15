// c05tbc: a zero of n functions of n variables; derivatives by differences, and a pointer to the caller's data.
#include <kor/c05.h>

#include "roots/powell_hybrid.hpp"

void c05tbc(Integer n, void (*fcn)(Integer n, const double x[], double fvec[], Integer *userflag, void *comm),
            double x[], double fvec[], double xtol, void *comm, KorError *fail)
{
    kor::roots::solve_by_differences(
        {"c05tbc", fail}, n, [=](const double *at, double *f, Integer *flag) { fcn(n, at, f, flag, comm); }, x, fvec,
        xtol);
}
