// f06rjc: norm of a real trapezoidal or triangular matrix.
#include <kor/f06.h>

#include "linalg/arguments.hpp"
#include "linalg/matrix_norm.hpp"

double f06rjc(Integer norm, Integer uplo, Integer diag, Integer m, Integer n, const double a[], Integer tda)
{
    using namespace kor::linalg;
    if (!accepted("f06rjc", argument(1, is_norm(norm)), argument(2, is_triangle(uplo)), argument(3, is_diagonal(diag)),
                  argument(4, m >= 0), argument(5, n >= 0), argument(7, row_fits(tda, n))))
        return 0.0;
    const Integer matrix = uplo == UpperTriangle ? UpperTriangular : LowerTriangular;
    return matrix_norm(norm, matrix, diag == UnitTriangular, m, n, a, tda);
}
