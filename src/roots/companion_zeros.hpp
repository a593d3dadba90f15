// Zeros of a real cubic or quartic with error estimates, behind c02akc and c02alc.
#pragma once

#include <kor.h>

#include "frame/report.hpp"

namespace kor::roots {

inline constexpr int kMaxCompanionDegree = 4;

// Coefficients from the highest power down, n + 1 of them. Checks, work and reports; `leading` is the name of a[0].
void companion_zeros(const Report &report, Integer n, const double *a, const char *leading, const char *constraint,
                     double *zeror, double *zeroi, double *errest);

} // namespace kor::roots
