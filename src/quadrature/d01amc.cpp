// d01amc: integral over an infinite range.
#include <kor/d01.h>

#include "quadrature/integrators.hpp"

void d01amc(double (*f)(double x), Integer boundinf, double bound, double epsabs, double epsrel, Integer max_num_subint,
            double *result, double *abserr, KorQuadRecord *qp, KorError *fail)
{
    kor::quadrature::integrate_infinite({"d01amc", fail}, f, boundinf, bound,
                                        {epsabs, epsrel, max_num_subint, result, abserr, qp});
}
