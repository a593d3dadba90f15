// g05ecc: sets up the reference vector of a Poisson law.
#include <kor/g05.h>

#include <cmath>

#include "frame/report.hpp"
#include "random/mode_table.hpp"

void g05ecc(double t, double r[], Integer nr, KorError *fail)
{
    using namespace kor::random;
    const kor::Report report{"g05ecc", fail};
    constexpr double kLargestMean = 2.147e9; // the largest values of the table still are Integers
    if (!(t >= 0.0)) return report.error<NE_REAL_ARG_LT>("t", "0.0", "t", t);
    if (t > kLargestMean) return report.error<NE_REAL_ARG_GT>("t", "2.147e9", "t", t);
    const double sigma = std::sqrt(t);
    if (nr < reference_length_of_spread(sigma)) return report_too_short(report, reference_length_of_spread(sigma), nr);

    const auto ratio = [t](double k) { return t / (k + 1.0); };
    if (!set_reference_by_ratios(range_of_law(t, sigma), std::floor(t), ratio, r, nr))
        return report.error<NE_ALLOC_FAIL>();
    report.success();
}
