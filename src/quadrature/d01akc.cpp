// d01akc: integral of an oscillating function.
#include <kor/d01.h>

#include "quadrature/integrators.hpp"

void d01akc(double (*f)(double x), double a, double b, double epsabs, double epsrel, Integer max_num_subint,
            double *result, double *abserr, KorQuadRecord *qp, KorError *fail)
{
    kor::quadrature::integrate_oscillating({"d01akc", fail}, f, a, b,
                                           {epsabs, epsrel, max_num_subint, result, abserr, qp});
}
