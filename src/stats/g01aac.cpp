// g01aac: mean, standard deviation, skewness, kurtosis and range of a sample.
#include <kor/g01.h>

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "frame/constants.hpp"
#include "frame/report.hpp"
#include "special/evaluate.hpp"

namespace {

using namespace kor::special;

// A sum whose rounding errors are summed beside it.
class CompensatedSum {
  public:
    void add(double term)
    {
        const DoubleDouble sum = two_sum(high_, term);
        high_ = sum.hi;
        low_ += sum.lo;
    }
    void add(DoubleDouble term)
    {
        add(term.hi);
        low_ += term.lo;
    }
    DoubleDouble value() const { return two_sum(high_, low_); }

  private:
    double high_ = 0.0, low_ = 0.0;
};

// A power of two that brings the largest value near 1, so that neither sums overflow nor fourth powers vanish.
double scale_of(double largest)
{
    constexpr int kLimit = 1000;
    if (!(largest > 0.0) || !std::isfinite(largest)) return 1.0;
    return std::ldexp(1.0, -std::clamp(std::ilogb(largest), -kLimit, kLimit));
}

} // namespace

void g01aac(Integer n, const double x[], const double wt[], Integer *nvalid, double *xmean, double *xsd, double *xskew,
            double *xkurt, double *xmin, double *xmax, double *wsum, KorError *fail)
{
    const kor::Report report{"g01aac", fail};
    if (n < 1) return report.error<NE_INT_ARG_LT>("n", "1", "n", n);
    const auto weight = [wt](Integer i) { return wt == nullptr ? 1.0 : wt[i]; };
    CompensatedSum weights;
    Integer count = 0;
    double smallest = NAN, largest = NAN;
    for (Integer i = 0; i < n; ++i) {
        const double w = weight(i);
        if (!(w >= 0.0)) {
            char name[24];
            std::snprintf(name, sizeof name, "wt[%3ld]", static_cast<long>(i));
            return report.error<NE_REAL_ARG_LT>(name, "0.0", name, w);
        }
        if (w == 0.0) continue;
        ++count;
        weights.add(w);
        smallest = std::fmin(smallest, x[i]);
        largest = std::fmax(largest, x[i]);
    }
    const DoubleDouble total = weights.value();
    *nvalid = count;
    *wsum = total.rounded();
    *xsd = *xskew = *xkurt = 0.0;
    if (count == 0) return report.error<NE_CASES_ZERO>();
    *xmin = smallest;
    *xmax = largest;

    // The mean to twice the digits, so that the second pass sees the deviations without its error.
    const double scale = scale_of(std::fmax(std::fabs(smallest), std::fabs(largest)));
    CompensatedSum sum;
    for (Integer i = 0; i < n; ++i)
        if (weight(i) > 0.0) sum.add(two_product(weight(i), scale * x[i]));
    const DoubleDouble mean = sum.value() / total;
    *xmean = mean.rounded() / scale;
    if (count == 1) return report.error<NE_CASES_ONE>();

    CompensatedSum squares, cubes, fourths;
    for (Integer i = 0; i < n; ++i) {
        const double w = weight(i);
        if (w == 0.0) continue;
        const double deviation = (scale * x[i] - mean.hi) - mean.lo;
        const double square = deviation * deviation;
        squares.add(w * square);
        cubes.add(w * square * deviation);
        fourths.add(w * square * square);
    }
    const double m2 = (squares.value() / total).rounded();
    const double root = std::sqrt(m2);
    *xsd = root / scale;
    // A variance next to nothing is no divisor.
    const double least_variance = std::sqrt(std::sqrt(kor::kSmallest));
    if (!(*xsd * *xsd < least_variance)) {
        *xskew = (cubes.value() / total).rounded() / (m2 * root);
        *xkurt = (fourths.value() / total).rounded() / (m2 * m2) - 3.0;
    }
    report.success();
}
