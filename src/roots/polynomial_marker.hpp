// What c02afc and c02agc leave for zeros that they could not find, and how they report.
#pragma once

#include "frame/constants.hpp"
#include "frame/report.hpp"
#include "roots/polynomial_zeros.hpp"

namespace kor::roots {

inline constexpr double kMarker = -1.0 / (kSafeSmall * 1.4142135623730951);
inline constexpr Complex kZeroNotFound{kMarker, kMarker};

inline void report_zeros(const Report &report, PolynomialStatus status)
{
    switch (status) {
    case PolynomialStatus::found:
        return report.success();
    case PolynomialStatus::not_converged:
        return report.error<NE_POLY_NOT_CONV>();
    case PolynomialStatus::underflow:
        return report.error<NE_POLY_UNFLOW>();
    case PolynomialStatus::overflow:
        return report.error<NE_POLY_OVFLOW>();
    }
    report.error<NE_INTERNAL_ERROR>();
}

} // namespace kor::roots
