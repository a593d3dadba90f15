// s18ekc: the Bessel function J at a sequence of orders, rising or falling from a.
#include <kor/s18.h>

#include "special/bessel_report.hpp"

void s18ekc(double x, double a, Integer nl, Complex b[], KorError *fail)
{
    const kor::Report report{"s18ekc", fail};
    kor::special::report_sequence_of_first_kind(report, kor::special::s18ekf_f, x, a, nl, b);
}
