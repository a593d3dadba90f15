// The record of the reverse communication.
#include "sparse/symmetric_state.hpp"

#include <kor/x04.h>

namespace kor::sparse {

namespace {

constexpr Integer kStamps[2] = {-11111, -23456};

} // namespace

bool is_set_up(const KorSparseSymState &state)
{
    return state.stamp[0] == kStamps[0] && state.stamp[1] == kStamps[1] && state.self == &state;
}

void set_up(KorSparseSymState &state, SymmetricSolver *solver)
{
    if (is_set_up(state)) release(state);
    state.stamp[0] = kStamps[0];
    state.stamp[1] = kStamps[1];
    state.self = &state;
    state.work = solver;
    state.request = 0;
    note_figures(state);
}

SymmetricSolver *solver_of(const KorSparseSymState &state) { return static_cast<SymmetricSolver *>(state.work); }

void note_figures(KorSparseSymState &state)
{
    const SymmetricFigures figures = solver_of(state)->figures();
    state.itn = figures.count;
    state.stop_lhs = figures.residual;
    state.stop_rhs = figures.bound;
    state.anorm = figures.matrix_norm;
    state.sigmax = figures.singular_value;
    state.sigma_itn = figures.singular_steps;
    state.sigma_err = figures.singular_change;
}

void release(KorSparseSymState &state)
{
    if (state.work != nullptr) x04bdc(&state.work);
}

} // namespace kor::sparse
