// c06hac: sine transforms of several sequences.
#include <kor/c06.h>

#include "transforms/arguments.hpp"
#include "transforms/symmetric.hpp"

using namespace kor::transforms;

void c06hac(Integer m, Integer n, double x[], const double trig[], KorError *fail)
{
    const kor::Report report{"c06hac", fail};
    if (!positive(report, "m", m) || !positive(report, "n", n)) return;
    if (!table_fits(report, "n", n, "trig", trig)) return;

    if (!symmetric_transform(Symmetry::odd, m, n, x, trig)) return report.error<NE_ALLOC_FAIL>();
    report.success();
}
