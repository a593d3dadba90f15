// f01qbc: LQ factorisation of a real matrix, and its orthogonal factor applied to a companion array.
#include <kor/f01.h>

#include <algorithm>

#include "frame/report.hpp"
#include "linalg/dense_arguments.hpp"
#include "linalg/householder.hpp"
#include "linalg/transpose.hpp"

void f01qbc(Integer m, Integer n, double a[], Integer tda, double c[], Integer tdc, double z[], KorError *fail)
{
    using namespace kor::linalg;
    const kor::Report report{"f01qbc", fail};
    if (negative(report, "m", m) || shorter(report, "n", n, "m", m) || shorter(report, "tda", tda, "n", n)) return;
    if (negative(report, "tdc", tdc)) return;
    const kor::Workspace<double> transposed{kor::Count{n} * m};
    const kor::Workspace<double> work{reflection_work(n, std::max(m, tdc))};
    if (no_memory(report, transposed && work)) return;

    // A' = P R, so that A P = (R' 0).
    transpose_into(m, n, a, tda, transposed.data(), m);
    qr_factor(n, m, transposed.data(), m, z, work.data());
    qr_apply(true, n, m, transposed.data(), m, z, tdc, c, tdc, work.data());
    transpose_into(n, m, transposed.data(), m, a, tda);
    report.success();
}
