// The formulae are those of L. F. Shampine and M. K. Gordon, Computer Solution of Ordinary Differential Equations: The Initial
// Value Problem (1975), chapters 5 to 7, and E. Hairer, S. P. Norsett and G. Wanner, Solving Ordinary Differential
// Equations I, section III.5; the interpolant that closes the gap between predicted and corrected slopes is after H. A. Watts and
// L. F. Shampine, Smoother interpolants for Adams codes, SIAM J. Sci. Stat. Comput. 7 (1986) 334-345.
#include "ode/adams.hpp"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <utility>

#include "frame/constants.hpp"
#include "frame/dispatch.hpp"
#include "linalg/lanes.hpp"
#include "ode/step_root.hpp"

namespace kor::ode {

namespace {

// |gamma*_i|, the error constants of the Adams-Moulton formulae with equal steps; the first is not used.
constexpr double kErrorConstant[] = {
    1.0,
    1.0 / 2.0,
    1.0 / 12.0,
    1.0 / 24.0,
    19.0 / 720.0,
    3.0 / 160.0,
    863.0 / 60480.0,
    275.0 / 24192.0,
    33953.0 / 3628800.0,
    8183.0 / 1036800.0,
    3250433.0 / 479001600.0,
    4671.0 / 788480.0,
    13695779093.0 / 2615348736000.0,
    2224234463.0 / 475517952000.0,
};

// 1/i, from i = 1.
constexpr auto kReciprocals = [] {
    std::array<double, Adams::kMaxOrder + 3> r{};
    for (int i = 1; i < Adams::kMaxOrder + 3; ++i) r[i] = 1.0 / i;
    return r;
}();

constexpr double kAim = 0.5;         // of the error allowed: what a new step is chosen for
constexpr double kFirstShare = 1e-3; // of the range: the longest first step
constexpr double kFirstStep = 0.25;  // caution about the first step
constexpr double kShrinkMost = 0.5;  // the factor of a step that has to shrink lies between these
constexpr double kShrinkLeast = 0.9;
constexpr double kFailureFactor = 0.5;
constexpr double kHopelessFactor = 0.1; // when the error is not even finite
constexpr int kRestartAfter = 3;        // failures in a row: the past is of no use any more
constexpr int kLowOrder = 4;
constexpr double kStretch = 1.1;

double square(double x) { return x * x; }

// Components are taken eight at a time, a cache line of each difference, and the rest in pairs.
using Line = linalg::Lanes;
typedef double Pair __attribute__((vector_size(2 * sizeof(double))));

template <class Vector>
constexpr std::size_t kLanes = sizeof(Vector) / sizeof(double);

template <class Vector>
[[gnu::always_inline]] inline Vector load(const double *x)
{
    Vector v;
    std::memcpy(&v, x, sizeof v);
    return v;
}
template <class Vector>
[[gnu::always_inline]] inline void store(double *x, const Vector &v)
{
    std::memcpy(x, &v, sizeof v);
}
// Of doubles that were stored one by one a moment ago: what has not reached the cache yet cannot be had two at a time.
template <class Vector>
[[gnu::always_inline]] inline Vector gather(const double *x)
{
    if constexpr (kLanes<Vector> == 2) return Vector{x[0], x[1]};
    return load<Vector>(x);
}
[[gnu::always_inline]] inline double sum_of(Line x) { return linalg::sum_of(x); }
[[gnu::always_inline]] inline double sum_of(Pair x) { return x[0] + x[1]; }

} // namespace

void Adams::lay_out(double *work)
{
    const auto take = [&](std::size_t vectors) { return std::exchange(work, work + vectors * even_); };
    phi_ = take(kRows);
    expected_ = take(kRows);
    y_ = take(1);
    y_old_ = take(1);
    y_try_ = take(1);
    predicted_ = take(1);
    yp_predicted_ = take(1);
    reciprocal_weight_ = take(1);
    rounding_ = take(1);
    rounding_predicted_ = take(1);
    closing_ = take(1);
}

void Adams::start(Integer neq, double *work, double t, const double *y, Derivative f, double t_end)
{
    n_ = static_cast<std::size_t>(neq);
    even_ = n_ + n_ % kLanes<Pair>;
    lines_ = n_ - n_ % kLanes<Line>;
    lay_out(work);
    std::fill_n(work, kVectors * even_, 0.0);
    t_ = t_old_ = t;
    t_end_ = t_end;
    direction_ = t_end > t ? 1.0 : -1.0;
    std::copy_n(y, n_, y_);
    std::copy_n(y, n_, y_old_);
    f(t_, y_, phi(1));
    psi_ = psi_next_ = alpha_ = beta_ = sigma_ = g_ = column_ = {};
    h_ = t_end - t;
    h_old_ = 0.0;
    k_ = 1;
    k_old_ = 0;
    equal_steps_ = 0;
    settled_ = 0;
    steps_ = low_order_steps_ = 0;
    tolerance_factor_ = 1.0;
    bad_component_ = 0;
    growing_ = true;
    weighed_start_ = false;
    closed_ = true;
}

double Adams::smallest_step() const { return std::max(4.0 * kPrecision * std::fabs(t_), std::sqrt(kSafeSmall)); }

// The sum of squares of the solution by the weights.
[[gnu::always_inline]] inline double Adams::weigh(const Tolerances &tolerances)
{
    double size = 0.0;
    for (std::size_t l = 0; l < n_; ++l) {
        reciprocal_weight_[l] = 1.0 / tolerances.weight(l, y_[l]);
        size += square(y_[l] * reciprocal_weight_[l]);
    }
    return size;
}

// So short that a step of order one is well within the tolerance. Order and step then grow fast.
void Adams::choose_first_step()
{
    double slope = 0.0;
    for (std::size_t i = 0; i < n_; ++i) slope += square(phi(1)[i] * reciprocal_weight_[i]);
    slope = std::sqrt(slope);
    // Nor a large part of the range: a slope that vanishes at both its ends would tell nothing of what lies between.
    double size = kFirstShare * std::fabs(h_);
    if (1.0 < 16.0 * slope * size * size) size = kFirstStep / std::sqrt(slope);
    h_ = direction_ * std::max(size, smallest_step());
}

// The coefficients of order k for a step of h, from the distances psi_i = t_n - t_(n-i). False when they stay as they are: after
// so many equal steps the first ones do, and also when the order comes down and rises again.
[[gnu::always_inline]] inline bool Adams::find_coefficients()
{
    if (h_ != h_old_) equal_steps_ = 0;
    equal_steps_ = std::min(equal_steps_ + 1, k_old_ + 1);
    if (equal_steps_ == 1) settled_ = 0;
    if (k_ <= settled_) return false;

    if (settled_ == 0) {
        psi_next_[1] = h_;
        beta_[1] = alpha_[1] = sigma_[1] = sigma_[2] = g_[1] = 1.0;
        column_ = kReciprocals;
    }
    for (int i = std::max(settled_ + 1, 2); i <= k_; ++i) {
        psi_next_[i] = h_ + psi_[i - 1];
        beta_[i] = beta_[i - 1] * (psi_next_[i - 1] / psi_[i - 1]);
        alpha_[i] = h_ / psi_next_[i];
        sigma_[i + 1] = i * alpha_[i] * sigma_[i];
    }
    // g_(i+1) is the first of a column of repeated integrals, which becomes the next by alpha_i. As far as it will be wanted
    // again it has its full length.
    const int settling = std::min(equal_steps_, k_);
    for (int i = settled_ + 1; i <= settling; ++i) {
        for (int q = 1; q <= kMaxOrder + 2 - i; ++q) column_[q] -= alpha_[i] * column_[q + 1];
        g_[i + 1] = column_[1];
    }
    OrderArray column = column_;
    for (int i = settling + 1; i <= k_; ++i) {
        for (int q = 1; q <= k_ + 1 - i; ++q) column[q] -= alpha_[i] * column[q + 1];
        g_[i + 1] = column[1];
    }
    settled_ = settling;
    return true;
}

// The predicted solution, and the differences that the new point will have if the prediction of its slope is right. Each sum is
// carried with what it lost by rounding.
template <class Vector>
[[gnu::always_inline]] inline void Adams::predict_components(std::size_t first, std::size_t last)
{
    const std::size_t stride = even_, last_row = std::size_t(k_ - 1) * stride;
    const double *const phi = phi_;
    double *const expected = expected_;
    const int k = k_;
    const double h = h_;
    for (std::size_t l = first; l < last; l += kLanes<Vector>) {
        Vector sum{}, difference{};
        std::size_t at = last_row + l;
        for (int i = k; i >= 1; --i, at -= stride) {
            const Vector term = beta_[i] * load<Vector>(phi + at);
            sum += g_[i] * term;
            difference += term;
            store(expected + at, difference);
        }
        const Vector y = load<Vector>(y_ + l), change = h * sum - load<Vector>(rounding_ + l);
        const Vector predicted = y + change;
        store(predicted_ + l, predicted);
        store<Vector>(rounding_predicted_ + l, (predicted - y) - change);
    }
}

// The solution corrected by the formula of order k+1, and what tells its error.
template <class Vector>
[[gnu::always_inline]] inline Adams::Sums Adams::correct_components(std::size_t first, std::size_t last)
{
    const double *const e1 = expected(1), *const ek = expected(k_), *const ek1 = expected(std::max(k_ - 1, 1));
    const double factor = h_ * g_[k_ + 1];
    Vector here{}, below{}, below2{}, nothing{};
    for (std::size_t l = first; l < last; l += kLanes<Vector>) {
        const Vector weight = gather<Vector>(reciprocal_weight_ + l);
        const Vector surprise = gather<Vector>(yp_predicted_ + l) - load<Vector>(e1 + l);
        const Vector a = surprise * weight, b = (load<Vector>(ek + l) + surprise) * weight,
                     c = (load<Vector>(ek1 + l) + surprise) * weight;
        here += a * a;
        below += b * b;
        below2 += c * c;
        const Vector predicted = load<Vector>(predicted_ + l);
        const Vector change = factor * surprise - load<Vector>(rounding_predicted_ + l);
        const Vector y = predicted + change;
        nothing += 0.0 * y;
        store(y_try_ + l, y);
        store<Vector>(rounding_predicted_ + l, (y - predicted) - change);
    }
    return {sum_of(here), sum_of(below), sum_of(below2), sum_of(nothing)};
}

// The differences at the new point, from the slope there; the sum of squares of the last, number k+2, by the weights.
template <class Vector>
[[gnu::always_inline]] inline double Adams::update_components(std::size_t first, std::size_t last)
{
    const std::size_t stride = even_;
    const int k = k_;
    Vector above{};
    for (std::size_t l = first; l < last; l += kLanes<Vector>) {
        const double *from = expected(1) + l;
        double *to = phi(1) + l;
        const Vector surprise = gather<Vector>(yp_predicted_ + l) - load<Vector>(from);
        for (int i = 1; i <= k; ++i, from += stride, to += stride) store<Vector>(to, load<Vector>(from) + surprise);
        const Vector next = surprise - load<Vector>(to), weighted = next * gather<Vector>(reciprocal_weight_ + l);
        store(to, surprise);
        store(to + stride, next);
        above += weighted * weighted;
    }
    return sum_of(above);
}

[[gnu::always_inline]] inline void Adams::predict()
{
    predict_components<Line>(0, lines_);
    predict_components<Pair>(lines_, even_);
}

[[gnu::always_inline]] inline Adams::Sums Adams::correct()
{
    Sums sums = correct_components<Pair>(lines_, even_);
    if (lines_ == 0) return sums;
    const Sums lines = correct_components<Line>(0, lines_);
    sums.here += lines.here;
    sums.below += lines.below;
    sums.below2 += lines.below2;
    sums.nothing += lines.nothing;
    return sums;
}

[[gnu::always_inline]] inline double Adams::update_differences()
{
    const double rest = update_components<Pair>(lines_, even_);
    return lines_ > 0 ? rest + update_components<Line>(0, lines_) : rest;
}

[[gnu::always_inline]] inline Adams::Errors Adams::errors_from(const Sums &sums) const
{
    Errors errors{};
    errors.order = k_;
    errors.test = sums.here * square(h_ * (g_[k_] - g_[k_ + 1]));
    errors.at_order = sums.here * square(h_ * sigma_[k_ + 1] * kErrorConstant[k_]);
    if (k_ >= 2) {
        errors.below = sums.below * square(h_ * sigma_[k_] * kErrorConstant[k_ - 1]);
        if (k_ == 2 && errors.below <= square(0.5) * errors.at_order) errors.order = 1;
    }
    if (k_ >= 3) {
        const double two_below = sums.below2 * square(h_ * sigma_[k_ - 1] * kErrorConstant[k_ - 2]);
        if (std::max(errors.below, two_below) <= errors.at_order) errors.order = k_ - 1;
    }
    return errors;
}

// Makes the corrected solution the present one, and evaluates again. What update_differences() gives.
[[gnu::always_inline]] inline double Adams::move_on(Derivative f)
{
    std::swap(y_old_, y_);
    std::swap(y_, y_try_);
    std::swap(rounding_, rounding_predicted_);
    t_old_ = t_;
    t_ = t_end_;
    // The slope lands where the prediction was: no difference is touched before it is known.
    f(t_, y_, yp_predicted_);
    return update_differences();
}

[[gnu::always_inline]] inline void Adams::choose_next(const Errors &errors, double above)
{
    int order = errors.order;
    double error = errors.at_order;
    if (order == k_ - 1 || k_ == kMaxOrder) growing_ = false;

    if (growing_) {
        order = k_ + 1;
    } else if (order == k_ - 1) {
        error = errors.below;
    } else if (equal_steps_ > k_ && k_ < kMaxOrder) {
        // Only after equal steps the next difference tells the error of order k+1.
        above *= square(h_ * kErrorConstant[k_ + 1]);
        if (k_ > 1 && errors.below <= std::min(error, above)) {
            order = k_ - 1;
            error = errors.below;
        } else if (above < (k_ > 1 ? error : square(0.5) * error)) {
            order = k_ + 1;
            error = above;
        }
    }
    k_ = order;
    h_old_ = h_;
    // Doubling keeps the points equally spaced for longer than a best step would.
    const double doubling = 1 << (k_ + 1);
    if (growing_ || error * square(doubling) <= square(kAim)) {
        h_ *= 2.0;
    } else if (error > square(kAim)) {
        const double factor = step_root(square(kAim) / error, 0.5 / (k_ + 1));
        h_ *= std::clamp(factor, kShrinkMost, kShrinkLeast);
    }
    h_ = direction_ * std::max(std::fabs(h_), smallest_step());
}

void Adams::fail(const Errors &errors, int failures)
{
    growing_ = false;
    double factor = kFailureFactor;
    k_ = errors.order;
    if (!(errors.test < kLargest)) factor = kHopelessFactor;
    if (failures >= kRestartAfter) {
        // Order one knows nothing of the past; from there order and step may grow as at the start.
        k_ = 1;
        growing_ = true;
        if (failures > kRestartAfter) factor = std::min(factor, step_root(square(kAim) / errors.at_order, 0.25));
    }
    h_ *= factor;
    equal_steps_ = 0;
}

KOR_CLONES
AdamsOutcome Adams::step(Derivative f, const Tolerances &tolerances, double t_stop, double hmax)
{
    const double size = weigh(tolerances);
    if (!(size <= square(kAim / (2.0 * kPrecision)))) {
        for (std::size_t l = 0; l < n_; ++l) {
            if (tolerances.weight(l, y_[l]) != 0.0) continue;
            bad_component_ = static_cast<Integer>(l);
            return AdamsOutcome::zero_weight;
        }
        if (!std::isnan(size)) {
            tolerance_factor_ = 2.0 * (2.0 * kPrecision * std::sqrt(size)) * (1.0 + 4.0 * kPrecision);
            return AdamsOutcome::too_accurate;
        }
    }
    if (!weighed_start_) {
        choose_first_step();
        weighed_start_ = true;
    }

    for (int failures = 0;;) {
        if (hmax > 0.0 && std::fabs(h_) > hmax) h_ = direction_ * hmax;
        t_end_ = t_ + h_;
        // A little longer rather than a last step of next to nothing.
        const double reach = hmax > 0.0 ? std::fabs(h_) : kStretch * std::fabs(h_);
        if (std::isfinite(t_stop) && direction_ * (t_stop - t_) <= reach) {
            t_end_ = t_stop;
            h_ = t_stop - t_;
        }
        if (failures > 0 && !(std::fabs(h_) >= smallest_step())) {
            tolerance_factor_ = 2.0;
            return AdamsOutcome::too_accurate;
        }
        const bool new_distances = find_coefficients();
        predict();
        f(t_end_, predicted_, yp_predicted_);
        const Sums sums = correct();
        const Errors errors = errors_from(sums);
        if (errors.test <= 1.0 && sums.nothing == 0.0) {
            const double above = move_on(f);
            if (new_distances) std::copy_n(psi_next_.begin() + 1, k_, psi_.begin() + 1);
            ++steps_;
            k_old_ = k_;
            low_order_steps_ = k_ <= kLowOrder ? low_order_steps_ + 1 : 0;
            closed_ = false;
            choose_next(errors, above);
            return AdamsOutcome::taken;
        }
        fail(errors, ++failures);
    }
}

// For a point hi from t: what phi_i contributes to the change of y, in units of hi, and to y'.
void Adams::integral_coefficients(double hi, int terms, double *integral, double *value) const
{
    OrderArray column = kReciprocals;
    integral[1] = 1.0;
    value[1] = 1.0;
    for (int i = 2; i <= terms; ++i) {
        const double before = i > 2 ? psi_[i - 2] : 0.0;
        // The last term closes the interpolant: any scale will do for it.
        const double scale = i - 1 <= k_old_ ? psi_[i - 1] : psi_[k_old_];
        const double gamma = (hi + before) / scale, eta = hi / scale;
        for (int q = 1; q <= terms + 1 - i; ++q) column[q] = gamma * column[q] - eta * column[q + 1];
        integral[i] = column[1];
        value[i] = value[i - 1] * gamma;
    }
}

// The polynomial through the slopes misses the old value by as much as the last correction changed the slope. One more term,
// whose slope vanishes at all points of the past, takes the difference.
void Adams::close_interpolant()
{
    if (closed_) return;
    closed_ = true;
    const int terms = k_old_ + 2;
    OrderArray integral, value;
    const double hi = t_old_ - t_;
    integral_coefficients(hi, terms, integral.data(), value.data());
    for (std::size_t l = 0; l < n_; ++l) {
        double sum = 0.0;
        for (int i = terms - 1; i >= 1; --i) sum += integral[i] * phi(i)[l];
        closing_[l] = ((y_old_[l] - y_[l]) / hi - sum) / integral[terms];
    }
}

void Adams::interpolate(double t, Integer nwant, double *y, double *yp)
{
    const auto count = static_cast<std::size_t>(nwant);
    if (k_old_ == 0 || t == t_) {
        if (y != nullptr) std::copy_n(y_, count, y);
        if (yp != nullptr) std::copy_n(phi(1), count, yp);
        return;
    }
    close_interpolant();
    const int terms = k_old_ + 2;
    OrderArray integral, value;
    const double hi = t - t_;
    integral_coefficients(hi, terms, integral.data(), value.data());
    for (std::size_t l = 0; l < count; ++l) {
        double sum = integral[terms] * closing_[l], slope = value[terms] * closing_[l];
        for (int i = terms - 1; i >= 1; --i) {
            sum += integral[i] * phi(i)[l];
            slope += value[i] * phi(i)[l];
        }
        if (y != nullptr) y[l] = y_[l] + hi * sum;
        if (yp != nullptr) yp[l] = slope;
    }
}

} // namespace kor::ode
