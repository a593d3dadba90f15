// The memory that a smoothing routine leaves for a warm start, and the exchange of a spline's arrays for new ones.
//
// wrk holds reals, iwrk integers and then the counts of GrowingKnots::inside. A record that the caller has never filled, or
// that stems from other data, is told apart by its sizes and by its counts, which must add up to the data points.
#pragma once

#include <algorithm>
#include <initializer_list>

#include <kor/e02.h>
#include <kor/x04.h>

#include "approx/knot_conditions.hpp"
#include "approx/smoothing.hpp"
#include "frame/workspace.hpp"

namespace kor::approx {

class WarmReader {
  public:
    WarmReader(const KorSplineWarm *warm, Integer reals, Integer integers) : warm_{warm}
    {
        right_ = warm != nullptr && warm->wrk != nullptr && warm->iwrk != nullptr && warm->nwrk == reals &&
                 warm->niwrk > integers;
    }
    explicit operator bool() const { return right_; }
    double real(Integer i) const { return warm_->wrk[i]; }
    Integer integer(Integer i) const { return warm_->iwrk[i]; }

    // Fills the counts of these knots; false if there are not as many, or if they do not fit the data.
    bool copy_counts(Integer first, const GrowingKnots &knots) const
    {
        if (warm_->niwrk - first < knots.intervals()) return false;
        int64_t points = 0;
        for (Integer j = 0; j < knots.intervals(); ++j) {
            const Integer count = knots.inside[j] = warm_->iwrk[first + j];
            if (count < 0) return false;
            points += count;
        }
        return knots.interpolating() || points + knots.knots().interior() == knots.m - 2;
    }

  private:
    const KorSplineWarm *warm_;
    bool right_;
};

// Takes up the knots of an earlier spline, if they determine one on these data.
inline bool take_up_knots(Integer n, const double *t, GrowingKnots &knots)
{
    if (t == nullptr || n < kEndKnots || n > knots.limit) return false;
    knots.n = n;
    std::copy_n(t, n, knots.t);
    knots.set_ends();
    return first_without_point(knots.knots(), knots.m, knots.x) < 0;
}

// Releases what a warm start has replaced; a cold start does not look at what was there.
template <class T>
void replace(T *&old, Workspace<T> &fresh, bool warm)
{
    void *block = old;
    if (warm) x04bdc(&block);
    old = fresh.release();
}

// Nothing is kept where the caller gives no record.
class WarmWriter {
  public:
    WarmWriter(KorSplineWarm *warm, Integer reals, Count integers) : warm_{warm}
    {
        if (warm_ != nullptr) {
            reals_.allocate(Count{reals});
            integers_.allocate(integers);
        }
    }
    explicit operator bool() const { return warm_ == nullptr || (reals_ && integers_); }
    void reals(std::initializer_list<double> values)
    {
        if (warm_ != nullptr) std::copy(values.begin(), values.end(), reals_.begin());
    }
    void integers(std::initializer_list<Integer> values)
    {
        if (warm_ != nullptr) std::copy(values.begin(), values.end(), integers_.begin());
    }
    void counts(Integer first, const GrowingKnots &knots)
    {
        if (warm_ != nullptr) std::copy_n(knots.inside, knots.intervals(), integers_.data() + first);
    }
    void hand_over(bool warm_start)
    {
        if (warm_ == nullptr) return;
        warm_->nwrk = static_cast<Integer>(reals_.size());
        warm_->niwrk = static_cast<Integer>(integers_.size());
        replace(warm_->wrk, reals_, warm_start);
        replace(warm_->iwrk, integers_, warm_start);
    }

  private:
    KorSplineWarm *warm_;
    Workspace<double> reals_;
    Workspace<Integer> integers_;
};

// The arrays of a bicubic spline on its way to the caller.
class SurfaceWriter {
  public:
    SurfaceWriter(const Knots &x, const Knots &y)
        : x_{x}, y_{y}, lamda_{Count{x.n}}, mu_{Count{y.n}}, c_{Count{x.basis_size()} * Count{y.basis_size()}}
    {
    }
    SurfaceWriter(const GrowingKnots &x, const GrowingKnots &y) : SurfaceWriter{x.knots(), y.knots()} {}
    explicit operator bool() const { return lamda_ && mu_ && c_; }

    void hand_over(const double *coefficients, KorSpline2D *spline, bool warm_start)
    {
        std::copy_n(x_.t, x_.n, lamda_.data());
        std::copy_n(y_.t, y_.n, mu_.data());
        std::copy_n(coefficients, c_.size(), c_.data());
        spline->nx = x_.n;
        spline->ny = y_.n;
        replace(spline->lamda, lamda_, warm_start);
        replace(spline->mu, mu_, warm_start);
        replace(spline->c, c_, warm_start);
    }

  private:
    Knots x_, y_;
    Workspace<double> lamda_, mu_, c_;
};

} // namespace kor::approx
