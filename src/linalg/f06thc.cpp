// f06thc: fills a complex matrix, or a triangle of it, with one constant on the diagonal and another beside it.
#include <kor/f06.h>

#include "linalg/matrix.hpp"

void f06thc(Integer matrix, Integer m, Integer n, Complex con, Complex diag, Complex a[], Integer tda)
{
    kor::linalg::fill_matrix("f06thc", matrix, m, n, con, diag, a, tda);
}
