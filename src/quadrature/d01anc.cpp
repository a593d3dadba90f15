// d01anc: integral with a trigonometric weight.
#include <kor/d01.h>

#include "quadrature/integrators.hpp"

void d01anc(double (*f)(double x), double a, double b, double omega, Integer wt_func, double epsabs, double epsrel,
            Integer max_num_subint, double *result, double *abserr, KorQuadRecord *qp, KorError *fail)
{
    kor::quadrature::integrate_trigonometric_weight({"d01anc", fail}, f, a, b, omega, wt_func,
                                                    {epsabs, epsrel, max_num_subint, result, abserr, qp});
}
