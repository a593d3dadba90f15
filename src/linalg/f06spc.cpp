// f06spc: update of rank 1 of a complex Hermitian matrix (zher).
#include <kor/f06.h>

#include "linalg/matrix_vector.hpp"

void f06spc(Integer uplo, Integer n, double alpha, const Complex x[], Integer incx, Complex a[], Integer tda)
{
    kor::linalg::her("f06spc/zher", uplo, n, alpha, x, incx, a, tda);
}
