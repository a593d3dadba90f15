// f06shc: product of a complex triangular packed matrix and a vector (ztpmv).
#include <kor/f06.h>

#include "linalg/matrix_vector.hpp"

void f06shc(Integer uplo, Integer trans, Integer diag, Integer n, const Complex ap[], Complex x[], Integer incx)
{
    kor::linalg::tpmv("f06shc/ztpmv", uplo, trans, diag, n, ap, x, incx);
}
