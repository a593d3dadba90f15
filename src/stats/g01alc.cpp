// g01alc: the five-number summary of a sample.
#include <kor/g01.h>

#include <algorithm>
#include <cmath>
#include <numeric>

#include "frame/report.hpp"
#include "frame/workspace.hpp"
#include "sort/sort_doubles.hpp"

namespace {

double median_of_sorted(const double *x, Integer n) { return std::midpoint(x[(n - 1) / 2], x[n / 2]); }

} // namespace

void g01alc(Integer n, const double x[], double res[], KorError *fail)
{
    const kor::Report report{"g01alc", fail};
    if (n < 5) return report.error<NE_INT_ARG_LT>("n", "5", "n", n);
    const kor::Workspace<double> sorted{kor::Count{n}};
    if (!sorted) return report.error<NE_ALLOC_FAIL>();
    std::copy_n(x, n, sorted.data());
    if (kor::sort::sort_doubles(sorted.data(), n) < n) {
        std::fill_n(res, 5, NAN);
        return report.success();
    }
    const Integer half = n / 2 + n % 2; // both halves hold the value in the middle
    res[0] = sorted[0];
    res[1] = median_of_sorted(sorted.data(), half);
    res[2] = median_of_sorted(sorted.data(), n);
    res[3] = median_of_sorted(sorted.data() + (n - half), half);
    res[4] = sorted[n - 1];
    report.success();
}
