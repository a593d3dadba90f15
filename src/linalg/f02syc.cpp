// f02syc: singular values of a real bidiagonal matrix, its singular vectors applied to real matrices.
#include <kor/f02.h>

#include "linalg/singular_report.hpp"

void f02syc(Integer n, double d[], double e[], Integer ncolb, double b[], Integer tdb, Integer nrowy, double y[],
            Integer tdy, Integer ncolz, double z[], Integer tdz, Integer *iter, Integer *failinfo, KorError *fail)
{
    const kor::Report report{"f02syc", fail};
    kor::linalg::iterate_on_bidiagonal(report, n, d, e, ncolb, b, tdb, nrowy, y, tdy, ncolz, z, tdz, iter, failinfo);
}
