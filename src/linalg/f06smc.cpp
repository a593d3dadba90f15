// f06smc: adds a multiple of the outer product of two complex vectors, the second not conjugated, to a matrix (zgeru).
#include <kor/f06.h>

#include "linalg/matrix_vector.hpp"

void f06smc(Integer m, Integer n, Complex alpha, const Complex x[], Integer incx, const Complex y[], Integer incy,
            Complex a[], Integer tda)
{
    kor::linalg::geru("f06smc/zgeru", m, n, alpha, x, incx, y, incy, a, tda);
}
