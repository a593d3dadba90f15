// f01rcc: QR factorisation of a complex matrix with at least as many rows as columns.
#include <kor/f01.h>

#include "frame/report.hpp"
#include "linalg/dense_arguments.hpp"
#include "linalg/householder.hpp"

void f01rcc(Integer m, Integer n, Complex a[], Integer tda, Complex zeta[], KorError *fail)
{
    using namespace kor::linalg;
    const kor::Report report{"f01rcc", fail};
    if (shorter(report, "m", m, "n", n) || negative(report, "n", n) || shorter(report, "tda", tda, "n", n)) return;
    const kor::Workspace<Complex> work{reflection_work(m, n)};
    if (no_memory(report, bool{work})) return;

    qr_factor(m, n, a, tda, zeta, work.data());
    report.success();
}
