// d01skc: integral of an oscillating function, with a pointer to the caller's data.
#include <kor/d01.h>

#include "quadrature/integrators.hpp"

void d01skc(double (*f)(double x, void *comm), double a, double b, double epsabs, double epsrel, Integer max_num_subint,
            double *result, double *abserr, KorQuadRecord *qp, void *comm, KorError *fail)
{
    kor::quadrature::integrate_oscillating({"d01skc", fail}, {f, comm}, a, b,
                                           {epsabs, epsrel, max_num_subint, result, abserr, qp});
}
