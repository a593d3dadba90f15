// f01qkc: the first rows of the orthogonal factor of f01qjc, transposed.
#include <kor/f01.h>

#include <algorithm>

#include "frame/report.hpp"
#include "linalg/dense_arguments.hpp"
#include "linalg/householder.hpp"
#include "linalg/reflection_arguments.hpp"

void f01qkc(Integer wheret, Integer m, Integer n, Integer nrowp, double a[], Integer tda, const double zeta[],
            KorError *fail)
{
    using namespace kor::linalg;
    const kor::Report report{"f01qkc", fail};
    if (!is_place(wheret)) return report.error<NE_BAD_PARAM>("wheret");
    if (negative(report, "m", m) || shorter(report, "n", n, "m", m)) return;
    if (negative(report, "nrowp", nrowp) || longer(report, "nrowp", nrowp, "n", n)) return;
    if (shorter(report, "tda", tda, "n", n)) return;
    const Scalars<double> scalars{wheret, m, a, tda, zeta};
    const kor::Workspace<double> work{reflection_work(n, std::max(m, nrowp))};
    if (no_memory(report, scalars && work)) return;

    rq_form(m, n, nrowp, a, tda, scalars.data(), work.data());
    report.success();
}
