// e02bec: the smoothing cubic spline that chooses its own knots.
//
// Method: P. Dierckx, J. Comput. Appl. Math. 1 (1975) 165-184, in the form of Curve and Surface Fitting with Splines (1993),
// chapter 5. What is common with surfaces stands in smoothing.hpp.
#include <kor/e02.h>

#include <algorithm>
#include <cmath>

#include "approx/arguments.hpp"
#include "approx/banded_triangle.hpp"
#include "approx/smoothing.hpp"
#include "approx/warm_start.hpp"
#include "frame/workspace.hpp"

namespace {

using namespace kor::approx;

// What a warm start needs, in the order in which it is kept: wrk holds two sums, iwrk the two numbers and the counts of
// GrowingKnots::inside.
struct State {
    double of_polynomial = 0.0; // sum of squares of the fit without interior knots
    double before = 0.0;        // sum of squares before the last knots were added
    Integer added = 0;          // how many these were
};
constexpr Integer kReals = 2, kIntegers = 2;

class CurveSmoothing {
  public:
    CurveSmoothing(Integer m, const double *x, const double *y, const double *weights, double s, Integer limit)
        : m_{m}, x_{x}, y_{y}, weights_{weights}, s_{s}, accuracy_{kSmoothingTolerance * s}
    {
        // No more knots than the points allow, however many the caller would take.
        limit_ = std::min(limit, m + kOrder);
        const kor::Count size{limit_};
        memory_ = t_.allocate(size) && c_.allocate(size) && z_.allocate(size) &&
                  r_.allocate(size * kor::Count{kOrder}) && smooth_z_.allocate(size) &&
                  smooth_r_.allocate(size * kor::Count{kOrder + 1}) && jumps_.allocate(size * kor::Count{kOrder + 1}) &&
                  residuals_.allocate(size) && inside_.allocate(size) &&
                  basis_.allocate(kor::Count{m} * kor::Count{kOrder}) && spans_.allocate(kor::Count{m});
        knots_ = {t_.data(), kEndKnots, limit_, m, x, inside_.data(), residuals_.data()};
    }

    explicit operator bool() const { return memory_; }
    GrowingKnots &knots() { return knots_; }
    const double *coefficients() const { return c_.data(); }
    State &state() { return state_; }
    double sum() const { return fp_; }

    Fit run(bool warm)
    {
        if (s_ == 0.0) {
            knots_.start_interpolating();
            fit_least_squares();
            return Fit::interpolating;
        }
        if (!warm || knots_.n == kEndKnots || state_.of_polynomial <= s_) {
            warm = false;
            state_ = {};
            knots_.start_without_interior();
        }
        for (bool first = !warm;;) {
            fit_least_squares();
            if (knots_.n == kEndKnots) state_.of_polynomial = fp_;
            const double excess = fp_ - s_;
            if (std::fabs(excess) < accuracy_) return knots_.n == kEndKnots ? Fit::polynomial : Fit::smoothing;
            if (excess < 0.0) return knots_.n == kEndKnots ? Fit::polynomial : smooth();
            if (knots_.interpolating()) return Fit::interpolating;
            if (knots_.full()) return Fit::knots_limited;
            state_.added =
                first ? 1 : GrowingKnots::number_to_add(state_.added, state_.before - fp_, excess, accuracy_);
            first = false;
            state_.before = fp_;
            knots_.share_residuals(spans_.data(), [this](Integer i) { return squared_residual(i); });
            knots_.add(state_.added);
            if (knots_.interpolating()) knots_.start_interpolating();
        }
    }

  private:
    double value(Integer i) const
    {
        const double *const b = basis_.data() + static_cast<std::ptrdiff_t>(i) * kOrder;
        const double *const c = c_.data() + spans_[i] - kDegree;
        return (c[0] * b[0] + c[1] * b[1]) + (c[2] * b[2] + c[3] * b[3]);
    }

    double squared_residual(Integer i) const
    {
        const double residual = weights_[i] * (y_[i] - value(i));
        return residual * residual;
    }

    void fit_least_squares()
    {
        const BandedTriangle triangle{r_.data(), z_.data(), knots_.basis_size(), kOrder};
        triangle.clear();
        fp_ = 0.0;
        knots_.evaluate_basis(spans_.data(), basis_.data());
        for (Integer i = 0; i < m_; ++i) {
            const double *const b = basis_.data() + static_cast<std::ptrdiff_t>(i) * kOrder;
            double h[kOrder];
            for (int j = 0; j < kOrder; ++j) h[j] = weights_[i] * b[j];
            const double left = triangle.add_row(spans_[i] - kDegree, h, kOrder, weights_[i] * y_[i]);
            fp_ += left * left;
        }
        triangle.solve(c_.data());
    }

    // The spline of these knots with the penalty 1/p on the jumps of the third derivative. Rows of the least-squares triangle
    // and of the penalty come in turn, by their first column, so that none travels far.
    void fit_with_penalty(double p)
    {
        const Integer n = knots_.basis_size(), penalties = knots_.knots().interior();
        const BandedTriangle triangle{smooth_r_.data(), smooth_z_.data(), n, kOrder + 1};
        triangle.clear();
        for (std::ptrdiff_t i = 0; i < n; ++i) {
            double h[kOrder + 1];
            std::copy_n(r_.data() + i * kOrder, kOrder, h);
            triangle.add_row(i, h, std::min<Integer>(kOrder, n - i), z_[i]);
            if (i >= penalties) continue;
            for (int j = 0; j <= kOrder; ++j) h[j] = jumps_[i * (kOrder + 1) + j] / p;
            triangle.add_row(i, h, kOrder + 1, 0.0);
        }
        triangle.solve(c_.data());
        fp_ = 0.0;
        for (Integer i = 0; i < m_; ++i) fp_ += squared_residual(i);
    }

    Fit smooth()
    {
        const Integer n = knots_.basis_size();
        derivative_jumps(knots_.knots(), jumps_.data());
        double diagonal = 0.0;
        for (std::ptrdiff_t i = 0; i < n; ++i) diagonal += r_[i * kOrder];
        ParameterSearch search{n / diagonal, state_.of_polynomial - s_, fp_ - s_, accuracy_};
        for (int step = 0; step < kSmoothingIterations; ++step) {
            fit_with_penalty(search.p());
            const double excess = fp_ - s_;
            if (std::fabs(excess) < accuracy_) return Fit::smoothing;
            if (step + 1 == kSmoothingIterations || !search.next(excess)) break;
        }
        return Fit::no_convergence;
    }

    Integer m_;
    const double *x_, *y_, *weights_;
    double s_, accuracy_;
    Integer limit_;
    bool memory_;
    kor::Workspace<double> t_, c_, z_, r_, smooth_z_, smooth_r_, jumps_, residuals_, basis_;
    kor::Workspace<Integer> inside_, spans_;
    GrowingKnots knots_{};
    State state_;
    double fp_ = 0.0;
};

// Takes up the knots and the state that an earlier call has left, if they fit these data.
bool take_up(CurveSmoothing &fit, const KorSplineWarm *warm, const KorSpline *spline)
{
    const WarmReader reader{warm, kReals, kIntegers};
    GrowingKnots &knots = fit.knots();
    if (!reader || reader.integer(0) != knots.m || !take_up_knots(spline->n, spline->lamda, knots) ||
        !reader.copy_counts(kIntegers, knots))
        return false;
    fit.state() = {reader.real(0), reader.real(1), reader.integer(1)};
    return true;
}

} // namespace

void e02bec(Integer start, Integer m, const double x[], const double y[], const double weights[], double s,
            Integer nest, double *fp, KorSplineWarm *warmstartinf, KorSpline *spline, KorError *fail)
{
    const kor::Report report{"e02bec", fail};
    if (start != Kor_Cold && start != Kor_Warm) return report.error<NE_BAD_PARAM>("start");
    if (m < kOrder) return report.error<NE_INT_ARG_LT>("m", "4", "m", m);
    if (!strictly_increasing(report, "x", m, x) || !all_finite(report, "y", m, y) ||
        !weights_positive(report, m, weights))
        return;
    if (!(s >= 0.0)) return report.error<NE_REAL_ARG_LT>("s", "0.0", "s", s);
    if (nest < kEndKnots) return report.error<NE_SF_D_K_CONS>("nest >= 8", "the spline is cubic", nest, m, s);
    if (s == 0.0 && nest - kOrder < m) return report.error<NE_SF_D_K_CONS>("nest >= m+4", "s = 0.0", nest, m, s);
    if (s > 0.0 && nest <= m / 2) return report.error<NE_SF_D_K_CONS>("nest > m/2", "s > 0.0", nest, m, s);

    CurveSmoothing fit{m, x, y, weights, s, nest};
    if (!fit) return report.error<NE_ALLOC_FAIL>();
    const bool warm = start == Kor_Warm;
    if (warm && !take_up(fit, warmstartinf, spline)) return report.error<NE_ENUMTYPE_WARM>("start");

    const Fit outcome = fit.run(warm);

    const GrowingKnots &knots = fit.knots();
    kor::Workspace<double> lamda(kor::Count{knots.n}), c(kor::Count{knots.n});
    WarmWriter memory{warmstartinf, kReals, kor::Count{kIntegers} + kor::Count{knots.intervals()}};
    if (!lamda || !c || !memory) return report.error<NE_ALLOC_FAIL>();
    std::copy_n(knots.t, knots.n, lamda.data());
    std::fill(std::copy_n(fit.coefficients(), knots.basis_size(), c.begin()), c.end(), 0.0);
    memory.reals({fit.state().of_polynomial, fit.state().before});
    memory.integers({m, fit.state().added});
    memory.counts(kIntegers, knots);
    memory.hand_over(warm);
    replace(spline->lamda, lamda, warm);
    replace(spline->c, c, warm);
    spline->n = knots.n;
    *fp = outcome == Fit::interpolating ? 0.0 : fit.sum();

    if (outcome == Fit::knots_limited) return report.error<NE_NUM_KNOTS_1D_GT>("nest", "m/2", nest, s);
    if (outcome == Fit::no_convergence) return report.error<NE_SPLINE_COEFF_CONV>("s", s);
    report.success();
}
