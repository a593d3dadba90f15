// c05zbc: does a Jacobian fit its function?
#include <kor/c05.h>

#include "roots/jacobian_check.hpp"

void c05zbc(Integer n, const double x[], double fvec[], double fjac[], Integer tdfjac,
            void (*fcn)(Integer n, const double x[], double fvec[], double fjac[], Integer tdfjac, Integer *userflag),
            KorError *fail)
{
    kor::roots::check_jacobian(
        {"c05zbc", fail}, n,
        [=](const double *at, double *f, kor::RowMajor<double> jacobian, Integer *flag) {
            fcn(n, at, f, jacobian.a, tdfjac, flag);
        },
        x, fvec, fjac, tdfjac);
}
