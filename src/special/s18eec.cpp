// s18eec: the modified Bessel function I of order nu/4.
#include <kor/s18.h>

#include "special/bessel_report.hpp"

double s18eec(double x, Integer nu, KorError *fail)
{
    const kor::Report report{"s18eec", fail};
    return kor::special::reported_first_kind(report, kor::special::s18eef_f, x, nu);
}
