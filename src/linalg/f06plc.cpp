// f06plc: solves a system with a real triangular packed matrix (dtpsv).
#include <kor/f06.h>

#include "linalg/matrix_vector.hpp"

void f06plc(Integer uplo, Integer trans, Integer diag, Integer n, const double ap[], double x[], Integer incx)
{
    kor::linalg::tpsv("f06plc/dtpsv", uplo, trans, diag, n, ap, x, incx);
}
