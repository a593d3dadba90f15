// f02xuc: singular value decomposition of a complex upper triangular matrix.
#include <kor/f02.h>

#include "linalg/singular_report.hpp"

void f02xuc(Integer n, Complex a[], Integer tda, Integer ncolb, Complex b[], Integer tdb, Boolean wantq, Complex q[],
            Integer tdq, double sv[], Boolean wantp, Integer *iter, double e[], Integer *failinfo, KorError *fail)
{
    const kor::Report report{"f02xuc", fail};
    kor::linalg::decompose_triangle(report, n, a, tda, ncolb, b, tdb, wantq != 0, q, tdq, sv, wantp != 0, iter, e,
                                    failinfo);
}
