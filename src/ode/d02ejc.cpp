// d02ejc: integrates a stiff system over a range, with output and a stop at a root.
#include <kor/d02.h>

#include <algorithm>
#include <cmath>

#include "frame/workspace.hpp"
#include "ode/bdf.hpp"
#include "ode/range_driver.hpp"

using namespace kor::ode;

namespace {

constexpr Integer kHistory = 6, kMaxOrder = 5;
constexpr double kLeastRelative = 5.0 * kor::kPrecision;
constexpr Integer kScalarTolerances = 1;

using Slopes = void (*)(Integer neq, double x, const double y[], double f[], void *comm);

// The kernels, step by step.
class Stiff {
  public:
    bool allocate(Integer neq)
    {
        const kor::Count n{neq};
        return jacobian_.allocate(n * n) && matrix_.allocate(n * (n + 5)) && history_.allocate(n * kHistory) &&
               vectors_.allocate(n * 4) && pivots_.allocate(n);
    }
    double *scratch() { return vectors_.data() + 3 * vectors_.size() / 4; }

    void start(Integer neq, Slopes fcn, Slopes pederv, void *comm, double x, const double *y, double xend,
               RangeTolerances tolerances)
    {
        neq_ = neq;
        fcn_ = fcn;
        pederv_ = pederv;
        comm_ = comm;
        t_ = x;
        xend_ = xend;
        tolerances_ = tolerances;
        std::copy_n(y, neq, vectors_.data());
        Integer status;
        d02nvc(neq, kHistory, kMaxOrder, &st_, &status);
        d02nsc(neq, pederv != nullptr ? "ANALYT" : "NUMERI", &st_, &status);
        st_.ysav = history_.data();
        st_.work = matrix_.data();
        st_.iwork = pivots_.data();
        st_.one_step = st_.crit = 1;
        st_.tcrit = xend;
    }

    bool step()
    {
        double *const u = vectors_.data(), *const slope = u + neq_, *const correction = slope + neq_;
        Integer request = 0, status;
        do {
            d02nmc(neq_, &t_, xend_, u, slope, &tolerances_.relative, &tolerances_.absolute, kScalarTolerances,
                   correction, jacobian_.data(), &st_, &request, &status);
            if (request == static_cast<Integer>(BdfRequest::slope)) fcn_(neq_, t_, u, slope, comm_);
            if (request == static_cast<Integer>(BdfRequest::jacobian)) pederv_(neq_, t_, u, jacobian_.data(), comm_);
        } while (request != 0);
        return status == 0;
    }
    bool started() const { return st_.steps > 0; }
    double t() const { return t_; }
    const double *y() const { return vectors_.data(); }
    void interpolate(double t, double *sol) const
    {
        Integer ignored;
        d02xkc(t, sol, neq_, history_.data(), neq_, kHistory, &st_, &ignored);
    }

  private:
    kor::Workspace<double> jacobian_, matrix_, history_, vectors_;
    kor::Workspace<Integer> pivots_;
    KorBdfState st_;
    Integer neq_;
    Slopes fcn_, pederv_;
    void *comm_;
    double t_, xend_;
    RangeTolerances tolerances_;
};

} // namespace

void d02ejc(Integer neq, void (*fcn)(Integer neq, double x, const double y[], double f[], void *comm),
            void (*pederv)(Integer neq, double x, const double y[], double pw[], void *comm), double *x, double y[],
            double xend, double tol, Integer err_c,
            void (*output)(Integer neq, double *xsol, const double y[], void *comm),
            double (*g)(Integer neq, double x, const double y[], void *comm), void *comm, KorError *fail)
{
    const kor::Report report{"d02ejc", fail};
    if (!range_accepted(report, neq, tol, *x, xend, err_c)) return;
    Stiff integrator;
    if (!integrator.allocate(neq)) return report.error<NE_ALLOC_FAIL>();
    integrator.start(neq, fcn, pederv, comm, *x, y, xend, range_tolerances(tol, err_c, kLeastRelative, neq, y));
    integrate_range(report, {neq, x, y, xend, tol, output, g, comm, integrator.scratch()}, integrator);
}
