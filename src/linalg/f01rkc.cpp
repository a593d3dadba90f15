// f01rkc: the first rows of the unitary factor of f01rjc, its adjoint.
#include <kor/f01.h>

#include <algorithm>

#include "frame/report.hpp"
#include "linalg/dense_arguments.hpp"
#include "linalg/householder.hpp"
#include "linalg/reflection_arguments.hpp"

void f01rkc(Integer wheret, Integer m, Integer n, Integer nrowp, Complex a[], Integer tda, const Complex zeta[],
            KorError *fail)
{
    using namespace kor::linalg;
    const kor::Report report{"f01rkc", fail};
    if (!is_place(wheret)) return report.error<NE_BAD_PARAM>("wheret");
    if (negative(report, "m", m) || shorter(report, "n", n, "m", m)) return;
    if (negative(report, "nrowp", nrowp) || longer(report, "nrowp", nrowp, "n", n)) return;
    if (shorter(report, "tda", tda, "n", n)) return;
    const Scalars<Complex> scalars{wheret, m, a, tda, zeta};
    const kor::Workspace<Complex> work{reflection_work(n, std::max(m, nrowp))};
    if (no_memory(report, scalars && work)) return;

    rq_form(m, n, nrowp, a, tda, scalars.data(), work.data());
    report.success();
}
