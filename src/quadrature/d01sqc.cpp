// d01sqc: Cauchy principal value, with a pointer to the caller's data.
#include <kor/d01.h>

#include "quadrature/integrators.hpp"

void d01sqc(double (*f)(double x, void *comm), double a, double b, double c, double epsabs, double epsrel,
            Integer max_num_subint, double *result, double *abserr, KorQuadRecord *qp, void *comm, KorError *fail)
{
    kor::quadrature::integrate_principal_value({"d01sqc", fail}, {f, comm}, a, b, c,
                                               {epsabs, epsrel, max_num_subint, result, abserr, qp});
}
