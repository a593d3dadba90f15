// f01agc: reduces a real symmetric matrix to tridiagonal form.
#include <kor/f01.h>

#include "linalg/tridiagonal.hpp"

void f01agc(Integer n, double atol, double a[], Integer tda, double d[], double e[], double e2[])
{
    if (n < 1 || tda < n) return;
    kor::linalg::tridiagonal_form(false, n, a, tda, d, e, e2, atol);
    for (Integer i = 0; i < n; ++i) e2[i] = e[i] * e[i];
}
