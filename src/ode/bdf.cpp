// The backward differentiation method: variable coefficients, orders 1 to 5, by reverse communication.
#include "ode/bdf.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <new>
#include <type_traits>

#include "frame/constants.hpp"
#include "linalg/lapack.hpp"
#include "ode/lu_factors.hpp"

namespace kor::ode {

namespace {

// The remaining error of the Newton iteration, as a part of the error that a step may make.
constexpr double kNewtonTolerance = 0.05;
constexpr Integer kNewtonLimit = 4;
constexpr double kDivergence = 0.9; // a contraction that is not worth going on with
constexpr double kFreshRate = 0.2;  // rate of contraction that new factors are trusted with
// The relative change of h / alpha that factors bear: new ones save iterations, and cost less than these while the matrix is small.
constexpr double kCoefficientDrift = 0.1, kLargeDrift = 0.25;
constexpr Integer kSmallMatrix = 64;
constexpr Integer kJacobianLife = 30;   // steps
constexpr Integer kNewtonFailures = 20; // in a row
constexpr Integer kErrorFailures = 20;
constexpr Integer kStepLimit = 20'000'000; // bounds the work where the steps stay tiny

// Step control: a step may make the error `1`; the next one aims lower, and stays as it is when little is to be gained,
// because every change costs factors and some smoothness.
constexpr double kBiasSame = 6.0, kBiasLower = 6.0, kBiasHigher = 10.0;
constexpr double kLeastGrowth = 1.15;
constexpr double kMostGrowth = 2.0;
constexpr double kFirstGrowth = 10.0;
constexpr Integer kFirstSteps = 3;

constexpr Integer kSmallestBanded = 16;  // below it a full matrix is as fast
constexpr Integer kSmallestSampled = 64; // below it all columns of a Jacobian are formed without more ado
constexpr Integer kSamples = 5;
constexpr double kExplained = 0.01; // what a band may leave unexplained of a change of the slopes
constexpr double kTinySteps = 16.0; // in units of the precision of t: shorter steps do not move it reliably

double quotient(double v, double w) { return v == 0.0 ? 0.0 : v / w; }

// The norm of combine(i), i = 0..n-1.
template <class Combine>
double norm_of(Integer n, const double *w, Combine combine)
{
    double sum = 0.0;
    for (Integer i = 0; i < n; ++i) {
        const double q = quotient(combine(i), w[i]);
        sum += q * q;
    }
    return std::sqrt(sum / n);
}

class Method {
  public:
    Method(BdfCore &core, KorBdfState &st, const BdfArrays &arrays)
        : core_{core}, st_{st}, a_{arrays}, n_{st.neq}, matrix_{st.work}, predicted_{matrix_ + std::ptrdiff_t{n_} * n_},
          predicted_slope_{predicted_ + n_}, e_{predicted_slope_ + n_}, weight_{e_ + n_}, base_slope_{weight_ + n_}
    {
    }

    BdfRequest run(BdfStatus &status)
    {
        for (;;) {
            switch (core_.phase) {
            case BdfPhase::fresh:
                if (!tolerances_possible()) return broken(status, BdfStatus::first_step);
                core_.phase = BdfPhase::initial_slope;
                return ask_slope();
            case BdfPhase::initial_slope:
                take_initial_slope();
                core_.phase = BdfPhase::probe;
                return ask_slope();
            case BdfPhase::probe:
                take_probe();
                core_.phase = BdfPhase::ready;
                break;
            case BdfPhase::ready:
                if (reached()) return BdfRequest::done;
                if (!begin_step()) return broken(status, trouble());
                core_.phase = BdfPhase::newton;
                return ask_slope();
            case BdfPhase::newton:
                switch (newton()) {
                case Turn::slope:
                    return ask_slope();
                case Turn::jacobian:
                    return st_.jacobian == KOR_BDF_ANALYTIC ? BdfRequest::jacobian : ask_slope();
                case Turn::accepted:
                    core_.phase = BdfPhase::ready;
                    if (st_.one_step) return BdfRequest::done;
                    break;
                case Turn::again:
                    core_.phase = BdfPhase::ready;
                    break;
                }
                break;
            case BdfPhase::jacobian:
                finish_jacobian();
                break;
            case BdfPhase::difference:
                if (next_group()) return ask_slope();
                finish_jacobian();
                break;
            case BdfPhase::broken:
                status = BdfStatus::not_ready;
                return BdfRequest::done;
            }
        }
    }

  private:
    enum class Turn { slope, jacobian, accepted, again }; // what follows a correction

    double *phi(Integer i) const { return st_.ysav + std::ptrdiff_t{n_} * (i - 1); }
    double rtol(Integer i) const { return a_.rtol[a_.itol >= 3 ? i : 0]; }
    double atol(Integer i) const { return a_.atol[a_.itol == 2 || a_.itol == 4 ? i : 0]; }
    double norm(const double *v) const { return weighted_norm(n_, v, weight_); }

    BdfRequest ask_slope()
    {
        ++st_.derivatives;
        return BdfRequest::slope;
    }
    BdfRequest broken(BdfStatus &status, BdfStatus reason)
    {
        core_.phase = BdfPhase::broken;
        status = reason;
        std::copy_n(phi(1), n_, a_.y);
        core_.tnew = core_.t;
        return BdfRequest::done;
    }
    BdfStatus trouble() const { return st_.steps == 0 ? BdfStatus::first_step : BdfStatus::progress; }

    void set_weights(const double *also)
    {
        for (Integer i = 0; i < n_; ++i)
            weight_[i] = rtol(i) * std::max(std::fabs(phi(1)[i]), std::fabs(also[i])) + atol(i);
    }

    // Tolerances below what doubles resolve at the starting point cannot be met by any step.
    bool tolerances_possible()
    {
        std::copy_n(a_.y, n_, phi(1));
        set_weights(a_.y);
        for (Integer i = 0; i < n_; ++i)
            if (!(std::isfinite(a_.y[i]) && kPrecision * std::fabs(a_.y[i]) <= weight_[i])) return false;
        return true;
    }

    // ---- The first step ----

    double span() const { return std::fabs((st_.crit ? st_.tcrit : core_.target) - core_.t); }

    // A slope near the starting point tells the curvature.
    void take_initial_slope()
    {
        std::copy_n(a_.slope, n_, phi(2));
        const double size = norm(phi(1)), speed = norm(phi(2));
        // A hundredth of the way in which y would change by itself, or by its tolerance.
        double probe = speed > 0.0 ? 0.01 * std::max(size, 1.0) / speed : 0.01 * span();
        probe = std::isfinite(probe) ? std::min(probe, 0.01 * span()) : 0.0;
        probe = std::max(probe, 2.0 * kTinySteps * kPrecision * std::max(std::fabs(core_.t), span() * kPrecision));
        core_.h = probe * core_.direction;
        core_.tnew = core_.t + core_.h;
        for (Integer i = 0; i < n_; ++i) a_.y[i] = phi(1)[i] + core_.h * phi(2)[i];
    }

    void take_probe()
    {
        const double probe = std::fabs(core_.h);
        const double curvature = norm_of(n_, weight_, [&](Integer i) { return a_.slope[i] - phi(2)[i]; }) / probe;
        const double speed = norm(phi(2));
        double h = std::min(100.0 * probe, span());
        // The local error of order 1, h^2 |y''| / 2, at a half; and no more than a thousand tolerances of movement when the
        // curvature cannot be trusted.
        if (curvature > 0.0) h = std::min(h, 1.0 / std::sqrt(curvature));
        if (!std::isfinite(curvature)) h = probe * 0.01;
        if (speed > 0.0) h = std::min(h, std::max(1e3 / speed, probe));
        core_.h = core_.last_h = h * core_.direction;
        for (Integer i = 0; i < n_; ++i) phi(2)[i] *= core_.h;
        core_.psi[1] = core_.h;
        core_.order = 1;
        core_.points = 2;
        core_.steps_at_order = 0;
        core_.jacobian_age = -1;
        core_.factored = 0;
    }

    // ---- One step ----

    bool reached() const { return st_.steps > 0 && (core_.t - core_.target) * core_.direction >= 0.0; }

    // Sets the point and the coefficients of the step, and predicts. False when no step can be taken.
    bool begin_step()
    {
        if (st_.steps >= kStepLimit || core_.newton_failures > kNewtonFailures || core_.error_failures > kErrorFailures)
            return false;
        double h = core_.h;
        if (!std::isfinite(h)) return false;
        core_.tnew = core_.t + h;
        if (st_.crit) {
            // The last two steps share what is left; the very last one ends exactly at the limit.
            const double left = st_.tcrit - core_.t;
            if (std::fabs(left) <= std::fabs(h) * 1.01) {
                h = left;
                core_.tnew = st_.tcrit;
            } else if (std::fabs(left) < 2.0 * std::fabs(h)) {
                h = left / 2;
                core_.tnew = core_.t + h;
            }
        }
        h = core_.tnew - core_.t;
        if (std::fabs(h) < kTinySteps * kPrecision * std::max(std::fabs(core_.t), std::fabs(core_.tnew)) || h == 0.0) {
            // A remainder of the range may be as short as it likes.
            if (!(st_.crit && core_.tnew == st_.tcrit && h != 0.0)) return false;
        }
        core_.h = h;
        const Integer k = core_.order;
        double *psi = core_.psi, *psi_new = core_.psi_new;
        psi_new[1] = h;
        for (Integer j = 2; j <= kBdfDistances; ++j)
            psi_new[j] = j <= core_.points ? h + psi[j - 1] : psi_new[j - 1] + h;
        core_.beta[1] = 1.0;
        for (Integer i = 2; i <= std::min<Integer>(k + 2, core_.points); ++i)
            core_.beta[i] = core_.beta[i - 1] * (psi_new[i - 1] / psi[i - 1]);
        core_.c = 1.0 / alpha_over_h(k);

        std::copy_n(phi(1), n_, predicted_);
        std::fill_n(predicted_slope_, n_, 0.0);
        double gamma = 0.0;
        for (Integer i = 2; i <= k + 1; ++i) {
            gamma += 1.0 / psi_new[i - 1];
            const double beta = core_.beta[i], slope = beta * gamma;
            const double *column = phi(i);
            for (Integer m = 0; m < n_; ++m) {
                predicted_[m] += beta * column[m];
                predicted_slope_[m] += slope * column[m];
            }
        }
        set_weights(predicted_);
        std::fill_n(e_, n_, 0.0);
        std::copy_n(predicted_, n_, a_.y);
        core_.iteration = 0;
        core_.formed_here = 0;
        return true;
    }

    double alpha_over_h(Integer k) const
    {
        double sum = 0.0;
        for (Integer j = 1; j <= k; ++j) sum += 1.0 / core_.psi_new[j];
        return sum;
    }
    // Local error of order k from the difference of order k + 1.
    double error_constant(Integer k) const { return std::fabs(1.0 / (alpha_over_h(k) * core_.psi_new[k + 1])); }

    // ---- The Newton iteration ----

    // Has the slope at predictor + e; makes the next correction.
    Turn newton()
    {
        if (core_.iteration == 0) {
            std::copy_n(a_.slope, n_, base_slope_);
            if (jacobian_due()) return ask_jacobian();
        }
        if (core_.factored == 0 || std::fabs(core_.c / core_.c_factored - 1.0) > drift()) {
            if (!factor()) return newton_failed();
        }
        double *delta = a_.correction;
        for (Integer i = 0; i < n_; ++i) delta[i] = core_.c * (a_.slope[i] - predicted_slope_[i]) - e_[i];
        solve(delta);
        const double scale = 2.0 / (1.0 + core_.c / core_.c_factored);
        for (Integer i = 0; i < n_; ++i) {
            delta[i] *= scale;
            e_[i] += delta[i];
            a_.y[i] = predicted_[i] + e_[i];
        }
        const double size = norm(delta);
        if (!std::isfinite(size)) return newton_failed();
        ++core_.iteration;
        if (core_.iteration > 1) {
            const double rate = size / core_.delta_norm;
            if (rate >= kDivergence) return newton_failed();
            core_.rate = std::max(rate, 0.2 * core_.rate);
        }
        core_.delta_norm = size;
        const double wanted = kNewtonTolerance / error_constant(core_.order);
        if (core_.rate / (1.0 - core_.rate) * size <= wanted) return end_step();
        // Iterations that cannot get there are not made.
        const Integer left = kNewtonLimit - core_.iteration;
        double expected = size / (1.0 - core_.rate);
        for (Integer i = 0; i < left; ++i) expected *= core_.rate;
        if (left == 0 || expected > wanted) return newton_failed();
        return Turn::slope;
    }

    Turn newton_failed()
    {
        if (!core_.formed_here) {
            // A Jacobian of an earlier point: there is still hope with one of this point.
            std::fill_n(e_, n_, 0.0);
            std::copy_n(predicted_, n_, a_.y);
            core_.iteration = 0;
            return ask_jacobian();
        }
        core_.structure_known = 0;
        core_.h *= 0.25;
        ++core_.newton_failures;
        ++st_.rejected;
        core_.jacobian_age = -1;
        return Turn::again;
    }

    Turn end_step()
    {
        set_weights(a_.y);
        const double error = error_constant(core_.order) * norm(e_);
        if (!(error <= 1.0)) {
            reject(error);
            return Turn::again;
        }
        accept(error);
        return Turn::accepted;
    }

    // ---- The Jacobian ----

    bool jacobian_due() const
    {
        return !core_.formed_here && (core_.jacobian_age < 0 || core_.jacobian_age >= kJacobianLife);
    }

    Turn ask_jacobian()
    {
        ++st_.jacobians;
        core_.formed_here = 1;
        // Differences within a known band leave what is outside as it is: zero.
        if (st_.jacobian == KOR_BDF_ANALYTIC || !core_.structure_known)
            std::fill_n(a_.jacobian, std::ptrdiff_t{n_} * n_, 0.0);
        if (st_.jacobian == KOR_BDF_ANALYTIC) {
            core_.phase = BdfPhase::jacobian;
            return Turn::jacobian;
        }
        core_.phase = BdfPhase::difference;
        if (!core_.structure_known && n_ >= kSmallestSampled) {
            core_.lower = core_.upper = 0;
            begin_stage(DifferenceStage::samples);
        } else {
            begin_stage(core_.structure_known ? DifferenceStage::groups : DifferenceStage::columns);
        }
        return Turn::jacobian;
    }

    double increment(Integer j) const
    {
        const double size = std::max({std::fabs(predicted_[j]), std::fabs(core_.h * base_slope_[j]), weight_[j]});
        double step = std::sqrt(kPrecision) * size;
        if (!(step > 0.0)) step = std::sqrt(kPrecision);
        // Towards where the solution goes: it is defined there.
        if (base_slope_[j] * core_.direction < 0.0) step = -step;
        return (predicted_[j] + step) - predicted_[j];
    }
    void begin_stage(DifferenceStage stage)
    {
        core_.stage = stage;
        core_.group = 0;
        switch (stage) {
        case DifferenceStage::columns:
            core_.groups = n_;
            break;
        case DifferenceStage::groups:
        case DifferenceStage::trial_groups:
            core_.groups = std::min<Integer>(n_, core_.lower + core_.upper + 1);
            break;
        case DifferenceStage::samples:
            core_.groups = kSamples;
            break;
        case DifferenceStage::check:
            core_.groups = 1;
            break;
        }
        shift_group();
    }

    Integer sampled_column() const
    {
        return static_cast<Integer>(static_cast<int64_t>(n_ - 1) * core_.group / (kSamples - 1));
    }
    // Steps of all sizes and signs, without any pattern.
    double checking_step(Integer j) const
    {
        const auto mixed = static_cast<std::uint32_t>(j + 1) * 2654435769u;
        return ((mixed >> 8) * 0x1p-23 - 1.0) * increment(j);
    }

    void shift_group()
    {
        if (core_.stage == DifferenceStage::samples) {
            const Integer j = sampled_column();
            a_.y[j] = predicted_[j] + increment(j);
        } else if (core_.stage == DifferenceStage::check) {
            for (Integer j = 0; j < n_; ++j) a_.y[j] = predicted_[j] + checking_step(j);
        } else {
            for (Integer j = core_.group; j < n_; j += core_.groups) a_.y[j] = predicted_[j] + increment(j);
        }
    }

    // Takes the slope of the group that has come; true: another group's is wanted.
    bool next_group()
    {
        if (core_.stage == DifferenceStage::samples) {
            const Integer j = sampled_column();
            for (Integer i = 0; i < n_; ++i)
                if (a_.slope[i] != base_slope_[i]) {
                    core_.lower = std::max(core_.lower, i - j);
                    core_.upper = std::max(core_.upper, j - i);
                }
            a_.y[j] = predicted_[j];
        } else if (core_.stage == DifferenceStage::check) {
            const bool right = band_explains_slope();
            std::copy_n(predicted_, n_, a_.y);
            if (right) {
                core_.structure_known = 1;
                return false;
            }
            begin_stage(DifferenceStage::columns);
            return true;
        } else {
            take_columns();
        }
        if (++core_.group < core_.groups) {
            shift_group();
            return true;
        }
        if (core_.stage == DifferenceStage::samples)
            begin_stage(banded() ? DifferenceStage::trial_groups : DifferenceStage::columns);
        else if (core_.stage == DifferenceStage::trial_groups)
            begin_stage(DifferenceStage::check);
        else
            return false;
        return true;
    }

    void take_columns()
    {
        const bool all_rows = core_.stage == DifferenceStage::columns;
        for (Integer j = core_.group; j < n_; j += core_.groups) {
            const double step = increment(j);
            const Integer first = all_rows ? 0 : std::max<Integer>(0, j - core_.upper);
            const Integer last = all_rows ? n_ - 1 : std::min<Integer>(n_ - 1, j + core_.lower);
            for (Integer i = first; i <= last; ++i)
                a_.jacobian[std::ptrdiff_t{i} * n_ + j] = (a_.slope[i] - base_slope_[i]) / step;
            a_.y[j] = predicted_[j];
        }
    }

    bool band_explains_slope() const
    {
        for (Integer i = 0; i < n_; ++i) {
            const double *row = a_.jacobian + std::ptrdiff_t{i} * n_;
            double change = 0.0, size = 0.0;
            for (Integer j = std::max<Integer>(0, i - core_.lower); j <= std::min<Integer>(n_ - 1, i + core_.upper);
                 ++j) {
                const double part = row[j] * checking_step(j);
                change += part;
                size += std::fabs(part);
            }
            if (!(std::fabs(a_.slope[i] - base_slope_[i] - change) <= kExplained * size)) return false;
        }
        return true;
    }

    void finish_jacobian()
    {
        core_.jacobian_age = 0;
        core_.factored = 0;
        core_.rate = kFreshRate;
        std::copy_n(predicted_, n_, a_.y);
        std::copy_n(base_slope_, n_, a_.slope);
        core_.phase = BdfPhase::newton;
        if (core_.structure_known && st_.jacobian != KOR_BDF_ANALYTIC) return;
        Integer lower = 0, upper = 0;
        for (Integer i = 0; i < n_; ++i) {
            const double *row = a_.jacobian + std::ptrdiff_t{i} * n_;
            for (Integer j = 0; j < i - lower; ++j)
                if (row[j] != 0.0) lower = i - j;
            for (Integer j = n_ - 1; j > i + upper; --j)
                if (row[j] != 0.0) upper = j - i;
        }
        core_.lower = lower;
        core_.upper = upper;
        core_.structure_known = n_ >= kSmallestBanded;
    }

    bool banded() const { return n_ >= kSmallestBanded && 2 * core_.lower + core_.upper + 1 <= n_ / 2; }

    double drift() const { return n_ < kSmallMatrix || core_.factored == 2 ? kCoefficientDrift : kLargeDrift; }

    // I - c J. The matrix lies in columns; a band in the rows of its diagonals, behind room for what pivoting brings in.
    bool factor()
    {
        ++st_.factorisations;
        core_.c_factored = core_.c;
        core_.rate = std::max(core_.rate, kFreshRate);
        const double c = core_.c;
        Integer info;
        if (banded()) {
            const Integer lower = core_.lower, upper = core_.upper, ld = 2 * lower + upper + 1;
            for (Integer j = 0; j < n_; ++j) {
                double *column = matrix_ + std::ptrdiff_t{j} * ld;
                std::fill_n(column, ld, 0.0);
                for (Integer i = std::max<Integer>(0, j - upper); i <= std::min<Integer>(n_ - 1, j + lower); ++i)
                    column[lower + upper + i - j] = (i == j ? 1.0 : 0.0) - c * a_.jacobian[std::ptrdiff_t{i} * n_ + j];
            }
            info = lapack::gbtrf(n_, n_, lower, upper, matrix_, ld, st_.iwork);
            core_.factored = 2;
        } else {
            for (Integer i = 0; i < n_; ++i)
                for (Integer j = 0; j < n_; ++j)
                    matrix_[std::ptrdiff_t{j} * n_ + i] =
                        (i == j ? 1.0 : 0.0) - c * a_.jacobian[std::ptrdiff_t{i} * n_ + j];
            info = lu_factor(n_, matrix_, st_.iwork) ? 0 : 1;
            core_.factored = 1;
        }
        if (info == 0) return true;
        core_.factored = 0;
        return false;
    }

    void solve(double *b) const
    {
        if (core_.factored == 2)
            lapack::gbtrs('N', n_, core_.lower, core_.upper, 1, matrix_, 2 * core_.lower + core_.upper + 1, st_.iwork,
                          b, n_);
        else
            lu_solve(n_, matrix_, st_.iwork, b);
    }

    // ---- Error control ----

    // error^(1 / (order + 1)); orders 1 to 3 and 5 need no power.
    static double root(double error, Integer order)
    {
        switch (order) {
        case 1:
            return std::sqrt(error);
        case 2:
            return std::cbrt(error);
        case 3:
            return std::sqrt(std::sqrt(error));
        case 5:
            return std::cbrt(std::sqrt(error));
        default:
            return std::pow(error, 1.0 / (order + 1));
        }
    }
    static double step_factor(double error, double bias, Integer order)
    {
        return 1.0 / (root(bias * error, order) + 1e-6);
    }

    void reject(double error)
    {
        ++core_.error_failures;
        ++st_.rejected;
        const Integer k = core_.order;
        if (core_.error_failures >= 3) {
            core_.order = 1;
            core_.steps_at_order = 0;
            core_.h *= 0.1;
            return;
        }
        double factor = core_.error_failures == 1 ? step_factor(error, 2.0, k) : 0.25;
        if (k > 1) {
            const double lower = error_constant(k - 1) * norm_of(n_, weight_, [&](Integer i) {
                                     return e_[i] + core_.beta[k + 1] * phi(k + 1)[i];
                                 });
            const double with_lower = step_factor(lower, 2.0, k - 1);
            if (with_lower > factor) {
                core_.order = k - 1;
                core_.steps_at_order = 0;
                factor = core_.error_failures == 1 ? with_lower : 0.25;
            }
        }
        core_.h *= std::isfinite(factor) ? std::clamp(factor, 0.2, 0.9) : 0.2;
    }

    void accept(double error)
    {
        const Integer k = core_.order;
        ++st_.steps;
        ++core_.jacobian_age;
        ++core_.steps_at_order;

        // What one order less and one order more would have made of this step.
        double best = step_factor(error, kBiasSame, k);
        Integer next = k;
        if (k > 1) {
            const double lower = error_constant(k - 1) * norm_of(n_, weight_, [&](Integer i) {
                                     return e_[i] + core_.beta[k + 1] * phi(k + 1)[i];
                                 });
            const double factor = step_factor(lower, kBiasLower, k - 1);
            if (factor > best) {
                best = factor;
                next = k - 1;
            }
        }
        if (k < st_.maxord && core_.steps_at_order > k) {
            const double higher = error_constant(k + 1) * norm_of(n_, weight_, [&](Integer i) {
                                      return e_[i] - core_.beta[k + 2] * phi(k + 2)[i];
                                  });
            const double factor = step_factor(higher, kBiasHigher, k + 1);
            if (factor > best) {
                best = factor;
                next = k + 1;
            }
        }

        // The history moves on.
        if (k + 2 <= st_.nhist) std::copy_n(e_, n_, phi(k + 2));
        for (Integer m = 0; m < n_; ++m) {
            double above = e_[m];
            for (Integer i = k + 1; i >= 2; --i) {
                above += core_.beta[i] * phi(i)[m];
                phi(i)[m] = above;
            }
        }
        std::copy_n(a_.y, n_, phi(1));
        std::copy_n(core_.psi_new, kBdfDistances + 1, core_.psi);
        core_.points = std::min<Integer>(core_.points + 1, kBdfDistances);
        core_.t = core_.tnew;
        core_.last_h = core_.h;
        core_.last_order = st_.order = k;
        st_.t = core_.t;
        st_.hlast = core_.h;

        if (next != k) {
            core_.order = next;
            core_.steps_at_order = 0;
        }
        const bool troubled = core_.error_failures > 0 || core_.newton_failures > 0;
        const double most = troubled ? 1.0 : st_.steps <= kFirstSteps ? kFirstGrowth : kMostGrowth;
        if (best >= kLeastGrowth)
            core_.h *= std::min(best, most);
        else if (best < 1.0)
            core_.h *= std::max(best, 0.5);
        core_.error_failures = core_.newton_failures = 0;
        st_.hnext = core_.h;
    }

    BdfCore &core_;
    KorBdfState &st_;
    const BdfArrays &a_;
    const Integer n_;
    double *const matrix_;
    double *const predicted_, *const predicted_slope_, *const e_, *const weight_, *const base_slope_;
};

} // namespace

double weighted_norm(Integer n, const double *v, const double *w)
{
    return norm_of(n, w, [v](Integer i) { return v[i]; });
}

static_assert(sizeof(BdfCore) <= sizeof(KorBdfState::kept) && std::is_trivially_copyable_v<BdfCore>);
static_assert(offsetof(KorBdfState, kept) % alignof(BdfCore) == 0 && alignof(KorBdfState) >= alignof(BdfCore));

void bdf_clear(KorBdfState &st) { new (st.kept) BdfCore{}; }
BdfCore &bdf_core(KorBdfState &st) { return *std::launder(reinterpret_cast<BdfCore *>(st.kept)); }
const BdfCore &bdf_core(const KorBdfState &st) { return *std::launder(reinterpret_cast<const BdfCore *>(st.kept)); }

BdfRequest bdf_advance(BdfCore &core, KorBdfState &st, const BdfArrays &arrays, BdfStatus &status)
{
    return Method{core, st, arrays}.run(status);
}

void bdf_interpolate(const BdfCore &core, const double *ysav, Integer neq, double t, Integer m, double *sol)
{
    // Newton's form from the innermost bracket: its points are t_n, t_(n-1), ...
    const Integer last = core.last_order + 1;
    const auto phi = [&](Integer i) { return ysav + std::ptrdiff_t{neq} * (i - 1); };
    double factor[kBdfMaxOrder + 2];
    for (Integer i = 2; i <= last; ++i) {
        const double behind = i == 2 ? 0.0 : core.psi[i - 2];
        factor[i] = ((t - core.t) + behind) / core.psi[i - 1];
    }
    for (Integer c = 0; c < m; ++c) {
        double sum = phi(last)[c];
        for (Integer i = last; i >= 2; --i) sum = phi(i - 1)[c] + factor[i] * sum;
        sol[c] = sum;
    }
}

} // namespace kor::ode
