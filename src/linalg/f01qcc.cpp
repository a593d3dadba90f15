// f01qcc: QR factorisation of a real matrix with at least as many rows as columns.
#include <kor/f01.h>

#include "frame/report.hpp"
#include "linalg/dense_arguments.hpp"
#include "linalg/householder.hpp"

void f01qcc(Integer m, Integer n, double a[], Integer tda, double zeta[], KorError *fail)
{
    using namespace kor::linalg;
    const kor::Report report{"f01qcc", fail};
    if (shorter(report, "m", m, "n", n) || negative(report, "n", n) || shorter(report, "tda", tda, "n", n)) return;
    const kor::Workspace<double> work{reflection_work(m, n)};
    if (no_memory(report, bool{work})) return;

    qr_factor(m, n, a, tda, zeta, work.data());
    report.success();
}
