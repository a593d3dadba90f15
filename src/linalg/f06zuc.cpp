// f06zuc: update of rank k of a complex symmetric matrix (zsyrk).
#include <kor/f06.h>

#include "linalg/matrix_matrix.hpp"

void f06zuc(Integer uplo, Integer trans, Integer n, Integer k, Complex alpha, const Complex a[], Integer tda,
            Complex beta, Complex c[], Integer tdc)
{
    kor::linalg::syrk("f06zuc/zsyrk", uplo, trans, n, k, alpha, a, tda, beta, c, tdc);
}
