// f06sbc: product of a complex band matrix and a vector (zgbmv).
#include <kor/f06.h>

#include "linalg/matrix_vector.hpp"

void f06sbc(Integer trans, Integer m, Integer n, Integer kl, Integer ku, Complex alpha, const Complex a[], Integer tda,
            const Complex x[], Integer incx, Complex beta, Complex y[], Integer incy)
{
    kor::linalg::gbmv("f06sbc/zgbmv", trans, m, n, kl, ku, alpha, a, tda, x, incx, beta, y, incy);
}
