// s18ejc: the modified Bessel function I at a sequence of orders, rising or falling from a.
#include <kor/s18.h>

#include "special/bessel_report.hpp"

void s18ejc(double x, double a, Integer nl, Complex b[], KorError *fail)
{
    const kor::Report report{"s18ejc", fail};
    kor::special::report_sequence_of_first_kind(report, kor::special::s18ejf_f, x, a, nl, b);
}
