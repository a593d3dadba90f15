// d01ajc: general integral over a finite range.
#include <kor/d01.h>

#include "quadrature/integrators.hpp"

void d01ajc(double (*f)(double x), double a, double b, double epsabs, double epsrel, Integer max_num_subint,
            double *result, double *abserr, KorQuadRecord *qp, KorError *fail)
{
    kor::quadrature::integrate_general({"d01ajc", fail}, f, a, b, {epsabs, epsrel, max_num_subint, result, abserr, qp});
}
