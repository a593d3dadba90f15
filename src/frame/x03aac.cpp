// x03aac: inner product added to a starting value, in double or in doubled precision.
#include <kor/x03.h>

#include <cmath>
#include <cstddef>

#include "frame/report.hpp"
#include "frame/x03aay.hpp"

namespace {

double plain_sum(const double a[], const double b[], Integer n, Integer stepa, Integer stepb, double sum)
{
    for (std::ptrdiff_t i = 0; i < n; ++i) sum += a[i * stepa] * b[i * stepb];
    return sum;
}

} // namespace

void x03aac(const double a[], Integer, const double b[], Integer, Integer n, Integer stepa, Integer stepb, double c1,
            double c2, double *d1, double *d2, Boolean sw, KorError *fail)
{
    const kor::Report report{"x03aac", fail};
    if (stepa < 1) return report.error<NE_INT_ARG_LE>("stepa", "0", "stepa", stepa);
    if (stepb < 1) return report.error<NE_INT_ARG_LE>("stepb", "0", "stepb", stepb);

    kor::DoubleDouble sum{0.0, 0.0};
    if (sw != 0) sum = kor::x03aay(a, b, n, stepa, stepb, {c1, c2});
    // Without doubled precision c2 does not count; an overflow gives what plain arithmetic gives.
    if (sw == 0 || !std::isfinite(sum.high)) sum = {plain_sum(a, b, n, stepa, stepb, c1), 0.0};
    *d1 = sum.high;
    *d2 = sum.low;
    report.success();
}
