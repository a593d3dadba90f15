// d01spc: integral with singular weights at the ends, with a pointer to the caller's data.
#include <kor/d01.h>

#include "quadrature/integrators.hpp"

void d01spc(double (*f)(double x, void *comm), double a, double b, double alfa, double beta, Integer wt_func,
            double epsabs, double epsrel, Integer max_num_subint, double *result, double *abserr, KorQuadRecord *qp,
            void *comm, KorError *fail)
{
    kor::quadrature::integrate_endpoint_weight({"d01spc", fail}, {f, comm}, a, b, alfa, beta, wt_func,
                                               {epsabs, epsrel, max_num_subint, result, abserr, qp});
}
