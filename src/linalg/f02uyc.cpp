// f02uyc: singular values of a real bidiagonal matrix, its singular vectors applied to complex matrices.
#include <kor/f02.h>

#include "linalg/singular_report.hpp"

void f02uyc(Integer n, double d[], double e[], Integer ncolb, Complex b[], Integer tdb, Integer nrowy, Complex y[],
            Integer tdy, Integer ncolz, Complex z[], Integer tdz, Integer *iter, Integer *failinfo, KorError *fail)
{
    const kor::Report report{"f02uyc", fail};
    kor::linalg::iterate_on_bidiagonal(report, n, d, e, ncolb, b, tdb, nrowy, y, tdy, ncolz, z, tdz, iter, failinfo);
}
