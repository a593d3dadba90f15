// The reference vector of a discrete law. H. C. Chen and Y. Asau, AIIE Trans. 6 (1974) 163-166 (indexed search).
#include "random/reference_vector.hpp"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace kor::random {

namespace {

constexpr std::ptrdiff_t kCellsPerPoint = 4; // more of them no longer shorten the search

// A running sum that keeps what rounding takes away. T. J. Dekker, Numer. Math. 18 (1971) 224-242.
class CarefulSum {
  public:
    void add(double x)
    {
        const double sum = high_ + x, part = sum - high_;
        low_ += (high_ - (sum - part)) + (x - part);
        high_ = sum;
    }
    double value() const { return high_ + low_; }

  private:
    double high_ = 0.0, low_ = 0.0;
};

} // namespace

double reference_length(double points) { return std::trunc(1.4 * points + 0.5) + 5.0; }
double reference_length_of_spread(double sigma) { return std::trunc(20.0 * sigma) + 20.0; }

void report_too_short(const Report &report, double needed, Integer nr)
{
    char text[32];
    std::snprintf(text, sizeof text, "%.0f", needed);
    report.error<NE_INT_ARG_LT>("nr", static_cast<const char *>(text), "nr", nr);
}

void set_reference(const double weights[], std::ptrdiff_t points, bool cumulative, double first, double r[], Integer nr)
{
    const std::ptrdiff_t cells =
        std::min<std::ptrdiff_t>(nr - kReferenceHead - points - kReferenceTail, kCellsPerPoint * points);
    double *const cell = r + kReferenceHead, *const table = cell + cells;

    CarefulSum sum;
    for (std::ptrdiff_t k = 0; k < points; ++k) {
        if (!cumulative) sum.add(weights[k]);
        table[k] = cumulative ? weights[k] : sum.value();
        if (k > 0) table[k] = std::max(table[k], table[k - 1]);
    }
    const double total = table[points - 1];
    for (std::ptrdiff_t k = 0; k < points; ++k) table[k] /= total;
    std::fill(table + points, table + points + kReferenceTail, 1.0);

    std::ptrdiff_t entry = 0;
    for (std::ptrdiff_t i = 0; i < cells; ++i) {
        while (table[entry] <= static_cast<double>(i) / static_cast<double>(cells)) ++entry;
        cell[i] = static_cast<double>(kReferenceHead + cells + entry + 1) + 0.5;
    }

    const double offset = first - static_cast<double>(kReferenceHead + cells + 1);
    r[0] = static_cast<double>(cells);
    r[1] = offset >= 0.0 ? offset + 0.5 : offset - 0.5;
}

} // namespace kor::random
