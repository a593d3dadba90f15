// f01rjc: RQ factorisation of a complex matrix with at most as many rows as columns.
#include <kor/f01.h>

#include "frame/report.hpp"
#include "linalg/dense_arguments.hpp"
#include "linalg/householder.hpp"

void f01rjc(Integer m, Integer n, Complex a[], Integer tda, Complex zeta[], KorError *fail)
{
    using namespace kor::linalg;
    const kor::Report report{"f01rjc", fail};
    if (negative(report, "m", m) || shorter(report, "n", n, "m", m) || shorter(report, "tda", tda, "n", n)) return;
    const kor::Workspace<Complex> work{reflection_work(n, m)};
    if (no_memory(report, bool{work})) return;

    rq_factor(m, n, a, tda, zeta, work.data());
    report.success();
}
