// c06gbc: the conjugate of a Hermitian sequence.
#include <kor/c06.h>

#include "transforms/arguments.hpp"
#include "transforms/hermitian.hpp"

using namespace kor::transforms;

void c06gbc(Integer n, double x[], KorError *fail)
{
    const kor::Report report{"c06gbc", fail};
    if (!positive(report, "n", n)) return;

    conjugate_packed(n, x);
    report.success();
}
