// c06ebc: the transform of a Hermitian sequence, in place.
#include <kor/c06.h>

#include "transforms/arguments.hpp"

using namespace kor::transforms;

void c06ebc(Integer n, double x[], KorError *fail)
{
    const kor::Report report{"c06ebc", fail};
    InPlaceFactors factors;
    if (!suits_in_place(report, n, factors)) return;

    transform_in_place(n, factors, Kind::hermitian, {x, nullptr}, unitary_scale(n));
    report.success();
}
