// f02ecc: selected eigenvalues and eigenvectors of a real general matrix.
#include <kor/f02.h>

#include "linalg/selected_eigen.hpp"

void f02ecc(Integer crit, Integer n, double a[], Integer tda, double wl, double wu, Integer mest, Integer *m,
            Complex w[], Complex v[], Integer tdv, KorError *fail)
{
    const kor::Report report{"f02ecc", fail};
    kor::linalg::selected_eigenvectors(report, crit, n, a, tda, wl, wu, mest, m, w, v, tdv);
}
