// f04mcc: solution of systems with the factors of a variable-band matrix, or with some of them.
#include <kor/f04.h>

#include "linalg/arguments.hpp"
#include "linalg/band_arguments.hpp"
#include "linalg/copies.hpp"
#include "linalg/dense_arguments.hpp"
#include "linalg/variable_band.hpp"

namespace {

// The factors whose inverses selct applies, in this order: L, D, L'.
struct Selection {
    bool lower, diagonal, upper;
};
constexpr Selection selection_of(Integer selct)
{
    switch (selct) {
    case Kor_LDLTX:
        return {true, true, true};
    case Kor_LDX:
        return {true, true, false};
    case Kor_DLTX:
        return {false, true, true};
    case Kor_LLTX:
        return {true, false, true};
    case Kor_LX:
        return {true, false, false};
    default: // Kor_LTX
        return {false, false, true};
    }
}

} // namespace

void f04mcc(Integer selct, Integer n, Integer nrhs, const double al[], Integer lal, const double d[],
            const Integer row[], const double b[], Integer tdb, double x[], Integer tdx, KorError *fail)
{
    using namespace kor::linalg;
    const kor::Report report{"f04mcc", fail};
    if (below_one(report, "n", n) || band_refused(report, n, row, lal) || below_one(report, "nrhs", nrhs)) return;
    if (shorter(report, "tdb", tdb, "nrhs", nrhs) || shorter(report, "tdx", tdx, "nrhs", nrhs)) return;
    if (!between(selct, Kor_LDLTX, Kor_LTX)) return report.error<NE_BAD_PARAM>("selct");
    const Selection selection = selection_of(selct);
    if (selection.diagonal)
        for (Integer i = 0; i < n; ++i)
            if (d[i] == 0.0) return report.error<NE_ZERO_DIAG>();
    // With D the factor L has a unit diagonal; without it any that can be divided by.
    const double *diagonal = al - 1;
    for (Integer i = 0; i < n; ++i) {
        diagonal += row[i];
        if (selection.diagonal && *diagonal != 1.0) return report.error<NE_NOT_UNIT_DIAG>();
        if (*diagonal == 0.0) return report.error<NE_SINGULAR>();
    }

    copy_rows(n, nrhs, b, tdb, x, tdx);
    for (Integer j = 0; j < nrhs; ++j) {
        if (selection.lower) band_solve_lower(n, al, row, x + j, tdx);
        if (selection.diagonal)
            for (std::ptrdiff_t i = 0; i < n; ++i) x[i * tdx + j] /= d[i];
        if (selection.upper) band_solve_upper(n, al, row, x + j, tdx);
    }
    report.success();
}
