// f02avc: all eigenvalues of a real symmetric tridiagonal matrix.
#include <kor/f02.h>

#include "linalg/tridiagonal_step.hpp"

void f02avc(Integer n, double eps, double d[], double e[], KorError *fail)
{
    using namespace kor::linalg;
    const kor::Report report{"f02avc", fail};
    if (below_one(report, "n", n)) return;
    iterate_and_report(report, n, eps, d, e, NoRows{});
}
