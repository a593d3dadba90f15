// The body that f03afc and f03ahc share: LU factorisation with scaled interchanges of rows, and determinant.
#pragma once

#include "frame/report.hpp"
#include "linalg/dense_arguments.hpp"
#include "linalg/lu.hpp"

namespace kor::linalg {

template <Scalar T>
void factorise_with_determinant(const Report &report, Integer n, T *a, Integer tda, Integer *pivot, T *det,
                                Integer *dete)
{
    if (below_one(report, "n", n) || shorter(report, "tda", tda, "n", n)) return;
    ScaledLu<T> lu{n};
    if (no_memory(report, bool{lu})) return;

    const Integer stage = lu.factor(a, tda, pivot);
    Determinant<T> determinant;
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

} // namespace kor::linalg
