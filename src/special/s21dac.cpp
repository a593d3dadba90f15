// s21dac: the elliptic integral of the second kind for complex argument.
//
// With w = 1 + z^2, v = 1 + akp^2 z^2 and k^2 = 1 - akp^2 the integral is, by Carlson's forms, both
//   akp^2 (z RF(1, v, w) + k^2/3 z^3 RD(1, w, v)) + k^2 z / sqrt(w v)   and   z RF(1, v, w) - k^2/3 z^3 RD(1, v, w).
// The first has no cancellation for real z and akp <= 1, the second none for akp > 1, nor a pole where v vanishes.
#include <kor/s21.h>

#include <cmath>

#include "frame/report.hpp"
#include "special/carlson.hpp"

namespace {

using kor::special::Cplx;

const double kLimit = std::exp2(1022.0 / 6.0); // (1 / x02amc)^(1/6)

bool second_kind(Cplx z, double akp, Cplx &value)
{
    using namespace kor::special;
    constexpr double kNearPole = 0.25;
    const double akp2 = akp * akp, k2 = (1.0 - akp) * (1.0 + akp);
    const Cplx z2 = z * z, w = 1.0 + z2, v = 1.0 + akp2 * z2;
    if (akp2 == 0.0) {
        value = z / std::sqrt(w);
        return true;
    }
    Cplx rf, rd;
    const bool plain = k2 < 0.0 || std::abs(v) < kNearPole;
    const bool converged =
        carlson_rf(Cplx{1.0}, v, w, rf) && (plain ? carlson_rd(Cplx{1.0}, v, w, rd) : carlson_rd(Cplx{1.0}, w, v, rd));
    value = plain ? z * (rf - k2 / 3.0 * z2 * rd)
                  : z * (akp2 * (rf + k2 / 3.0 * z2 * rd) + k2 / (std::sqrt(w) * std::sqrt(v)));
    return converged && std::isfinite(value.real()) && std::isfinite(value.imag());
}

} // namespace

Complex s21dac(Complex z, double akp, KorError *fail)
{
    const kor::Report report{"s21dac", fail};
    if (std::isnan(z.re) || std::isnan(z.im) || std::isnan(akp)) return {NAN, NAN};

    const Complex none{0.0, 0.0};
    if (z.re < 0.0) return report.error<NE_COMPLEX>("z", z.re, z.im, "z.re >= 0.0"), none;
    if (z.re > kLimit) return report.error<NE_COMPLEX>("z", z.re, z.im, "z.re <= (1/x02amc()) ^ (1/6)"), none;
    if (std::fabs(z.im) > kLimit)
        return report.error<NE_COMPLEX>("z", z.re, z.im, "abs(z.im) <= (1/x02amc()) ^ (1/6)"), none;
    if (std::fabs(akp) > kLimit) return report.error<NE_REAL>("akp", akp, "abs(akp) <= (1/x02amc()) ^ (1/6)"), none;

    Cplx value;
    // A zero real part counts as positive: the path keeps to the right of the imaginary axis.
    if (!second_kind({std::fabs(z.re), z.im}, std::fabs(akp), value)) return report.error<NE_S21_CONV>(), none;
    report.success();
    return {value.real(), value.imag()};
}
