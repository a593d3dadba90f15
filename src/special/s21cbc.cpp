// s21cbc: Jacobi's elliptic functions sn, cn and dn of a complex argument.
#include <kor/s21.h>

#include <cmath>

#include "frame/report.hpp"
#include "special/jacobi.hpp"

namespace {

constexpr double kLargestPart = 0x1p511; // 1 / sqrt(x02amc)

Complex complex_of(std::complex<double> z) { return {z.real(), z.imag()}; }

} // namespace

void s21cbc(Complex z, double ak2, Complex *sn, Complex *cn, Complex *dn, KorError *fail)
{
    const kor::Report report{"s21cbc", fail};
    if (std::isnan(z.re) || std::isnan(z.im) || std::isnan(ak2)) {
        *sn = *cn = *dn = {NAN, NAN};
        return;
    }
    if (std::fabs(z.re) > kLargestPart || std::fabs(z.im) > kLargestPart)
        return report.error<NE_COMPLEX>("z", z.re, z.im,
                                        "abs(z.re) <= lambda && abs(z.im) <= lambda,\n"
                                        " where lambda = 1 / pow(X02AMC,0.5)");
    if (ak2 < 0.0 || ak2 > 1.0) return report.error<NE_REAL>("ak2", ak2, "0.0 <= ak2 <= 1.0");

    const auto values = kor::special::jacobi_elliptic(std::complex<double>{z.re, z.im}, ak2);
    *sn = complex_of(values.sn);
    *cn = complex_of(values.cn);
    *dn = complex_of(values.dn);
    report.success();
}
