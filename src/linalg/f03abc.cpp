// f03abc: determinant of a real symmetric positive-definite matrix.
#include <kor/f03.h>

#include "frame/report.hpp"
#include "linalg/cholesky_below.hpp"
#include "linalg/dense_arguments.hpp"
#include "linalg/scratch.hpp"

void f03abc(Integer n, double a[], Integer tda, double *det, Integer *dete, KorError *fail)
{
    using namespace kor::linalg;
    const kor::Report report{"f03abc", fail};
    if (below_one(report, "n", n) || shorter(report, "tda", tda, "n", n)) return;
    const Scratch<double, 32> p{n};
    if (no_memory(report, bool{p})) return;

    Determinant<double> determinant;
    const Integer stage = cholesky_below(n, a, tda, p.data(), determinant);
    *det = determinant.mantissa;
    *dete = determinant.exponent;
    if (stage != 0) {
        report.set_errnum(stage);
        return report.error<NE_NOT_POS_DEF>();
    }
    report.success();
}
