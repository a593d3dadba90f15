// f01bnc: Cholesky factorisation of a complex Hermitian positive-definite matrix.
#include <kor/f01.h>

#include "frame/report.hpp"
#include "linalg/cholesky_below.hpp"
#include "linalg/dense_arguments.hpp"

void f01bnc(Integer n, Complex a[], Integer tda, double p[], KorError *fail)
{
    using namespace kor::linalg;
    const kor::Report report{"f01bnc", fail};
    if (below_one(report, "n", n) || shorter(report, "tda", tda, "n", n)) return;
    const kor::RowMajor<const Complex> A{a, tda};
    for (Integer i = 0; i < n; ++i)
        if (A(i, i).im != 0.0) return report.error<NE_DIAG_IMAG_NON_ZERO>(i, i);

    Determinant<double> determinant;
    if (const Integer stage = cholesky_below(n, a, tda, p, determinant); stage != 0) {
        report.set_errnum(stage);
        return report.error<NE_NOT_POS_DEF>();
    }
    report.success();
}
