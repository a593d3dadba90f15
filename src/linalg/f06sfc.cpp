// f06sfc: product of a complex triangular matrix and a vector (ztrmv).
#include <kor/f06.h>

#include "linalg/matrix_vector.hpp"

void f06sfc(Integer uplo, Integer trans, Integer diag, Integer n, const Complex a[], Integer tda, Complex x[],
            Integer incx)
{
    kor::linalg::trmv("f06sfc/ztrmv", uplo, trans, diag, n, a, tda, x, incx);
}
