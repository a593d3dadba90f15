// c05ubc: a zero of n functions of n variables, from their Jacobian, with a pointer to the caller's data.
#include <kor/c05.h>

#include "roots/powell_hybrid.hpp"

void c05ubc(Integer n,
            void (*fcn)(Integer n, const double x[], double fvec[], double fjac[], Integer tdfjac, Integer *userflag,
                        void *comm),
            double x[], double fvec[], double fjac[], Integer tdfjac, double xtol, void *comm, KorError *fail)
{
    kor::roots::solve_with_jacobian(
        {"c05ubc", fail}, n,
        [=](const double *at, double *f, kor::RowMajor<double> jacobian, Integer *flag) {
            fcn(n, at, f, jacobian.a, tdfjac, flag, comm);
        },
        x, fvec, fjac, tdfjac, xtol);
}
