// How the outcomes of the Bessel kernels are reported, wherever the arguments were not the cause.
#pragma once

#include "frame/report.hpp"
#include "special/bessel_complex.hpp"

namespace kor::special {

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

} // namespace kor::special
