// f02gcc: selected eigenvalues and eigenvectors of a complex general matrix.
#include <kor/f02.h>

#include "linalg/selected_eigen.hpp"

void f02gcc(Integer crit, Integer n, Complex a[], Integer tda, double wl, double wu, Integer mest, Integer *m,
            Complex w[], Complex v[], Integer tdv, KorError *fail)
{
    const kor::Report report{"f02gcc", fail};
    kor::linalg::selected_eigenvectors(report, crit, n, a, tda, wl, wu, mest, m, w, v, tdv);
}
