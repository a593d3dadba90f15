// s18ehc: the scaled modified Bessel function exp(x) K at a sequence of orders ia/ja + k.
#include <kor/s18.h>

#include "special/bessel_report.hpp"

void s18ehc(double x, Integer ia, Integer ja, Integer nl, double b[], KorError *fail)
{
    const kor::Report report{"s18ehc", fail};
    kor::special::report_sequence_of_second_kind(report, kor::special::s18ehf_f, x, ia, ja, nl, b);
}
