// f06vgc: norm of a complex matrix of a certain type.
#include <kor/f06.h>

#include "linalg/arguments.hpp"
#include "linalg/matrix_norm.hpp"

double f06vgc(Integer norm, Integer matrix, Integer m, Integer n, const Complex a[], Integer tda)
{
    using namespace kor::linalg;
    if (!accepted("f06vgc", argument(1, is_norm(norm)), argument(2, between(matrix, General, HermitianLower)),
                  argument(3, m >= 0), argument(4, n >= 0 && (matrix < SymmetricUpper || n == m)),
                  argument(6, row_fits(tda, n))))
        return 0.0;
    return matrix_norm(norm, matrix, false, m, n, a, tda);
}
