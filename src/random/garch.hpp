// The simulator behind g05hkc, g05hlc and g05hmc: h[t] = theta[0] + sum of news(theta[i], e[t-i]), i = 1 to q, + sum of
// theta[q+j] h[t-j], j = 1 to p; e[t] = sqrt(h[t]) times a normal deviate. The three differ in what news does to the variance.
#pragma once

#include <algorithm>
#include <cmath>

#include "frame/constants.hpp"
#include "frame/report.hpp"
#include "random/elementary.hpp"
#include "random/standard_normal.hpp"

namespace kor::random {

// The mean of news(alpha, e) for e of variance h: fixed + slope h.
struct MeanNews {
    double fixed, slope;
};

template <class News>
class Garch {
  public:
    Garch(Integer num, Integer p, Integer q, const double theta[], News news, double ht[], double et[])
        : num_{num}, p_{p}, q_{q}, lags_{std::max(p, q)}, theta_{theta}, news_{news}, h_{ht}, e_{et}
    {
    }

    // The variance that the process settles to, and how much of a disturbance is left after a step.
    struct Level {
        double variance, persistence;
    };
    Level stationary_level() const
    {
        double constant = theta_[0], persistence = 0.0;
        for (Integer i = 1; i <= q_; ++i) {
            const MeanNews mean = news_.mean(theta_[i]);
            constant += mean.fixed;
            persistence += mean.slope;
        }
        for (Integer j = 1; j <= p_; ++j) persistence += theta_[q_ + j];
        return {constant / (1.0 - persistence), persistence};
    }

    // Sets the history to the stationary variance, and lets the process run until nothing is left of that.
    void warm_up(State &state, Level level)
    {
        for (Integer i = 0; i < lags_; ++i) {
            h_[num_ + i] = level.variance;
            e_[num_ + i] = std::sqrt(level.variance) * standard_normal(state);
        }
        constexpr double kLeft = 0x1p-53, kMostSteps = 1e5;
        const bool remembers = level.persistence > kSmallest;
        const double steps = remembers ? std::fmin(lane_log(kLeft) / lane_log(level.persistence), kMostSteps) : 0.0;
        for (double done = 0.0; done == 0.0 || done < steps; done += num_) run(state);
    }

    // The next num observations, behind the history in elements num, num + 1, ...; then the new history goes there.
    void run(State &state)
    {
        for (Integer t = 0; t < num_; ++t) {
            double h = theta_[0];
            for (Integer i = 1; i <= q_; ++i) h += news_(theta_[i], before(e_, t, i));
            for (Integer j = 1; j <= p_; ++j) h += theta_[q_ + j] * before(h_, t, j);
            h_[t] = h;
            e_[t] = std::sqrt(h) * standard_normal(state);
        }
        keep_history(h_);
        keep_history(e_);
    }

    bool history_is_valid() const
    {
        for (Integer i = 0; i < lags_; ++i)
            if (!(h_[num_ + i] >= 0.0 && h_[num_ + i] <= kLargest && std::fabs(e_[num_ + i]) <= kLargest)) return false;
        return true;
    }

  private:
    double before(const double *series, Integer t, Integer lag) const
    {
        return t >= lag ? series[t - lag] : series[std::ptrdiff_t{num_} + lags_ + t - lag];
    }

    void keep_history(double *series) const
    {
        double *const history = series + num_;
        const Integer fresh = std::min(num_, lags_);
        std::copy(history + fresh, history + lags_, history);
        std::copy(series + num_ - fresh, series + num_, history + lags_ - fresh);
    }

    Integer num_, p_, q_, lags_;
    const double *theta_;
    News news_;
    double *h_, *e_;
};

// The routine around it.
template <class News>
void simulate_garch(const Report &report, Integer num, Integer p, Integer q, const double theta[], News news,
                    Integer fcall, double ht[], double et[])
{
    if (num < 1) return report.error<NE_INT_ARG_LT>("num", "1", "num", num);
    if (p < 0) return report.error<NE_INT_ARG_LT>("p", "0", "p", p);
    if (q < 1) return report.error<NE_INT_ARG_LT>("q", "1", "q", q);
    if (!(theta[0] > 0.0 && theta[0] <= kLargest)) return report.error<NE_ARRAY_CONS>("theta", "theta[0] > 0.0");
    for (Integer i = 1; i <= p + q; ++i)
        if (!(theta[i] >= 0.0 && theta[i] <= kLargest))
            return report.error<NE_ARRAY_CONS>("theta", "theta[i] >= 0.0, for i=1,2,...,p+q");
    if (!news.gamma_fits(q, theta)) return report.error<NE_REAL_ARG_CONS>("gamma", news.gamma, News::kConstraint);
    if (fcall != Kor_Garch_Fcall_True && fcall != Kor_Garch_Fcall_False) return report.error<NE_BAD_PARAM>("fcall");

    Garch<News> process{num, p, q, theta, news, ht, et};
    const bool first = fcall == Kor_Garch_Fcall_True;
    const auto level = process.stationary_level();
    if (first && !(level.persistence < 1.0 && level.variance <= kLargest)) return report.error<NE_STATIONARITY>();
    if (!first && !process.history_is_valid())
        return report.error<NE_ARRAY_CONS>("ht", "ht and et hold what the call before left there");

    State &state = g05caz();
    if (first) process.warm_up(state, level);
    process.run(state);
    report.success();
}

} // namespace kor::random
