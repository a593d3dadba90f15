// c06ecc: the transform of a complex sequence, in place.
#include <kor/c06.h>

#include "transforms/arguments.hpp"

using namespace kor::transforms;

void c06ecc(Integer n, double x[], double y[], KorError *fail)
{
    const kor::Report report{"c06ecc", fail};
    InPlaceFactors factors;
    if (!suits_in_place(report, n, factors)) return;

    transform_in_place(n, factors, Kind::complex, {x, y}, unitary_scale(n));
    report.success();
}
