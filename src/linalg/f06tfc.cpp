// f06tfc: copies a complex matrix, or a triangle of it.
#include <kor/f06.h>

#include "linalg/matrix.hpp"

void f06tfc(Integer matrix, Integer m, Integer n, const Complex a[], Integer tda, Complex b[], Integer tdb)
{
    kor::linalg::copy_matrix("f06tfc", matrix, m, n, a, tda, b, tdb);
}
