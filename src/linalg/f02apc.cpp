// f02apc: all eigenvalues of a real upper Hessenberg matrix.
#include <kor/f02.h>

#include "linalg/hessenberg_step.hpp"

void f02apc(Integer n, double eps, double h[], Integer tdh, double wr[], double wi[], Integer count[], KorError *fail)
{
    using namespace kor::linalg;
    const kor::Report report{"f02apc", fail};
    if (below_one(report, "n", n) || shorter(report, "tdh", tdh, "n", n)) return;
    iterate_and_report(report, n, {0, n - 1}, eps, h, tdh, nullptr, n, wr, wi, count);
}
