// f02avc: all eigenvalues of a real symmetric tridiagonal matrix.
#include <kor/f02.h>

#include "linalg/tridiagonal_step.hpp"

void f02avc(Integer n, double eps, double d[], double e[], KorError *fail)
{
    using namespace kor::linalg;
    const kor::Report report{"f02avc", fail};
    if (less_than(report, "n", n, 1)) return;
    iterate_and_report(report, n, eps, d, e, NoRows{});
}
