// e01bgc: values and derivatives of a piecewise cubic in Hermite form.
#include <kor/e01.h>

#include "approx/hermite.hpp"

void e01bgc(Integer n, const double x[], const double f[], const double d[], Integer m, const double px[], double pf[],
            double pd[], KorError *fail)
{
    kor::approx::evaluate_hermite({"e01bgc", fail}, {n, x, f, d}, m, px,
                                  [pf, pd](Integer j, kor::approx::ValueAndSlope at) {
                                      pf[j] = at.value;
                                      pd[j] = at.slope;
                                  });
}
