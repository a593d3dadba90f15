// Tests of arguments that the routines of chapters f01 to f04 share. Each tells the first offence through the
// report, and returns true if there is one: `if (below_one(report, "n", n) || shorter(report, "tda", tda, "n", n)) return;`.
#pragma once

#include "frame/report.hpp"

namespace kor::linalg {

inline bool below_one(const Report &report, const char *name, Integer value)
{
    if (value >= 1) return false;
    report.error<NE_INT_ARG_LT>(name, "1", name, value);
    return true;
}

inline bool negative(const Report &report, const char *name, Integer value)
{
    if (value >= 0) return false;
    report.error<NE_INT_ARG_LT>(name, "0", name, value);
    return true;
}

// value >= least must hold.
inline bool shorter(const Report &report, const char *name, Integer value, const char *least_name, Integer least)
{
    if (value >= least) return false;
    report.error<NE_2_INT_ARG_LT>(name, value, least_name, least, name, least_name);
    return true;
}

// value <= greatest must hold.
inline bool longer(const Report &report, const char *name, Integer value, const char *greatest_name, Integer greatest)
{
    if (value <= greatest) return false;
    report.error<NE_2_INT_ARG_GT>(name, value, greatest_name, greatest, name, greatest_name);
    return true;
}

inline bool no_memory(const Report &report, bool got)
{
    if (got) return false;
    report.error<NE_ALLOC_FAIL>();
    return true;
}

} // namespace kor::linalg
