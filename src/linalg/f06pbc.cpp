// f06pbc: product of a real band matrix and a vector (dgbmv).
#include <kor/f06.h>

#include "linalg/matrix_vector.hpp"

void f06pbc(Integer trans, Integer m, Integer n, Integer kl, Integer ku, double alpha, const double a[], Integer tda,
            const double x[], Integer incx, double beta, double y[], Integer incy)
{
    kor::linalg::gbmv("f06pbc/dgbmv", trans, m, n, kl, ku, alpha, a, tda, x, incx, beta, y, incy);
}
