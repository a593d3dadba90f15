// d01tac: integral by a Gaussian rule, with a pointer to the caller's data.
#include <kor/d01.h>

#include "quadrature/gauss_sum.hpp"

double d01tac(Integer quadrule, double (*f)(double x, void *comm), double a, double b, Integer npts, void *comm,
              KorError *fail)
{
    return kor::quadrature::gauss_sum({"d01tac", fail}, quadrule, {f, comm}, a, b, npts);
}
