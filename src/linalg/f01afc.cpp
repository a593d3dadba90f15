// f01afc: eigenvectors of A x = lambda B x from those of the standard problem that f01aec made of it.
#include <kor/f01.h>

#include <algorithm>

#include "linalg/symmetric_eigen.hpp"

void f01afc(Integer n, Integer m1, Integer m2, const double b[], Integer tdb, const double dl[], double z[],
            Integer tdz)
{
    if (tdb < n || tdz < n) return;
    kor::linalg::recover_vectors(n, std::max(m1, 1) - 1, std::min(m2, n), b, tdb, dl, z, tdz);
}
