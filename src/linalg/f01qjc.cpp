// f01qjc: RQ factorisation of a real matrix with at most as many rows as columns.
#include <kor/f01.h>

#include "frame/report.hpp"
#include "linalg/dense_arguments.hpp"
#include "linalg/householder.hpp"

void f01qjc(Integer m, Integer n, double a[], Integer tda, double zeta[], KorError *fail)
{
    using namespace kor::linalg;
    const kor::Report report{"f01qjc", fail};
    if (negative(report, "m", m) || shorter(report, "n", n, "m", m) || shorter(report, "tda", tda, "n", n)) return;
    const kor::Workspace<double> work{reflection_work(n, m)};
    if (no_memory(report, bool{work})) return;

    rq_factor(m, n, a, tda, zeta, work.data());
    report.success();
}
