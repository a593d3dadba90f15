// The engine on a finite range with the weight cos(omega x) or sin(omega x), and Fourier integrals over infinite ranges.
#include "quadrature/fourier_range.hpp"

#include <algorithm>

#include "frame/workspace.hpp"
#include "quadrature/infinite_rule.hpp"
#include "quadrature/integrators.hpp"

namespace kor::quadrature {

namespace {

// Sums are regular once the widest sub-interval is short beside the period, so that pairs of points are used throughout.
class ShortBesidePeriod {
  public:
    ShortBesidePeriod(double omega, double range) : omega_{std::fabs(omega)}, regular_{short_enough(range)} {}
    bool regular() const { return regular_; }
    bool becomes_regular(double widest) { return regular_ = short_enough(widest); }

  private:
    bool short_enough(double width) const { return 0.25 * width * omega_ <= 2.0; }
    double omega_;
    bool regular_;
};

} // namespace

AdaptiveResult integrate_fourier_range(Integrand f, double a, double b, double omega, FourierRule &rule, Subdivision &s,
                                       Tolerance tolerance)
{
    const auto weighted = [&](double left, double right, Integer level) { return rule(f, left, right, level); };
    const RuleValue whole = weighted(a, b, 0);
    s.start(a, b, whole);
    const double bound = tolerance.bound(whole.result);
    AdaptiveResult outcome{whole.result, whole.error};
    if (whole.error <= bound) return outcome;
    outcome.status = status_at_start(whole, bound, s.limit, 100.0);
    if (outcome.status != AdaptiveStatus::converged) return outcome;

    const double range = std::fabs(b - a);
    const ShortBesidePeriod regularity{omega, range};
    const bool at_once = regularity.regular();
    const bool first_sum = 0.5 * range * std::fabs(omega) <= 2.0;
    return bisect_and_extrapolate(s, weighted, LargeByWidth{(at_once ? 0.375 : 0.75) * range}, regularity, tolerance,
                                  {whole.resabs, first_sum, at_once});
}

namespace {

constexpr double kShare = 0.9;         // tolerances of successive intervals form a geometric series of this ratio
constexpr double kRest = 1.0 - kShare; // and of this first term
constexpr Integer kLeastIntervals = 6; // before the sum alone may be good enough
constexpr int kFruitless = 15;

const char *ordinal_suffix(Integer n)
{
    if (n / 10 % 10 == 1) return "th";
    switch (n % 10) {
    case 1:
        return "st";
    case 2:
        return "nd";
    case 3:
        return "rd";
    default:
        return "th";
    }
}

// One report for each interval that gave trouble, while the work goes on.
void report_interval(const Report &report, Integer ordinal, AdaptiveStatus status, double left, double right,
                     Integer max_num_subint)
{
    const char *suffix = ordinal_suffix(ordinal);
    const auto flag = static_cast<Integer>(status);
    switch (status) {
    case AdaptiveStatus::limit:
        return report.error<NE_QUAD_MAX_SUBDIV_SPEC_INT>(ordinal, suffix, flag, left, right, "max_num_subint",
                                                         max_num_subint);
    case AdaptiveStatus::roundoff:
        return report.error<NE_QUAD_ROUNDOFF_TOL_SPEC_INT>(ordinal, suffix, flag, left, right);
    case AdaptiveStatus::bad_interval:
        return report.error<NE_QUAD_BAD_SPEC_INT>(ordinal, suffix, flag, left, right);
    case AdaptiveStatus::extrapolation:
        return report.error<NE_QUAD_NO_CONV_SPEC_INT>(ordinal, suffix, flag, left, right);
    case AdaptiveStatus::divergent:
        return report.error<NE_QUAD_DIVERGENCE_SPEC_INT>(ordinal, suffix, flag, left, right);
    case AdaptiveStatus::converged:
    case AdaptiveStatus::invalid:
        return;
    }
}

enum class FourierStatus { converged, bad_intervals, too_many_intervals, no_limit };

struct FourierOutcome {
    double result = 0.0, error = 0.0;
    FourierStatus status = FourierStatus::converged;
    Integer intervals = 0, most_subintervals = 0, evaluations = 0;
};

struct IntervalArrays {
    double *results, *errors;
    Integer *flags;
    Integer size;
};

// The integral as the limit of the sums over intervals of an odd number of half periods (R. Piessens et al., QUADPACK).
FourierOutcome sum_intervals(const Report &report, Integrand f, double a, double omega, bool sine, double epsabs,
                             Subdivision &s, const IntervalArrays &intervals)
{
    FourierRule rule{omega, sine};
    const double length = (2.0 * std::trunc(std::fabs(omega)) + 1.0) * kPi / std::fabs(omega);
    const double first_tolerance = epsabs > kTiny / kRest ? epsabs * kRest : epsabs;
    double tolerance = first_tolerance, share = 1.0, largest_error = 0.0, error_sum = 0.0, drift = 0.0;
    double partial_sum = 0.0, left = a;
    bool trouble = false;
    int fruitless = 0;
    EpsilonTable table;
    FourierOutcome best;
    best.error = kHuge;

    const auto by_partial_sum = [&] {
        best.result = partial_sum;
        best.error = error_sum + drift;
        best.evaluations = rule.evaluations;
        if (trouble && best.status == FourierStatus::converged) best.status = FourierStatus::bad_intervals;
        return best;
    };

    for (Integer n = 1; n <= intervals.size; ++n) {
        const double right = left + length;
        s.count = 0;
        s.look_at(0);
        const AdaptiveResult part =
            integrate_fourier_range(f, left, right, omega, rule, s, {std::fabs(tolerance * share), 0.0});
        share *= kShare;
        intervals.results[n - 1] = part.result;
        intervals.errors[n - 1] = part.error;
        intervals.flags[n - 1] = static_cast<Integer>(part.status);
        best.intervals = n;
        best.most_subintervals = std::max(best.most_subintervals, s.count);
        error_sum += part.error;
        drift = 50.0 * std::fabs(part.result);
        if (error_sum + drift <= epsabs && n >= kLeastIntervals) return by_partial_sum();
        largest_error = std::max(largest_error, part.error);
        if (part.status != AdaptiveStatus::converged) {
            tolerance = std::max(first_tolerance, largest_error * kRest);
            trouble = true;
            report_interval(report, n, part.status, left, right, s.limit);
        }
        if (trouble && error_sum + drift <= 10.0 * largest_error && n >= kLeastIntervals) return by_partial_sum();

        partial_sum += part.result;
        table.append(partial_sum);
        if (n >= 3) {
            if (n == intervals.size) best.status = FourierStatus::too_many_intervals;
            const auto estimate = table.extrapolate();
            ++fruitless;
            if (fruitless >= kFruitless && best.error <= 1e-3 * (error_sum + drift))
                best.status = FourierStatus::no_limit;
            if (estimate.error <= best.error || n == 3) {
                best.error = estimate.error;
                best.result = estimate.result;
                fruitless = 0;
                if (best.error + 10.0 * largest_error <= epsabs ||
                    (best.error <= epsabs && 10.0 * largest_error >= epsabs)) {
                    best.status = FourierStatus::converged;
                    break;
                }
            }
            if (best.status != FourierStatus::converged) break;
        }
        left = right;
    }

    best.evaluations = rule.evaluations;
    best.error += 10.0 * largest_error;
    if (best.status == FourierStatus::converged && !trouble) return best;
    const double sum_error = error_sum + drift;
    const bool comparable = best.result != 0.0 && partial_sum != 0.0;
    const bool sum_is_better =
        comparable ? best.error / std::fabs(best.result) > sum_error / std::fabs(partial_sum) : best.error > error_sum;
    if (sum_is_better) return by_partial_sum();
    if (best.status == FourierStatus::converged)
        best.status = FourierStatus::bad_intervals;
    else
        best.error += drift;
    return best;
}

} // namespace

void integrate_fourier(const Report &report, Integrand f, double a, double omega, Integer wt_func, Integer maxintervals,
                       Integer max_num_subint, double epsabs, double *result, double *abserr,
                       KorQuadIntervalRecord *record)
{
    if (max_num_subint < 1) return report.error<NE_INT_ARG_LT>("max_num_subint", "1", "max_num_subint", max_num_subint);
    if (maxintervals < 3) return report.error<NE_INT_ARG_LT>("maxintervals", "3", "maxintervals", maxintervals);
    if (wt_func != Kor_Cosine && wt_func != Kor_Sine) return report.error<NE_BAD_PARAM>("wt_func");
    ProgressRecord work{max_num_subint, true};
    Workspace<double> results{Count{maxintervals}}, errors{Count{maxintervals}};
    Workspace<Integer> flags{Count{maxintervals}};
    if (!work || !results || !errors || !flags) return report.error<NE_ALLOC_FAIL>();
    std::fill(results.begin(), results.end(), 0.0);
    std::fill(errors.begin(), errors.end(), 0.0);
    std::fill(flags.begin(), flags.end(), 0);

    FourierOutcome outcome;
    AdaptiveResult whole; // of an integral without oscillation
    if (omega == 0.0) {
        outcome.intervals = 1;
        if (wt_func == Kor_Cosine) {
            whole = integrate_transformed(f, Kor_UpperSemiInfinite, a, work, {std::fabs(epsabs), 0.0});
            outcome.result = results[0] = whole.result;
            outcome.error = errors[0] = whole.error;
            flags[0] = static_cast<Integer>(whole.status);
            outcome.most_subintervals = work.subdivision().count;
            outcome.evaluations = work.evaluations;
        }
    } else {
        outcome = sum_intervals(report, f, a, omega, wt_func == Kor_Sine, std::fabs(epsabs), work.subdivision(),
                                {results.data(), errors.data(), flags.data(), maxintervals});
    }

    *result = outcome.result;
    *abserr = outcome.error;
    *record = {outcome.intervals, outcome.evaluations, outcome.most_subintervals,
               results.release(), errors.release(),    flags.release()};
    if (whole.status == AdaptiveStatus::roundoff) return report.error<NE_QUAD_ROUNDOFF_ABS_TOL>(epsabs);
    if (whole.status != AdaptiveStatus::converged) return report_outcome(report, whole, {max_num_subint, epsabs, 0.0});
    switch (outcome.status) {
    case FourierStatus::converged:
        return report.success();
    case FourierStatus::bad_intervals:
        return report.error<NE_QUAD_BAD_SUBDIV_INT>(outcome.intervals);
    case FourierStatus::too_many_intervals:
        return report.error<NE_QUAD_MAX_INT>("maxintervals", maxintervals);
    case FourierStatus::no_limit:
        return report.error<NE_QUAD_EXTRAPL_INT>();
    }
    report.error<NE_INTERNAL_ERROR>();
}

} // namespace kor::quadrature
