// Orthogonal elimination in the linear systems of boundary value problems.
#include "ode/block_system.hpp"

#include <algorithm>
#include <cmath>

#include "frame/constants.hpp"

namespace kor::ode {

namespace {

// Takes v to (beta, 0, ...) by the reflection I - scale w w' with w_1 = 1; leaves beta and the rest of w in v.
double reflect(Integer n, double *v)
{
    double largest = 0.0, total = std::fabs(v[0]);
    for (Integer i = 1; i < n; ++i) {
        largest = std::max(largest, std::fabs(v[i]));
        total += std::fabs(v[i]);
    }
    // What is not finite must show on the diagonal.
    if (!(total <= kLargest)) v[0] = HUGE_VAL;
    if (!(total <= kLargest) || largest == 0.0) return 0.0;
    largest = std::max(largest, std::fabs(v[0]));
    double sum = 0.0;
    for (Integer i = 0; i < n; ++i) sum += (v[i] / largest) * (v[i] / largest);
    const double norm = largest * std::sqrt(sum);
    const double beta = v[0] > 0.0 ? -norm : norm;
    const double pivot = v[0] - beta;
    for (Integer i = 1; i < n; ++i) v[i] /= pivot;
    v[0] = beta;
    return -pivot / beta;
}

// Applies the reflection whose w lies in v (w_1 = 1) to a column.
void apply(Integer n, const double *v, double scale, double *x)
{
    double sum = x[0];
    for (Integer i = 1; i < n; ++i) sum += v[i] * x[i];
    sum *= scale;
    x[0] -= sum;
    for (Integer i = 1; i < n; ++i) x[i] -= sum * v[i];
}

// Clears what is below the diagonal in the first n of `columns` columns of length `height`.
void triangulate(Integer height, Integer n, std::ptrdiff_t columns, double *s, double *scales)
{
    for (Integer k = 0; k < n; ++k) {
        double *pivot = s + std::ptrdiff_t{k} * height + k;
        scales[k] = reflect(height - k, pivot);
        if (scales[k] == 0.0) continue;
        for (std::ptrdiff_t c = k + 1; c < columns; ++c) apply(height - k, pivot, scales[k], s + c * height + k);
    }
}

void apply_all(Integer height, Integer n, const double *s, const double *scales, double *x)
{
    for (Integer k = 0; k < n; ++k)
        if (scales[k] != 0.0) apply(height - k, s + std::ptrdiff_t{k} * height + k, scales[k], x + k);
}

// Solves R x = b, in place.
void substitute_back(Integer height, Integer n, const double *s, double *x)
{
    for (Integer k = n - 1; k >= 0; --k) {
        const double *column = s + std::ptrdiff_t{k} * height;
        x[k] /= column[k];
        for (Integer i = 0; i < k; ++i) x[i] -= column[i] * x[k];
    }
}

bool regular(Integer height, Integer n, const double *s)
{
    for (Integer k = 0; k < n; ++k) {
        const double d = std::fabs(s[std::ptrdiff_t{k} * height + k]);
        if (!(d > 0.0 && d <= kLargest)) return false;
    }
    return true;
}

} // namespace

bool rows_are_independent(Integer n, const double *at_left, const double *at_right, double *work)
{
    // The rows become columns: one that depends on those before it leaves nothing on the diagonal.
    const Integer height = 2 * n;
    double *scales = work + std::ptrdiff_t{height} * n, *sizes = scales + n;
    for (Integer r = 0; r < n; ++r) {
        double *column = work + std::ptrdiff_t{r} * height;
        std::copy_n(at_left + std::ptrdiff_t{r} * n, n, column);
        std::copy_n(at_right + std::ptrdiff_t{r} * n, n, column + n);
        sizes[r] = std::fabs(
            *std::max_element(column, column + height, [](double a, double b) { return std::fabs(a) < std::fabs(b); }));
    }
    triangulate(height, n, n, work, scales);
    constexpr double kLost = 64.0 * kPrecision;
    for (Integer r = 0; r < n; ++r)
        if (!(std::fabs(work[std::ptrdiff_t{r} * height + r]) > kLost * n * sizes[r])) return false;
    return true;
}

bool BlockSystem::allocate(Integer n, Integer left, Integer mixed, Integer most)
{
    n_ = n;
    left_ = left;
    mixed_ = mixed;
    open_ = left + mixed;
    height_ = open_ + n;
    const Count size = Count{height_} * Count{n} * Count{mixed > 0 ? 3 : 2} + Count{n};
    block_size_ = static_cast<std::ptrdiff_t>(size.value());
    return blocks_.allocate(size * Count{most}) && last_.allocate(Count{n} * (Count{n} + 1)) &&
           work_.allocate(Count{open_} * Count{n} * 2 + Count{height_});
}

// `work_` holds the open rows: their columns of the next point, then those of the last one.
void BlockSystem::begin(Integer intervals, const double *at_left, const double *at_right)
{
    intervals_ = intervals;
    next_ = 0;
    at_right_ = at_right;
    double *here = work_.data(), *there = here + std::ptrdiff_t{open_} * n_;
    for (Integer c = 0; c < n_; ++c)
        for (Integer r = 0; r < open_; ++r) {
            here[std::ptrdiff_t{c} * open_ + r] = at_left[std::ptrdiff_t{r} * n_ + c];
            there[std::ptrdiff_t{c} * open_ + r] = r < left_ ? 0.0 : at_right[std::ptrdiff_t{r} * n_ + c];
        }
}

void BlockSystem::add(const double *a, const double *b)
{
    double *s = block(next_++);
    double *const near = s + std::ptrdiff_t{height_} * n_, *const far = near + std::ptrdiff_t{height_} * n_;
    double *here = work_.data(), *there = here + std::ptrdiff_t{open_} * n_;
    for (Integer c = 0; c < n_; ++c) {
        const std::ptrdiff_t top = std::ptrdiff_t{c} * height_;
        std::copy_n(here + std::ptrdiff_t{c} * open_, open_, s + top);
        std::fill_n(near + top, open_, 0.0);
        for (Integer r = 0; r < n_; ++r) {
            s[top + open_ + r] = a[std::ptrdiff_t{r} * n_ + c];
            near[top + open_ + r] = b[std::ptrdiff_t{r} * n_ + c];
        }
        if (mixed_ > 0) {
            std::copy_n(there + std::ptrdiff_t{c} * open_, open_, far + top);
            std::fill_n(far + top + open_, n_, 0.0);
        }
    }
    triangulate(height_, n_, columns(), s, s + columns() * height_);
    for (Integer c = 0; c < n_; ++c) {
        std::copy_n(near + std::ptrdiff_t{c} * height_ + n_, open_, here + std::ptrdiff_t{c} * open_);
        if (mixed_ > 0) std::copy_n(far + std::ptrdiff_t{c} * height_ + n_, open_, there + std::ptrdiff_t{c} * open_);
    }
}

bool BlockSystem::finish()
{
    const double *here = work_.data(), *there = here + std::ptrdiff_t{open_} * n_;
    double *s = last_.data();
    for (Integer c = 0; c < n_; ++c)
        for (Integer r = 0; r < n_; ++r) {
            double &value = s[std::ptrdiff_t{c} * n_ + r];
            if (r >= open_)
                value = at_right_[std::ptrdiff_t{r} * n_ + c];
            else
                value = here[std::ptrdiff_t{c} * open_ + r] + (mixed_ > 0 ? there[std::ptrdiff_t{c} * open_ + r] : 0.0);
        }
    triangulate(n_, n_, n_, s, s + std::ptrdiff_t{n_} * n_);
    if (!regular(n_, n_, s)) return false;
    for (Integer i = 0; i < intervals_; ++i)
        if (!regular(height_, n_, block(i))) return false;
    return true;
}

void BlockSystem::solve(const double *conditions, const double *rows, double *u) const
{
    double *x = work_.data() + std::ptrdiff_t{open_} * n_ * 2;
    std::copy_n(conditions, open_, x);
    for (Integer i = 0; i < intervals_; ++i) {
        std::copy_n(rows + std::ptrdiff_t{i} * n_, n_, x + open_);
        const double *s = block(i);
        apply_all(height_, n_, s, s + columns() * height_, x);
        std::copy_n(x, n_, u + std::ptrdiff_t{i} * n_);
        std::copy_n(x + n_, open_, x);
    }
    double *end = u + std::ptrdiff_t{intervals_} * n_;
    std::copy_n(x, open_, end);
    std::copy_n(conditions + open_, n_ - open_, end + open_);
    apply_all(n_, n_, last_.data(), last_.data() + std::ptrdiff_t{n_} * n_, end);
    substitute_back(n_, n_, last_.data(), end);
    for (Integer i = intervals_ - 1; i >= 0; --i) {
        const double *s = block(i), *near = s + std::ptrdiff_t{height_} * n_,
                     *far = near + std::ptrdiff_t{height_} * n_;
        double *here = u + std::ptrdiff_t{i} * n_;
        const double *next = here + n_;
        for (Integer c = 0; c < n_; ++c)
            for (Integer r = 0; r < n_; ++r) {
                double sum = near[std::ptrdiff_t{c} * height_ + r] * next[c];
                if (mixed_ > 0) sum += far[std::ptrdiff_t{c} * height_ + r] * end[c];
                here[r] -= sum;
            }
        substitute_back(height_, n_, s, here);
    }
}

} // namespace kor::ode
