// f06phc: product of a real triangular packed matrix and a vector (dtpmv).
#include <kor/f06.h>

#include "linalg/matrix_vector.hpp"

void f06phc(Integer uplo, Integer trans, Integer diag, Integer n, const double ap[], double x[], Integer incx)
{
    kor::linalg::tpmv("f06phc/dtpmv", uplo, trans, diag, n, ap, x, incx);
}
