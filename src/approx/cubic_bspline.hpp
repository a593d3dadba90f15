// Cubic B-splines on any non-decreasing knots: the span of a point, values of the basis, values and derivatives of a sum.
//
// A span is named by the index l of its left knot: t[l] <= x < t[l+1]. Four B-splines, those of index l-3 to l, live on it.
// Source: C. de Boor, A Practical Guide to Splines (1978), chapters 9 and 10.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstring>

#include <kor.h>

#include "approx/interval_search.hpp"

namespace kor::approx {

inline constexpr Integer kDegree = 3;
inline constexpr Integer kOrder = 4;
inline constexpr Integer kEndKnots = 2 * kOrder; // of a spline: four at either end

// The knots of one dimension; the spline is defined on [first(), last()].
struct Knots {
    const double *t;
    Integer n;

    double operator[](std::ptrdiff_t i) const { return t[i]; }
    double first() const { return t[kDegree]; }
    double last() const { return t[n - kOrder]; }
    Integer basis_size() const { return n - kOrder; }
    Integer interior() const { return n - kEndKnots; }

    bool holds(double x) const { return x >= first() && x <= last(); }

    // The span of x, continuous from the right; at the right end, and beyond it, the last span that is not empty.
    Integer span(double x) const { return not_empty(interval_of(t + kDegree, interior() + 2, x)); }

    // The same, where the span of the point before is a good guess.
    Integer span_near(double x, Integer before) const
    {
        return not_empty(interval_near(t + kDegree, interior() + 2, x, before - kDegree));
    }

    // The span that ends at x or holds it: continuous from the left.
    Integer span_from_left(double x) const
    {
        const auto *end = std::lower_bound(t + kOrder, t + n - kOrder, x);
        auto low = static_cast<Integer>(end - t) - 1;
        while (low < n - kOrder - 1 && !(t[low] < t[low + 1])) ++low;
        return low;
    }

  private:
    // The last span that is not empty up to an interval between the ends.
    Integer not_empty(std::ptrdiff_t interval) const
    {
        std::ptrdiff_t l = kDegree + interval;
        while (l > kDegree && !(t[l] < t[l + 1])) --l;
        return static_cast<Integer>(l);
    }
};

// Two doubles at a time: every processor has registers for them.
typedef double Pair __attribute__((vector_size(2 * sizeof(double))));

inline Pair load_pair(const double *x)
{
    Pair pair;
    std::memcpy(&pair, x, sizeof pair);
    return pair;
}

// A point on span l among the three knots on either side: what all sums of B-splines there have in common. Values are
// averages of the coefficients, so that no digits are lost. The divisions are by the lengths of all runs of 1, 2, 3 knot
// intervals that hold the span, two at a time, and none waits for another.
class PointOnSpan {
  public:
    PointOnSpan(const double *t, std::ptrdiff_t l, double x)
    {
        const double *const left = t + l, *const right = left + 1;
        const Pair left1 = load_pair(left - 1), left2 = load_pair(left - 2), right0 = load_pair(right);
        length3_ = right0 - left2;
        length2_ = right0 - left1;
        length_ = Pair{right[2] - left[0], right[0] - left[0]};
        over3_ = 1.0 / length3_;
        over2_ = 1.0 / length2_;
        over_ = 1.0 / length_;
        to_right_ = right0 - x;
        to_right2_ = right[2] - x;
        from_left1_ = x - left1;
        from_left2_ = x - left2;
    }

    // sum a[i] B_i(x) over the four B-splines that live on the span.
    double value(const double *a) const
    {
        const Pair two = load_pair(a) * (to_right_ * over3_) + load_pair(a + 1) * (from_left2_ * over3_);
        const Pair next = {two[1], a[2] * (to_right2_ * over_[0]) + a[3] * (from_left1_[1] * over_[0])};
        const Pair last = two * (to_right_ * over2_) + next * (from_left1_ * over2_);
        return last[0] * (to_right_[0] * over_[1]) + last[1] * (from_left1_[1] * over_[1]);
    }

    // The same and its three derivatives. They are sums of lower degree, whose coefficients are differences.
    void derivatives(const double *a, double s[kOrder]) const
    {
        const auto mean_of_two = [this](Pair c) { return (c[0] * to_right_[0] + c[1] * from_left1_[1]) / length_[1]; };
        const Pair slopes = 3.0 * (load_pair(a + 1) - load_pair(a)) / length3_;
        const Pair next = {slopes[1], 3.0 * (a[3] - a[2]) / length_[0]};
        const Pair bends = 2.0 * (next - slopes) / length2_;
        s[0] = value(a);
        s[1] = mean_of_two((slopes * to_right_ + next * from_left1_) / length2_);
        s[2] = mean_of_two(bends);
        s[3] = (bends[1] - bends[0]) / length_[1];
    }

    // The four cubic B-splines themselves: non-negative, with sum 1.
    void basis(double b[kOrder]) const
    {
        const Pair one = {to_right_[0] * over_[1], from_left1_[1] * over_[1]};
        const Pair share2 = one * over2_;
        const Pair rising2 = share2 * from_left1_, falling2 = share2 * to_right_;
        const Pair two = {falling2[0], rising2[0] + falling2[1]};
        const Pair share3 = two * over3_;
        const double last = rising2[1] * over_[0];
        const Pair rising3 = share3 * from_left2_, falling3 = share3 * to_right_;
        b[0] = falling3[0];
        b[1] = rising3[0] + falling3[1];
        b[2] = rising3[1] + last * to_right2_;
        b[3] = last * from_left1_[1];
    }

  private:
    Pair length3_, length2_, length_; // the first two runs of three, the two of two, the last of three and the span
    Pair over3_, over2_, over_;       // their reciprocals
    Pair to_right_, from_left1_, from_left2_; // the first two knots on the right; the last two, and those before
    double to_right2_;                        // the third knot on the right
};

// The four B-splines that live on span l, at x: non-negative, with sum 1.
inline void basis_values(const double *t, std::ptrdiff_t l, double x, double b[kOrder])
{
    PointOnSpan{t, l, x}.basis(b);
}

// sum c[i] B_i(x) on span l.
inline double spline_value(const double *t, const double *c, std::ptrdiff_t l, double x)
{
    return PointOnSpan{t, l, x}.value(c + l - kDegree);
}

// The value and the three derivatives on span l.
inline void spline_derivatives(const double *t, const double *c, std::ptrdiff_t l, double x, double s[kOrder])
{
    PointOnSpan{t, l, x}.derivatives(c + l - kDegree, s);
}

} // namespace kor::approx
