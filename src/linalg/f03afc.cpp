// f03afc: LU factorisation with scaled row interchanges and determinant of a real matrix.
#include <kor/f03.h>

#include "frame/report.hpp"
#include "linalg/dense_arguments.hpp"
#include "linalg/lu.hpp"

void f03afc(Integer n, double a[], Integer tda, Integer pivot[], double *det, Integer *dete, KorError *fail)
{
    using namespace kor::linalg;
    const kor::Report report{"f03afc", fail};
    if (below_one(report, "n", n) || shorter(report, "tda", tda, "n", n)) return;
    ScaledLu<double> lu{n};
    if (no_memory(report, bool{lu})) return;

    const Integer stage = lu.factor(a, tda, pivot);
    Determinant<double> determinant;
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
