// f11gbc: one step of the reverse communication for symmetric systems.
#include <kor/f11.h>

#include <algorithm>

#include "sparse/arguments.hpp"
#include "sparse/symmetric_state.hpp"

namespace {

using namespace kor::sparse;

// What the caller may say.
constexpr Integer kBegin = 0, kStopHere = 5, kStopAtOnce = 6;

// Hands a request over; at the end also the result.
void answer(const kor::Report &report, Integer *irevcm, double u[], double v[], KorSparseSymState &state,
            Request request)
{
    SymmetricSolver &solver = *solver_of(state);
    state.request = static_cast<Integer>(request);
    *irevcm = state.request;
    note_figures(state);
    if (request == Request::multiply || request == Request::precondition) {
        std::copy_n(solver.source(), solver.order(), u);
        return report.success();
    }
    solver.look(u, v);
    if (request == Request::monitor) return report.success();
    const Solved outcome = solver.outcome();
    release(state);
    report_outcome(report, outcome);
}

} // namespace

void f11gbc(Integer *irevcm, double u[], double v[], const double wgt[], KorSparseSymState *state, KorError *fail)
{
    const kor::Report report{"f11gbc", fail};
    if (!is_set_up(*state) || solver_of(*state) == nullptr) return report.error<NE_NO_SETUP>("f11gac");
    SymmetricSolver &solver = *solver_of(*state);
    const Integer said = *irevcm;
    const bool goes_on = said != kBegin && said == state->request;
    if (!goes_on && said != kBegin && said != kStopHere && said != kStopAtOnce)
        return report.error<NE_INT>("irevcm", said, "irevcm = 0, 5, 6 or the value that the last call has returned");

    if (said == kStopHere || said == kStopAtOnce) {
        if (said == kStopHere && state->request != 0) {
            solver.stop();
            solver.look(u, v);
        }
        note_figures(*state);
        release(*state);
        *irevcm = static_cast<Integer>(Request::finished);
        return report.success();
    }
    if (solver.is_weighted()) {
        if (said == kBegin)
            for (Integer i = 0; i < solver.order(); ++i)
                if (!(wgt[i] > 0.0)) return report.error<NE_REAL_ARRAY_CONS>("wgt", i, wgt[i], "wgt[i] > 0.0");
        solver.use_weight(wgt);
    }
    if (said == kBegin) return answer(report, irevcm, u, v, *state, solver.start(v, u));
    if (state->request != static_cast<Integer>(Request::monitor)) std::copy_n(v, solver.order(), solver.target());
    answer(report, irevcm, u, v, *state, solver.proceed());
}
