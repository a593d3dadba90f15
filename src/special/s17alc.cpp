// s17alc: zeros of a Bessel function of real order, or of its derivative.
#include <kor/s17.h>

#include "frame/report.hpp"
#include "special/bessel_zeros.hpp"

void s17alc(double a, Integer n, Integer mode, double rel, double x[], KorError *fail)
{
    constexpr double kLargestOrder = 100000.0;
    const kor::Report report{"s17alc", fail};

    if (!(a >= 0.0)) return report.error<NE_REAL>("a", a, "a >= 0.0");
    if (!(a <= kLargestOrder)) return report.error<NE_REAL>("a", a, "a <= 100000.0");
    if (n < 1) return report.error<NE_INT>("n", n, "n >= 1");
    if (mode < 1 || mode > 4) return report.error<NE_INT>("mode", mode, "1 <= mode <= 4");
    if (!(rel > 0.0)) return report.error<NE_REAL>("rel", rel, "rel > 0");

    // The accuracy asked for is always exceeded.
    if (!kor::special::s17alf_f(a, n, kor::special::ZeroKind{mode}, x)) return report.error<NE_TERMINATION_FAILURE>();
    report.success();
}
