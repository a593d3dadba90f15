// e02dcc: the smoothing bicubic spline on a rectangular grid.
//
// Method: P. Dierckx, SIAM J. Numer. Anal. 19 (1982) 1286-1304, in the form of Curve and Surface Fitting with Splines (1993),
// chapter 5. The matrix of the equations is a product of one for each dimension, so that all is solved one dimension at a
// time. What is common with curves stands in smoothing.hpp.
#include <kor/e02.h>

#include <algorithm>
#include <cmath>

#include "approx/arguments.hpp"
#include "approx/banded_triangle.hpp"
#include "approx/knot_conditions.hpp"
#include "approx/smoothing.hpp"
#include "approx/warm_start.hpp"
#include "frame/dispatch.hpp"
#include "frame/workspace.hpp"
#include "linalg/transpose.hpp"

namespace {

using namespace kor::approx;

constexpr Integer kBand = kOrder + 1;

KOR_CLONES
void rotate_rows(double *upper, double *lower, std::ptrdiff_t count, double c, double s)
{
    for (std::ptrdiff_t k = 0; k < count; ++k) {
        const double above = upper[k], below = lower[k];
        upper[k] = c * above + s * below;
        lower[k] = c * below - s * above;
    }
}

KOR_CLONES
void subtract_row(double *from, const double *row, std::ptrdiff_t count, double factor)
{
    for (std::ptrdiff_t k = 0; k < count; ++k) from[k] -= factor * row[k];
}

// One dimension: its knots, the basis at its grid lines, and the equations for any number of right-hand sides at once.
struct Dimension {
    GrowingKnots knots{};
    kor::Workspace<double> t, residuals, basis, jumps, triangle;
    kor::Workspace<Integer> inside, spans;

    bool allocate(Integer m, const double *x, Integer limit)
    {
        limit = std::min(limit, m + kOrder);
        const kor::Count size{limit};
        if (!t.allocate(size) || !residuals.allocate(size) || !inside.allocate(size) ||
            !spans.allocate(kor::Count{m}) || !basis.allocate(kor::Count{m} * kor::Count{kOrder}) ||
            !jumps.allocate(size * kor::Count{kBand}) || !triangle.allocate(size * kor::Count{kBand}))
            return false;
        knots = {t.data(), kEndKnots, limit, m, x, inside.data(), residuals.data()};
        return true;
    }

    // After the knots have changed.
    void prepare()
    {
        knots.evaluate_basis(spans.data(), basis.data());
        derivative_jumps(knots.knots(), jumps.data());
    }

    // Turns the right-hand sides of the grid lines, rows of `count`, which are destroyed, into those of the triangle. With
    // p > 0 the penalty 1/p on the jumps takes part, its rows among the others by their first column.
    void reduce(double *lines, std::ptrdiff_t count, double p, double *right, double *spare) const
    {
        std::fill_n(triangle.data(), static_cast<std::ptrdiff_t>(knots.basis_size()) * kBand, 0.0);
        std::fill_n(right, knots.basis_size() * count, 0.0);
        Integer penalty = p > 0.0 ? 0 : knots.knots().interior();
        const auto penalties_up_to = [&](Integer column) {
            for (; penalty < std::min(column, knots.knots().interior()); ++penalty) {
                double h[kBand];
                for (int j = 0; j < kBand; ++j) h[j] = jumps[penalty * kBand + j] / p;
                std::fill_n(spare, count, 0.0);
                add_row(penalty, h, kBand, spare, right, count);
            }
        };
        for (std::ptrdiff_t i = 0; i < knots.m; ++i) {
            const Integer column = spans[i] - kDegree;
            penalties_up_to(column);
            double h[kOrder];
            std::copy_n(basis.data() + i * kOrder, kOrder, h);
            add_row(column, h, kOrder, lines + i * count, right, count);
        }
        penalties_up_to(knots.basis_size());
    }

    void solve(double *right, std::ptrdiff_t count) const
    {
        const Integer n = knots.basis_size();
        for (std::ptrdiff_t i = n - 1; i >= 0; --i) {
            const double *const row = triangle.data() + i * kBand;
            for (std::ptrdiff_t j = 1; j < std::min<std::ptrdiff_t>(kBand, n - i); ++j)
                if (row[j] != 0.0) subtract_row(right + i * count, right + (i + j) * count, count, row[j]);
            for (std::ptrdiff_t k = 0; k < count; ++k) right[i * count + k] /= row[0];
        }
    }

  private:
    void add_row(Integer first, double *h, Integer length, double *y, double *right, std::ptrdiff_t count) const
    {
        for (Integer i = 0; i < length; ++i) {
            if (h[i] == 0.0) continue;
            double *const target = triangle.data() + static_cast<std::ptrdiff_t>(first + i) * kBand;
            const PlaneRotation q = rotation_onto(target[0], h[i]);
            rotate_rows(right + (first + i) * count, y, count, q.c, q.s);
            for (Integer j = 1; j < length - i; ++j) {
                const double above = target[j], below = h[i + j];
                target[j] = q.c * above + q.s * below;
                h[i + j] = q.c * below - q.s * above;
            }
        }
    }
};

// What a warm start needs besides the knots.
struct State {
    double of_polynomial = 0.0; // sum of squares without interior knots
    double before = 0.0;        // sum of squares before the last knots were added
    double gain_x = 0.0;        // what the last knots in x, and in y, have gained
    double gain_y = 0.0;
    Integer added_x = 0, added_y = 0; // how many these were
    Integer last = 0;                 // -1: the last ones were added in x; 1: in y
};
constexpr Integer kReals = 4, kIntegers = 5;

class GridSmoothing {
  public:
    GridSmoothing(Integer mx, const double *x, Integer my, const double *y, const double *f, double s, Integer x_limit,
                  Integer y_limit)
        : mx_{mx}, my_{my}, f_{f}, s_{s}, accuracy_{kSmoothingTolerance * s}
    {
        if (!x_.allocate(mx, x, x_limit) || !y_.allocate(my, y, y_limit)) return;
        const kor::Count larger_x{std::max(mx, x_.knots.limit)}, larger_y{std::max(my, y_.knots.limit)};
        const kor::Count size = larger_x * larger_y;
        memory_ = lines_.allocate(size) && right_.allocate(size) && c_.allocate(size) &&
                  spare_.allocate(larger_x + larger_y) && row_sums_.allocate(kor::Count{mx}) &&
                  column_sums_.allocate(kor::Count{my});
    }

    explicit operator bool() const { return memory_; }
    GrowingKnots &x_knots() { return x_.knots; }
    GrowingKnots &y_knots() { return y_.knots; }
    const double *coefficients() const { return c_.data(); }
    State &state() { return state_; }
    double sum() const { return fp_; }

    Fit run(bool warm)
    {
        if (s_ == 0.0) {
            x_.knots.start_interpolating();
            y_.knots.start_interpolating();
            prepare();
            fit(0.0);
            return Fit::interpolating;
        }
        if (!warm || no_interior_knots() || state_.of_polynomial <= s_) {
            state_ = {};
            x_.knots.start_without_interior();
            y_.knots.start_without_interior();
        }
        for (;;) {
            prepare();
            fit(0.0);
            if (no_interior_knots()) state_.of_polynomial = fp_;
            const double excess = fp_ - s_;
            if (std::fabs(excess) < accuracy_) return no_interior_knots() ? Fit::polynomial : Fit::smoothing;
            if (excess < 0.0) return no_interior_knots() ? Fit::polynomial : smooth();
            if (x_.knots.interpolating() && y_.knots.interpolating()) return Fit::interpolating;
            if (x_.knots.full() && y_.knots.full()) return Fit::knots_limited;
            add_knots(excess);
        }
    }

  private:
    bool no_interior_knots() const { return x_.knots.n == kEndKnots && y_.knots.n == kEndKnots; }

    void prepare()
    {
        x_.prepare();
        y_.prepare();
    }

    // In the dimension that needs the fewer; in turn if both need as many.
    void add_knots(double excess)
    {
        if (state_.last < 0) state_.gain_x = state_.before - fp_;
        if (state_.last > 0) state_.gain_y = state_.before - fp_;
        state_.before = fp_;
        const auto wanted = [&](const GrowingKnots &knots, Integer added, double gain) {
            return knots.n == kEndKnots ? 1 : GrowingKnots::number_to_add(added, gain, excess, accuracy_);
        };
        const Integer in_x = wanted(x_.knots, state_.added_x, state_.gain_x);
        const Integer in_y = wanted(y_.knots, state_.added_y, state_.gain_y);
        bool choose_x = in_x < in_y || (in_x == in_y && state_.last >= 0);
        if (choose_x ? x_.knots.full() : y_.knots.full()) choose_x = !choose_x;
        GrowingKnots &grown = choose_x ? x_.knots : y_.knots;
        if (choose_x) {
            x_.knots.share_residuals(x_.spans.data(), [this](Integer i) { return row_sums_[i]; });
            x_.knots.add(in_x);
            state_.added_x = in_x;
            state_.last = -1;
        } else {
            y_.knots.share_residuals(y_.spans.data(), [this](Integer j) { return column_sums_[j]; });
            y_.knots.add(in_y);
            state_.added_y = in_y;
            state_.last = 1;
        }
        // As many knots as points allow need not fit the points.
        if (grown.interpolating() && first_without_point(grown.knots(), grown.m, grown.x) >= 0)
            grown.start_interpolating();
    }

    // The spline on these knots, without penalty for p = 0, and its residuals.
    void fit(double p)
    {
        const Integer nx = x_.knots.basis_size(), ny = y_.knots.basis_size();
        std::copy_n(f_, static_cast<std::ptrdiff_t>(mx_) * my_, lines_.data());
        x_.reduce(lines_.data(), my_, p, right_.data(), spare_.data());
        kor::linalg::transpose_into(nx, my_, right_.data(), my_, lines_.data(), nx);
        y_.reduce(lines_.data(), nx, p, right_.data(), spare_.data());
        y_.solve(right_.data(), nx);
        kor::linalg::transpose_into(ny, nx, right_.data(), nx, c_.data(), ny);
        x_.solve(c_.data(), ny);
        sum_residuals();
    }

    void sum_residuals()
    {
        const std::ptrdiff_t ny = y_.knots.basis_size();
        std::fill_n(column_sums_.data(), my_, 0.0);
        fp_ = 0.0;
        double *const curve = spare_.data();
        for (std::ptrdiff_t i = 0; i < mx_; ++i) {
            const double *const b = x_.basis.data() + i * kOrder;
            const double *const c = c_.data() + (x_.spans[i] - kDegree) * ny;
            for (std::ptrdiff_t j = 0; j < ny; ++j)
                curve[j] = (b[0] * c[j] + b[1] * c[ny + j]) + (b[2] * c[2 * ny + j] + b[3] * c[3 * ny + j]);
            double row = 0.0;
            for (std::ptrdiff_t j = 0; j < my_; ++j) {
                const double *const v = y_.basis.data() + j * kOrder;
                const double *const d = curve + (y_.spans[j] - kDegree);
                const double residual = f_[i * my_ + j] - ((v[0] * d[0] + v[1] * d[1]) + (v[2] * d[2] + v[3] * d[3]));
                row += residual * residual;
                column_sums_[j] += residual * residual;
            }
            row_sums_[i] = row;
            fp_ += row;
        }
    }

    Fit smooth()
    {
        constexpr double first_p = 1.0;
        ParameterSearch search{first_p, state_.of_polynomial - s_, fp_ - s_, accuracy_};
        for (int step = 0; step < kSmoothingIterations; ++step) {
            fit(search.p());
            const double excess = fp_ - s_;
            if (std::fabs(excess) < accuracy_) return Fit::smoothing;
            if (step + 1 == kSmoothingIterations || !search.next(excess)) break;
        }
        return Fit::no_convergence;
    }

    Integer mx_, my_;
    const double *f_;
    double s_, accuracy_;
    bool memory_ = false;
    Dimension x_, y_;
    kor::Workspace<double> lines_, right_, c_, spare_, row_sums_, column_sums_;
    State state_;
    double fp_ = 0.0;
};

bool take_up(GridSmoothing &fit, const KorSplineWarm *warm, const KorSpline2D *spline)
{
    const WarmReader reader{warm, kReals, kIntegers};
    GrowingKnots &x = fit.x_knots(), &y = fit.y_knots();
    if (!reader || reader.integer(0) != x.m || reader.integer(1) != y.m ||
        !take_up_knots(spline->nx, spline->lamda, x) || !take_up_knots(spline->ny, spline->mu, y))
        return false;
    if (!reader.copy_counts(kIntegers, x) || !reader.copy_counts(kIntegers + x.intervals(), y)) return false;
    fit.state() = {reader.real(0),    reader.real(1),    reader.real(2),   reader.real(3),
                   reader.integer(2), reader.integer(3), reader.integer(4)};
    return true;
}

} // namespace

void e02dcc(Integer start, Integer mx, const double x[], Integer my, const double y[], const double f[], double s,
            Integer nxest, Integer nyest, double *fp, KorSplineWarm *warmstartinf, KorSpline2D *spline, KorError *fail)
{
    const kor::Report report{"e02dcc", fail};
    if (start != Kor_Cold && start != Kor_Warm) return report.error<NE_BAD_PARAM>("start");
    if (mx < kOrder) return report.error<NE_INT_ARG_LT>("mx", "4", "mx", mx);
    if (my < kOrder) return report.error<NE_INT_ARG_LT>("my", "4", "my", my);
    if (!strictly_increasing(report, "x", mx, x) || !strictly_increasing(report, "y", my, y)) return;
    const kor::Count values = kor::Count{mx} * kor::Count{my};
    for (std::size_t i = 0; i < values.value(); ++i)
        if (!std::isfinite(f[i])) return report.error<NE_REAL_ARRAY_CONS>("f", i, f[i], "every value is finite");
    if (!(s >= 0.0)) return report.error<NE_REAL_ARG_LT>("s", "0.0", "s", s);
    if (nxest < kEndKnots || nyest < kEndKnots) return report.error<NE_NUM_KNOTS_2D_LT>("nxest", "nyest", nxest, nyest);
    if (s == 0.0 && nxest - kOrder < mx) return report.error<NE_SF_D_K_CONS>("nxest >= mx+4", "s = 0.0", nxest, mx, s);
    if (s == 0.0 && nyest - kOrder < my) return report.error<NE_SF_D_K_CONS>("nyest >= my+4", "s = 0.0", nyest, my, s);

    GridSmoothing fit{mx, x, my, y, f, s, nxest, nyest};
    if (!fit) return report.error<NE_ALLOC_FAIL>();
    const bool warm = start == Kor_Warm;
    if (warm && !take_up(fit, warmstartinf, spline)) return report.error<NE_ENUMTYPE_WARM>("start");

    const Fit outcome = fit.run(warm);

    const GrowingKnots &x_knots = fit.x_knots(), &y_knots = fit.y_knots();
    SurfaceWriter surface{x_knots, y_knots};
    const kor::Count counts = kor::Count{x_knots.intervals()} + kor::Count{y_knots.intervals()};
    WarmWriter memory{warmstartinf, kReals, kor::Count{kIntegers} + counts};
    if (!surface || !memory) return report.error<NE_ALLOC_FAIL>();
    const State &state = fit.state();
    memory.reals({state.of_polynomial, state.before, state.gain_x, state.gain_y});
    memory.integers({mx, my, state.added_x, state.added_y, state.last});
    memory.counts(kIntegers, x_knots);
    memory.counts(kIntegers + x_knots.intervals(), y_knots);
    memory.hand_over(warm);
    surface.hand_over(fit.coefficients(), spline, warm);
    *fp = outcome == Fit::interpolating ? 0.0 : fit.sum();

    if (outcome == Fit::knots_limited)
        return report.error<NE_NUM_KNOTS_2D_GT_RECT>("nxest", "nyest", "mx/2, my/2", nxest, nyest, s);
    if (outcome == Fit::no_convergence) return report.error<NE_SPLINE_COEFF_CONV>("s", s);
    report.success();
}
