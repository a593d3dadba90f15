// c06gqc: the conjugates of several Hermitian sequences.
#include <kor/c06.h>

#include "transforms/arguments.hpp"
#include "transforms/hermitian.hpp"

using namespace kor::transforms;

void c06gqc(Integer m, Integer n, double x[], KorError *fail)
{
    const kor::Report report{"c06gqc", fail};
    if (!both_positive(report, m, n)) return;

    for (Index i = 0; i < m; ++i) conjugate_packed(n, x + i * n);
    report.success();
}
