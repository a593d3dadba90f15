// f06rac: norm of a real rectangular matrix.
#include <kor/f06.h>

#include "linalg/arguments.hpp"
#include "linalg/matrix_norm.hpp"

double f06rac(Integer norm, Integer m, Integer n, const double a[], Integer tda)
{
    using namespace kor::linalg;
    if (!accepted("f06rac", argument(1, is_norm(norm)), argument(2, m >= 0), argument(3, n >= 0),
                  argument(5, row_fits(tda, n))))
        return 0.0;
    return matrix_norm(norm, General, false, m, n, a, tda);
}
