// f11gcc: how the iteration of the reverse communication for symmetric systems stands, or ended.
#include <kor/f11.h>

#include "frame/report.hpp"
#include "sparse/symmetric_state.hpp"

void f11gcc(Integer *itn, double *stop_lhs, double *stop_rhs, double *anorm, double *sigmax, Integer *sigma_itn,
            double *sigma_err, KorSparseSymState *state, KorError *fail)
{
    const kor::Report report{"f11gcc", fail};
    if (!kor::sparse::is_set_up(*state)) return report.error<NE_NO_SETUP>("f11gac");
    *itn = state->itn;
    *stop_lhs = state->stop_lhs;
    *stop_rhs = state->stop_rhs;
    *anorm = state->anorm;
    *sigmax = state->sigmax;
    *sigma_itn = state->sigma_itn;
    *sigma_err = state->sigma_err;
    report.success();
}
