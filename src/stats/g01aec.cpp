// g01aec: frequencies of a sample in classes.
#include <kor/g01.h>

#include <algorithm>
#include <cmath>

#include "frame/report.hpp"

namespace {

// Boundaries at equal distances, from a little below the smallest value to a little above the largest. Half of the range
// is what cannot overflow.
void equal_classes(double xmin, double xmax, Integer boundaries, double cint[])
{
    if (boundaries == 1) {
        cint[0] = 0.5 * xmin + 0.5 * xmax;
        return;
    }
    double half_range = 0.5 * xmax - 0.5 * xmin;
    if (half_range == 0.0) half_range = xmin == 0.0 ? 0.0005 : 0.0005 * std::fabs(xmin);
    const double first = xmin - 0.001 * half_range;
    const double half_step = (half_range + 0.001 * half_range) / (boundaries - 1);
    for (Integer i = 0; i < boundaries; ++i) cint[i] = 2.0 * (0.5 * first + i * half_step);
}

} // namespace

void g01aec(Integer n, const double x[], Integer num_class, Integer class_type, double cint[], Integer ifreq[],
            double *xmin, double *xmax, KorError *fail)
{
    const kor::Report report{"g01aec", fail};
    if (n < 1) return report.error<NE_INT_ARG_LT>("n", "1", "n", n);
    if (num_class < 2) return report.error<NE_INT_ARG_LT>("num_class", "2", "num_class", num_class);
    if (class_type != Kor_ClassBoundaryUser && class_type != Kor_ClassBoundaryComp)
        return report.error<NE_BAD_PARAM>("class");
    const Integer boundaries = num_class - 1;
    if (class_type == Kor_ClassBoundaryUser)
        for (Integer i = 1; i < boundaries; ++i)
            if (!(cint[i] > cint[i - 1]))
                return report.error<NE_NOT_INCREASING>("cint", "cint", i - 1, cint[i - 1], "cint", i, cint[i]);

    double smallest = NAN, largest = NAN;
    for (Integer i = 0; i < n; ++i) {
        smallest = std::fmin(smallest, x[i]);
        largest = std::fmax(largest, x[i]);
    }
    *xmin = smallest;
    *xmax = largest;
    if (class_type == Kor_ClassBoundaryComp) equal_classes(smallest, largest, boundaries, cint);

    std::fill_n(ifreq, num_class, 0);
    for (Integer i = 0; i < n; ++i) {
        if (std::isnan(x[i])) continue;
        ++ifreq[std::upper_bound(cint, cint + boundaries, x[i]) - cint]; // class i holds cint[i-1] <= x < cint[i]
    }
    report.success();
}
