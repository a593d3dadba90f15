// Eigenvalues of a general matrix in a range of moduli or of real parts, and their eigenvectors by inverse iteration.
#pragma once

#include "frame/report.hpp"

namespace kor::linalg {

void selected_eigenvectors(const Report &report, Integer crit, Integer n, const double *a, Integer tda, double wl,
                           double wu, Integer mest, Integer *m, Complex *w, Complex *v, Integer tdv);
void selected_eigenvectors(const Report &report, Integer crit, Integer n, const Complex *a, Integer tda, double wl,
                           double wu, Integer mest, Integer *m, Complex *w, Complex *v, Integer tdv);

} // namespace kor::linalg
