// f02ayc: all eigenvalues and eigenvectors of a Hermitian matrix that was reduced to a real tridiagonal one.
#include <kor/f02.h>

#include "linalg/tridiagonal_step.hpp"

void f02ayc(Integer n, double eps, double d[], double e[], Complex z[], Integer tdz, KorError *fail)
{
    using namespace kor::linalg;
    const kor::Report report{"f02ayc", fail};
    if (below_one(report, "n", n) || shorter(report, "tdz", tdz, "n", n)) return;
    iterate_and_report(report, n, eps, d, e, z, tdz);
}
