// g05edc: sets up the reference vector of a binomial law.
#include <kor/g05.h>

#include <cmath>

#include "frame/report.hpp"
#include "random/mode_table.hpp"

void g05edc(Integer n, double p, double r[], Integer nr, KorError *fail)
{
    using namespace kor::random;
    const kor::Report report{"g05edc", fail};
    if (n < 0) return report.error<NE_INT_ARG_LT>("n", "0", "n", n);
    if (!(p >= 0.0)) return report.error<NE_REAL_ARG_LT>("p", "0.0", "p", p);
    if (p > 1.0) return report.error<NE_REAL_ARG_GT>("p", "1.0", "p", p);
    const double trials = n, mean = trials * p, q = 1.0 - p, sigma = std::sqrt(mean * q);
    if (nr < reference_length_of_spread(sigma)) return report_too_short(report, reference_length_of_spread(sigma), nr);

    Range range = range_of_law(mean, sigma);
    range.high = std::fmin(range.high, trials);
    const auto ratio = [=](double k) { return (trials - k) / (k + 1.0) * p / q; };
    if (!set_reference_by_ratios(range, std::floor((trials + 1.0) * p), ratio, r, nr))
        return report.error<NE_ALLOC_FAIL>();
    report.success();
}
