// f01rec: the first columns of the unitary factor of f01rcc.
#include <kor/f01.h>

#include "frame/report.hpp"
#include "linalg/dense_arguments.hpp"
#include "linalg/householder.hpp"
#include "linalg/reflection_arguments.hpp"

void f01rec(Integer wheret, Integer m, Integer n, Integer ncolq, Complex a[], Integer tda, const Complex zeta[],
            KorError *fail)
{
    using namespace kor::linalg;
    const kor::Report report{"f01rec", fail};
    if (!is_place(wheret)) return report.error<NE_BAD_PARAM>("wheret");
    if (shorter(report, "m", m, "n", n) || negative(report, "n", n)) return;
    if (negative(report, "ncolq", ncolq) || longer(report, "ncolq", ncolq, "m", m)) return;
    if (shorter(report, "tda", tda, "n", n) || shorter(report, "tda", tda, "ncolq", ncolq)) return;
    const Scalars<Complex> scalars{wheret, n, a, tda, zeta};
    const kor::Workspace<Complex> work{reflection_work(m, ncolq)};
    if (no_memory(report, scalars && work)) return;

    qr_form(m, n, ncolq, a, tda, scalars.data(), work.data());
    report.success();
}
