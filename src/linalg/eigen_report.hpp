// What the routines of chapter f02 test and report alike.
#pragma once

#include <cstddef>

#include "frame/report.hpp"
#include "linalg/dense_arguments.hpp"
#include "linalg/symmetric_eigen.hpp"

namespace kor::linalg {

inline bool order_refused(const Report &report, Integer n, Integer tda)
{
    return below_one(report, "n", n) || shorter(report, "tda", tda, "n", n);
}

inline bool diagonal_refused(const Report &report, Integer n, const Complex *a, Integer tda)
{
    for (std::ptrdiff_t i = 0; i < n; ++i)
        if (a[i * tda + i].im != 0.0) {
            report.error<NE_DIAG_IMAG_NON_ZERO>(i, i);
            return true;
        }
    return false;
}

inline void report_outcome(const Report &report, EigenOutcome outcome, Integer n)
{
    switch (outcome) {
    case EigenOutcome::success:
        return report.success();
    case EigenOutcome::no_memory:
        return report.error<NE_ALLOC_FAIL>();
    case EigenOutcome::not_positive_definite:
        return report.error<NE_NOT_POS_DEF>();
    case EigenOutcome::no_convergence:
        return report.error<NE_TOO_MANY_ITERATIONS>(iteration_limit(n));
    }
}

// The accuracy asked for of an iteration: anything below the precision, or NaN, means the precision.
constexpr double effective_precision(double eps, double precision) { return eps > precision ? eps : precision; }

} // namespace kor::linalg
