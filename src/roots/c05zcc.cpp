// c05zcc: does a Jacobian fit its function, which receives a pointer to the caller's data?
#include <kor/c05.h>

#include "roots/jacobian_check.hpp"

void c05zcc(Integer n, const double x[], double fvec[], double fjac[], Integer tdfjac,
            void (*fcn)(Integer n, const double x[], double fvec[], double fjac[], Integer tdfjac, Integer *userflag,
                        void *comm),
            void *comm, KorError *fail)
{
    kor::roots::check_jacobian(
        {"c05zcc", fail}, n,
        [=](const double *at, double *f, kor::RowMajor<double> jacobian, Integer *flag) {
            fcn(n, at, f, jacobian.a, tdfjac, flag, comm);
        },
        x, fvec, fjac, tdfjac);
}
