// How an iteration ends, and the test by which it does.
#pragma once

#include <algorithm>
#include <cmath>

#include "frame/constants.hpp"

namespace kor::sparse {

enum class Solved { converged, accuracy_limit, not_converged, not_definite, preconditioner_not_definite, no_memory };

// Ends when |r| <= tol (|A| |x| + |b|): x is then the exact solution for data that are changed by not more than about tol.
struct StoppingTest {
    double tol;
    double matrix_norm;
    double right_hand_norm = 0.0;

    // Below this no residual can be computed to mean anything.
    static constexpr double kLeastTolerance = 10.0 * kPrecision;
    static double tolerance(double asked)
    {
        return asked > 0.0 ? std::max(asked, kLeastTolerance) : std::sqrt(kPrecision);
    }

    double bound(double solution_norm) const { return tol * (matrix_norm * solution_norm + right_hand_norm); }
    // An overflow of the bound proves nothing.
    bool is_met(double residual_norm, double solution_norm) const
    {
        const double limit = bound(solution_norm);
        return residual_norm <= limit && std::isfinite(limit);
    }
};

// What to make of an iterate of which a recurrence says that it passes the test, when its residual has been computed anew.
// One that passes within this factor is good enough; beyond it the iteration starts again from there.
inline constexpr double kForgivenFactor = 10.0;

// A residual that new starts do not reduce by half any more is the least that can be had; the solution is reasonable if it
// is good to half the digits.
inline constexpr double kProgress = 0.5;
inline Solved outcome_of_stagnation(double residual_norm, double bound, double tol)
{
    return residual_norm <= bound * (std::sqrt(kPrecision) / tol) ? Solved::accuracy_limit : Solved::not_converged;
}

} // namespace kor::sparse
