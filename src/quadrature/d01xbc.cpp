// d01xbc: Monte Carlo integration over a box, with a pointer to the caller's data.
#include <kor/d01.h>

#include "quadrature/box_integrals.hpp"

void d01xbc(Integer ndim, double (*f)(Integer ndim, const double x[], void *comm), Integer method, Integer cont,
            const double a[], const double b[], Integer mincls, Integer maxcls, double eps, Integer maxlcs,
            double *finval, double *acc, void *comm, KorError *fail)
{
    kor::quadrature::monte_carlo(
        {"d01xbc", fail}, ndim, [=](const double *x) { return f(ndim, x, comm); }, method, cont, a, b, mincls, maxcls,
        eps, maxlcs, finval, acc);
}
