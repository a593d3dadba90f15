// f06qfc: copies a real matrix, or a triangle of it.
#include <kor/f06.h>

#include "linalg/matrix.hpp"

void f06qfc(Integer matrix, Integer m, Integer n, const double a[], Integer tda, double b[], Integer tdb)
{
    kor::linalg::copy_matrix("f06qfc", matrix, m, n, a, tda, b, tdb);
}
