// f02wec: singular value decomposition of a real rectangular matrix.
#include <kor/f02.h>

#include "linalg/singular_report.hpp"

void f02wec(Integer m, Integer n, double a[], Integer tda, Integer ncolb, double b[], Integer tdb, Boolean wantq,
            double q[], Integer tdq, double sv[], Boolean wantp, double pt[], Integer tdpt, Integer *iter, double e[],
            Integer *failinfo, KorError *fail)
{
    const kor::Report report{"f02wec", fail};
    kor::linalg::decompose_rectangle(report, m, n, a, tda, ncolb, b, tdb, wantq != 0, q, tdq, sv, wantp != 0, pt, tdpt,
                                     iter, e, failinfo);
}
