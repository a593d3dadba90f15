// e01bfc: values of a piecewise cubic in Hermite form.
#include <kor/e01.h>

#include "approx/hermite.hpp"

void e01bfc(Integer n, const double x[], const double f[], const double d[], Integer m, const double px[], double pf[],
            KorError *fail)
{
    kor::approx::evaluate_hermite({"e01bfc", fail}, {n, x, f, d}, m, px,
                                  [pf](Integer j, kor::approx::ValueAndSlope at) { pf[j] = at.value; });
}
