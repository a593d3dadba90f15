// e02aec: the value of a Chebyshev series.
#include <kor/e02.h>

#include <cmath>

#include "frame/constants.hpp"
#include "frame/report.hpp"

namespace {

// Beyond it the plain recurrence loses digits, towards the ends ever more.
constexpr double kMiddle = 0.5;

// Clenshaw's recurrence.
double value_in_the_middle(Integer n, const double a[], double x)
{
    double b1 = 0.0, b2 = 0.0;
    for (Integer k = n; k >= 1; --k) {
        const double b = (a[k] - b2) + 2.0 * x * b1;
        b2 = b1;
        b1 = b;
    }
    return 0.5 * a[0] + (x * b1 - b2);
}

// The recurrence on differences of the b (on sums of them next to -1, where `sign` is -1): x enters by its distance from the
// end, which is free of error. M. Gentleman, Comput. J. 12 (1969) 160-165; C. Reinsch.
double value_near_an_end(Integer n, const double a[], double x, double sign)
{
    const double d = 2.0 * (1.0 - sign * x);
    double difference = 0.0, b = 0.0;
    double alternating = (n & 1) != 0 ? sign : 1.0;
    for (Integer k = n; k >= 1; --k, alternating *= sign) {
        difference = (difference + alternating * a[k]) - d * b;
        b += difference;
    }
    return 0.5 * a[0] + (difference - 0.5 * d * b);
}

} // namespace

void e02aec(Integer nplus1, const double a[], double xcap, double *p, KorError *fail)
{
    const kor::Report report{"e02aec", fail};
    if (nplus1 < 1) return report.error<NE_INT_ARG_LT>("nplus1", "1", "nplus1", nplus1);
    if (!(std::fabs(xcap) <= 1.0 + 4.0 * kor::kPrecision)) return report.error<NE_INVALID_XCAP>(xcap);

    const double x = std::fmin(std::fmax(xcap, -1.0), 1.0);
    if (std::fabs(x) <= kMiddle)
        *p = value_in_the_middle(nplus1 - 1, a, x);
    else
        *p = value_near_an_end(nplus1 - 1, a, x, x > 0.0 ? 1.0 : -1.0);
    report.success();
}
