// f02wuc: singular value decomposition of a real upper triangular matrix.
#include <kor/f02.h>

#include "linalg/singular_report.hpp"

void f02wuc(Integer n, double a[], Integer tda, Integer ncolb, double b[], Integer tdb, Boolean wantq, double q[],
            Integer tdq, double sv[], Boolean wantp, Integer *iter, double e[], Integer *failinfo, KorError *fail)
{
    const kor::Report report{"f02wuc", fail};
    kor::linalg::decompose_triangle(report, n, a, tda, ncolb, b, tdb, wantq != 0, q, tdq, sv, wantp != 0, iter, e,
                                    failinfo);
}
