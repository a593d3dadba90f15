// s18egc: the modified Bessel function K at a sequence of orders ia/ja + k.
#include <kor/s18.h>

#include "special/bessel_report.hpp"

void s18egc(double x, Integer ia, Integer ja, Integer nl, double b[], KorError *fail)
{
    const kor::Report report{"s18egc", fail};
    kor::special::report_sequence_of_second_kind(report, kor::special::s18egf_f, x, ia, ja, nl, b);
}
