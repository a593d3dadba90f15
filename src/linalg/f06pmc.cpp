// f06pmc: adds a multiple of the outer product of two real vectors to a matrix (dger).
#include <kor/f06.h>

#include "linalg/matrix_vector.hpp"

void f06pmc(Integer m, Integer n, double alpha, const double x[], Integer incx, const double y[], Integer incy,
            double a[], Integer tda)
{
    kor::linalg::geru("f06pmc/dger", m, n, alpha, x, incx, y, incy, a, tda);
}
