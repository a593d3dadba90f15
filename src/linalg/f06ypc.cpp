// f06ypc: update of rank k of a real symmetric matrix (dsyrk).
#include <kor/f06.h>

#include "linalg/matrix_matrix.hpp"

void f06ypc(Integer uplo, Integer trans, Integer n, Integer k, double alpha, const double a[], Integer tda, double beta,
            double c[], Integer tdc)
{
    kor::linalg::syrk("f06ypc/dsyrk", uplo, trans, n, k, alpha, a, tda, beta, c, tdc);
}
