// d01aqc: Cauchy principal value.
#include <kor/d01.h>

#include "quadrature/integrators.hpp"

void d01aqc(double (*f)(double x), double a, double b, double c, double epsabs, double epsrel, Integer max_num_subint,
            double *result, double *abserr, KorQuadRecord *qp, KorError *fail)
{
    kor::quadrature::integrate_principal_value({"d01aqc", fail}, f, a, b, c,
                                               {epsabs, epsrel, max_num_subint, result, abserr, qp});
}
