// d01alc: integral with break points.
#include <kor/d01.h>

#include "quadrature/integrators.hpp"

void d01alc(double (*f)(double x), double a, double b, Integer nbrkpts, const double brkpts[], double epsabs,
            double epsrel, Integer max_num_subint, double *result, double *abserr, KorQuadRecord *qp, KorError *fail)
{
    kor::quadrature::integrate_with_breaks({"d01alc", fail}, f, a, b, nbrkpts, brkpts,
                                           {epsabs, epsrel, max_num_subint, result, abserr, qp});
}
