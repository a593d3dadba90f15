// f06ppc: update of rank 1 of a real symmetric matrix (dsyr).
#include <kor/f06.h>

#include "linalg/matrix_vector.hpp"

void f06ppc(Integer uplo, Integer n, double alpha, const double x[], Integer incx, double a[], Integer tda)
{
    kor::linalg::her("f06ppc/dsyr", uplo, n, alpha, x, incx, a, tda);
}
