// d01apc: integral with singular weights at the ends.
#include <kor/d01.h>

#include "quadrature/integrators.hpp"

void d01apc(double (*f)(double x), double a, double b, double alfa, double beta, Integer wt_func, double epsabs,
            double epsrel, Integer max_num_subint, double *result, double *abserr, KorQuadRecord *qp, KorError *fail)
{
    kor::quadrature::integrate_endpoint_weight({"d01apc", fail}, f, a, b, alfa, beta, wt_func,
                                               {epsabs, epsrel, max_num_subint, result, abserr, qp});
}
