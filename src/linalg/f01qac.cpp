// f01qac: QR factorisation of a real matrix together with a companion array.
#include <kor/f01.h>

#include <algorithm>

#include "frame/report.hpp"
#include "linalg/dense_arguments.hpp"
#include "linalg/householder.hpp"

void f01qac(Integer m, Integer n, double a[], Integer tda, double c[], Integer tdc, double z[], KorError *fail)
{
    using namespace kor::linalg;
    const kor::Report report{"f01qac", fail};
    if (shorter(report, "m", m, "n", n) || negative(report, "n", n) || shorter(report, "tda", tda, "n", n)) return;
    if (negative(report, "tdc", tdc)) return;
    const kor::Workspace<double> work{reflection_work(m, std::max(n, tdc))};
    if (no_memory(report, bool{work})) return;

    qr_factor(m, n, a, tda, z, work.data());
    qr_apply(true, m, n, a, tda, z, tdc, c, tdc, work.data());
    report.success();
}
