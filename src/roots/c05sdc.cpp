// c05sdc: a zero of a continuous function, which receives a pointer to the caller's data.
#include <kor/c05.h>

#include "roots/zero_in_interval.hpp"

void c05sdc(double a, double b, double *x, double (*f)(double x, void *comm), double xtol, double ftol, void *comm,
            KorError *fail)
{
    kor::roots::zero_in_interval(
        {"c05sdc", fail}, a, b, x, [=](double t) { return f(t, comm); }, xtol, ftol);
}
