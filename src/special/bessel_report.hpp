// How the outcomes of the Bessel kernels are reported, and the bodies that twins with and without scaling share.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "frame/report.hpp"
#include "special/bessel_complex.hpp"
#include "special/bessel_fractional.hpp"

namespace kor::special {

// Outcomes that do not lie in the arguments.
inline void report_outcome(const Report &report, Integer status)
{
    switch (status) {
    case kBesselDone:
        return report.success();
    case kBesselOverflow:
        return report.error<NE_OVERFLOW_LIKELY>();
    case kBesselSomeLoss:
        return report.error<NW_SOME_PRECISION_LOSS>();
    case kBesselTotalLoss:
        return report.error<NE_TOTAL_PRECISION_LOSS>();
    case kBesselNotTerminated:
        return report.error<NE_TERMINATION_FAILURE>();
    default:
        return report.error<NE_INTERNAL_ERROR>();
    }
}

// I of order nu/4 by this kernel.
template <class Kernel>
double reported_first_kind(const Report &report, Kernel kernel, double x, Integer nu)
{
    if (std::isnan(x)) return x;
    double value = 0.0;
    const Integer status = kernel(x, nu, &value);
    report.set_errnum(status);
    if (status != kBesselArgument)
        report_outcome(report, status);
    else if (nu < 0 && x <= 0.0)
        report.error<NE_REAL_INT>("x", x, "nu", nu, "x > 0.0 when nu < 0");
    else if (nu > 0 && x < 0.0)
        report.error<NE_REAL_INT>("x", x, "nu", nu, "x >= 0.0 when nu > 0");
    else
        report.error<NE_INT>("nu", nu, "1 <= abs(nu) <= 3");
    return value;
}

// K of order nu/4 likewise.
template <class Kernel>
double reported_second_kind(const Report &report, Kernel kernel, double x, Integer nu)
{
    if (std::isnan(x)) return x;
    double value = 0.0;
    const Integer status = kernel(x, nu, &value);
    report.set_errnum(status);
    if (status != kBesselArgument)
        report_outcome(report, status);
    else if (x <= 0.0)
        report.error<NE_REAL>("x", x, "x > 0.0");
    else
        report.error<NE_INT>("nu", nu, "1 <= abs(nu) <= 3");
    return value;
}

// K of the orders ia/ja + k.
template <class Kernel>
void report_sequence_of_second_kind(const Report &report, Kernel kernel, double x, Integer ia, Integer ja, Integer nl,
                                    double b[])
{
    const Integer status = kernel(x, ia, ja, nl, b);
    report.set_errnum(status);
    if (status != kBesselArgument)
        report_outcome(report, status);
    else if (!(x > 0.0))
        report.error<NE_REAL>("x", x, "x > 0.0");
    else if (!valid_order_pair(ia, ja))
        report.error<NE_INT_2>("ia", ia, "ja", ja, "ia and ja must constitute a valid pair (ia,ja)");
    else
        report.error<NE_INT>("nl", nl, "0 <= nl <= 100");
}

// I or J of orders rising or falling from a.
template <class Kernel>
void report_sequence_of_first_kind(const Report &report, Kernel kernel, double x, double a, Integer nl, Complex b[])
{
    const Integer status = kernel(x, a, nl, b);
    report.set_errnum(status);
    if (status != kBesselArgument)
        report_outcome(report, status);
    else if (x == 0.0 && nl < 0)
        report.error<NE_REAL_INT>("x", x, "nl", nl, "x != 0.0 when nl < 0");
    else if (!(a >= 0.0 && a < 1.0))
        report.error<NE_REAL>("a", a, "0.0 <= a < 1.0");
    else if (!valid_sequence_length(nl))
        report.error<NE_INT>("nl", nl, "abs(nl) <= 101");
    else // x is not a number: neither are the values, and nothing is reported
        std::fill_n(b, std::abs(nl) + 1, Complex{x, x});
}

} // namespace kor::special
