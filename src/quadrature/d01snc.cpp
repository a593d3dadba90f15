// d01snc: integral with a trigonometric weight, with a pointer to the caller's data.
#include <kor/d01.h>

#include "quadrature/integrators.hpp"

void d01snc(double (*f)(double x, void *comm), double a, double b, double omega, Integer wt_func, double epsabs,
            double epsrel, Integer max_num_subint, double *result, double *abserr, KorQuadRecord *qp, void *comm,
            KorError *fail)
{
    kor::quadrature::integrate_trigonometric_weight({"d01snc", fail}, {f, comm}, a, b, omega, wt_func,
                                                    {epsabs, epsrel, max_num_subint, result, abserr, qp});
}
