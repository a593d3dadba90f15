// c06frc: transforms of several complex sequences.
#include <kor/c06.h>

#include "transforms/arguments.hpp"
#include "transforms/rows.hpp"

using namespace kor::transforms;

void c06frc(Integer m, Integer n, double x[], double y[], const double trig[], KorError *fail)
{
    const kor::Report report{"c06frc", fail};
    if (!both_positive(report, m, n)) return;
    if (!table_fits(report, "n", n, "trig", trig)) return;

    if (!c06frx(m, n, x, y, trig)) return report.error<NE_ALLOC_FAIL>();
    report.success();
}
