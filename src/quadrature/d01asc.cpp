// d01asc: Fourier integral over an infinite range.
#include <kor/d01.h>

#include "quadrature/integrators.hpp"

void d01asc(double (*f)(double x), double a, double omega, Integer wt_func, Integer maxintervals,
            Integer max_num_subint, double epsabs, double *result, double *abserr, KorQuadIntervalRecord *qp,
            KorError *fail)
{
    kor::quadrature::integrate_fourier({"d01asc", fail}, f, a, omega, wt_func, maxintervals, max_num_subint, epsabs,
                                       result, abserr, qp);
}
