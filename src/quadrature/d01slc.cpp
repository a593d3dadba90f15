// d01slc: integral with break points, with a pointer to the caller's data.
#include <kor/d01.h>

#include "quadrature/integrators.hpp"

void d01slc(double (*f)(double x, void *comm), double a, double b, Integer nbrkpts, const double brkpts[],
            double epsabs, double epsrel, Integer max_num_subint, double *result, double *abserr, KorQuadRecord *qp,
            void *comm, KorError *fail)
{
    kor::quadrature::integrate_with_breaks({"d01slc", fail}, {f, comm}, a, b, nbrkpts, brkpts,
                                           {epsabs, epsrel, max_num_subint, result, abserr, qp});
}
