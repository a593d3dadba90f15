// c06gcc: the conjugate of a complex sequence.
#include <kor/c06.h>

#include "transforms/arguments.hpp"

using namespace kor::transforms;

void c06gcc(Integer n, double y[], KorError *fail)
{
    const kor::Report report{"c06gcc", fail};
    if (!positive(report, "n", n)) return;

    for (Index k = 0; k < n; ++k) y[k] = -y[k];
    report.success();
}
