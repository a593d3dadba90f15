// f03aec: Cholesky factorisation and determinant of a real symmetric positive-definite matrix.
#include <kor/f03.h>

#include "frame/report.hpp"
#include "linalg/cholesky_below.hpp"
#include "linalg/dense_arguments.hpp"

void f03aec(Integer n, double a[], Integer tda, double p[], double *det, Integer *dete, KorError *fail)
{
    using namespace kor::linalg;
    const kor::Report report{"f03aec", fail};
    if (below_one(report, "n", n) || shorter(report, "tda", tda, "n", n)) return;

    Determinant<double> determinant;
    const Integer stage = cholesky_below(n, a, tda, p, determinant);
    *det = determinant.mantissa;
    *dete = determinant.exponent;
    if (stage != 0) {
        report.set_errnum(stage);
        return report.error<NE_NOT_POS_DEF>();
    }
    report.success();
}
