// d01bac: integral by a Gaussian rule.
#include <kor/d01.h>

#include "quadrature/gauss_sum.hpp"

double d01bac(Integer quadrule, double (*f)(double x), double a, double b, Integer npts, KorError *fail)
{
    return kor::quadrature::gauss_sum({"d01bac", fail}, quadrule, f, a, b, npts);
}
