// s18ecc: the scaled modified Bessel function exp(-x) I of order nu/4.
#include <kor/s18.h>

#include "special/bessel_report.hpp"

double s18ecc(double x, Integer nu, KorError *fail)
{
    const kor::Report report{"s18ecc", fail};
    return kor::special::reported_first_kind(report, kor::special::s18ecf_f, x, nu);
}
