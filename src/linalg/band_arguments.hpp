// Tests of a matrix in variable-band storage.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstdio>

#include "frame/report.hpp"
#include "linalg/variable_band.hpp"

namespace kor::linalg {

// True, and reported, if a row's length is illegal or the rows do not fit into lal elements.
inline bool band_refused(const Report &report, Integer n, const Integer *row, Integer lal)
{
    if (const Integer i = first_bad_row(n, row); i < n) {
        char name[32];
        std::snprintf(name, sizeof name, "row[%ld]", static_cast<long>(i));
        if (row[i] < 1)
            report.error<NE_INT_ARG_LT>(name, "1", name, row[i]);
        else
            report.error<NE_2_INT_ARG_GT>("row[i]", row[i], "i+1", i + 1, "row[i]", "i+1");
        return true;
    }
    const std::int64_t length = band_length(n, row);
    if (lal >= length) return false;
    const auto told = static_cast<Integer>(std::min<std::int64_t>(length, 0x7fffffff));
    report.error<NE_2_INT_ARG_LT>("lal", lal, "row[0]+..+row[n-1]", told, "lal", "row[0]+..+row[n-1]");
    return true;
}

} // namespace kor::linalg
