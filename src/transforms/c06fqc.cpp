// c06fqc: transforms of several Hermitian sequences.
#include <kor/c06.h>

#include "transforms/arguments.hpp"
#include "transforms/rows.hpp"

using namespace kor::transforms;

void c06fqc(Integer m, Integer n, double x[], const double trig[], KorError *fail)
{
    const kor::Report report{"c06fqc", fail};
    if (!both_positive(report, m, n)) return;
    if (!table_fits(report, "n", n, "trig", trig)) return;

    if (!c06fqx(m, n, x, trig)) return report.error<NE_ALLOC_FAIL>();
    report.success();
}
