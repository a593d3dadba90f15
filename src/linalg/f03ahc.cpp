// f03ahc: LU factorisation with scaled row interchanges and determinant of a complex matrix.
#include <kor/f03.h>

#include "frame/report.hpp"
#include "linalg/dense_arguments.hpp"
#include "linalg/lu.hpp"

void f03ahc(Integer n, Complex a[], Integer tda, Integer pivot[], Complex *det, Integer *dete, KorError *fail)
{
    using namespace kor::linalg;
    const kor::Report report{"f03ahc", fail};
    if (below_one(report, "n", n) || shorter(report, "tda", tda, "n", n)) return;
    ScaledLu<Complex> lu{n};
    if (no_memory(report, bool{lu})) return;

    const Integer stage = lu.factor(a, tda, pivot);
    Determinant<Complex> determinant;
    if (stage == 0)
        determinant = lu_determinant(n, a, tda, pivot);
    else
        determinant.multiply({});
    *det = determinant.mantissa;
    *dete = determinant.exponent;
    if (stage != 0) {
        report.set_errnum(stage);
        return report.error<NE_SINGULAR>();
    }
    report.success();
}
