// c05adc: a zero of a continuous function between two points where its signs differ.
#include <kor/c05.h>

#include "roots/zero_in_interval.hpp"

void c05adc(double a, double b, double *x, double (*f)(double x), double xtol, double ftol, KorError *fail)
{
    kor::roots::zero_in_interval({"c05adc", fail}, a, b, x, f, xtol, ftol);
}
