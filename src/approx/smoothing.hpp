// What the three smoothing routines share: the search for the smoothing parameter, the rows of the penalty, new knots.
//
// The scheme is that of P. Dierckx, Curve and Surface Fitting with Splines (1993), chapters 5 to 7: least-squares splines on
// more and more knots, until the sum of squared residuals falls to s; then, on those knots, the spline that minimises the
// jumps of the third derivative and has the sum s, found by its parameter p.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "approx/cubic_bspline.hpp"

namespace kor::approx {

inline constexpr double kSmoothingTolerance = 0.001; // |F(p) - s| may be so much of s
inline constexpr int kSmoothingIterations = 20;

// How the search for knots and parameter has ended.
enum class Fit {
    interpolating, // s = 0, or as many knots as points allow
    polynomial,    // no interior knot is needed
    smoothing,     // F(p) = s
    knots_limited, // the limits on the knots do not let the sum come down to s
    no_convergence,
    too_many_coefficients, // more than points
    no_place_for_knots,    // a new one would coincide with an old one
};

// Solves F(p) = s, for a decreasing convex F of which each step has one more value. P. Dierckx (1993), section 5.2.4: three
// points are interpolated by (u p + v)/(p + w), which is the form of F for one eigenvalue.
class ParameterSearch {
  public:
    // `polynomial` is F(0) - s, `knots` F(infinity) - s.
    ParameterSearch(double p, double polynomial, double knots, double accuracy)
        : p_{p}, f_low_{polynomial}, f_high_{knots}, accuracy_{accuracy}
    {
    }

    double p() const { return p_; }

    // Takes F(p) - s, and moves p. False when F does not behave as it must: rounding errors rule.
    bool next(double f)
    {
        constexpr double stretch = 25.0;
        constexpr double near = 0.9, far = 0.1; // a point that leaves the bracket goes to a tenth of the way
        if (!high_found_) {
            if (f - f_high_ <= accuracy_) {
                // p is so large that the spline is the least-squares one.
                p_high_ = p_;
                f_high_ = f;
                p_ /= stretch;
                if (p_ <= p_low_) p_ = near * p_low_ + far * p_high_;
                return true;
            }
            high_found_ = f < 0.0;
        }
        if (!low_found_) {
            if (f_low_ - f <= accuracy_) {
                // p is so small that the spline is the polynomial.
                p_low_ = p_;
                f_low_ = f;
                p_ *= stretch;
                if (p_high_ >= 0.0 && p_ >= p_high_) p_ = far * p_low_ + near * p_high_;
                return true;
            }
            low_found_ = f > 0.0;
        }
        if (f >= f_low_ || f <= f_high_) return false;
        const double next_p = interpolated(f);
        if (f < 0.0) {
            p_high_ = p_;
            f_high_ = f;
        } else {
            p_low_ = p_;
            f_low_ = f;
        }
        p_ = next_p;
        return true;
    }

  private:
    // The zero of the rational function through (p_low, f_low), (p, f) and (p_high, f_high), where p_high may be infinite.
    double interpolated(double f) const
    {
        if (p_high_ <= 0.0)
            return (p_low_ * (f_low_ - f_high_) * f - p_ * (f - f_high_) * f_low_) / ((f_low_ - f) * f_high_);
        const double h1 = f_low_ * (f - f_high_), h2 = f * (f_high_ - f_low_), h3 = f_high_ * (f_low_ - f);
        return -(p_low_ * p_ * h3 + p_ * p_high_ * h1 + p_high_ * p_low_ * h2) / (p_low_ * h1 + p_ * h2 + p_high_ * h3);
    }

    double p_;
    double p_low_ = 0.0, f_low_;
    double p_high_ = -1.0, f_high_; // negative: infinite
    bool low_found_ = false, high_found_ = false;
    double accuracy_;
};

// The jumps of the third derivative at the interior knots, of the five B-splines that have one: row i, of 5 elements,
// belongs to knot t[4 + i] and starts at column i. Divided by 3! and scaled by the mean distance of the knots.
inline void derivative_jumps(const Knots &t, double *jumps)
{
    const double per_length = (t.interior() + 1) / (t.last() - t.first());
    for (Integer i = 0; i < t.interior(); ++i) {
        const Integer knot = kOrder + i;
        for (Integer j = 0; j <= kOrder; ++j) {
            const Integer first = i + j; // knot of the B-spline
            double product = 1.0 / per_length;
            for (Integer k = first; k <= first + kOrder; ++k)
                if (k != knot) product *= (t[knot] - t[k]) * per_length;
            jumps[i * (kOrder + 1) + j] = (t[first + kOrder] - t[first]) / product;
        }
    }
}

// The knots of one dimension as they grow: each new one is a data point. For the intervals between knots, their data points
// that are no knots are counted, and their shares of the sum of squared residuals kept.
struct GrowingKnots {
    double *t;         // at most `limit` knots
    Integer n;         // of them now
    Integer limit;     // at most m + 4
    Integer m;         // data points
    const double *x;   // they
    Integer *inside;   // of each interval: data points strictly between its knots
    double *residuals; // of each interval

    Knots knots() const { return {t, n}; }
    Integer intervals() const { return n - kEndKnots + 1; }
    Integer basis_size() const { return n - kOrder; }
    bool full() const { return n == limit; }
    bool interpolating() const { return n == m + kOrder; }

    void set_ends()
    {
        std::fill_n(t, kOrder, x[0]);
        std::fill_n(t + n - kOrder, kOrder, x[m - 1]);
    }

    void start_without_interior()
    {
        n = kEndKnots;
        inside[0] = m - 2;
        set_ends();
    }

    void start_interpolating()
    {
        n = m + kOrder;
        std::copy_n(x + 2, m - kOrder, t + kOrder);
        set_ends();
        std::fill_n(inside, intervals(), 0); // nothing can be added any more
    }

    // Splits the interval with the largest share, among those that have points inside, at its middle point. The shares of
    // the parts are estimated by their numbers of points.
    void split_worst()
    {
        Integer worst = -1, worst_start = 0, start = 0; // data points
        for (Integer j = 0; j < intervals(); ++j) {
            if (inside[j] > 0 && (worst < 0 || residuals[j] > residuals[worst])) {
                worst = j;
                worst_start = start;
            }
            start += inside[j] + 1;
        }
        if (worst < 0) return;
        for (Integer j = intervals(); j > worst + 1; --j) {
            inside[j] = inside[j - 1];
            residuals[j] = residuals[j - 1];
            t[j + kDegree] = t[j + kDegree - 1];
        }
        const Integer count = inside[worst], half = count / 2 + 1;
        const double share = residuals[worst] / count;
        inside[worst] = half - 1;
        inside[worst + 1] = count - half;
        residuals[worst] = share * (half - 1);
        residuals[worst + 1] = share * (count - half);
        t[worst + kOrder] = x[worst_start + half];
        ++n;
        set_ends();
    }

    // Distributes the squared residuals of the data points over the intervals. A point on a knot belongs to both sides by
    // half.
    template <class Square>
    void share_residuals(const Integer *spans, Square square)
    {
        std::fill_n(residuals, intervals(), 0.0);
        for (Integer i = 0; i < m; ++i) {
            const Integer j = spans[i] - kDegree;
            const bool on_knot = j > 0 && spans[i - 1] - kDegree < j;
            const double whole = square(i);
            residuals[j] += on_knot ? 0.5 * whole : whole;
            if (on_knot) residuals[j - 1] += 0.5 * whole;
        }
    }

    // The spans and the basis values of all data points, four each.
    void evaluate_basis(Integer *spans, double *basis) const
    {
        Integer l = kDegree;
        for (Integer i = 0; i < m; ++i) {
            while (l < n - kOrder - 1 && x[i] >= t[l + 1]) ++l;
            spans[i] = l;
            basis_values(t, l, x[i], basis + static_cast<std::ptrdiff_t>(i) * kOrder);
        }
    }

    // How many knots to add, where the last `added` ones lowered the sum of squares by `gain` and it is `excess` too large.
    static Integer number_to_add(Integer added, double gain, double excess, double accuracy)
    {
        double wanted = 2.0 * added;
        if (gain > accuracy && added * excess / gain < wanted) wanted = added * excess / gain;
        return static_cast<Integer>(std::max({wanted, added / 2.0, 1.0}));
    }

    // Adds that many, or all that may be had.
    void add(Integer count)
    {
        for (Integer k = 0; k < count && !full(); ++k) split_worst();
    }
};

} // namespace kor::approx
