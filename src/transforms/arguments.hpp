// Argument checks that the routines of the chapter share. Each reports what it finds; false stops the routine.
#pragma once

#include "frame/report.hpp"
#include "transforms/in_place.hpp"
#include "transforms/root_table.hpp"

namespace kor::transforms {

inline bool positive(const Report &report, const char *name, Integer value)
{
    if (value >= 1) return true;
    report.error<NE_INT_ARG_LT>(name, "1", name, value);
    return false;
}

// Both are reported if both are wrong: the record then holds the second.
inline bool both_positive(const Report &report, Integer m, Integer n)
{
    const bool m_good = positive(report, "m", m);
    const bool n_good = positive(report, "n", n);
    return m_good && n_good;
}

inline bool table_fits(const Report &report, const char *name, Integer n, const char *table_name, const double *table)
{
    if (stamped(n, table)) return true;
    report.error<NE_C06_NOT_TRIG>(name, table_name, table_name);
    return false;
}

// A length for the transforms in place.
inline bool suits_in_place(const Report &report, Integer n, InPlaceFactors &factors)
{
    if (n <= 1) {
        report.error<NE_INT_ARG_LE>("n", "1", "n", n);
        return false;
    }
    if (has_butterfly(Kind::complex, n)) { // there is no need of factors
        factors = {InPlaceStatus::good, 1};
        return true;
    }
    factors = c06eaz(n);
    switch (factors.status) {
    case InPlaceStatus::good:
        return true;
    case InPlaceStatus::prime_too_large:
        report.error<NE_C06_FACTOR_GT>();
        return false;
    case InPlaceStatus::too_many_factors:
        report.error<NE_C06_TOO_MANY_FACTORS>(kMostInPlaceFactors);
        return false;
    }
    return false;
}

} // namespace kor::transforms
