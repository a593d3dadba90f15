// e01bhc: the definite integral of a piecewise cubic in Hermite form.
#include <kor/e01.h>

#include "approx/hermite.hpp"

void e01bhc(Integer n, const double x[], const double f[], const double d[], double a, double b, double *integral,
            KorError *fail)
{
    const kor::Report report{"e01bhc", fail};
    if (!kor::approx::nodes_right(report, n, x)) return;

    const kor::approx::HermiteCubic cubic{n, x, f, d};
    const double low = b < a ? b : a, high = b < a ? a : b;
    const Integer first = cubic.interval(low, 0), last = cubic.interval(high, first);
    double sum;
    if (first == last) {
        sum = cubic.integral(first, low, high);
    } else {
        sum = cubic.integral(first, low, x[first + 1]);
        for (Integer i = first + 1; i < last; ++i) sum += cubic.integral(i);
        sum += cubic.integral(last, x[last], high);
    }
    *integral = b < a ? -sum : sum;

    for (const double limit : {b, a})
        if (!cubic.holds(limit)) return report.error<NW_INTERVAL_EXTRAPOLATE>(limit);
    report.success();
}
