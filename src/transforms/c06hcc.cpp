// c06hcc: quarter-wave sine transforms of several sequences.
#include <kor/c06.h>

#include "transforms/arguments.hpp"
#include "transforms/quarter_wave.hpp"

using namespace kor::transforms;

void c06hcc(Integer direct, Integer m, Integer n, double x[], const double trig[], KorError *fail)
{
    const kor::Report report{"c06hcc", fail};
    if (direct != Kor_ForwardTransform && direct != Kor_BackwardTransform) return report.error<NE_BAD_PARAM>("direct");
    if (!positive(report, "m", m) || !positive(report, "n", n)) return;
    if (!table_fits(report, "n", n, "trig", trig)) return;

    const auto transform = direct == Kor_ForwardTransform ? quarter_wave_forward : quarter_wave_backward;
    if (!transform(QuarterWave::sine, m, n, x, trig)) return report.error<NE_ALLOC_FAIL>();
    report.success();
}
