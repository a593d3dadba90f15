// f01aac: inverse of a real matrix.
#include <kor/f01.h>

#include "frame/report.hpp"
#include "linalg/dense_arguments.hpp"
#include "linalg/inverse.hpp"
#include "linalg/lu.hpp"

void f01aac(double a[], Integer tda, Integer n, [[maybe_unused]] double unit[], double x[], Integer tdx, KorError *fail)
{
    using namespace kor::linalg;
    const kor::Report report{"f01aac", fail};
    if (below_one(report, "n", n) || shorter(report, "tda", tda, "n", n) || shorter(report, "tdx", tdx, "n", n)) return;
    const Scratch<Integer, kSmallSystem> pivot{n};
    ScaledLu<double> lu{n};
    if (no_memory(report, pivot && lu)) return;

    if (const Integer stage = lu.factor(a, tda, pivot.data()); stage != 0) {
        report.set_errnum(stage);
        return report.error<NE_SINGULAR>();
    }
    lu_inverse(n, a, tda, pivot.data(), x, tdx);
    report.success();
}
