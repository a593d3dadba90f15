// e02ddc: the smoothing bicubic spline for scattered data.
//
// Method: P. Dierckx, IMA J. Numer. Anal. 1 (1981) 267-283, in the form of Curve and Surface Fitting with Splines (1993),
// chapter 9. The equations are banded once the coefficients are numbered along the dimension with fewer of them; points come
// panel by panel, so that each row is rotated into few others.
#include <kor/e02.h>

#include <algorithm>
#include <cmath>

#include "approx/arguments.hpp"
#include "approx/bicubic.hpp"
#include "approx/smoothing.hpp"
#include "approx/warm_start.hpp"
#include "approx/wide_band.hpp"
#include "frame/constants.hpp"
#include "frame/workspace.hpp"

namespace {

using namespace kor::approx;

constexpr Integer kFewestPoints = 16;
constexpr Integer kReals = 1, kIntegers = 1;

// Space that grows with the knots.
template <class T>
bool at_least(kor::Workspace<T> &space, kor::Count count)
{
    return space && !count.overflow() && space.size() >= count.value() ? true : space.allocate(count);
}

// The knots of one dimension, with the shares of its intervals in the sum of squared residuals.
struct Axis {
    kor::Workspace<double> t;
    Integer n = kEndKnots;
    Integer limit = 0;
    kor::Workspace<double> residuals, moments; // of each interval: sum of squares, and that times the coordinate
    kor::Workspace<double> jumps;
    double low = 0.0, high = 0.0;

    Knots knots() const { return {t.data(), n}; }
    Integer basis_size() const { return n - kOrder; }
    Integer intervals() const { return n - kEndKnots + 1; }

    bool allocate(Integer m, const double *x, Integer wanted)
    {
        // When the other dimension has its least number of coefficients, 4, more than this would be more than points.
        limit = std::min(wanted, std::max(kEndKnots, m / kOrder + kEndKnots));
        const auto [first, last] = std::minmax_element(x, x + m);
        low = *first;
        high = *last;
        const kor::Count size{limit};
        return t.allocate(size) && residuals.allocate(size) && moments.allocate(size) &&
               jumps.allocate(size * kor::Count{kOrder + 1});
    }

    void set_ends()
    {
        std::fill_n(t.data(), kOrder, low);
        std::fill_n(t.data() + n - kOrder, kOrder, high);
    }

    void start_without_interior()
    {
        n = kEndKnots;
        set_ends();
    }

    // A knot in interval j at the centre of gravity of the residuals; false if it would come too close to one end.
    bool split(Integer j)
    {
        constexpr double closest = 10.0; // ratio of the parts
        const double knot = moments[j] / residuals[j];
        const double before = knot - t[j + kDegree], behind = t[j + kOrder] - knot;
        if (!(before <= closest * behind && behind <= closest * before)) return false;
        std::copy_backward(t.data() + j + kOrder, t.data() + n, t.data() + n + 1);
        t[j + kOrder] = knot;
        ++n;
        return true;
    }
};

class SurfaceSmoothing {
  public:
    SurfaceSmoothing(Integer m, const double *x, const double *y, const double *f, const double *weights, double s,
                     Integer x_limit, Integer y_limit)
        : m_{m}, x_data_{x}, y_data_{y}, f_{f}, weights_{weights}, s_{s}, accuracy_{kSmoothingTolerance * s}
    {
        const kor::Count size{m};
        memory_ = x_.allocate(m, x, x_limit) && y_.allocate(m, y, y_limit) && next_.allocate(size) &&
                  x_span_.allocate(size) && y_span_.allocate(size) && basis_.allocate(size * kor::Count{2 * kOrder});
    }

    explicit operator bool() const { return memory_; } // false as well when memory was lacking in a run
    Axis &x() { return x_; }
    Axis &y() { return y_; }
    double &of_polynomial() { return of_polynomial_; }
    double sum() const { return fp_; }
    Integer rank() const { return solution_.rank; }
    const double *coefficients() const { return swapped_ ? turned_.data() : c_.data(); }

    Fit run(bool warm)
    {
        if (!warm || no_interior_knots() || of_polynomial_ <= s_) {
            x_.start_without_interior();
            y_.start_without_interior();
        }
        for (;;) {
            if (!make_room() || !fit_least_squares()) return lack_of_memory();
            if (no_interior_knots()) of_polynomial_ = fp_;
            const double excess = fp_ - s_;
            if (std::fabs(excess) <= accuracy_) return no_interior_knots() ? Fit::polynomial : Fit::smoothing;
            if (excess < 0.0) return no_interior_knots() ? Fit::polynomial : smooth();
            if (coefficient_count() > used_points_) return Fit::too_many_coefficients;
            if (x_.n == x_.limit && y_.n == y_.limit) return Fit::knots_limited;
            share_residuals();
            if (!add_knot()) return Fit::no_place_for_knots;
        }
    }

    // Turns the coefficients the way round in which they are handed out.
    bool finish()
    {
        if (!swapped_) return true;
        const std::ptrdiff_t nx = x_.basis_size(), ny = y_.basis_size();
        if (!turned_.allocate(kor::Count{nx} * kor::Count{ny})) return false;
        for (std::ptrdiff_t j = 0; j < ny; ++j)
            for (std::ptrdiff_t i = 0; i < nx; ++i) turned_[i * ny + j] = c_[j * nx + i];
        return true;
    }

  private:
    bool no_interior_knots() const { return x_.n == kEndKnots && y_.n == kEndKnots; }
    Integer coefficient_count() const { return x_.basis_size() * y_.basis_size(); }

    Fit lack_of_memory()
    {
        memory_ = false;
        return Fit::no_convergence;
    }

    // The dimension along which coefficients are numbered is the inner one.
    const Axis &inner() const { return swapped_ ? x_ : y_; }
    const Axis &outer() const { return swapped_ ? y_ : x_; }

    bool make_room()
    {
        if (inner().n > outer().n) swapped_ = !swapped_;
        band_ = kDegree * inner().basis_size() + kOrder;
        smooth_band_ = std::max(band_, kOrder * inner().basis_size() + 1);
        const kor::Count n{coefficient_count()};
        return at_least(r_, n * kor::Count{band_}) && at_least(z_, n) && at_least(c_, n) &&
               at_least(row_, kor::Count{smooth_band_}) &&
               at_least(head_, kor::Count{x_.intervals()} * kor::Count{y_.intervals()});
    }

    // Chains of points, one for each panel, in the order of the coefficients.
    void sort_into_panels()
    {
        std::fill_n(head_.data(), x_.intervals() * y_.intervals(), kEnd);
        used_points_ = 0;
        for (Integer r = m_ - 1; r >= 0; --r) {
            if (weights_[r] == 0.0) continue;
            ++used_points_;
            x_span_[r] = x_.knots().span(x_data_[r]);
            y_span_[r] = y_.knots().span(y_data_[r]);
            double *const b = basis_.data() + 2 * kOrder * static_cast<std::ptrdiff_t>(r);
            basis_values(x_.t.data(), x_span_[r], x_data_[r], b);
            basis_values(y_.t.data(), y_span_[r], y_data_[r], b + kOrder);
            const Integer i = x_span_[r] - kDegree, j = y_span_[r] - kDegree;
            Integer &first = head_[swapped_ ? j * x_.intervals() + i : i * y_.intervals() + j];
            next_[r] = first;
            first = r;
        }
    }

    bool fit_least_squares()
    {
        sort_into_panels();
        const BandedTriangle triangle{r_.data(), z_.data(), coefficient_count(), band_};
        triangle.clear();
        fp_ = 0.0;
        const std::ptrdiff_t columns = inner().basis_size();
        for (Integer panel = 0; panel < x_.intervals() * y_.intervals(); ++panel) {
            for (Integer r = head_[panel]; r != kEnd; r = next_[r]) {
                const double *const bx = basis_.data() + 2 * kOrder * static_cast<std::ptrdiff_t>(r), *const by =
                                                                                                          bx + kOrder;
                const double *const of_outer = swapped_ ? by : bx, *const of_inner = swapped_ ? bx : by;
                std::fill_n(row_.data(), band_, 0.0);
                for (int i = 0; i < kOrder; ++i)
                    for (int j = 0; j < kOrder; ++j) row_[i * columns + j] = weights_[r] * of_outer[i] * of_inner[j];
                const auto first =
                    static_cast<Integer>(panel / inner().intervals() * columns + panel % inner().intervals());
                const double left = add_wide_row(triangle, first, row_.data(), band_, weights_[r] * f_[r]);
                fp_ += left * left;
            }
        }
        if (!solve_ranked(triangle, kor::kPrecision, c_.data(), solution_)) return false;
        fp_ += solution_.unfitted;
        return true;
    }

    double squared_residual(Integer r) const
    {
        const double *const bx = basis_.data() + 2 * kOrder * static_cast<std::ptrdiff_t>(r), *const by = bx + kOrder;
        const double value = swapped_ ? bicubic_value(c_.data(), x_.basis_size(), y_span_[r], by, x_span_[r], bx)
                                      : bicubic_value(c_.data(), y_.basis_size(), x_span_[r], bx, y_span_[r], by);
        const double residual = weights_[r] * (f_[r] - value);
        return residual * residual;
    }

    void share_residuals()
    {
        for (const Axis *axis : {&x_, &y_}) {
            std::fill_n(axis->residuals.data(), axis->intervals(), 0.0);
            std::fill_n(axis->moments.data(), axis->intervals(), 0.0);
        }
        for (Integer r = 0; r < m_; ++r) {
            if (weights_[r] == 0.0) continue;
            const double square = squared_residual(r);
            const Integer i = x_span_[r] - kDegree, j = y_span_[r] - kDegree;
            x_.residuals[i] += square;
            x_.moments[i] += square * x_data_[r];
            y_.residuals[j] += square;
            y_.moments[j] += square * y_data_[r];
        }
    }

    // In the strip with the largest share that has room for it.
    bool add_knot()
    {
        for (;;) {
            Axis *chosen = nullptr;
            Integer worst = 0;
            for (Axis *axis : {&x_, &y_}) {
                if (axis->n == axis->limit) continue;
                for (Integer j = 0; j < axis->intervals(); ++j) {
                    if (!(axis->residuals[j] > (chosen != nullptr ? chosen->residuals[worst] : 0.0))) continue;
                    chosen = axis;
                    worst = j;
                }
            }
            if (chosen == nullptr) return false;
            if (chosen->split(worst)) return true;
            chosen->residuals[worst] = 0.0;
        }
    }

    // Rows of the least-squares triangle and of the penalties in both dimensions in turn, by their first column.
    bool fit_with_penalty(double p)
    {
        const std::ptrdiff_t columns = inner().basis_size();
        const BandedTriangle triangle{smooth_r_.data(), smooth_z_.data(), coefficient_count(), smooth_band_};
        triangle.clear();
        for (Integer i = 0; i < triangle.n; ++i) {
            const Integer i_outer = static_cast<Integer>(i / columns), i_inner = static_cast<Integer>(i % columns);
            // Full length: rotations fill what is empty at first.
            const Integer length = std::min(smooth_band_, triangle.n - i);
            std::fill_n(row_.data(), length, 0.0);
            std::copy_n(r_.data() + static_cast<std::ptrdiff_t>(i) * band_, std::min(band_, length), row_.data());
            add_wide_row(triangle, i, row_.data(), length, z_[i]);
            if (i_inner < inner().knots().interior()) {
                std::fill_n(row_.data(), length, 0.0);
                for (int k = 0; k <= kOrder; ++k) row_[k] = inner().jumps[i_inner * (kOrder + 1) + k] / p;
                add_wide_row(triangle, i, row_.data(), length, 0.0);
            }
            if (i_outer < outer().knots().interior()) {
                std::fill_n(row_.data(), length, 0.0);
                for (int k = 0; k <= kOrder; ++k) row_[k * columns] = outer().jumps[i_outer * (kOrder + 1) + k] / p;
                add_wide_row(triangle, i, row_.data(), length, 0.0);
            }
        }
        if (!solve_ranked(triangle, kor::kPrecision, c_.data(), solution_)) return false;
        fp_ = 0.0;
        for (Integer r = 0; r < m_; ++r)
            if (weights_[r] != 0.0) fp_ += squared_residual(r);
        return true;
    }

    Fit smooth()
    {
        const Integer n = coefficient_count();
        if (!at_least(smooth_r_, kor::Count{n} * kor::Count{smooth_band_}) || !at_least(smooth_z_, kor::Count{n}))
            return lack_of_memory();
        derivative_jumps(x_.knots(), x_.jumps.data());
        derivative_jumps(y_.knots(), y_.jumps.data());
        double diagonal = 0.0;
        for (std::ptrdiff_t i = 0; i < n; ++i) diagonal += std::fabs(r_[i * band_]);
        ParameterSearch search{n / diagonal, of_polynomial_ - s_, fp_ - s_, accuracy_};
        for (int step = 0; step < kSmoothingIterations; ++step) {
            if (!fit_with_penalty(search.p())) return lack_of_memory();
            const double excess = fp_ - s_;
            if (std::fabs(excess) <= accuracy_) return Fit::smoothing;
            if (step + 1 == kSmoothingIterations || !search.next(excess)) break;
        }
        return Fit::no_convergence;
    }

    static constexpr Integer kEnd = -1; // of a chain

    Integer m_;
    const double *x_data_, *y_data_, *f_, *weights_;
    double s_, accuracy_;
    bool memory_;
    bool swapped_ = false;
    Integer band_ = 0, smooth_band_ = 0, used_points_ = 0;
    Axis x_, y_;
    kor::Workspace<Integer> next_, head_, x_span_, y_span_;
    kor::Workspace<double> basis_; // of each point: four values in x, four in y
    kor::Workspace<double> r_, z_, smooth_r_, smooth_z_, row_, c_, turned_;
    RankedSolution solution_{};
    double of_polynomial_ = 0.0, fp_ = 0.0;
};

bool take_up_axis(Integer n, const double *t, Axis &axis)
{
    if (t == nullptr || n < kEndKnots || n > axis.limit) return false;
    axis.n = n;
    std::copy_n(t, n, axis.t.data());
    axis.set_ends();
    for (Integer j = kOrder; j <= n - kOrder; ++j)
        if (!(axis.t[j - 1] < axis.t[j])) return false;
    return true;
}

bool take_up(SurfaceSmoothing &fit, const KorSplineWarm *warm, const KorSpline2D *spline, Integer m)
{
    const bool right = warm != nullptr && warm->wrk != nullptr && warm->iwrk != nullptr && warm->nwrk == kReals &&
                       warm->niwrk == kIntegers && warm->iwrk[0] == m;
    if (!right || !take_up_axis(spline->nx, spline->lamda, fit.x()) || !take_up_axis(spline->ny, spline->mu, fit.y()))
        return false;
    fit.of_polynomial() = warm->wrk[0];
    return true;
}

bool data_right(const kor::Report &report, Integer m, const double x[], const double y[], const double f[],
                const double weights[])
{
    if (!all_finite(report, "x", m, x) || !all_finite(report, "y", m, y) || !all_finite(report, "f", m, f) ||
        !all_finite(report, "weights", m, weights))
        return false;
    if (m - std::count(weights, weights + m, 0.0) < kFewestPoints) {
        report.error<NE_NON_ZERO_WEIGHTS>();
        return false;
    }
    if (std::count(x, x + m, x[0]) == m || std::count(y, y + m, y[0]) == m) {
        report.error<NE_ALL_ELEMENTS_EQUAL>();
        return false;
    }
    return true;
}

} // namespace

void e02ddc(Integer start, Integer m, const double x[], const double y[], const double f[], const double weights[],
            double s, Integer nxest, Integer nyest, double *fp, Integer *rank, KorSplineWarm *warmstartinf,
            KorSpline2D *spline, KorError *fail)
{
    const kor::Report report{"e02ddc", fail};
    if (start != Kor_Cold && start != Kor_Warm) return report.error<NE_BAD_PARAM>("start");
    if (m < kFewestPoints) return report.error<NE_INT_ARG_LT>("m", "16", "m", m);
    if (!data_right(report, m, x, y, f, weights)) return;
    if (!(s > 0.0)) return report.error<NE_REAL_ARG_LE>("s", "0.0", "s", s);
    if (nxest < kEndKnots || nyest < kEndKnots) return report.error<NE_NUM_KNOTS_2D_LT>("nxest", "nyest", nxest, nyest);

    SurfaceSmoothing fit{m, x, y, f, weights, s, nxest, nyest};
    if (!fit) return report.error<NE_ALLOC_FAIL>();
    const bool warm = start == Kor_Warm;
    if (warm && !take_up(fit, warmstartinf, spline, m)) return report.error<NE_ENUMTYPE_WARM>("start");

    const Fit outcome = fit.run(warm);

    if (!fit || !fit.finish()) return report.error<NE_ALLOC_FAIL>();
    SurfaceWriter surface{fit.x().knots(), fit.y().knots()};
    WarmWriter memory{warmstartinf, kReals, kor::Count{kIntegers}};
    if (!surface || !memory) return report.error<NE_ALLOC_FAIL>();
    memory.reals({fit.of_polynomial()});
    memory.integers({m});
    memory.hand_over(warm);
    surface.hand_over(fit.coefficients(), spline, warm);
    *fp = fit.sum();
    *rank = fit.rank();

    switch (outcome) {
    case Fit::interpolating:
    case Fit::polynomial:
    case Fit::smoothing:
        return report.success();
    case Fit::knots_limited:
        return report.error<NE_NUM_KNOTS_2D_GT_SCAT>("nxest", "nyest", "5+sqrt(m)", nxest, nyest, s);
    case Fit::too_many_coefficients:
        return report.error<NE_NUM_COEFF_GT>("m", "s", m, s);
    case Fit::no_place_for_knots:
        return report.error<NE_NO_ADDITIONAL_KNOTS>("s", s);
    case Fit::no_convergence:
        return report.error<NE_SPLINE_COEFF_CONV>("s", s);
    }
}
