// f02xec: singular value decomposition of a complex rectangular matrix.
#include <kor/f02.h>

#include "linalg/singular_report.hpp"

void f02xec(Integer m, Integer n, Complex a[], Integer tda, Integer ncolb, Complex b[], Integer tdb, Boolean wantq,
            Complex q[], Integer tdq, double sv[], Boolean wantp, Complex pt[], Integer tdpt, Integer *iter, double e[],
            Integer *failinfo, KorError *fail)
{
    const kor::Report report{"f02xec", fail};
    kor::linalg::decompose_rectangle(report, m, n, a, tda, ncolb, b, tdb, wantq != 0, q, tdq, sv, wantp != 0, pt, tdpt,
                                     iter, e, failinfo);
}
