// d01smc: integral over an infinite range, with a pointer to the caller's data.
#include <kor/d01.h>

#include "quadrature/integrators.hpp"

void d01smc(double (*f)(double x, void *comm), Integer boundinf, double bound, double epsabs, double epsrel,
            Integer max_num_subint, double *result, double *abserr, KorQuadRecord *qp, void *comm, KorError *fail)
{
    kor::quadrature::integrate_infinite({"d01smc", fail}, {f, comm}, boundinf, bound,
                                        {epsabs, epsrel, max_num_subint, result, abserr, qp});
}
