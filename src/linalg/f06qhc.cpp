// f06qhc: fills a real matrix, or a triangle of it, with one constant on the diagonal and another beside it.
#include <kor/f06.h>

#include "linalg/matrix.hpp"

void f06qhc(Integer matrix, Integer m, Integer n, double con, double diag, double a[], Integer tda)
{
    kor::linalg::fill_matrix("f06qhc", matrix, m, n, con, diag, a, tda);
}
