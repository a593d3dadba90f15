// c02akc: the zeros of a real cubic, with error estimates.
#include <kor/c02.h>

#include "roots/companion_zeros.hpp"

void c02akc(double u, double r, double s, double t, double zeror[], double zeroi[], double errest[], KorError *fail)
{
    const double coefficients[] = {u, r, s, t};
    kor::roots::companion_zeros({"c02akc", fail}, 3, coefficients, "u", "u != 0.0", zeror, zeroi, errest);
}
