// c02alc: the zeros of a real quartic, with error estimates.
#include <kor/c02.h>

#include "roots/companion_zeros.hpp"

void c02alc(double e, double a, double b, double c, double d, double zeror[], double zeroi[], double errest[],
            KorError *fail)
{
    const double coefficients[] = {e, a, b, c, d};
    kor::roots::companion_zeros({"c02alc", fail}, 4, coefficients, "e", "e != 0.0", zeror, zeroi, errest);
}
