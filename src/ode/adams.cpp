// The formulae are those of L. F. Shampine and M. K. Gordon, Computer Solution of Ordinary Differential Equations: The Initial
// Value Problem (1975), chapters 5 to 7, and E. Hairer, S. P. Norsett and G. Wanner, Solving Ordinary Differential
// Equations I, section III.5; the interpolant that closes the gap between predicted and corrected slopes is after H. A. Watts and
// L. F. Shampine, Smoother interpolants for Adams codes, SIAM J. Sci. Stat. Comput. 7 (1986) 334-345.
#include "ode/adams.hpp"

#include <algorithm>
#include <cmath>
#include <utility>

#include "frame/constants.hpp"
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
constexpr int kLine = 8;                // components at a time: a cache line of each difference
constexpr int kLowOrder = 4;
constexpr double kStretch = 1.1;

double square(double x) { return x * x; }

} // namespace

double Tolerances::weight(std::size_t i, double y) const
{
    const std::size_t which = each_component ? i : 0;
    return rtol[which] * std::fabs(y) + atol[which];
}

void Adams::lay_out(double *work)
{
    const auto take = [&](std::size_t vectors) { return std::exchange(work, work + vectors * n_); };
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
    lay_out(work);
    t_ = t_old_ = t;
    t_end_ = t_end;
    direction_ = t_end > t ? 1.0 : -1.0;
    std::copy_n(y, n_, y_);
    std::copy_n(y, n_, y_old_);
    std::fill_n(rounding_, n_, 0.0);
    std::fill_n(closing_, n_, 0.0);
    std::fill_n(phi(2), n_, 0.0);
    f(t_, y_, phi(1));
    psi_ = psi_next_ = alpha_ = beta_ = sigma_ = g_ = {};
    h_ = t_end - t;
    h_old_ = 0.0;
    k_ = 1;
    k_old_ = 0;
    equal_steps_ = 0;
    coefficients_order_ = 0;
    steps_ = low_order_steps_ = 0;
    tolerance_factor_ = 1.0;
    bad_component_ = 0;
    growing_ = true;
    weighed_start_ = false;
    closed_ = true;
}

double Adams::smallest_step() const { return std::max(4.0 * kPrecision * std::fabs(t_), std::sqrt(kSafeSmall)); }

// False when a weight is zero.
bool Adams::weigh(const Tolerances &tolerances)
{
    for (std::size_t i = 0; i < n_; ++i) {
        const double weight = tolerances.weight(i, y_[i]);
        if (weight == 0.0) {
            bad_component_ = static_cast<Integer>(i);
            return false;
        }
        reciprocal_weight_[i] = 1.0 / weight;
    }
    return true;
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

// The coefficients of order k for a step of h, from the distances psi_i = t_n - t_(n-i).
void Adams::find_coefficients()
{
    if (h_ != h_old_) equal_steps_ = 0;
    equal_steps_ = std::min(equal_steps_ + 1, k_old_ + 1);
    // After so many equal steps of this order everything stands as it was.
    if (equal_steps_ > k_ && coefficients_order_ == k_) return;

    psi_next_[1] = h_;
    beta_[1] = 1.0;
    alpha_[1] = 1.0;
    sigma_[1] = sigma_[2] = 1.0;
    for (int i = 2; i <= k_; ++i) {
        psi_next_[i] = h_ + psi_[i - 1];
        beta_[i] = beta_[i - 1] * (psi_next_[i - 1] / psi_[i - 1]);
        alpha_[i] = h_ / psi_next_[i];
        sigma_[i + 1] = i * alpha_[i] * sigma_[i];
    }
    // g_i is the first of a triangle of repeated integrals, of which one column is kept.
    OrderArray column = kReciprocals;
    g_[1] = 1.0;
    for (int i = 2; i <= k_ + 1; ++i) {
        for (int q = 1; q <= k_ + 2 - i; ++q) column[q] -= alpha_[i - 1] * column[q + 1];
        g_[i] = column[1];
    }
    coefficients_order_ = k_;
}

// The predicted solution, and the differences that the new point will have if the prediction of its slope is right. Each sum is
// carried with what it lost by rounding.
template <int width>
void Adams::predict_components(std::size_t first)
{
    double sum[width] = {}, difference[width] = {};
    for (int i = k_; i >= 1; --i) {
        const double beta = beta_[i], g = g_[i];
        const double *__restrict from = phi(i) + first;
        double *__restrict to = expected(i) + first;
        for (int l = 0; l < width; ++l) {
            const double term = beta * from[l];
            sum[l] += g * term;
            difference[l] += term;
            to[l] = difference[l];
        }
    }
    for (int l = 0; l < width; ++l) {
        const double y = y_[first + l], change = h_ * sum[l] - rounding_[first + l];
        predicted_[first + l] = y + change;
        rounding_predicted_[first + l] = (predicted_[first + l] - y) - change;
    }
}

// The differences at the new point, from the slope there.
template <int width>
void Adams::update_components(std::size_t first)
{
    double surprise[width];
    for (int l = 0; l < width; ++l) {
        surprise[l] = yp_predicted_[first + l] - expected(1)[first + l];
        phi(k_ + 2)[first + l] = surprise[l] - phi(k_ + 1)[first + l];
        phi(k_ + 1)[first + l] = surprise[l];
    }
    for (int i = k_; i >= 1; --i) {
        const double *__restrict from = expected(i) + first;
        double *__restrict to = phi(i) + first;
        for (int l = 0; l < width; ++l) to[l] = from[l] + surprise[l];
    }
}

void Adams::predict()
{
    std::size_t l = 0;
    for (; l + kLine <= n_; l += kLine) predict_components<kLine>(l);
    for (; l < n_; ++l) predict_components<1>(l);
}

void Adams::update_differences()
{
    std::size_t l = 0;
    for (; l + kLine <= n_; l += kLine) update_components<kLine>(l);
    for (; l < n_; ++l) update_components<1>(l);
}

Adams::Errors Adams::estimate() const
{
    double here = 0.0, below = 0.0, below2 = 0.0;
    const double *e1 = expected(1);
    const double *ek = expected(k_), *ek1 = expected(std::max(k_ - 1, 1));
    for (std::size_t l = 0; l < n_; ++l) {
        const double reciprocal = reciprocal_weight_[l];
        const double surprise = yp_predicted_[l] - e1[l];
        here += square(surprise * reciprocal);
        below += square((ek[l] + surprise) * reciprocal);
        below2 += square((ek1[l] + surprise) * reciprocal);
    }
    Errors errors{};
    errors.order = k_;
    errors.test = here * square(h_ * (g_[k_] - g_[k_ + 1]));
    errors.at_order = here * square(h_ * sigma_[k_ + 1] * kErrorConstant[k_]);
    if (k_ >= 2) {
        errors.below = below * square(h_ * sigma_[k_] * kErrorConstant[k_ - 1]);
        if (k_ == 2 && errors.below <= square(0.5) * errors.at_order) errors.order = 1;
    }
    if (k_ >= 3) {
        const double two_below = below2 * square(h_ * sigma_[k_ - 1] * kErrorConstant[k_ - 2]);
        if (std::max(errors.below, two_below) <= errors.at_order) errors.order = k_ - 1;
    }
    return errors;
}

// Corrects with the formula of order k+1 and evaluates again. False when the result is not finite; nothing has moved then.
bool Adams::correct(Derivative f)
{
    const double *e1 = expected(1);
    bool finite = true;
    for (std::size_t l = 0; l < n_; ++l) {
        const double change = h_ * g_[k_ + 1] * (yp_predicted_[l] - e1[l]) - rounding_predicted_[l];
        y_try_[l] = predicted_[l] + change;
        rounding_predicted_[l] = (y_try_[l] - predicted_[l]) - change;
        finite &= std::isfinite(y_try_[l]);
    }
    if (!finite) return false;

    std::swap(y_old_, y_);
    std::swap(y_, y_try_);
    std::swap(rounding_, rounding_predicted_);
    t_old_ = t_;
    t_ = t_end_;
    // The slope lands where the prediction was: no difference is touched before it is known.
    f(t_, y_, yp_predicted_);
    update_differences();
    std::copy_n(psi_next_.begin() + 1, k_, psi_.begin() + 1);
    return true;
}

void Adams::choose_next(const Errors &errors)
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
        double above = 0.0;
        for (std::size_t l = 0; l < n_; ++l) above += square(phi(k_ + 2)[l] * reciprocal_weight_[l]);
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
    coefficients_order_ = 0;
}

AdamsOutcome Adams::step(Derivative f, const Tolerances &tolerances, double t_stop, double hmax)
{
    if (!weigh(tolerances)) return AdamsOutcome::zero_weight;
    double rounding = 0.0;
    for (std::size_t i = 0; i < n_; ++i) rounding += square(y_[i] * reciprocal_weight_[i]);
    rounding = 2.0 * kPrecision * std::sqrt(rounding);
    if (rounding > kAim) {
        tolerance_factor_ = 2.0 * rounding * (1.0 + 4.0 * kPrecision);
        return AdamsOutcome::too_accurate;
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
        find_coefficients();
        predict();
        f(t_end_, predicted_, yp_predicted_);
        const Errors errors = estimate();
        if (errors.test <= 1.0 && correct(f)) {
            ++steps_;
            k_old_ = k_;
            low_order_steps_ = k_ <= kLowOrder ? low_order_steps_ + 1 : 0;
            closed_ = false;
            choose_next(errors);
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
