// f01mcc: LDL' factorisation of a symmetric positive-definite matrix in variable-band storage.
#include <kor/f01.h>

#include "linalg/band_arguments.hpp"
#include "linalg/dense_arguments.hpp"
#include "linalg/variable_band.hpp"

void f01mcc(Integer n, const double a[], Integer lal, const Integer row[], double al[], double d[], KorError *fail)
{
    using namespace kor::linalg;
    const kor::Report report{"f01mcc", fail};
    if (below_one(report, "n", n) || band_refused(report, n, row, lal)) return;

    if (const Integer stage = band_factor(n, a, row, al, d); stage != 0) {
        report.set_errnum(stage);
        return report.error<NE_NOT_POS_DEF>();
    }
    report.success();
}
