// f04akc: solution of complex linear systems with the factors of f03ahc.
#include <kor/f04.h>

#include "frame/report.hpp"
#include "linalg/dense_arguments.hpp"
#include "linalg/lu.hpp"

void f04akc(Integer n, Integer nrhs, const Complex a[], Integer tda, const Integer pivot[], Complex b[], Integer tdb,
            KorError *fail)
{
    using namespace kor::linalg;
    const kor::Report report{"f04akc", fail};
    if (below_one(report, "n", n) || shorter(report, "tda", tda, "n", n)) return;
    if (below_one(report, "nrhs", nrhs) || shorter(report, "tdb", tdb, "nrhs", nrhs)) return;
    if (!interchanges_are_sound(n, pivot)) return report.error<NE_BAD_PARAM>("pivot");
    if (!diagonal_is_sound(n, a, tda)) return report.error<NE_SINGULAR>();

    lu_solve(n, nrhs, a, tda, pivot, b, tdb);
    report.success();
}
