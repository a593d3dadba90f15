// f06slc: solves a system with a complex triangular packed matrix (ztpsv).
#include <kor/f06.h>

#include "linalg/matrix_vector.hpp"

void f06slc(Integer uplo, Integer trans, Integer diag, Integer n, const Complex ap[], Complex x[], Integer incx)
{
    kor::linalg::tpsv("f06slc/ztpsv", uplo, trans, diag, n, ap, x, incx);
}
