// d02cjc: integrates a system that is not stiff over a range, with output and a stop at a root.
#include <kor/d02.h>

#include <cmath>

#include "frame/workspace.hpp"
#include "ode/adams.hpp"
#include "ode/range_driver.hpp"

using namespace kor::ode;

namespace {

constexpr double kLeastRelative = 10.0 * kor::kPrecision;
constexpr double kNoLimit = 0.0;
constexpr int64_t kStepLimit = 20'000'000; // bounds the work where the steps stay tiny

// The Adams method, step by step.
class Smooth {
  public:
    Smooth(Integer neq, Derivative f, RangeTolerances tolerances, double x, const double *y, double xend, double *work)
        : neq_{neq}, f_{f}, tolerances_{tolerances}, x_{x}, y_{y}, xend_{xend}, work_{work}
    {
    }

    bool step()
    {
        if (!begun_) {
            if (!std::isfinite(x_) || !std::isfinite(xend_)) return false;
            adams_.start(neq_, work_, x_, y_, f_, xend_);
            begun_ = true;
        }
        const Tolerances scalars{&tolerances_.relative, &tolerances_.absolute, false};
        return adams_.steps() < kStepLimit && adams_.step(f_, scalars, xend_, kNoLimit) == AdamsOutcome::taken;
    }
    bool started() const { return begun_ && adams_.steps() > 0; }
    double t() const { return begun_ ? adams_.t() : x_; }
    const double *y() const { return adams_.y(); }
    void interpolate(double t, double *sol) { adams_.interpolate(t, neq_, sol, nullptr); }

  private:
    Adams adams_;
    bool begun_ = false;
    const Integer neq_;
    const Derivative f_;
    const RangeTolerances tolerances_;
    const double x_;
    const double *const y_;
    const double xend_;
    double *const work_;
};

} // namespace

void d02cjc(Integer neq, void (*fcn)(Integer neq, double x, const double y[], double f[], void *comm), double *x,
            double y[], double xend, double tol, Integer err_c,
            void (*output)(Integer neq, double *xsol, const double y[], void *comm),
            double (*g)(Integer neq, double x, const double y[], void *comm), void *comm, KorError *fail)
{
    const kor::Report report{"d02cjc", fail};
    if (!range_accepted(report, neq, tol, *x, xend, err_c)) return;
    kor::Workspace<double> work{Adams::workspace(neq)}, scratch{kor::Count{neq}};
    if (!work || !scratch) return report.error<NE_ALLOC_FAIL>();
    const auto f = [=](double at, const double *values, double *slopes) { fcn(neq, at, values, slopes, comm); };
    Smooth integrator{neq, f, range_tolerances(tol, err_c, kLeastRelative, neq, y), *x, y, xend, work.data()};
    integrate_range(report, {neq, x, y, xend, tol, output, g, comm, scratch.data()}, integrator);
}
