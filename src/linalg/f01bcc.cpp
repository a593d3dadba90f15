// f01bcc: reduces a complex Hermitian matrix to real tridiagonal form, and forms the unitary matrix that does it.
#include <kor/f01.h>

#include "linalg/transpose.hpp"
#include "linalg/tridiagonal.hpp"

void f01bcc(Integer n, double tol, Complex a[], Integer tda, double d[], double e[], Complex tau[])
{
    if (n < 1 || tda < n) return;
    for (std::ptrdiff_t i = 0; i < n; ++i) a[i * tda + i].im = 0.0;
    kor::linalg::tridiagonal_form(true, n, a, tda, d, e, tau, tol);
    kor::linalg::transpose_in_place<false>(n, a, tda);
}
