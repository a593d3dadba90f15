// s18edc: the scaled modified Bessel function exp(x) K of order nu/4.
#include <kor/s18.h>

#include "special/bessel_report.hpp"

double s18edc(double x, Integer nu, KorError *fail)
{
    const kor::Report report{"s18edc", fail};
    return kor::special::reported_second_kind(report, kor::special::s18edf_f, x, nu);
}
