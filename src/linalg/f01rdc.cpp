// f01rdc: the unitary factor of f01rcc, or its adjoint, times a matrix.
#include <kor/f01.h>

#include "frame/report.hpp"
#include "linalg/dense_arguments.hpp"
#include "linalg/householder.hpp"
#include "linalg/reflection_arguments.hpp"

void f01rdc(Integer trans, Integer wheret, Integer m, Integer n, const Complex a[], Integer tda, const Complex zeta[],
            Integer ncolb, Complex b[], Integer tdb, KorError *fail)
{
    using namespace kor::linalg;
    const kor::Report report{"f01rdc", fail};
    if (trans != NoTranspose && trans != ConjugateTranspose) return report.error<NE_BAD_PARAM>("trans");
    if (!is_place(wheret)) return report.error<NE_BAD_PARAM>("wheret");
    if (shorter(report, "m", m, "n", n) || negative(report, "n", n) || shorter(report, "tda", tda, "n", n)) return;
    if (negative(report, "ncolb", ncolb) || shorter(report, "tdb", tdb, "ncolb", ncolb)) return;
    const Scalars<Complex> scalars{wheret, n, a, tda, zeta};
    const kor::Workspace<Complex> work{reflection_work(m, ncolb)};
    if (no_memory(report, scalars && work)) return;

    qr_apply(trans != NoTranspose, m, n, a, tda, scalars.data(), ncolb, b, tdb, work.data());
    report.success();
}
