// d01ssc: Fourier integral over an infinite range, with a pointer to the caller's data.
#include <kor/d01.h>

#include "quadrature/integrators.hpp"

void d01ssc(double (*f)(double x, void *comm), double a, double omega, Integer wt_func, Integer maxintervals,
            Integer max_num_subint, double epsabs, double *result, double *abserr, KorQuadIntervalRecord *qp,
            void *comm, KorError *fail)
{
    kor::quadrature::integrate_fourier({"d01ssc", fail}, {f, comm}, a, omega, wt_func, maxintervals, max_num_subint,
                                       epsabs, result, abserr, qp);
}
