// The arguments that Carlson's integrals take: which of them are refused, and how the report calls them.
#pragma once

#include <algorithm>

#include "frame/report.hpp"
#include "special/limit_text.hpp"

namespace kor::special {

// x, y, z not negative, no two of them zero, their sums at least `lower` and none beyond `upper`. Reports the first offence
// and says whether there was one.
inline bool refuse_elliptic_arguments(const Report &report, double x, double y, double z, double lower, double upper)
{
    const struct {
        const char *name;
        double value;
    } single[] = {{"x", x}, {"y", y}, {"z", z}};
    const struct {
        const char *pair, *sum;
        double a, b;
    } pairs[] = {{"x and y", "x+y", x, y}, {"x and z", "x+z", x, z}, {"y and z", "y+z", y, z}};

    for (const auto &[name, value] : single)
        if (value < 0.0) return report.error<NE_REAL_ARG_LT>(name, "0.0", name, value), true;
    for (const auto &[pair, sum, a, b] : pairs) {
        if (a == 0.0 && b == 0.0) return report.error<NE_REAL_ARG_EQ>(pair, "0.0", pair, 0.0), true;
        if (a + b < lower) return report.error<NE_REAL_ARG_LT>(sum, LimitText{lower}.text(), sum, a + b), true;
    }
    for (const auto &[name, value] : single)
        if (value > upper) return report.error<NE_REAL_ARG_GT>(name, LimitText{upper}.text(), name, value), true;
    return false;
}

} // namespace kor::special
