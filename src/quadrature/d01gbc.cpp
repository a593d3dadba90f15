// d01gbc: Monte Carlo integration over a box.
#include <kor/d01.h>

#include "quadrature/box_integrals.hpp"

void d01gbc(Integer ndim, double (*f)(Integer ndim, const double x[]), Integer method, Integer cont, const double a[],
            const double b[], Integer mincls, Integer maxcls, double eps, Integer maxlcs, double *finval, double *acc,
            KorError *fail)
{
    kor::quadrature::monte_carlo(
        {"d01gbc", fail}, ndim, [=](const double *x) { return f(ndim, x); }, method, cont, a, b, mincls, maxcls, eps,
        maxlcs, finval, acc);
}
