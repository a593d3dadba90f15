// c06eac: the transform of a real sequence, in place.
#include <kor/c06.h>

#include "transforms/arguments.hpp"

using namespace kor::transforms;

void c06eac(Integer n, double x[], KorError *fail)
{
    const kor::Report report{"c06eac", fail};
    InPlaceFactors factors;
    if (!suits_in_place(report, n, factors)) return;

    transform_in_place(n, factors, Kind::real, {x, nullptr}, unitary_scale(n));
    report.success();
}
