// Adaptive cubature over a box.
//
// A. C. Genz and A. A. Malik, An adaptive algorithm for numerical integration over an N-dimensional rectangular region, J. Comput.
// Appl. Math. 6 (1980) 295-302. The box with the largest error is halved across the axis along which the fourth difference of
// the integrand is largest.
#include <algorithm>
#include <cmath>
#include <cstdint>

#include <kor/x04.h>

#include "frame/workspace.hpp"
#include "quadrature/box_integrals.hpp"

namespace kor::quadrature {

namespace {

constexpr Integer kLeastDimension = 2, kMostDimension = 15;

// The rule of degree 7 and the embedded one of degree 5, on the cube (-1, 1)^n of volume 1. A point lies at lambda on one axis
// (2 and 3), on two (4) or on all (5).
constexpr double kLambda2 = 0.35856858280031809199, kLambda4 = 0.94868329805051379960,
                 kLambda5 = 0.68824720161168529772;
constexpr double kRatio = 1.0 / 7.0; // (lambda2/lambda3)^2
struct Weights {
    double w1, w2, w3, w4, w5; // degree 7
    double v1, v2, v3, v4;     // degree 5
};
Weights weights_for(Integer ndim)
{
    const double n = ndim;
    return {(12824.0 - 9120.0 * n + 400.0 * n * n) / 19683.0,
            980.0 / 6561.0,
            (1820.0 - 400.0 * n) / 19683.0,
            200.0 / 19683.0,
            std::ldexp(6859.0 / 19683.0, -ndim),
            (729.0 - 950.0 * n + 50.0 * n * n) / 729.0,
            245.0 / 486.0,
            (265.0 - 100.0 * n) / 1458.0,
            25.0 / 729.0};
}

// A heap of boxes, the one with the largest error on top, in memory that grows. A box is a row of doubles: centre and half-widths,
// then value, error and the axis to be halved.
class Boxes {
  public:
    explicit Boxes(Integer ndim) : ndim_{ndim}, row_{2 * static_cast<std::size_t>(ndim) + 3} {}
    Boxes(const Boxes &) = delete;
    ~Boxes()
    {
        void *block = rows_;
        x04bdc(&block);
    }

    double *centre(std::size_t i) { return rows_ + i * row_; }
    double *half(std::size_t i) { return centre(i) + ndim_; }
    double &value(std::size_t i) { return centre(i)[2 * ndim_]; }
    double &error(std::size_t i) { return centre(i)[2 * ndim_ + 1]; }
    double &axis(std::size_t i) { return centre(i)[2 * ndim_ + 2]; }
    std::size_t size() const { return size_; }

    // Room for one more; false if there is no memory.
    bool reserve()
    {
        if (size_ < capacity_) return true;
        const std::size_t wanted = capacity_ == 0 ? 64 : 2 * capacity_;
        const Count bytes = Count{wanted} * Count{row_} * Count{sizeof(double)};
        if (bytes.overflow()) return false;
        void *grown = x04bcc(rows_, bytes.value());
        if (grown == nullptr) return false;
        rows_ = static_cast<double *>(grown);
        capacity_ = wanted;
        return true;
    }
    std::size_t add() { return size_++; }

    void rise(std::size_t i)
    {
        while (i > 0 && error(i) > error((i - 1) / 2)) {
            exchange(i, (i - 1) / 2);
            i = (i - 1) / 2;
        }
    }
    void sink(std::size_t i)
    {
        for (;;) {
            std::size_t largest = i;
            for (std::size_t child = 2 * i + 1; child <= 2 * i + 2 && child < size_; ++child)
                if (error(child) > error(largest)) largest = child;
            if (largest == i) return;
            exchange(i, largest);
            i = largest;
        }
    }

  private:
    void exchange(std::size_t i, std::size_t j) { std::swap_ranges(centre(i), centre(i) + row_, centre(j)); }

    std::ptrdiff_t ndim_;
    std::size_t row_;
    double *rows_ = nullptr;
    std::size_t size_ = 0, capacity_ = 0;
};

// The point that the integrand is called with. Coordinates are stored in pairs: a loop over them that the compiler has made
// to load two at a time would wait if one of the two were still on its way to the cache.
class Point {
  public:
    explicit Point(Integer ndim, const double *from) { std::copy(from, from + ndim, x_); }
    operator const double *() const { return x_; }
    double operator[](Integer i) const { return x_[i]; }
    void set(Integer i, double value)
    {
        Pair &pair = reinterpret_cast<Pair *>(x_)[i / 2];
        pair = i % 2 == 0 ? Pair{value, pair[1]} : Pair{pair[0], value};
    }

  private:
    typedef double Pair __attribute__((vector_size(2 * sizeof(double)), may_alias));
    alignas(Pair) double x_[kMostDimension + 1] = {};
};

// Applies both rules to a box.
void apply_rules(Integer ndim, BoxIntegrand f, const Weights &w, Boxes &boxes, std::size_t box)
{
    const double *const centre = boxes.centre(box), *const half = boxes.half(box);
    Point x{ndim, centre};
    const double f0 = f(x);
    double sum2 = 0.0, sum3 = 0.0, sum4 = 0.0, sum5 = 0.0, volume = 1.0;
    double largest_difference = -1.0;
    Integer axis = 0;
    const auto pair_sum = [&](Integer i, double lambda) {
        x.set(i, centre[i] - lambda * half[i]);
        const double below = f(x);
        x.set(i, centre[i] + lambda * half[i]);
        const double above = f(x);
        x.set(i, centre[i]);
        return below + above;
    };
    for (Integer i = 0; i < ndim; ++i) {
        const double pair2 = pair_sum(i, kLambda2), pair3 = pair_sum(i, kLambda4);
        sum2 += pair2;
        sum3 += pair3;
        const double difference = std::fabs((pair2 - 2.0 * f0) - kRatio * (pair3 - 2.0 * f0));
        if (difference > largest_difference || (difference == largest_difference && half[i] > half[axis])) {
            largest_difference = difference;
            axis = i;
        }
        volume *= 2.0 * half[i];
    }
    for (Integer i = 0; i + 1 < ndim; ++i)
        for (Integer j = i + 1; j < ndim; ++j) {
            for (const double sign : {-1.0, 1.0}) {
                x.set(i, centre[i] + sign * kLambda4 * half[i]);
                sum4 += pair_sum(j, kLambda4);
            }
            x.set(i, centre[i]);
        }
    // All corners in the order of a Gray code: one coordinate changes at a time.
    for (Integer i = 0; i < ndim; ++i) x.set(i, centre[i] - kLambda5 * half[i]);
    for (std::uint32_t corner = 0;; ++corner) {
        sum5 += f(x);
        const Integer i = __builtin_ctz(corner + 1);
        if (i >= ndim) break;
        x.set(i, x[i] < centre[i] || half[i] == 0.0 ? centre[i] + kLambda5 * half[i] : centre[i] - kLambda5 * half[i]);
    }
    const double value = volume * (w.w1 * f0 + w.w2 * sum2 + w.w3 * sum3 + w.w4 * sum4 + w.w5 * sum5);
    boxes.value(box) = value;
    boxes.error(box) = std::fabs(value - volume * (w.v1 * f0 + w.v2 * sum2 + w.v3 * sum3 + w.v4 * sum4));
    boxes.axis(box) = axis;
}

} // namespace

void adaptive_cubature(const Report &report, Integer ndim, BoxIntegrand f, const double *a, const double *b,
                       Integer minpts, Integer maxpts, double eps, double *acc, double *finval)
{
    if (ndim < kLeastDimension || ndim > kMostDimension)
        return report.error<NE_INVALID_INT_RANGE_2>(ndim, "ndim", kLeastDimension, "<= ndim <=", kMostDimension);
    if (maxpts < minpts) return report.error<NE_2_INT_ARG_LT>("maxpts", maxpts, "minpts", minpts, "maxpts", "minpts");
    if (!(eps > 0.0)) return report.error<NE_REAL_ARG_LE>("eps", "0.0", "eps", eps);
    const Integer points = (Integer{1} << ndim) + 2 * ndim * ndim + 2 * ndim + 1;
    if (maxpts < points) return report.error<NE_QUAD_MAX_INTEGRAND_CONS>("maxpts", maxpts, points);

    const Weights weights = weights_for(ndim);
    Boxes boxes{ndim};
    if (!boxes.reserve()) return report.error<NE_ALLOC_FAIL>();
    const std::size_t whole = boxes.add();
    double sign = 1.0;
    for (Integer i = 0; i < ndim; ++i) {
        boxes.centre(whole)[i] = 0.5 * (a[i] + b[i]);
        boxes.half(whole)[i] = 0.5 * std::fabs(b[i] - a[i]);
        if (b[i] < a[i]) sign = -sign;
    }
    apply_rules(ndim, f, weights, boxes, whole);
    std::int64_t evaluations = points;
    double value = boxes.value(whole), error = boxes.error(whole);
    bool met = false;
    for (;;) {
        const bool room = evaluations + 2 * static_cast<std::int64_t>(points) <= maxpts;
        // Two rules may agree by chance: one bisection, where there is room for it, is asked before they are believed.
        const bool confirmed = boxes.size() > 1 || !room;
        met = error <= eps * std::fabs(value) && evaluations >= minpts && confirmed;
        if (met || !room) break;
        if (!boxes.reserve()) return report.error<NE_ALLOC_FAIL>();
        const std::size_t other = boxes.add();
        const auto axis = static_cast<Integer>(boxes.axis(0));
        const double whole_value = boxes.value(0);
        value -= whole_value;
        error -= boxes.error(0);
        boxes.half(0)[axis] *= 0.5;
        std::copy(boxes.centre(0), boxes.centre(0) + 2 * ndim + 3, boxes.centre(other));
        boxes.centre(0)[axis] -= boxes.half(0)[axis];
        boxes.centre(other)[axis] += boxes.half(other)[axis];
        for (const std::size_t box : {std::size_t{0}, other}) apply_rules(ndim, f, weights, boxes, box);
        // If the halves change the value by more than their errors, these errors were too small.
        const double change = std::fabs(boxes.value(0) + boxes.value(other) - whole_value);
        const double estimated = boxes.error(0) + boxes.error(other);
        const double correction = change > estimated && estimated > 0.0 ? change / estimated : 1.0;
        for (const std::size_t box : {std::size_t{0}, other}) {
            boxes.error(box) *= correction;
            value += boxes.value(box);
            error += boxes.error(box);
        }
        evaluations += 2 * static_cast<std::int64_t>(points);
        boxes.sink(0);
        boxes.rise(other);
    }

    // Summed anew: the running sums have gathered rounding errors.
    value = error = 0.0;
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        value += boxes.value(i);
        error += boxes.error(i);
    }
    *finval = sign * value;
    *acc = value != 0.0 ? error / std::fabs(value) : error;
    if (!met) return report.error<NE_QUAD_MAX_INTEGRAND_EVAL>("maxpts", maxpts);
    report.success();
}

} // namespace kor::quadrature
