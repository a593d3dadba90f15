// Globally adaptive bisection: the two engines of the chapter, with and without extrapolation.
//
// R. Piessens, E. de Doncker-Kapenga, C. W. Ueberhuber and D. K. Kahaner, QUADPACK, Springer 1983. The sub-interval with the
// largest error estimate is bisected next. With extrapolation, sub-intervals that have become small are put off until the
// larger ones are done, and the sums after each such phase form a sequence whose limit the epsilon algorithm finds.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

#include "quadrature/extrapolation.hpp"
#include "quadrature/rules.hpp"
#include "quadrature/subdivision.hpp"

namespace kor::quadrature {

// Statuses as the callers report them.
enum class AdaptiveStatus : Integer {
    converged = 0,
    limit = 1,         // no room for more sub-intervals
    roundoff = 2,      // the tolerance is out of reach of the arithmetic
    bad_interval = 3,  // a sub-interval cannot be bisected any more
    extrapolation = 4, // extrapolation is spoilt by rounding, or does not converge
    divergent = 5,
    invalid = 6,
};

inline constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();

struct Tolerance {
    double absolute; // both taken by absolute value
    double relative;
    // Of the error; NaN, which nothing meets, for a result that is not finite.
    double bound(double result) const
    {
        return std::isfinite(result) ? std::max(absolute, relative * std::fabs(result)) : kNotANumber;
    }
};

struct AdaptiveResult {
    double result = 0.0;
    double error = 0.0;
    AdaptiveStatus status = AdaptiveStatus::converged;
    double bad_left = 0.0, bad_right = 0.0; // the sub-interval bisected last
};

inline constexpr double kHuge = 1.0 / kSafeSmall;
inline constexpr double kTiny = kSafeSmall;

// Too small to be bisected: its ends and its middle are nearly the same numbers.
inline bool too_small(double a, double middle, double b, double relative, double absolute)
{
    return std::max(std::fabs(a), std::fabs(b)) <=
           (1.0 + relative * kPrecision) * (std::fabs(middle) + absolute * kTiny);
}

// Neither half is a mere guess.
inline bool comparable(const RuleValue &first, const RuleValue &second)
{
    return first.error != first.resasc && second.error != second.resasc;
}
// The sums over the sub-intervals, kept up to date. Where the integrand was infinite, at an end point perhaps, the halves may
// be without that point: values that are not finite are counted, and the finite ones summed apart from them.
class Sums {
  public:
    explicit Sums(const Subdivision &s)
    {
        for (Integer i = 0; i < s.count; ++i) take(s.result[i], s.error[i]);
    }

    double result() const { return unlimited_ == 0 ? result_ : HUGE_VAL; }
    double error() const { return unlimited_ == 0 ? error_ : HUGE_VAL; }

    void replace(double old_result, double old_error, const RuleValue &first, const RuleValue &second)
    {
        if (finite(old_result, old_error) && finite(first.result, first.error) && finite(second.result, second.error)) {
            result_ += first.result + second.result - old_result;
            error_ += first.error + second.error - old_error;
            return;
        }
        finite(old_result, old_error) ? take(-old_result, -old_error) : static_cast<void>(--unlimited_);
        take(first.result, first.error);
        take(second.result, second.error);
    }

  private:
    static bool finite(double result, double error) { return std::isfinite(result) && std::isfinite(error); }
    void take(double result, double error)
    {
        if (!finite(result, error)) {
            ++unlimited_;
            return;
        }
        result_ += result;
        error_ += error;
    }

    double result_ = 0.0, error_ = 0.0;
    Integer unlimited_ = 0;
};

// A bisection that changed neither the result nor the error: rounding errors, or a hidden difficulty.
inline bool stagnates(double old_result, double old_error, double area12, double error12)
{
    return std::fabs(old_result - area12) <= 1e-5 * std::fabs(area12) && error12 >= 0.99 * old_error;
}

// ---- Without extrapolation ----

// What the variants of the plain engine differ in.
struct PlainSettings {
    double absolute_width; // of the test for small sub-intervals, in units of the smallest number,
    double relative_width; // and of the precision
    bool both_counters;    // round-off is told only when both counters are up
};

// `s` holds the first sub-intervals in order. The rule gives the value over (a, b); `split` the point at which to bisect.
template <class Rule, class Split>
AdaptiveResult bisect_adaptively(Subdivision &s, Rule &&rule, Split &&split, Tolerance tolerance,
                                 const PlainSettings &settings, AdaptiveResult start)
{
    AdaptiveResult outcome = start;
    Sums sums{s};
    int stagnations = 0, growths = 0;
    while (s.count < s.limit) {
        const Integer worst = s.worst();
        const double a = s.left[worst], b = s.right[worst], middle = split(a, b);
        const double old_error = s.error[worst], old_result = s.result[worst];
        const RuleValue first = rule(a, middle), second = rule(middle, b);
        const double area12 = first.result + second.result, error12 = first.error + second.error;
        sums.replace(old_result, old_error, first, second);
        if (comparable(first, second)) {
            if (stagnates(old_result, old_error, area12, error12)) ++stagnations;
            if (s.count + 1 > 10 && error12 > old_error) ++growths;
        }
        s.replace_worst(a, middle, b, first, second);
        const bool met = sums.error() <= tolerance.bound(sums.result());
        if (!met) {
            const bool many_stagnations = stagnations >= 6;
            if (settings.both_counters ? many_stagnations && growths > 20 : many_stagnations || growths >= 20)
                outcome.status = AdaptiveStatus::roundoff;
            else if (s.count == s.limit)
                outcome.status = AdaptiveStatus::limit;
            if (too_small(a, middle, b, settings.relative_width, settings.absolute_width))
                outcome.status = AdaptiveStatus::bad_interval;
            outcome.bad_left = a;
            outcome.bad_right = b;
        }
        if (outcome.status != AdaptiveStatus::converged || met) break;
    }
    outcome.result = s.sum_of_results();
    outcome.error = sums.error();
    return outcome;
}

// ---- With extrapolation ----

// Which sub-intervals are large, by their width. Those that are not wait for the next phase.
class LargeByWidth {
  public:
    explicit LargeByWidth(double first_width) : width_{first_width} {}
    bool large(const Subdivision &s, Integer i) const { return s.width(i) > width_; }
    void next_phase() { width_ *= 0.5; }

  private:
    double width_;
};

// By the number of bisections that led to them: for integrals that start from several pieces.
class LargeByLevel {
  public:
    bool large(const Subdivision &s, Integer i) const { return s.level[i] + 1 <= level_; }
    void next_phase() { ++level_; }

  private:
    Integer level_ = 1;
};

// When the sums over the sub-intervals are regular enough to be extrapolated.
struct AlwaysRegular {
    bool regular() const { return true; }
    bool becomes_regular(double) { return true; }
};

// How the sequence of sums begins.
struct ExtrapolationStart {
    double resabs;  // over the whole range
    bool first_sum; // the sum over the first sub-intervals is the first term of the sequence to be extrapolated,
    bool second_sum_at_once; // and the sum after the first bisection the next, without more ado
};

// The engine. `s` holds the first sub-intervals in order; the rule is called as rule(a, b, level).
template <class Rule, class Large, class Regularity>
AdaptiveResult bisect_and_extrapolate(Subdivision &s, Rule &&rule, Large large, Regularity regularity,
                                      Tolerance tolerance, const ExtrapolationStart &start)
{
    constexpr int kRoundoffErrors = 10, kGrowthErrors = 20, kExtrapolationErrors = 5;
    Sums sums{s};
    double area = sums.result(), error_sum = sums.error();
    AdaptiveResult best{area, kHuge};
    double large_error = error_sum;        // over the large sub-intervals
    double wanted = tolerance.bound(area); // for that sum, before it pays to extrapolate
    double correction = 0.0;
    EpsilonTable table;
    if (start.first_sum && std::isfinite(area)) table.append(area);
    const bool same_sign = std::fabs(area) >= (1.0 - 50.0 * kPrecision) * start.resabs;
    const Integer first_count = s.count;
    int stagnations = 0, late_stagnations = 0, growths = 0, fruitless = 0;
    bool extrapolating = false, given_up = false, ever_improved = false;
    bool rounding_in_large = false; // extrapolation is spoilt, but not yet the sum
    Integer status = 0;             // 1 limit, 2 round-off, 3 spoilt, 4 too small, 5 fruitless, 6 divergent
    bool sum_is_good = false;

    while (s.count < s.limit) {
        const Integer worst = s.worst();
        const double a = s.left[worst], b = s.right[worst], middle = 0.5 * (a + b);
        const double old_error = s.error[worst], old_result = s.result[worst];
        const Integer level = s.level != nullptr ? s.level[worst] + 1 : 0;
        const RuleValue first = rule(a, middle, level), second = rule(middle, b, level);
        const double area12 = first.result + second.result, error12 = first.error + second.error;
        sums.replace(old_result, old_error, first, second);
        area = sums.result();
        error_sum = sums.error();
        if (comparable(first, second)) {
            if (stagnates(old_result, old_error, area12, error12)) ++(extrapolating ? late_stagnations : stagnations);
            if (s.count + 1 > 10 && error12 > old_error) ++growths;
        }
        s.replace_worst(a, middle, b, first, second);
        best.bad_left = a;
        best.bad_right = b;
        const double bound = tolerance.bound(area);
        if (error_sum <= bound) {
            sum_is_good = true;
            break;
        }
        if (s.count == s.limit) status = 1;
        if (stagnations + late_stagnations >= kRoundoffErrors || growths >= kGrowthErrors) status = 2;
        if (late_stagnations >= kExtrapolationErrors) rounding_in_large = true;
        if (too_small(a, middle, b, 1000.0, 1000.0)) status = 4;
        if (status > 1) break;

        if (s.count == first_count + 1 && start.second_sum_at_once) {
            large_error = error_sum;
            wanted = bound;
            if (std::isfinite(area)) table.append(area);
            if (status != 0) break;
            continue;
        }
        if (given_up) continue;
        if (regularity.regular()) {
            large_error -= old_error;
            if (large.large(s, s.count - 1)) large_error += error12;
        }
        if (!extrapolating) {
            if (large.large(s, s.worst())) continue;
            if (!regularity.regular()) {
                large.next_phase();
                if (regularity.becomes_regular(s.width(s.worst()))) {
                    wanted = bound;
                    large_error = error_sum;
                }
                continue;
            }
            extrapolating = true;
            s.look_at(1);
        }
        if (!rounding_in_large && large_error > wanted) {
            // The smallest sub-interval has the largest error: first reduce the errors of the larger ones.
            bool found = false;
            while (s.place() < s.kept() && !(found = large.large(s, s.worst()))) s.look_at(s.place() + 1);
            if (found) continue;
        }

        if (std::isfinite(area)) table.append(area);
        if (std::isfinite(area) && table.length() >= 3) {
            const auto estimate = table.extrapolate();
            if (++fruitless > 5 && best.error < 1e-3 * error_sum) status = 5;
            if (estimate.error < best.error) {
                fruitless = 0;
                ever_improved = true;
                best.error = estimate.error;
                best.result = estimate.result;
                correction = large_error;
                wanted = tolerance.bound(estimate.result);
                if (best.error <= wanted) {
                    if (status == 1) status = 0;
                    break;
                }
            }
            if (table.length() == 1) given_up = true;
            if (status == 5 || status == 1) break;
        }
        s.look_at(0);
        extrapolating = false;
        large.next_phase();
        large_error = error_sum;
    }

    // Which is better: the limit of the sums, or the sum over all sub-intervals?
    const auto sum_over_intervals = [&] {
        best.result = s.sum_of_results();
        best.error = error_sum;
    };
    const auto finished = [&] {
        best.status = static_cast<AdaptiveStatus>(status > 2 ? status - 1 : status);
        return best;
    };
    if (sum_is_good || !ever_improved) {
        sum_over_intervals();
        return finished();
    }
    if (status != 0 || rounding_in_large) {
        if (rounding_in_large) best.error += correction;
        if (status == 0) status = 3;
        if (best.result != 0.0 && area != 0.0) {
            if (best.error / std::fabs(best.result) > error_sum / std::fabs(area)) {
                sum_over_intervals();
                return finished();
            }
        } else if (best.error > error_sum) {
            sum_over_intervals();
            return finished();
        } else if (area == 0.0) {
            return finished();
        }
    }
    if (same_sign || std::max(std::fabs(best.result), std::fabs(area)) > 0.01 * start.resabs) {
        const double ratio = best.result / area;
        if (ratio < 0.01 || ratio > 100.0 || error_sum > std::fabs(area)) status = 6;
    }
    return finished();
}

} // namespace kor::quadrature
