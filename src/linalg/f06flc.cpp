// f06flc: greatest and least absolute value of the elements of a real vector.
#include <kor/f06.h>

#include <cmath>

#include "linalg/strided.hpp"

void f06flc(Integer n, const double x[], Integer incx, double *xmax, double *xmin)
{
    const kor::linalg::Strided<const double> u{x, n, incx};
    double greatest = 0.0, least = n > 0 ? std::fabs(u[0]) : 0.0;
    for (Integer i = 0; i < n; ++i) {
        const double a = std::fabs(u[i]);
        // Of a NaN both comparisons are false: it enters, and stays.
        if (!(a <= greatest)) greatest = std::isnan(greatest) ? greatest : a;
        if (!(a >= least)) least = std::isnan(least) ? least : a;
    }
    *xmax = greatest;
    *xmin = least;
}
