// d02pxc: the solution within the last step of the Runge-Kutta suite.
#include <kor/d02.h>

#include <utility>

#include "ode/runge_kutta_calls.hpp"

using namespace kor::ode;

void d02pxc(Integer neq, double twant, Integer reqest, Integer nwant, double ywant[], double ypwant[],
            void (*f)(Integer neq, double t, const double y[], double yp[], void *comm), KorRKState *state, void *comm,
            KorError *fail)
{
    const kor::Report report{"d02pxc", fail};
    if (!admit(report, *state, RungeKuttaCall::interpolation)) return;
    if (!same_size(report, *state, neq)) return;
    if (state->first) return report.error<NE_MISSING_CALL>(kOneStepName);
    if (reqest != Kor_Sol && reqest != Kor_Der && reqest != Kor_SolDer) return report.error<NE_BAD_PARAM>("reqest");
    // These two have always been reported in the name of d02pwc, and callers may know them by it.
    const kor::Report reset_report{"d02pwc", fail};
    if (nwant > neq) return reset_report.error<NE_2_INT_ARG_GT>("nwant", nwant, "neq", neq, "nwant", "neq");
    if (nwant < 1) return reset_report.error<NE_INT_ARG_LT>("nwant", "1", "nwant", nwant);
    if (!figures_of(state->method).interpolant) return report.error<NE_RK_PX_METHOD>();

    if (state->method == 2 && nwant > state->interp_space) {
        kor::Workspace<double> coefficients{RungeKutta::interpolant_size(nwant)};
        if (!coefficients) return report.error<NE_ALLOC_FAIL>();
        void *smaller = std::exchange(state->interp_work, coefficients.release());
        if (smaller != nullptr) x04bdc(&smaller);
        state->interp_space = nwant;
        state->interp_nwant = 0;
    }

    const RightHandSide right_hand_side{neq, f, comm};
    RungeKutta integration{*state, &right_hand_side};
    integration.prepare_interpolant(nwant);
    integration.interpolate(twant, nwant, reqest != Kor_Der ? ywant : nullptr, reqest != Kor_Sol ? ypwant : nullptr);
    slot(*state, RungeKuttaCall::interpolation) = kCalled;
    report.success();
}
