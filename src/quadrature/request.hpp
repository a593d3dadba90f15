// What the drivers of the adaptive integrals share: the request as the engines take it, and the end of a run.
#pragma once

#include <cmath>

#include "quadrature/integrators.hpp"
#include "quadrature/progress_record.hpp"

namespace kor::quadrature {

inline Tolerance tolerance_of(const Request &request) { return {std::fabs(request.epsabs), std::fabs(request.epsrel)}; }

// Hands over result and record, then reports.
inline void finish(const Report &report, const AdaptiveResult &outcome, ProgressRecord &work, const Request &request)
{
    *request.result = outcome.result;
    *request.abserr = outcome.error;
    work.publish(request.record);
    report_outcome(report, outcome, {request.max_num_subint, request.epsabs, request.epsrel});
}

// The status after the rule was applied to the whole range; `share` of resabs is what rounding leaves.
inline AdaptiveStatus status_at_start(const RuleValue &whole, double bound, Integer limit, double share)
{
    AdaptiveStatus status = AdaptiveStatus::converged;
    if (limit == 1) status = AdaptiveStatus::limit;
    if (whole.error <= share * kPrecision * whole.resabs && whole.error > bound) status = AdaptiveStatus::roundoff;
    return status;
}

// Bisection with extrapolation from a single sub-interval, by a rule rule(a, b).
template <class Rule>
AdaptiveResult extrapolate_from_one(Subdivision &s, Rule &&rule, double a, double b, Tolerance tolerance)
{
    constexpr double kFirstSmall = 0.375; // of the range: a quarter counts as small, a half does not
    const RuleValue whole = rule(a, b, 0);
    s.start(a, b, whole);
    const double bound = tolerance.bound(whole.result);
    AdaptiveResult outcome{whole.result, whole.error};
    const bool converged = (whole.error <= bound && whole.error != whole.resasc) || whole.error == 0.0;
    if (converged) return outcome;
    outcome.status = status_at_start(whole, bound, s.limit, 100.0);
    if (outcome.status != AdaptiveStatus::converged) return outcome;
    return bisect_and_extrapolate(s, rule, LargeByWidth{kFirstSmall * std::fabs(b - a)}, AlwaysRegular{}, tolerance,
                                  {whole.resabs, true, true});
}

} // namespace kor::quadrature
