// s18efc: the modified Bessel function K of order nu/4.
#include <kor/s18.h>

#include "special/bessel_report.hpp"

double s18efc(double x, Integer nu, KorError *fail)
{
    const kor::Report report{"s18efc", fail};
    return kor::special::reported_second_kind(report, kor::special::s18eff_f, x, nu);
}
