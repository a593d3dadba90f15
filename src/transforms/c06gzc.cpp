// c06gzc: the table of roots of unity for the transforms of several sequences.
#include <kor/c06.h>

#include "transforms/arguments.hpp"

using namespace kor::transforms;

void c06gzc(Integer n, double trig[], KorError *fail)
{
    const kor::Report report{"c06gzc", fail};
    if (!positive(report, "n", n)) return;

    fill_root_table(n, trig);
    report.success();
}
