// d01fcc: adaptive cubature over a box.
#include <kor/d01.h>

#include "quadrature/box_integrals.hpp"

void d01fcc(Integer ndim, double (*f)(Integer ndim, const double x[]), const double a[], const double b[],
            Integer minpts, Integer maxpts, double eps, double *acc, double *finval, KorError *fail)
{
    kor::quadrature::adaptive_cubature(
        {"d01fcc", fail}, ndim, [=](const double *x) { return f(ndim, x); }, a, b, minpts, maxpts, eps, acc, finval);
}
