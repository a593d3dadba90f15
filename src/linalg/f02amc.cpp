// f02amc: all eigenvalues and eigenvectors of a real symmetric tridiagonal matrix, or of one that was reduced to it.
#include <kor/f02.h>

#include "linalg/tridiagonal_step.hpp"

void f02amc(Integer n, double eps, double d[], double e[], double z[], Integer tdz, KorError *fail)
{
    using namespace kor::linalg;
    const kor::Report report{"f02amc", fail};
    if (below_one(report, "n", n) || shorter(report, "tdz", tdz, "n", n)) return;
    iterate_and_report(report, n, eps, d, e, z, tdz);
}
