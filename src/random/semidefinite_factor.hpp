// Cholesky factor of a positive semi-definite matrix. M. J. R. Healy, Appl. Statist. 17 (1968) 195-197 (AS 6).
#pragma once

#include <kor.h>

namespace kor::random {

// Factors c = L L' in place. On entry and exit the lower triangle lies by columns, the first of n elements, then n - 1, ...
// A pivot within `tolerance` times its diagonal element of 0 is taken as 0, and its column too: it must be small as
// well. `diagonal` is that of c as it was. False when c is not positive semi-definite to this tolerance.
bool factor_semidefinite(Integer n, double tolerance, double packed[], const double diagonal[]);

} // namespace kor::random
