// c05pbc: a zero of n functions of n variables, from their Jacobian.
#include <kor/c05.h>

#include "roots/powell_hybrid.hpp"

void c05pbc(Integer n,
            void (*fcn)(Integer n, const double x[], double fvec[], double fjac[], Integer tdfjac, Integer *userflag),
            double x[], double fvec[], double fjac[], Integer tdfjac, double xtol, KorError *fail)
{
    kor::roots::solve_with_jacobian(
        {"c05pbc", fail}, n,
        [=](const double *at, double *f, kor::RowMajor<double> jacobian, Integer *flag) {
            fcn(n, at, f, jacobian.a, tdfjac, flag);
        },
        x, fvec, fjac, tdfjac, xtol);
}
