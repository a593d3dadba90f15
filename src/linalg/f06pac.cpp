// f06pac: product of a real general matrix and a vector (dgemv).
#include <kor/f06.h>

#include "linalg/matrix_vector.hpp"

void f06pac(Integer trans, Integer m, Integer n, double alpha, const double a[], Integer tda, const double x[],
            Integer incx, double beta, double y[], Integer incy)
{
    kor::linalg::gemv("f06pac/dgemv", trans, m, n, alpha, a, tda, x, incx, beta, y, incy);
}
