// d01wcc: adaptive cubature over a box, with a pointer to the caller's data.
#include <kor/d01.h>

#include "quadrature/box_integrals.hpp"

void d01wcc(Integer ndim, double (*f)(Integer ndim, const double x[], void *comm), const double a[], const double b[],
            Integer minpts, Integer maxpts, double eps, double *acc, double *finval, void *comm, KorError *fail)
{
    kor::quadrature::adaptive_cubature(
        {"d01wcc", fail}, ndim, [=](const double *x) { return f(ndim, x, comm); }, a, b, minpts, maxpts, eps, acc,
        finval);
}
