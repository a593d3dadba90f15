// f01ajc: reduces a real symmetric matrix to tridiagonal form, and forms the orthogonal matrix that does it.
#include <kor/f01.h>

#include <algorithm>

#include "linalg/transpose.hpp"
#include "linalg/tridiagonal.hpp"

void f01ajc(Integer n, double atol, const double a[], Integer tda, double d[], double e[], double z[], Integer tdz)
{
    if (n < 1 || tda < n || tdz < n) return;
    if (z != a)
        for (std::ptrdiff_t i = 0; i < n; ++i) std::copy(a + i * tda, a + i * tda + i + 1, z + i * tdz);
    kor::linalg::tridiagonal_form(true, n, z, tdz, d, e, d, atol);
    kor::linalg::transpose_in_place<false>(n, z, tdz);
}
