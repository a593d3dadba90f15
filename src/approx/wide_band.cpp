// Least squares with a matrix of wide band, of full or deficient rank.
#include "approx/wide_band.hpp"

#include <algorithm>
#include <cmath>

#include "frame/dispatch.hpp"

namespace kor::approx {

namespace {

KOR_CLONES
void rotate(double *target, double *h, std::ptrdiff_t count, double c, double s)
{
    for (std::ptrdiff_t j = 0; j < count; ++j) {
        const double above = target[j], below = h[j];
        target[j] = c * above + s * below;
        h[j] = c * below - s * above;
    }
}

// The rank-deficient case. Rows whose diagonal element counts as 0 are rotated into those below; the columns of these
// elements are free, and the others follow them: c_kept = u - V c_free.
class DeficientTriangle {
  public:
    DeficientTriangle(const BandedTriangle &triangle, double sigma) : n_{triangle.n}, width_{triangle.width}
    {
        const Count size = Count{n_} * Count{width_};
        if (!r_.allocate(size) || !z_.allocate(Count{n_}) || !row_.allocate(Count{width_}) ||
            !free_.allocate(Count{n_}))
            return;
        std::copy_n(triangle.r, size.value(), r_.data());
        std::copy_n(triangle.z, n_, z_.data());
        for (Integer i = 0; i < n_; ++i) {
            if (std::fabs(row(i)[0]) > sigma) continue;
            free_[free_count_++] = i;
            remove(i);
        }
        const Count columns{free_count_};
        memory_ = v_.allocate(columns * Count{n_}) && small_r_.allocate(columns * columns) &&
                  small_z_.allocate(columns) && small_row_.allocate(columns) && small_c_.allocate(columns);
    }

    explicit operator bool() const { return memory_; }
    RankedSolution result() const { return {n_ - free_count_, unfitted_}; }

    void solve(double *c) const
    {
        // u for the right-hand side, and V for the free columns.
        back_substitute(z_.data(), n_ - 1, c);
        for (Integer k = 0; k < free_count_; ++k) {
            double *const column = v_.data() + static_cast<std::ptrdiff_t>(k) * n_;
            for (Integer i = 0; i < n_; ++i) {
                const Integer j = free_[k] - i;
                column[i] = j > 0 && j < width_ ? row(i)[j] : 0.0;
            }
            back_substitute(column, free_[k] - 1, column);
        }
        // c_free has the least |u - V c_free|^2 + |c_free|^2.
        const BandedTriangle small{small_r_.data(), small_z_.data(), free_count_, free_count_};
        small.clear();
        for (Integer i = 0; i < n_; ++i) {
            if (row(i)[0] == 0.0) continue;
            for (Integer k = 0; k < free_count_; ++k) small_row_[k] = v_[static_cast<std::ptrdiff_t>(k) * n_ + i];
            small.add_row(0, small_row_.data(), free_count_, c[i]);
        }
        for (Integer k = 0; k < free_count_; ++k) {
            std::fill_n(small_row_.data(), free_count_, 0.0);
            small_row_[0] = 1.0;
            small.add_row(k, small_row_.data(), free_count_ - k, 0.0);
        }
        small.solve(small_c_.data());
        for (Integer k = 0; k < free_count_; ++k) {
            const double value = small_c_[k];
            const double *const column = v_.data() + static_cast<std::ptrdiff_t>(k) * n_;
            for (Integer i = 0; i < free_[k]; ++i) c[i] -= value * column[i];
        }
        for (Integer k = 0; k < free_count_; ++k) c[free_[k]] = small_c_[k];
    }

  private:
    double *row(std::ptrdiff_t i) const { return r_.data() + i * width_; }

    // Takes row i out, but for its diagonal element, and puts it into those below.
    void remove(Integer i)
    {
        double y = z_[i];
        std::copy_n(row(i) + 1, width_ - 1, row_.data());
        row_[width_ - 1] = 0.0;
        std::fill_n(row(i), width_, 0.0);
        z_[i] = 0.0;
        for (Integer k = i + 1; k < n_; ++k) {
            if (row_[0] != 0.0) {
                const PlaneRotation q = rotation_onto(row(k)[0], row_[0]);
                rotate(row(k) + 1, row_.data() + 1, width_ - 1, q.c, q.s);
                const double right = z_[k];
                z_[k] = q.c * right + q.s * y;
                y = q.c * y - q.s * right;
            }
            std::copy(row_.begin() + 1, row_.end(), row_.begin());
            row_[width_ - 1] = 0.0;
        }
        unfitted_ += y * y;
    }

    // Solves for the kept unknowns up to `last`, with 0 for the free ones; right and c may be the same.
    void back_substitute(const double *right, Integer last, double *c) const
    {
        for (Integer i = last; i >= 0; --i) {
            if (row(i)[0] == 0.0) {
                c[i] = 0.0;
                continue;
            }
            double sum = right[i];
            const Integer end = std::min(width_, last + 1 - i);
            for (Integer j = 1; j < end; ++j) sum -= row(i)[j] * c[i + j];
            c[i] = sum / row(i)[0];
        }
    }

    Integer n_, width_;
    Integer free_count_ = 0;
    double unfitted_ = 0.0;
    bool memory_ = false;
    Workspace<double> r_, z_, row_, v_, small_r_, small_z_, small_row_, small_c_;
    Workspace<Integer> free_;
};

} // namespace

double add_wide_row(const BandedTriangle &triangle, Integer first, double *h, Integer length, double y)
{
    for (Integer i = 0; i < length; ++i) {
        if (h[i] == 0.0) continue;
        double *const target = triangle.row(first + i);
        double &right = triangle.z[first + i];
        // A row stands where its first element is, so that one with diagonal 0 is empty.
        if (target[0] == 0.0) {
            std::copy_n(h + i, length - i, target);
            right = y;
            return 0.0;
        }
        const PlaneRotation q = rotation_onto(target[0], h[i]);
        rotate(target + 1, h + i + 1, length - i - 1, q.c, q.s);
        const double above = right;
        right = q.c * above + q.s * y;
        y = q.c * y - q.s * above;
    }
    return y;
}

bool solve_ranked(const BandedTriangle &triangle, double threshold, double *c, RankedSolution &result)
{
    double largest = 0.0, least = HUGE_VAL;
    for (Integer i = 0; i < triangle.n; ++i) {
        const double diagonal = std::fabs(triangle.row(i)[0]);
        largest = std::fmax(largest, diagonal);
        least = std::fmin(least, diagonal);
    }
    const double sigma = threshold * largest;
    if (least > sigma) {
        triangle.solve(c);
        result = {triangle.n, 0.0};
        return true;
    }
    const DeficientTriangle deficient{triangle, sigma};
    if (!deficient) return false;
    deficient.solve(c);
    result = deficient.result();
    return true;
}

} // namespace kor::approx
