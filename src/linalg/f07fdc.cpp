// f07fdc: Cholesky factorisation of a real symmetric positive-definite matrix (dpotrf, row-major).
#include <kor/f07.h>

#include "frame/report.hpp"
#include "linalg/arguments.hpp"
#include "linalg/cholesky.hpp"

void f07fdc(Integer uplo, Integer n, double a[], Integer tda, KorError *fail)
{
    const kor::Report report{"f07fdc", fail};

    if (!kor::linalg::is_triangle(uplo)) return report.error<NE_BAD_PARAM>("uplo");
    if (n < 0) return report.error<NE_INT_ARG_LT>("n", "0", "n", n);
    if (tda < n) return report.error<NE_2_INT_ARG_LT>("tda", tda, "n", n, "tda", "n");

    if (const Integer minor = kor::linalg::cholesky_factor(uplo, n, a, tda); minor != 0) {
        report.set_errnum(minor);
        return report.error<NE_NOT_POS_DEF>();
    }
    report.success();
}
