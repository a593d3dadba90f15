// Monte Carlo integration over a box, with strata that adapt themselves to the integrand.
//
// Each pass draws points in every stratum, more where the integrand varies more (J. Neyman, 1934), and tells from them where to draw
// the next time: strata with a large share of the variance are halved across the axis that separates their values best. The
// numbers of points of a pass depend on earlier passes only, so that each pass is an unbiased estimate, and passes are
// averaged in proportion to their points, which are fixed beforehand: no weight depends on the values that it weighs.
#include <algorithm>
#include <cmath>
#include <cstdint>

#include <kor/g05.h>

#include "frame/workspace.hpp"
#include "quadrature/box_integrals.hpp"

namespace kor::quadrature {

namespace {

constexpr std::int64_t kPointsPerStratum = 16; // on average, at the least
constexpr std::int64_t kLeastPoints = 4;       // in any stratum: below, its variance is a guess
constexpr std::int64_t kFirstPass = 128;
constexpr double kPilotShare = 0.25; // of the points, to find the strata with, when one pass has to do

// The strata, as rows of doubles: lower corner, widths, the standard deviation of f expected there, and the sums of a pass.
class Strata {
  public:
    static Count elements(Integer ndim, Integer most) { return Count{most} * (Count{ndim} * Count{8} + Count{5}); }
    Strata(Integer ndim, Integer most, double *memory) : ndim_{ndim}, most_{most}, rows_{memory}
    {
        row_ = 8 * static_cast<std::ptrdiff_t>(ndim) + 5;
    }

    Integer count() const { return count_; }
    Integer most() const { return most_; }
    double *low(Integer i) const { return rows_ + i * row_; }
    double *width(Integer i) const { return low(i) + ndim_; }
    double &deviation(Integer i) const { return low(i)[2 * ndim_]; }
    double &volume(Integer i) const { return low(i)[2 * ndim_ + 1]; }
    double &points(Integer i) const { return low(i)[2 * ndim_ + 2]; }
    double &mean(Integer i) const { return low(i)[2 * ndim_ + 3]; }
    double &squares(Integer i) const { return low(i)[2 * ndim_ + 4]; } // of the deviations from the mean
    // Of the points in either half across each axis: count, mean and squares.
    double *halves(Integer i, Integer axis, int side) const { return low(i) + 2 * ndim_ + 5 + 6 * axis + 3 * side; }

    void start(const double *a, const double *b)
    {
        count_ = 1;
        volume(0) = 1.0;
        deviation(0) = 1.0;
        for (Integer j = 0; j < ndim_; ++j) {
            low(0)[j] = a[j];
            width(0)[j] = b[j] - a[j];
            volume(0) *= b[j] - a[j];
        }
    }
    void halve(Integer i, Integer axis)
    {
        const Integer other = count_++;
        width(i)[axis] *= 0.5;
        volume(i) *= 0.5;
        std::copy(low(i), low(i) + row_, low(other));
        low(other)[axis] += width(other)[axis];
    }

    void clear_sums()
    {
        for (Integer i = 0; i < count_; ++i) std::fill(low(i) + 2 * ndim_ + 2, low(i) + row_, 0.0);
    }

  private:
    Integer ndim_, most_;
    double *rows_;
    std::ptrdiff_t row_;
    Integer count_ = 0;
};

// Takes a value into count, mean and squares (B. P. Welford, Technometrics 4 (1962) 419-420).
void take(double *sums, double value)
{
    sums[0] += 1.0;
    const double gap = value - sums[1];
    sums[1] += gap / sums[0];
    sums[2] += gap * (value - sums[1]);
}

struct Estimate {
    double value = 0.0;
    double variance = 0.0;
    std::int64_t points = 0;
};

class Sampler {
  public:
    Sampler(Integer ndim, BoxIntegrand f, Strata &strata, double *x) : ndim_{ndim}, f_{f}, strata_{strata}, x_{x} {}

    // One pass of about `budget` points, never more.
    Estimate pass(std::int64_t budget)
    {
        strata_.clear_sums();
        double total = 0.0;
        for (Integer i = 0; i < strata_.count(); ++i) total += share(i);
        Estimate pass;
        const std::int64_t free = budget - kLeastPoints * strata_.count();
        for (Integer i = 0; i < strata_.count(); ++i) {
            const double part = total > 0.0 ? share(i) / total : 1.0 / strata_.count();
            const std::int64_t n = kLeastPoints + static_cast<std::int64_t>(static_cast<double>(free) * part);
            sample(i, n);
            pass.points += n;
            pass.value += strata_.volume(i) * strata_.mean(i);
            const double variance = strata_.squares(i) / static_cast<double>(n - 1);
            pass.variance += strata_.volume(i) * strata_.volume(i) * variance / static_cast<double>(n);
        }
        return pass;
    }

    // Learns from a pass: new deviations, and more strata as far as `next_budget` points can fill them.
    void refine(std::int64_t next_budget)
    {
        for (Integer i = 0; i < strata_.count(); ++i)
            strata_.deviation(i) = std::sqrt(strata_.squares(i) / (strata_.points(i) - 1.0));
        const auto wanted = static_cast<Integer>(std::min<std::int64_t>(
            {strata_.most(), next_budget / kPointsPerStratum, 4 * static_cast<std::int64_t>(strata_.count())}));
        // Children know the deviations in the halves of their parent, and no halves of their own: they wait for the next pass.
        const Integer parents = strata_.count();
        while (strata_.count() < wanted) {
            Integer worst = -1;
            for (Integer i = 0; i < parents; ++i)
                if (strata_.points(i) > 0.0 && (worst < 0 || share(i) > share(worst))) worst = i;
            if (worst < 0) break;
            const Integer axis = best_axis(worst);
            const double below = half_deviation(worst, axis, 0), above = half_deviation(worst, axis, 1);
            strata_.halve(worst, axis);
            strata_.deviation(worst) = below;
            strata_.deviation(strata_.count() - 1) = above;
            strata_.points(worst) = 0.0;
        }
    }

  private:
    double share(Integer i) const { return std::fabs(strata_.volume(i)) * strata_.deviation(i); }

    void sample(Integer i, std::int64_t n)
    {
        const double *const low = strata_.low(i), *const width = strata_.width(i);
        double *const sums = &strata_.points(i);
        for (std::int64_t k = 0; k < n; ++k) {
            double *const u = x_ + ndim_;
            for (Integer j = 0; j < ndim_; ++j) {
                u[j] = g05cac();
                x_[j] = low[j] + width[j] * u[j];
            }
            const double value = f_(x_);
            take(sums, value);
            for (Integer j = 0; j < ndim_; ++j) take(strata_.halves(i, j, u[j] < 0.5 ? 0 : 1), value);
        }
    }

    double half_deviation(Integer i, Integer axis, int side) const
    {
        const double *const half = strata_.halves(i, axis, side);
        return half[0] >= 3.0 ? std::sqrt(half[2] / (half[0] - 1.0)) : strata_.deviation(i);
    }

    // The axis whose halves have the least sum of deviations; the widest stratum decides where they say nothing.
    Integer best_axis(Integer i) const
    {
        Integer best = 0;
        double least = 0.0;
        for (Integer j = 0; j < ndim_; ++j) {
            const double sum = half_deviation(i, j, 0) + half_deviation(i, j, 1);
            if (j == 0 || sum < least) {
                best = j;
                least = sum;
            }
        }
        return best;
    }

    Integer ndim_;
    BoxIntegrand f_;
    Strata &strata_;
    double *x_;
};

bool good_enough(double value, double variance, double eps) { return std::sqrt(variance) <= eps * std::fabs(value); }

// Regular strata to start with: halved along one axis after the other.
void divide_regularly(Strata &strata, Integer ndim, Integer wanted)
{
    for (Integer axis = 0; strata.count() < wanted; axis = (axis + 1) % ndim) {
        const Integer count = strata.count();
        for (Integer i = 0; i < count && strata.count() < wanted; ++i) strata.halve(i, axis);
    }
}

} // namespace

void monte_carlo(const Report &report, Integer ndim, BoxIntegrand f, Integer method, Integer cont, const double *a,
                 const double *b, Integer mincls, Integer maxcls, double eps, Integer maxlcs, double *finval,
                 double *acc)
{
    if (ndim < 1) return report.error<NE_INT_ARG_LT>("ndim", "1", "ndim", ndim);
    if (!(eps >= 0.0)) return report.error<NE_REAL_ARG_LT>("eps", "0.0", "eps", eps);
    if (method != Kor_OneIteration && method != Kor_ManyIterations) return report.error<NE_BAD_PARAM>("method");
    if (cont != Kor_Cold && cont != Kor_Warm && cont != Kor_Hot) return report.error<NE_BAD_PARAM>("cont");
    const std::int64_t least = 4 * (static_cast<std::int64_t>(ndim) + 1);
    if (maxcls < least)
        return report.error<NE_2_INT_ARG_LT>("maxcls", maxcls, "4*(ndim+1)", least, "maxcls", "4*(ndim+1)");
    if (mincls >= maxcls) return report.error<NE_2_INT_ARG_GE>("mincls", mincls, "maxcls", maxcls, "mincls", "maxcls");
    if (maxlcs < 1) return report.error<NE_QUAD_MAX_INTEGRAND_EVAL>("maxlcs", maxlcs);

    const auto most = static_cast<Integer>(std::clamp<std::int64_t>(maxcls / kPointsPerStratum, 1, maxlcs));
    Workspace<double> memory{Strata::elements(ndim, most) + Count{ndim} * Count{2}};
    if (!memory) return report.error<NE_ALLOC_FAIL>();
    Strata strata{ndim, most, memory.data() + 2 * static_cast<std::ptrdiff_t>(ndim)};
    strata.start(a, b);
    if (cont == Kor_Hot) divide_regularly(strata, ndim, most);
    Sampler sampler{ndim, f, strata, memory.data()};

    std::int64_t left = maxcls;
    Estimate total;
    if (method == Kor_OneIteration) {
        auto pilot = static_cast<std::int64_t>(kPilotShare * static_cast<double>(maxcls));
        for (std::int64_t budget = kFirstPass; pilot >= budget && left > 2 * budget; budget *= 2) {
            const std::int64_t drawn = sampler.pass(std::max(budget, kLeastPoints * strata.count())).points;
            pilot -= drawn;
            left -= drawn;
            sampler.refine(2 * budget <= pilot ? 2 * budget : left);
        }
        total = sampler.pass(left);
    } else {
        double weights = 0.0;
        for (std::int64_t budget = std::max<std::int64_t>(kFirstPass, least);; budget *= 2) {
            // The last pass takes all that is left.
            if (left < 3 * budget) budget = left;
            budget = std::max(budget, kLeastPoints * strata.count());
            if (budget > left) break;
            const Estimate pass = sampler.pass(budget);
            left -= pass.points;
            total.points += pass.points;
            const double weight = static_cast<double>(budget);
            const double sum = weights + weight;
            total.value = (total.value * weights + pass.value * weight) / sum;
            total.variance = (total.variance * weights * weights + pass.variance * weight * weight) / (sum * sum);
            weights = sum;
            if (total.points >= mincls && good_enough(total.value, total.variance, eps)) break;
            if (left < kLeastPoints) break;
            sampler.refine(2 * budget);
        }
    }

    if (cont != Kor_Cold && *acc > 0.0) {
        // An earlier estimate, independent of this one.
        const double earlier = *acc * *acc;
        if (total.variance > 0.0) {
            total.value = (total.value * earlier + *finval * total.variance) / (earlier + total.variance);
            total.variance = earlier * total.variance / (earlier + total.variance);
        }
    }
    *finval = total.value;
    *acc = std::sqrt(total.variance);
    if (!good_enough(total.value, total.variance, eps))
        return report.error<NE_QUAD_MAX_INTEGRAND_EVAL>("maxcls", maxcls);
    report.success();
}

} // namespace kor::quadrature
