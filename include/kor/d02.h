/// \file d02.h
/// Chapter d02: ordinary differential equations.
#ifndef KOR_D02_H
#define KOR_D02_H

#include <kor.h>

KOR_BEGIN_DECLS

// Initial values: Runge-Kutta pairs

/// The state of an integration by the Runge-Kutta suite: set up by d02pvc(), carried by the other routines of the suite, its
/// memory freed by d02ppc(). The caller owns the record and clears it once (`KorRKState state = {0};`); each problem has its
/// own, and any number of them may be in use side by side. A record must not be copied, nor shared between threads. The members may be
/// read; what the suite has to say is given out by its routines.
///
/// The suite guards its calling order. Each routine has a slot in `calls`: -1 not called since the setup, -2 called with
/// success, else a status: 1 a severe fault, after which only a new setup helps; 2 and 3 a warning, and 4 the diagnosis
/// of a stiff problem, after which the integration may go on; 5 and 6 the end of it, after which the results so far may still be
/// had. Arguments that a routine refuses leave the slots, and the integration, as they were.
typedef struct {
    Integer stamp1;          ///< -11111 in a record that was set up
    Integer stamp2;          ///< -23456 in a record that was set up
    Integer calls[8];        ///< of d02pvc(), d02pcc(), d02pyc(), d02pzc(), d02pdc(), d02pxc(), d02pwc(), d02ppc()
    double *work;            ///< the vectors of the integration
    double *interp_work;     ///< the coefficients of the interpolant
    Integer neq;             ///< number of equations
    Integer method;          ///< 1, 2, 3: the pair of orders 3(2), 5(4), 8(7)
    double tstart;           ///< start of the range
    double tend;             ///< where the integration is to stop
    double range_end;        ///< end of the range, as the caller gave it
    double dir;              ///< +1 or -1: the direction of the integration
    double hstart;           ///< first step asked for, 0 for an automatic choice
    double tol;              ///< tolerance
    double expon;            ///< power of the tolerance to which the step is proportional
    double toosml;           ///< the least step in units of t
    double tnow;             ///< point reached
    double told;             ///< point before
    double tgot;             ///< point of the last output in range mode
    double h;                ///< next step to try
    double hold;             ///< last step taken
    double havg;             ///< smoothed step
    double last_root;        ///< error of the last step, relative to the tolerance, to the power `expon`
    double max_err;          ///< largest error found by the assessment, weighted
    double t_max_err;        ///< where it was found
    int64_t fcn_count;       ///< evaluations since the last warning
    int64_t fcn_total;       ///< evaluations before that
    int64_t secondary_count; ///< evaluations of the error assessment
    Integer steps_ok;        ///< steps taken
    Integer steps_failed;    ///< tries that failed
    Integer hard_steps;      ///< failures since the last sample
    Integer tend_hits;       ///< stops at `tend` since the last warning
    Integer stiff_check;     ///< count of steps from which a failure may call for the next test of stiffness
    Integer interp_space;    ///< components that `interp_work` has room for
    Integer interp_nwant;    ///< components whose interpolant stands there, 0 for none
    Integer bank;            ///< which of two sets of stages belongs to the last step taken
    Boolean extra_stages;    ///< the stages that only the interpolant needs are known
    Boolean first;           ///< no step taken yet
    Boolean started;         ///< the derivative at the start is known
    Boolean last;            ///< `tend` has been reached
    Boolean at_stop;         ///< the last step ended there
    Boolean after_failure;   ///< the last step had failed tries
    Boolean phase1;          ///< the first step is still to be found
    Boolean may_grow;        ///< it has not been restrained yet
    Boolean range_mode;      ///< the task is Kor_RK_range
    Boolean errass;          ///< the error is assessed
    Boolean errass_failed;   ///< the assessment has failed
} KorRKState;

/// \brief Sets up an initial value problem for the Runge-Kutta suite.
///
/// The problem is y' = f(t, y), y(tstart) = ystart, for t between `tstart` and `tend`, which may lie on either side. Three
/// explicit pairs are offered: of orders 3(2) for low accuracy, 5(4) for most work, 8(7) for high accuracy. Afterwards d02pcc()
/// integrates from one output point to the next, or d02pdc() step by step. A record that holds the memory of an earlier
/// problem gives it back here.
///
/// \param[in]  neq    number of equations, at least 1
/// \param[in]  tstart start of the range, in the unit of t
/// \param[in]  ystart neq elements: the solution at `tstart`
/// \param[in]  tend   end of the range, not equal to `tstart`; the integration never goes beyond it
/// \param[in]  tol    relative tolerance: the local error of a step in component i is kept below `tol` max(`thres[i]`, |y_i|);
///                    between 10 x02ajc() and 0.01
/// \param[in]  thres  neq elements: sizes below which a component does not matter, at least sqrt(x02amc())
/// \param[in]  method the pair: Kor_RK_2_3 (3(2)), Kor_RK_4_5 (5(4)), Kor_RK_7_8 (8(7), without interpolation)
/// \param[in]  task   Kor_RK_range for d02pcc(), Kor_RK_onestep for d02pdc()
/// \param[in]  errass Kor_ErrorAssess_on follows the integration with a more accurate one and compares, for d02pzc(), at about
///                    three times the cost (four with Kor_RK_2_3); Kor_ErrorAssess_off does not
/// \param[in]  hstart size of the first step, in the unit of t; 0, or what makes no sense, for an automatic choice
/// \param[out] state  the record, to be freed by d02ppc()
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_BAD_PARAM: `task`, `errass` or `method` is none of its values.
/// - NE_INT_ARG_LT: `neq` is less than 1.
/// - NE_2_REAL_ARG_EQ: `tstart` and `tend` are equal.
/// - NE_2_REAL_ARG_CONS: `tstart`, `tend` or their difference is not finite.
/// - NE_REAL_RANGE_CONS: `tol` is out of its range.
/// - NE_REAL_ARRAY_INPUT: an element of `thres` is too small.
/// - NE_ALLOC_FAIL: there is not enough memory.
/// - NE_2_REAL_ARG_TOO_CLOSE: the range is too short for a step.
///
/// After each of them the other routines of the suite refuse the record until a setup succeeds.
/// \par Accuracy
/// The tolerance bounds the error of each step; the error at the end is proportional to it, by a factor that is the
/// problem's own. Try two tolerances, or the assessment, if it matters.
/// \par Method
/// P. Bogacki and L. F. Shampine, Appl. Math. Lett. 2 (1989) 321-325 and Comput. Math. Appl. 32 (1996) 15-28; P. J. Prince and
/// J. R. Dormand, J. Comput. Appl. Math. 7 (1981) 67-75.
/// \par Thread safety
/// Safe; one record belongs to one thread at a time.
/// \par Example
/// \code{.c}
/// static void f(Integer neq, double t, const double y[], double yp[], void *comm) { yp[0] = y[1]; yp[1] = -y[0]; }
/// ...
/// double y0[] = {0.0, 1.0}, thres[] = {1e-8, 1e-8}, t, y[2], yp[2], ymax[2];
/// KorRKState state = {0};
/// d02pvc(2, 0.0, y0, 10.0, 1e-6, thres, Kor_RK_4_5, Kor_RK_range, Kor_ErrorAssess_off, 0.0, &state, &fail);
/// for (int i = 1; i <= 10; ++i)
///     d02pcc(2, f, i, &t, y, yp, ymax, &state, NULL, &fail);  // y[0] = sin(i)
/// d02ppc(&state);
/// \endcode
void d02pvc(Integer neq, double tstart, const double ystart[], double tend, double tol, const double thres[],
            Integer method, Integer task, Integer errass, double hstart, KorRKState *state, KorError *fail);

/// \brief Integrates to the next output point, after d02pvc() with the task Kor_RK_range.
///
/// The method takes the steps that suit it; the values at `twant` come from an interpolant (Kor_RK_2_3, Kor_RK_4_5), or the step
/// is made to end there (Kor_RK_7_8). After a warning call again with the same `twant`.
///
/// \param[in]  neq   number of equations, as at the setup
/// \param[in]  f     computes the derivative y' in `yp`, from `t` and `y`, neq elements each; `comm` is passed through
/// \param[in]  twant the next output point: ahead of the last one, and not beyond the end of the range
/// \param[out] tgot  the point reached: `twant` after success, the last point before it otherwise
/// \param[out] ygot  neq elements: the solution at `tgot`
/// \param[out] ypgot neq elements: its derivative
/// \param[out] ymax  neq elements: the largest |y_i| at any step so far
/// \param[in,out] state the record of the problem
/// \param[in]  comm  passed to `f` as it stands, never read; may be null
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_MEMORY_FREED, NE_PREV_CALL, NE_NO_SETUP: no valid setup stands.
/// - NE_RK_INVALID_CALL: the task was Kor_RK_onestep.
/// - NE_PREV_CALL_INI: the integration has ended with an error before.
/// - NE_NEQ: `neq` differs from the setup.
/// - NE_RK_TGOT_EQ_TEND: the end of the range has been reached before.
/// - NE_RK_TGOT_RANGE_TEND: `twant` is not ahead of the last output point, or beyond the end of the range.
/// - NE_RK_TGOT_RANGE_TEND_CLOSE: `twant` is beyond the end of the range, by a rounding error.
/// - NE_RK_TWANT_CLOSE_TGOT: Kor_RK_7_8, and `twant` is too close to the current point.
/// - NW_RK_TOO_MANY: 5000 evaluations since the last warning. Call again to go on.
/// - NE_STIFF_PROBLEM: the problem looks stiff; the message tells the cost of going on. One may.
/// - NE_RK_PCC_METHOD: Kor_RK_7_8, and the output points hold up the integration. One may go on; Kor_RK_4_5 would serve better.
/// - NE_RK_PDC_STEP: the tolerance cannot be met with steps that doubles can represent: a singularity, a right-hand side
///   that is not finite or not smooth, or too small a tolerance. The integration has ended at `tgot`.
/// - NE_RK_PDC_GLOBAL_ERROR_S, NE_RK_PDC_GLOBAL_ERROR_T: the error cannot be assessed reliably. The integration has ended.
///
/// The last five, and NW_RK_TOO_MANY, leave `tgot`, `ygot` and `ypgot` at the last point reached; after the others the outputs are
/// untouched, and the integration may go on where it can.
/// \par Accuracy
/// As d02pvc(). The interpolants keep the order of the step: 3 and 5.
/// \par Method
/// As d02pvc(). Step control by the error and its trend; a nonlinear power iteration watches for stiffness.
/// \par Thread safety
/// Safe, and reentrant: `f` may itself integrate, with another record.
/// \par See also
/// d02pdc() takes one step at a time; d02pyc() has statistics, d02pzc() the assessment of the error.
/// \par Example
/// See d02pvc().
void d02pcc(Integer neq, void (*f)(Integer neq, double t, const double y[], double yp[], void *comm), double twant,
            double *tgot, double ygot[], double ypgot[], double ymax[], KorRKState *state, void *comm, KorError *fail);

/// \brief Takes one step, after d02pvc() with the task Kor_RK_onestep.
///
/// \param[in]  neq   number of equations, as at the setup
/// \param[in]  f     computes the derivative y' in `yp`, from `t` and `y`, neq elements each; `comm` is passed through
/// \param[out] tnow  the point reached
/// \param[out] ynow  neq elements: the solution there
/// \param[out] ypnow neq elements: its derivative
/// \param[in,out] state the record of the problem
/// \param[in]  comm  passed to `f` as it stands, never read; may be null
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_MEMORY_FREED, NE_PREV_CALL, NE_NO_SETUP: no valid setup stands.
/// - NE_RK_INVALID_CALL: the task was Kor_RK_range. The record is then of no further use.
/// - NE_PREV_CALL_INI: the integration has ended with an error before.
/// - NE_NEQ: `neq` differs from the setup.
/// - NE_RK_PDC_TEND: the end has been reached; d02pwc() can move it.
/// - NE_RK_PDC_POINTS: the end, moved by d02pwc(), holds up the integration. One may go on.
/// - NW_RK_TOO_MANY, NE_STIFF_PROBLEM, NE_RK_PDC_STEP, NE_RK_PDC_GLOBAL_ERROR_S, NE_RK_PDC_GLOBAL_ERROR_T: as d02pcc().
///
/// From NE_RK_PDC_POINTS on the outputs hold the last point reached, before that they are untouched.
/// \par Accuracy
/// As d02pvc().
/// \par Method
/// As d02pvc().
/// \par Thread safety
/// Safe and reentrant, as d02pcc().
/// \par Example
/// \code{.c}
/// d02pvc(2, 0.0, y0, 10.0, 1e-6, thres, Kor_RK_4_5, Kor_RK_onestep, Kor_ErrorAssess_off, 0.0, &state, &fail);
/// do
///     d02pdc(2, f, &t, y, yp, &state, NULL, &fail);
/// while (fail.code == 0 && t < 10.0);
/// \endcode
void d02pdc(Integer neq, void (*f)(Integer neq, double t, const double y[], double yp[], void *comm), double *tnow,
            double ynow[], double ypnow[], KorRKState *state, void *comm, KorError *fail);

/// \brief The solution and its derivative within the last step of d02pdc(), by interpolation.
///
/// \param[in]  neq    number of equations, as at the setup
/// \param[in]  twant  where the values are wanted: within the last step, or else they are extrapolated
/// \param[in]  reqest Kor_Sol for the solution, Kor_Der for the derivative, Kor_SolDer for both
/// \param[in]  nwant  how many components are wanted, from the first, at least 1 and at most `neq`
/// \param[out] ywant  nwant elements: the solution; untouched, and may be null, with Kor_Der
/// \param[out] ypwant nwant elements: the derivative; untouched, and may be null, with Kor_Sol
/// \param[in]  f      the right-hand side, as in d02pdc(); with Kor_RK_4_5 it is called three times for each step in which
///                    values are wanted
/// \param[in,out] state the record of the problem
/// \param[in]  comm   passed to `f` as it stands, never read; may be null
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_MEMORY_FREED, NE_PREV_CALL, NE_NO_SETUP, NE_NEQ: as d02pdc().
/// - NE_RK_INVALID_CALL: the task was Kor_RK_range, where d02pcc() does the interpolation.
/// - NE_PREV_CALL_INI: an earlier call of this routine was invalid.
/// - NE_MISSING_CALL: no step has been taken yet.
/// - NE_BAD_PARAM: `reqest` is none of its values.
/// - NE_2_INT_ARG_GT, NE_INT_ARG_LT: `nwant` is out of its range (reported in the name of d02pwc).
/// - NE_RK_PX_METHOD: Kor_RK_7_8 has no interpolant.
/// - NE_ALLOC_FAIL: there is not enough memory.
///
/// All of them leave the outputs untouched.
/// \par Accuracy
/// Of the order of the local error of the step: a cubic for Kor_RK_2_3, degree 6 for Kor_RK_4_5, and both join the steps
/// with a continuous derivative.
/// \par Method
/// Cubic Hermite interpolation; R. W. Brankin, I. Gladwell and L. F. Shampine, SMU Mathematics report 92-S1 (1992).
/// \par Thread safety
/// Safe and reentrant, as d02pcc().
/// \par Example
/// \code{.c}
/// d02pdc(2, f, &t, y, yp, &state, NULL, &fail);
/// d02pxc(2, 0.5 * t, Kor_Sol, 1, ymid, NULL, f, &state, NULL, &fail);   // the first component at the half of the first step
/// \endcode
void d02pxc(Integer neq, double twant, Integer reqest, Integer nwant, double ywant[], double ypwant[],
            void (*f)(Integer neq, double t, const double y[], double yp[], void *comm), KorRKState *state, void *comm,
            KorError *fail);

/// \brief Moves the end of the range for d02pdc().
///
/// \param[in]  tend_new the new end, ahead of the current point
/// \param[in,out] state the record of the problem
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_MEMORY_FREED, NE_PREV_CALL, NE_NO_SETUP: no valid setup stands.
/// - NE_RK_INVALID_CALL: the task was Kor_RK_range.
/// - NE_PREV_CALL_INI: an earlier call of this routine was invalid.
/// - NE_MISSING_CALL: no step has been taken yet.
/// - NE_RK_DIRECTION_POS, NE_RK_DIRECTION_NEG: `tend_new` is not ahead of the current point.
/// - NE_REAL_ARG_CONS: `tend_new` is infinite, or too far away for a double.
/// - NE_RK_STEP: `tend_new` is too close to it.
/// \par Method
/// The step in hand is kept; the next one is cut to meet the new end if it must be.
/// \par Thread safety
/// Safe; one record belongs to one thread at a time.
/// \par Example
/// \code{.c}
/// d02pwc(20.0, &state, &fail);                        // go on to t = 20
/// \endcode
void d02pwc(double tend_new, KorRKState *state, KorError *fail);

/// \brief Statistics of an integration by the Runge-Kutta suite.
///
/// A record that is not set up leaves all of them untouched: the routine has no error record.
///
/// \param[out] total_evals evaluations of the right-hand side so far, with those of the assessment
/// \param[out] step_cost   evaluations that a step takes when it does not fail
/// \param[out] waste       the share of tries that failed, 0 before the second step
/// \param[out] steps_ok    steps taken
/// \param[out] hnext       the step that will be tried next, with its sign
/// \param[in]  state       the record of the problem
///
/// \par Method
/// The figures are counted as the integration goes on; counts beyond the largest Integer stay there.
/// \par Thread safety
/// Safe; one record belongs to one thread at a time.
/// \par Example
/// \code{.c}
/// d02pyc(&evals, &cost, &waste, &steps, &hnext, &state);
/// \endcode
void d02pyc(Integer *total_evals, Integer *step_cost, double *waste, Integer *steps_ok, double *hnext,
            KorRKState *state);

/// \brief The assessment of the global error, after d02pvc() with Kor_ErrorAssess_on.
///
/// Errors are in units of the weights of d02pvc(): 1e-5 is a relative error where the solution is larger than its threshold.
///
/// \param[in]  neq    number of equations, as at the setup
/// \param[out] rmserr neq elements: for each component the root mean square of its error over the steps
/// \param[out] errmax the largest error of any component at any step
/// \param[out] terrmx where it was found
/// \param[in,out] state the record of the problem
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_MEMORY_FREED, NE_PREV_CALL, NE_NO_SETUP, NE_NEQ: as d02pdc().
/// - NE_ERRASS_REQ: no assessment was asked for at the setup.
/// - NE_RK_NOSTEP: no step has been taken yet.
///
/// All of them leave the outputs untouched.
/// \par Accuracy
/// The right order of magnitude where the integration itself is not far off; where it would not be, the
/// integration ends with NE_RK_PDC_GLOBAL_ERROR_T.
/// \par Method
/// A second integration with two (Kor_RK_2_3: three) shorter steps for each step, and its difference from the first.
/// \par Thread safety
/// Safe; one record belongs to one thread at a time.
/// \par Example
/// \code{.c}
/// d02pzc(2, rmserr, &errmax, &terrmx, &state, &fail);
/// \endcode
void d02pzc(Integer neq, double rmserr[], double *errmax, double *terrmx, KorRKState *state, KorError *fail);

/// \brief Frees the memory of an integration by the Runge-Kutta suite.
///
/// Afterwards the other routines refuse the record with NE_MEMORY_FREED until the next d02pvc(). A record that was never set up is
/// left alone.
///
/// \param[in,out] state the record of the problem
///
/// \par Method
/// The stamps of the record tell whether there is anything to free.
/// \par Thread safety
/// Safe; one record belongs to one thread at a time.
/// \par Example
/// \code{.c}
/// d02ppc(&state);
/// \endcode
void d02ppc(KorRKState *state);

// Initial values: Adams method with events

/// The state of an integration by the Adams routines: set up by d02qwc(), carried by d02qfc() and d02qzc(), its memory freed by
/// d02qyc(). The caller owns the record and clears it once (`KorAdamsOptions opt = {0};`); each problem has its own, and any
/// number of them may be in use side by side. A record must not be copied, nor shared between threads.
typedef struct {
    Integer stamp1;       ///< -11111 in a record that was set up
    Integer stamp2;       ///< -23456 in a record that was set up
    Integer neqf;         ///< number of equations
    Integer neqg;         ///< number of event functions
    Integer state;        ///< how the integration may go on: what the next d02qwc() should be given
    Boolean alter_g;      ///< the event functions may change between calls
    Boolean sophist;      ///< events are searched for thoroughly
    Boolean vectol;       ///< each component has tolerances of its own
    Boolean crit;         ///< the integration must not pass `tcrit`
    Boolean one_step;     ///< d02qfc() returns after each step
    Boolean root_found;   ///< the last d02qfc() ended at an event
    Boolean events_stale; ///< the event functions are to be looked at afresh
    double *rtol;         ///< relative tolerances, in the memory of the integration
    double *atol;         ///< absolute tolerances, in the memory of the integration
    double tcrit;         ///< the point not to be passed
    double hmax;          ///< the longest step, 0 for no limit
    Integer max_step;     ///< steps that one call may take
    Integer setup_done;   ///< -11111 after a setup, -23456 once the integration has run, else a setup has failed
    Integer root_index;   ///< the event function that had the event, from 1; 0 without an event
    double last_t;        ///< the point that the last d02qfc() reached
    double tolfac;        ///< after NE_ODE_TOL: the tolerances must be at least so many times larger; else 1
    Integer steps_taken;  ///< steps since the start
    double hlast;         ///< the last step, with its sign
    double hnext;         ///< the step that will be tried next
    Integer order;        ///< the order of the last step
    double *work;         ///< the vectors of the integration
    void *kernel;         ///< the integration itself
    void *events;         ///< what is known of the event functions
} KorAdamsOptions;

/// \brief Sets up an initial value problem for the Adams integrator d02qfc(), or changes how one goes on.
///
/// The problem is y' = f(t, y) with `neqf` equations. The integration may stop at events: points where one of `neqg` functions
/// g_k(t, y, y') changes its sign.
///
/// \param[in]  state   Kor_NewStart for a new problem. To change the other arguments under way: Kor_Continue, or Kor_ReStart to
///                     begin afresh from the point that d02qfc() is given next (after a jump of the solution, say). A record
///                     knows in `opt->state` how it may go on
/// \param[in]  neqf    number of equations, at least 1
/// \param[in]  vectol  true: `atol` and `rtol` have neqf elements each; false: one
/// \param[in]  atol    absolute tolerances, at least 0, in the unit of y
/// \param[in]  rtol    relative tolerances, at least 0, and at least 4 x02ajc() where the absolute one is 0. The local error e
///                     of a step satisfies sum (e_i/(rtol_i |y_i| + atol_i))^2 <= 1
/// \param[in]  one_step true: d02qfc() returns after each step; false: at `tout`
/// \param[in]  crit    true: the right-hand side must not be evaluated beyond `tcrit`; false: it may be evaluated beyond `tout`
/// \param[in]  tcrit   the point not to be passed; not read when `crit` is false
/// \param[in]  hmax    the longest step, its sign is ignored; 0 for no limit
/// \param[in]  max_step the steps that one call of d02qfc() may take; below 1: 1000
/// \param[in]  neqg    number of event functions; below 1: none
/// \param[in]  alter_g true: the event functions may have changed since the last call; then `neqg` may change, too
/// \param[in]  sophist true: the search also finds events in pairs within one step, and points where a function touches zero, at
///                     the cost of at least six more evaluations of each function in a step; false: changes of sign from step to step
/// \param[in,out] opt  the record, to be freed by d02qyc()
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_NO_SETUP: `state` is not Kor_NewStart, and there is nothing to go on with.
/// - NE_STATE: `state` is none of its values.
/// - NE_NEQF_CHANGED, NE_VECTOL_CHANGED: `neqf` or `vectol` differs from the setup at the start.
/// - NE_NEQG_CHANGED: `neqg` differs from the previous setup, and `alter_g` is false.
/// - NE_INT_ARG_LT: `neqf` is less than 1.
/// - NE_ALLOC_FAIL: there is not enough memory; the record is empty then.
/// - NE_BOOL_NOT_SET: `crit` is neither 0 nor 1.
/// - NE_REAL_ARG_LT: an element of `atol` or `rtol` is negative.
/// - NE_REAL_LT_COND: an absolute tolerance is 0, and the relative one is less than 4 x02ajc().
///
/// After each of them d02qfc() refuses the record until a setup succeeds.
/// \par Accuracy
/// The tolerances bound the error of each step; the error at the end is proportional to them, by a factor that is the problem's own.
/// \par Method
/// As d02qfc().
/// \par Thread safety
/// Safe; one record belongs to one thread at a time.
/// \par Example
/// See d02qfc().
void d02qwc(Integer state, Integer neqf, Boolean vectol, const double atol[], const double rtol[], Boolean one_step,
            Boolean crit, double tcrit, double hmax, Integer max_step, Integer neqg, Boolean alter_g, Boolean sophist,
            KorAdamsOptions *opt, KorError *fail);

/// \brief Integrates an initial value problem by an Adams method of variable order and step, and finds events on the way.
///
/// After d02qwc() each call goes on to `tout`, to the next event, or by one step, whichever was asked for and comes first. Events come
/// in the order in which they lie, one in a call; those that coincide follow one another at the same t. The direction is that
/// from `t` to the first `tout`.
///
/// The method suits problems whose right-hand side is expensive, whose accuracy is high, or whose output is dense: it takes
/// two evaluations a step, and output points and events cost none. Problems that are stiff end with NE_STIFF_PROBLEM.
///
/// \param[in]  neqf number of equations, as at the setup
/// \param[in]  fcn  computes the derivative y' in `f`, from `t` and `y`, neqf elements each; `comm` is passed through
/// \param[in,out] t the starting point, in a first call or after Kor_ReStart; then as the last call left it; on exit the point
///                  reached
/// \param[in,out] y neqf elements: the solution at the starting point; on exit the solution at `t`. Changes in between are not seen
///                  unless the integration starts again by Kor_ReStart
/// \param[in]  tout the next output point, in one direction from the start; with one step at a time it tells how far to go at most
/// \param[in]  g    returns event function number `k`, counted from 1, at (`t`, `y`, `yp` = y'); may be null without event functions
/// \param[in]  comm passed to `fcn` and `g` as it stands, never read; may be null
/// \param[in,out] opt the record: on exit `root_found` and `root_index` tell of an event, `steps_taken`, `hlast`, `hnext` and `order`
///                  of the steps
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_NO_SETUP, NE_SETUP_ERROR: there was no setup, or the last one failed.
/// - NE_NEQF: `neqf` differs from the setup.
/// - NE_NO_G_FUN: there are event functions, but `g` is null.
/// - NE_2_REAL_ARG_CONS: `t`, `tout` or their difference is not finite.
/// - NE_T_SAME_TOUT: a start, new or afresh, with `tout` = `t`.
/// - NE_T_CHANGED: `t` is not what the last call left.
/// - NE_DIRECTION_CHANGE: `tout` lies on the other side of `t` than before.
/// - NE_TOUT_TCRIT: `tout` lies beyond the point not to be passed.
/// - NE_MAX_STEP: `max_step` steps were not enough. Call again to go on.
/// - NE_STIFF_PROBLEM: the same, and the problem looks stiff: a method for stiff problems will be much faster.
/// - NE_ODE_TOL: the tolerances are too small for doubles, or the solution comes to a singularity. `opt->tolfac` is the factor by
///   which they must grow.
/// - NE_WEIGHT_ZERO: a component has become 0 whose absolute tolerance is 0; its index, from 1, is in `fail->errnum`.
/// - NE_SINGULAR_POINT: an event function, `opt->root_index`, changes its sign through infinity at `t`.
///
/// From NE_MAX_STEP on `t` and `y` hold the last point reached, before that they are untouched.
/// \par Accuracy
/// As d02qwc(). An event is where the computed solution has it, exact to the rounding of t.
/// \par Method
/// Predictor, corrector of one order more and two evaluations (PECE), in modified divided differences, orders 1 to 12: L. F. Shampine and
/// M. K. Gordon, Computer Solution of Ordinary Differential Equations (1975). Output points and events lie on an interpolant with a
/// continuous derivative: H. A. Watts and L. F. Shampine, SIAM J. Sci. Stat. Comput. 7 (1986) 334-345.
/// \par Thread safety
/// Safe, and reentrant: the functions may themselves integrate, with another record.
/// \par See also
/// d02qzc() gives the solution between steps; d02pcc() suits cheap right-hand sides.
/// \par Example
/// \code{.c}
/// static void fcn(Integer neqf, double t, const double y[], double f[], void *comm) { f[0] = y[1]; f[1] = -y[0]; }
/// static double g(Integer neqf, double t, const double y[], const double yp[], Integer k, void *comm) { return y[0]; }
/// ...
/// KorAdamsOptions opt = {0};
/// double tol = 1e-10, t = 0.0, y[] = {0.0, 1.0};
/// d02qwc(Kor_NewStart, 2, 0, &tol, &tol, 0, 0, 0.0, 0.0, 0, 1, 0, 0, &opt, &fail);
/// do
///     d02qfc(2, fcn, &t, y, 10.0, g, NULL, &opt, &fail);      // stops at pi, 2 pi, 3 pi, and at 10
/// while (fail.code == 0 && opt.root_found);
/// d02qyc(&opt);
/// \endcode
void d02qfc(Integer neqf, void (*fcn)(Integer neqf, double t, const double y[], double f[], void *comm), double *t,
            double y[], double tout,
            double (*g)(Integer neqf, double t, const double y[], const double yp[], Integer k, void *comm), void *comm,
            KorAdamsOptions *opt, KorError *fail);

/// \brief The solution and its derivative within the last step of d02qfc(), by interpolation.
///
/// \param[in]  neqf   number of equations, as at the setup
/// \param[in]  twant  where the values are wanted
/// \param[in]  nwant  how many components are wanted, from the first, at least 1 and at most `neqf`
/// \param[out] ywant  nwant elements: the solution
/// \param[out] ypwant nwant elements: the derivative
/// \param[in,out] opt the record of the problem
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_NO_SETUP, NE_SETUP_ERROR: there was no setup, or the last one failed.
/// - NE_NO_INTEGRATE: d02qfc() has not been called since the setup.
/// - NE_NEQF: `neqf` differs from the setup.
/// - NE_NWANT_GT, NE_INT_ARG_LT: `nwant` is out of its range.
/// - NE_NO_STEPS: no step has been taken yet.
/// - NW_EXTRAPOLATION: `twant` lies outside the last step. The values are given all the same.
///
/// All but the last leave the outputs untouched.
/// \par Accuracy
/// Of the order of the local error of the step.
/// \par Method
/// As d02qfc().
/// \par Thread safety
/// Safe; one record belongs to one thread at a time.
/// \par Example
/// \code{.c}
/// d02qzc(2, t - 0.5 * opt.hlast, 1, ymid, ypmid, &opt, &fail);   // the first component half a step back
/// \endcode
void d02qzc(Integer neqf, double twant, Integer nwant, double ywant[], double ypwant[], KorAdamsOptions *opt,
            KorError *fail);

/// \brief Frees the memory of an integration by the Adams routines.
///
/// Afterwards the record is as if it had never been set up; one that never was is left alone.
///
/// \param[in,out] opt the record of the problem
///
/// \par Method
/// The stamps of the record tell whether there is anything to free.
/// \par Thread safety
/// Safe; one record belongs to one thread at a time.
/// \par Example
/// \code{.c}
/// d02qyc(&opt);
/// \endcode
void d02qyc(KorAdamsOptions *opt);

// Initial values: stiff systems, and drivers for either kind

/// Where the Jacobian of the backward differentiation method comes from: chosen by d02nsc().
enum {
    KOR_BDF_ANALYTIC = 1,  ///< the caller forms it when d02nmc() asks for it
    KOR_BDF_NUMERICAL = 2, ///< d02nmc() forms it by differences
};

/// One problem in the hands of the backward differentiation method. Plain data: everything lies here and in the three arrays that
/// the caller provides, so that any number of problems may go on side by side. d02nvc() fills the record; then the caller sets
/// the pointers and, as wanted, `one_step`, `crit` and `tcrit`. A copy of the record needs copies of its arrays.
typedef struct {
    Integer stamp1;          ///< -11111 while the record is valid
    Integer stamp2;          ///< -23456 likewise
    Integer neq;             ///< number of equations
    Integer nhist;           ///< columns of `ysav`
    Integer maxord;          ///< highest order that is used
    Integer jacobian;        ///< KOR_BDF_ANALYTIC or KOR_BDF_NUMERICAL; 0: not chosen yet
    Boolean one_step;        ///< the caller's: d02nmc() returns after each step
    Boolean crit;            ///< the caller's: no evaluation lies beyond `tcrit`
    double tcrit;            ///< the caller's: limit of the integration
    Integer order;           ///< order of the last step
    Integer steps;           ///< steps taken so far
    Integer rejected;        ///< steps that were tried and given up
    Integer derivatives;     ///< slopes asked for, those for Jacobians by differences included
    Integer jacobians;       ///< Jacobians formed
    Integer factorisations;  ///< matrices factorised
    double t;                ///< end of the last step
    double hlast;            ///< its signed length
    double hnext;            ///< signed length planned for the next
    double *ysav;            ///< the caller's array of neq * nhist: the solution behind `t`
    double *work;            ///< the caller's array of neq * (neq + 5)
    Integer *iwork;          ///< the caller's array of neq
    unsigned char kept[512]; ///< kept for the library
} KorBdfState;

/// \brief Integrates a system of ordinary differential equations over a range, with output on the way and a stop at a root.
///
/// Solves y' = f(x, y) from `x` to `xend`, in either direction, by a method for problems that are not stiff. The output function,
/// if there is one, sees the solution at points of its own choice; with a function g the integration stops where g(x, y(x))
/// changes its sign. Nothing is evaluated beyond `xend`.
///
/// \param[in]  neq  number of equations, at least 1
/// \param[in]  fcn  puts the slopes f(x, y), `neq` values, into `f`; called on this thread
/// \param[in,out] x start of the range; on exit the point reached: `xend`, the root, or where an error stopped it
/// \param[in,out] y `neq` elements: the solution at the start; on exit at the point reached
/// \param[in]  xend end of the range, different from `x`
/// \param[in]  tol  accuracy wanted, greater than 0, in the measure `err_c`
/// \param[in]  err_c the measure of an error e_i of y_i: Kor_Relative |e_i| <= tol |y_i|, Kor_Absolute |e_i| <= tol, Kor_Mixed
///                  |e_i| <= tol (1 + |y_i|), in the Euclidean norm over the components. The relative measure asks nothing of
///                  parts of y below the rounding errors of its greatest starting value
/// \param[in]  output called first at the starting point, then at each point that it has asked for; must put the next such point,
///                  further on in the direction of integration, into `*xsol`, which comes with the point of the call. A point
///                  beyond `xend` ends the output. May be null
/// \param[in]  g    stops the integration where it changes its sign; a zero at the starting point itself does not count. Signs are
///                  compared at the quarters of each step: roots closer to each other may be passed by. May be null
/// \param[in]  comm passed to the functions as it stands, never read; may be null
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// As d02ejc().
/// \par Accuracy
/// Each step makes an error of at most `tol`; the error at the end is proportional to it. The root lies where the computed
/// solution has it, to the last bits of x.
/// \par Method
/// Adams method of orders 1 to 12 with variable coefficients, in modified divided differences, each step corrected once.
/// L. F. Shampine and M. K. Gordon, Computer Solution of Ordinary Differential Equations (1975).
/// \par Thread safety
/// Safe and reentrant.
/// \par See also
/// d02ejc() for stiff problems; d02qfc() for the same method with more control.
/// \par Example
/// \code{.c}
/// static void projectile(Integer neq, double t, const double y[], double f[], void *comm)   // height, speed
/// {
///     f[0] = y[1];
///     f[1] = -9.81 - 0.01 * y[1] * fabs(y[1]);
/// }
/// static double ground(Integer neq, double t, const double y[], void *comm) { return y[0]; }
/// ...
/// double t = 0.0, y[2] = {0.0, 30.0};
/// d02cjc(2, projectile, &t, y, 20.0, 1e-8, Kor_Mixed, NULL, ground, NULL, &fail);   // t: when it comes down
/// \endcode
void d02cjc(Integer neq, void (*fcn)(Integer neq, double x, const double y[], double f[], void *comm), double *x,
            double y[], double xend, double tol, Integer err_c,
            void (*output)(Integer neq, double *xsol, const double y[], void *comm),
            double (*g)(Integer neq, double x, const double y[], void *comm), void *comm, KorError *fail);

/// \brief Integrates a stiff system of ordinary differential equations over a range, with output on the way and a stop at a root.
///
/// Solves y' = f(x, y) from `x` to `xend`, in either direction. The output function, if there is one, sees the solution at points
/// of its own choice; with a function g the integration stops where g(x, y(x)) changes its sign. Nothing is evaluated beyond
/// `xend`.
///
/// \param[in]  neq  number of equations, at least 1
/// \param[in]  fcn  puts the slopes f(x, y), `neq` values, into `f`; called on this thread
/// \param[in]  pederv puts the Jacobian, df_i/dy_j in `pw[i * neq + j]`, into `pw`, which comes filled with zeros; null for a
///                  Jacobian by differences. A narrow band is found out by itself, and then differences cost few calls of `fcn`
/// \param[in,out] x start of the range; on exit the point reached: `xend`, the root, or where an error stopped it
/// \param[in,out] y `neq` elements: the solution at the start; on exit at the point reached
/// \param[in]  xend end of the range, different from `x`
/// \param[in]  tol  accuracy wanted, greater than 0, in the measure `err_c`
/// \param[in]  err_c the measure of an error e_i of y_i: Kor_Relative |e_i| <= tol |y_i|, Kor_Absolute |e_i| <= tol, Kor_Mixed
///                  |e_i| <= tol (1 + |y_i|), in the root mean square over the components. The relative measure asks nothing of
///                  parts of y below the rounding errors of its greatest starting value
/// \param[in]  output called first at the starting point, then at each point that it has asked for; must put the next such point,
///                  further on in the direction of integration, into `*xsol`, which comes with the point of the call. A point
///                  beyond `xend` ends the output. May be null
/// \param[in]  g    stops the integration where it changes its sign; a zero at the starting point itself does not count. Signs are
///                  compared at the quarters of each step: roots closer to each other may be passed by. May be null
/// \param[in]  comm passed to the functions as it stands, never read; may be null
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `neq` is less than 1.
/// - NE_REAL_ARG_LE: `tol` is not greater than 0.
/// - NE_2_REAL_ARG_EQ: `x` and `xend`, which the message calls tend, are equal.
/// - NE_BAD_PARAM: `err_c` is none of the three.
/// - NE_ALLOC_FAIL: there is not enough memory: neq (2 neq + 15) doubles.
/// - NE_XSOL_SET_WRONG: the first point that `output` asked for lies behind the start.
/// - NE_XSOL_NOT_RESET: `output` left `*xsol` as it was; the message tells in which call.
/// - NE_XSOL_INCONSIST: `output` asked for a point behind the last one.
/// - NE_TOL_TOO_SMALL: no first step could be taken: `tol` is too small for doubles, or f, the ends of the range or the starting
///   values are not finite.
/// - NE_TOL_PROGRESS: the integration came to a halt: f is singular or not finite beyond `x`, or `tol` too small there.
/// - NE_NO_SIGN_CHANGE: g has not changed its sign; `x` is `xend`, and the solution there is valid.
///
/// From NE_XSOL_NOT_RESET on, but NE_TOL_TOO_SMALL, `x` and `y` hold the last point reached; the others leave them untouched.
/// \par Accuracy
/// Each step makes an error of at most `tol`; on stiff problems the error at the end is of this order too. The root lies
/// where the computed solution has it, to the last bits of x.
/// \par Method
/// Backward differentiation of orders 1 to 5 with variable coefficients, on modified divided differences; a modified Newton
/// iteration with LU factors, full or banded. C. W. Gear, Numerical Initial Value Problems (1971);
/// K. R. Jackson and R. Sacks-Davis, ACM Trans. Math. Softw. 6 (1980) 295-318.
/// \par Thread safety
/// Safe and reentrant.
/// \par See also
/// d02cjc() for problems that are not stiff; d02nmc() for one that returns for each slope.
/// \par Example
/// \code{.c}
/// static void robertson(Integer neq, double x, const double y[], double f[], void *comm)
/// {
///     f[0] = -0.04 * y[0] + 1e4 * y[1] * y[2];
///     f[2] = 3e7 * y[1] * y[1];
///     f[1] = -f[0] - f[2];
/// }
/// ...
/// KorError fail = {0};
/// double x = 0.0, y[3] = {1.0, 0.0, 0.0};
/// d02ejc(3, robertson, NULL, &x, y, 40.0, 1e-8, Kor_Relative, NULL, NULL, NULL, &fail);   // y[0] = 0.715827
/// \endcode
void d02ejc(Integer neq, void (*fcn)(Integer neq, double x, const double y[], double f[], void *comm),
            void (*pederv)(Integer neq, double x, const double y[], double pw[], void *comm), double *x, double y[],
            double xend, double tol, Integer err_c,
            void (*output)(Integer neq, double *xsol, const double y[], void *comm),
            double (*g)(Integer neq, double x, const double y[], void *comm), void *comm, KorError *fail);

/// \brief Sets up the backward differentiation method for one stiff problem.
///
/// Fills the record `st`, except for the pointers, which the caller sets after this call. d02nsc() must follow, then d02nmc().
///
/// \param[in]  neq  number of equations, at least 1
/// \param[in]  nhist columns of the history `ysav`, at least `maxord` + 1; 6 serves all orders
/// \param[in]  maxord highest order that may be used, 1 to 5
/// \param[out] st   the record of the problem
/// \param[out] status 0: done; 1: an argument is out of range, and `st` is untouched
///
/// \par Errors
/// None but by `status`: there is no error record.
/// \par Method
/// As d02ejc().
/// \par Thread safety
/// Safe.
/// \par Example
/// As in d02nmc().
void d02nvc(Integer neq, Integer nhist, Integer maxord, KorBdfState *st, Integer *status);

/// \brief Chooses where the Jacobian of the backward differentiation method comes from.
///
/// \param[in]  neq  number of equations, as given to d02nvc()
/// \param[in]  jceval the choice, of which six letters in upper or lower case count: "ANALYT", the caller forms the Jacobian;
///                  "NUMERI", differences of slopes
/// \param[in,out] st the record of the problem, filled by d02nvc()
/// \param[out] status 0: done; 1: `neq` or `jceval` is wrong; 2: `st` has not been set up. It is then untouched
///
/// \par Errors
/// None but by `status`: there is no error record.
/// \par Method
/// As d02ejc().
/// \par Thread safety
/// Safe.
/// \par Example
/// As in d02nmc().
void d02nsc(Integer neq, const char *jceval, KorBdfState *st, Integer *status);

/// \brief Integrates a stiff system, returning to its caller for each slope and Jacobian.
///
/// Set `irevcm` to 0, `t` and `y` to the starting point, and call until `irevcm` comes back as 0, doing in between what it asks
/// for. Then `y` is the solution at `tout`, or with `st->one_step` at the end of a step that may be short of `tout`; call on with
/// `irevcm` 0 and the same or a new `tout`. The integrator steps beyond `tout` and interpolates, unless `st->crit` forbids it.
///
/// \param[in]  neq  number of equations, as given to d02nvc()
/// \param[in,out] t first call: the starting point. With a request: the point at which it is to be met. At the end the point of
///                  `y`
/// \param[in]  tout the point at which the solution is wanted, not equal to `t` at the start. Later ones must lie in the same
///                  direction, or within the last step
/// \param[in,out] y `neq` elements: the solution at the start; then the argument of what is asked for, then the solution
/// \param[in]  ydot `neq` elements: the slopes that were asked for
/// \param[in]  rtol relative tolerance, one or `neq` values, at least 0
/// \param[in]  atol absolute tolerance, one or `neq` values, at least 0; the error of y_i is weighed by rtol |y_i| + atol
/// \param[in]  itol which of them are arrays: 1 none, 2 `atol`, 3 `rtol`, 4 both
/// \param[out] res  `neq` elements of work space
/// \param[in,out] pw neq * neq elements, kept between the calls: the Jacobian, df_i/dy_j in `pw[i * neq + j]`; comes filled with
///                  zeros when it is asked for
/// \param[in,out] st the record of the problem
/// \param[in,out] irevcm 0 at the start and at the end; 1: put the slopes f(t, y) into `ydot` and call again; 2: put the Jacobian
///                  at (t, y) into `pw` and call again
/// \param[out] status 0: no fault; 1: an argument is out of range; 2: `st` is not set up, has ended with a fault, or lacks an array;
///                  3: no first step could be taken; 4: no further step could be taken, `t` and `y` hold the last one
///
/// \par Errors
/// None but by `status`: there is no error record.
/// \par Accuracy
/// Each step makes an error of at most 1 in the norm of d02zac() with the weights above.
/// \par Method
/// As d02ejc().
/// \par Thread safety
/// Safe: all state is in the arguments. Problems may be interleaved.
/// \par Example
/// \code{.c}
/// KorBdfState st;
/// double ysav[2 * 6], work[2 * 7], t = 0.0, y[2] = {2.0, 0.0}, ydot[2], res[2], pw[4], rtol = 1e-6, atol = 1e-6;
/// Integer iwork[2], irevcm = 0, status;
/// d02nvc(2, 6, 5, &st, &status);
/// d02nsc(2, "NUMERI", &st, &status);
/// st.ysav = ysav;  st.work = work;  st.iwork = iwork;
/// do {
///     d02nmc(2, &t, 2.0, y, ydot, &rtol, &atol, 1, res, pw, &st, &irevcm, &status);
///     if (irevcm == 1) {
///         ydot[0] = y[1];
///         ydot[1] = 100.0 * (1.0 - y[0] * y[0]) * y[1] - y[0];
///     }
/// } while (irevcm != 0);
/// \endcode
void d02nmc(Integer neq, double *t, double tout, double y[], double ydot[], const double rtol[], const double atol[],
            Integer itol, double res[], double pw[], KorBdfState *st, Integer *irevcm, Integer *status);

/// \brief The solution within the last step of d02nmc().
///
/// \param[in]  xsol the point, in the last step
/// \param[out] sol  `m` elements: the first `m` components of the solution there
/// \param[in]  m    number of components wanted, 1 to `neq`
/// \param[in]  ysav the history, `st->ysav`
/// \param[in]  neq  number of equations, as given to d02nvc()
/// \param[in]  nhist columns of the history, as given to d02nvc()
/// \param[in]  st   the record of the problem, after at least one step
/// \param[out] status 0: no fault; 1: sizes out of range; 2: `st` is not set up, has made no step, or does not fit; 3: `xsol` lies
///                  outside the last step, and the values are extrapolated. After 1 and 2 `sol` is untouched
///
/// \par Errors
/// None but by `status`: there is no error record.
/// \par Accuracy
/// That of the step: the error between its ends is smaller than that at its end.
/// \par Method
/// The polynomial of the order of the last step through the solution at its end and before.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// d02xkc(t - 0.25 * st.hlast, sol, neq, st.ysav, neq, 6, &st, &status);
/// \endcode
void d02xkc(double xsol, double sol[], Integer m, const double ysav[], Integer neq, Integer nhist,
            const KorBdfState *st, Integer *status);

/// \brief The weighted norm by which the integrators measure errors.
///
/// sqrt(sum (v_i / w_i)^2 / n), without overflow or underflow on the way; 0 / 0 counts as 0.
///
/// \param[in]  neq  number of elements n, at least 1
/// \param[in]  v    `neq` elements: the vector
/// \param[in]  w    `neq` elements: the weights
/// \param[out] status 0: done; 1: `neq` is less than 1, and the result is 0
/// \return the norm; infinite when a weight is 0 where the vector is not
///
/// \par Errors
/// None but by `status`: there is no error record.
/// \par Accuracy
/// A few units in the last place.
/// \par Method
/// The plain sum, and a scaled one where squares would leave the range of doubles.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double size = d02zac(neq, error, weight, &status);   // 1 or less: within the tolerance
/// \endcode
double d02zac(Integer neq, const double v[], const double w[], Integer *status);

// Boundary values

/// \brief Solves a nonlinear two-point boundary value problem with known values at both ends.
///
/// Finds y on [a, b] with y' = f(x, y), where some components of y are known at a and some at b, `neq` values in all.
///
/// \param[in]  neq  number of equations, at least 2: some value must be known at either end
/// \param[in]  fcn  puts the slopes f(x, y), `neq` values, into `f`; called on this thread, with x in [a, b]
/// \param[in]  a    left end of the range
/// \param[in]  b    right end, greater than `a`
/// \param[in]  u    `neq` by 2, row-major: the values of component i at a in `u[2 * i]` and at b in `u[2 * i + 1]`, known or
///                  estimated; a straight line between them is the first approximation
/// \param[in]  v    `neq` by 2, row-major: 0 where the element of `u` is known, 1 where it is estimated
/// \param[in]  tol  accuracy wanted of y, absolute, greater than 0
/// \param[in]  mnp  most points that a mesh may have, at least 32
/// \param[in,out] np points of the mesh: 0 for an equally spaced mesh to begin with, else 4 to `mnp` points that are given in `x`;
///                  on exit those of the final mesh
/// \param[in,out] x `mnp` elements: with `np` > 0 the mesh to begin with, strictly increasing from `a` to `b`; on exit the final
///                  mesh
/// \param[out] y    `neq` by `mnp`, row-major: component i at point j in `y[i * tdy + j]`
/// \param[in]  tdy  trailing dimension of `y`, at least `mnp`
/// \param[in]  comm passed to fcn as it stands, never read; may be null
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `neq` is less than 1, or `mnp` less than 32.
/// - NE_REAL_ARG_LE: `tol` is not greater than 0.
/// - NE_2_REAL_ARG_LE: `b` is not greater than `a`.
/// - NE_INT_RANGE_CONS_2: `np` is neither 0 nor in 4 to `mnp`.
/// - NE_2_INT_ARG_LT: `tdy` is less than `mnp`.
/// - NE_LF_B_VAL, NE_RT_B_VAL: all components or more are known at one end.
/// - NE_LFRT_B_VAL: the known values are not `neq` in all.
/// - NE_LF_B_MESH, NE_RT_B_MESH: the given mesh does not begin at `a`, or not end at `b`.
/// - NE_NOT_STRICTLY_INCREASING: the given mesh is not strictly increasing.
/// - NE_ALLOC_FAIL: there is not enough memory: about mnp neq (17 neq + 16) doubles.
/// - NE_CONV_MESH: `mnp` points are not enough; the last solution is returned.
/// - NE_CONV_MESH_INIT: the Newton iteration has failed on every mesh: give better estimates, or use d02rac() with continuation.
/// - NE_CONV_ROUNDOFF: rounding errors hide what `tol` asks for; the solution is as good as can be.
/// - NE_CONV_JACOBG: the boundary conditions depend on each other; cannot happen here.
///
/// All but NE_CONV_MESH and NE_CONV_ROUNDOFF leave `np`, `x` and `y` untouched.
/// \par Accuracy
/// Estimates of the error are at most `tol` in every component at every point of the mesh, absolutely. They are those of the
/// solution of order six; what is returned is of order eight and as a rule far better.
/// \par Method
/// Simpson's equations on the mesh, solved by a damped Newton iteration (P. Deuflhard, Numer. Math. 22 (1974) 289-315); deferred
/// correction (V. Pereyra, Numer. Math. 10 (1967) 316-323) by the equations of Lobatto's rule of five points, of order eight, and an
/// error estimate by those of four points, of order six; meshes that share the defects out evenly; orthogonal elimination, in
/// time proportional to the mesh (S. J. Wright, SIAM J. Sci. Stat. Comput. 13 (1992) 742-764). Where the iteration fails, or no mesh
/// finds a layer, the problem is reached from one with all slopes reduced.
/// \par Thread safety
/// Safe and reentrant.
/// \par See also
/// d02gbc() for linear equations; d02rac() for other conditions, Jacobians and continuation.
/// \par Example
/// \code{.c}
/// static void bratu(Integer neq, double x, const double y[], double f[], void *comm)
/// {
///     f[0] = y[1];
///     f[1] = -exp(y[0]);
/// }
/// ...
/// double u[4] = {0.0, 0.0, 0.5, -0.5}, x[64], y[2 * 64];
/// Integer v[4] = {0, 0, 1, 1}, np = 0;
/// d02gac(2, bratu, 0.0, 1.0, u, v, 1e-8, 64, &np, x, y, 64, NULL, &fail);   // y[64] = y'(0) = 0.549353
/// \endcode
void d02gac(Integer neq, void (*fcn)(Integer neq, double x, const double y[], double f[], void *comm), double a,
            double b, const double u[], const Integer v[], double tol, Integer mnp, Integer *np, double x[], double y[],
            Integer tdy, void *comm, KorError *fail);

/// \brief Solves a linear two-point boundary value problem with general conditions.
///
/// Finds y on [a, b] with y' = F(x) y + g(x) and C y(a) + D y(b) = gamma.
///
/// \param[in]  neq  number of equations, at least 1
/// \param[in]  fcnf puts F(x) into `f`, element (i, j) in `f[i * neq + j]`; it comes filled with zeros
/// \param[in]  fcng puts g(x), `neq` values, into `g`, which comes filled with zeros; null when g is zero
/// \param[in]  a    left end of the range
/// \param[in]  b    right end, greater than `a`
/// \param[in,out] c `neq` by `neq`, row-major: C; on exit its rows are reordered, those of conditions at the left end alone first,
///                  those of conditions at the right end alone last
/// \param[in,out] d `neq` by `neq`, row-major: D; on exit in the same order
/// \param[in,out] gamma `neq` elements: the right-hand side; on exit in the same order
/// \param[in]  tol  accuracy wanted of y, absolute, greater than 0
/// \param[in]  mnp  most points that a mesh may have, at least 32
/// \param[in,out] np points of the mesh: 0 for an equally spaced mesh to begin with, else 4 to `mnp` points that are given in `x`;
///                  on exit those of the final mesh
/// \param[in,out] x `mnp` elements: with `np` > 0 the mesh to begin with, strictly increasing from `a` to `b`; on exit the final
///                  mesh
/// \param[out] y    `neq` by `mnp`, row-major: component i at point j in `y[i * tdy + j]`
/// \param[in]  tdy  trailing dimension of `y`, at least `mnp`
/// \param[in]  comm passed to the functions as it stands, never read; may be null
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `neq` is less than 1, or `mnp` less than 32.
/// - NE_REAL_ARG_LE: `tol` is not greater than 0.
/// - NE_2_REAL_ARG_LE: `b` is not greater than `a`.
/// - NE_INT_RANGE_CONS_2: `np` is neither 0 nor in 4 to `mnp`.
/// - NE_2_INT_ARG_LT: `tdy` is less than `mnp`.
/// - NE_LF_B_MESH, NE_RT_B_MESH: the given mesh does not begin at `a`, or not end at `b`.
/// - NE_NOT_STRICTLY_INCREASING: the given mesh is not strictly increasing.
/// - NE_BOUND_COND_ROW: a row of [C, D] is zero; the message tells which, counted from 0.
/// - NE_BOUND_COND_COL: more than `neq` columns of [C, D] are zero.
/// - NE_BOUND_COND_MAT: C or D is zero: this is an initial value problem.
/// - NE_BOUND_COND_LC, NE_BOUND_COND_NLC: a row of [C, D] depends linearly on those before it, exactly or to working accuracy.
/// - NE_ALLOC_FAIL: there is not enough memory: about mnp neq (17 neq + 16) doubles.
/// - NE_CONV_MESH: `mnp` points are not enough; the last solution is returned.
/// - NE_CONV_MESH_INIT: the linear equations are singular on every mesh: the problem has no solution, or many.
/// - NE_CONV_ROUNDOFF: rounding errors hide what `tol` asks for; the solution is as good as can be.
/// - NE_CONV_JACOBG: the boundary conditions depend on each other in a way that the tests above have let pass.
///
/// All but NE_CONV_MESH and NE_CONV_ROUNDOFF leave `np`, `x` and `y` untouched; all before NE_CONV_MESH leave everything untouched.
/// \par Accuracy
/// Estimates of the error are at most `tol` in every component at every point of the mesh, absolutely. They are those of the
/// solution of order six; what is returned is of order eight and as a rule far better.
/// \par Method
/// Simpson's equations on the mesh, solved by a damped Newton iteration (P. Deuflhard, Numer. Math. 22 (1974) 289-315); deferred
/// correction (V. Pereyra, Numer. Math. 10 (1967) 316-323) by the equations of Lobatto's rule of five points, of order eight, and an
/// error estimate by those of four points, of order six; meshes that share the defects out evenly; orthogonal elimination, in
/// time proportional to the mesh (S. J. Wright, SIAM J. Sci. Stat. Comput. 13 (1992) 742-764). Where the iteration fails, or no mesh
/// finds a layer, the problem is reached from one with all slopes reduced.
/// \par Thread safety
/// Safe and reentrant.
/// \par See also
/// d02gac(), d02rac() for nonlinear problems.
/// \par Example
/// \code{.c}
/// static void layer(Integer neq, double x, double f[], void *comm)   // eps y'' + y' = 0
/// {
///     f[1] = 1.0;
///     f[3] = -1.0 / *(double *)comm;
/// }
/// ...
/// double c[4] = {1, 0, 0, 0}, d[4] = {0, 0, 1, 0}, gamma[2] = {0, 1}, x[100], y[2 * 100], eps = 0.01;
/// Integer np = 0;
/// d02gbc(2, layer, NULL, 0.0, 1.0, c, d, gamma, 1e-6, 100, &np, x, y, 100, &eps, &fail);
/// \endcode
void d02gbc(Integer neq, void (*fcnf)(Integer neq, double x, double f[], void *comm),
            void (*fcng)(Integer neq, double x, double g[], void *comm), double a, double b, double c[], double d[],
            double gamma[], double tol, Integer mnp, Integer *np, double x[], double y[], Integer tdy, void *comm,
            KorError *fail);

/// \brief Solves a nonlinear two-point boundary value problem with general conditions, by continuation where it is hard.
///
/// Finds y on [a, b] with y' = f(x, y, eps) and `neq` conditions g(y(a), y(b), eps) = 0, for eps = 1. With continuation the
/// problem is solved for eps = 0 first, which ought to be easy, and followed from there.
///
/// \param[in]  neq  number of equations, at least 1
/// \param[in,out] deleps greater than 0: continuation from eps = 0 with steps that begin with `deleps`; on exit the last step.
///                  0 or less: eps is 1 throughout
/// \param[in]  fcn  puts the slopes f(x, y, eps), `neq` values, into `f`; called on this thread, with x in [a, b]
/// \param[in]  numbeg number of conditions on y(a) alone, 0 to neq - 1
/// \param[in]  nummix number of conditions on both ends, 0 to neq - numbeg; not 0 when `numbeg` is
/// \param[in]  g    puts the `neq` values that should vanish into `bc`: first the `numbeg` that depend on y(a) alone, then the
///                  `nummix`, then those that depend on y(b) alone
/// \param[in]  init Kor_UserInitMesh: `x` and `y` hold the mesh and the approximation to begin with; Kor_DefInitMesh: equally spaced
///                  points between `x[0]` and `x[np - 1]`, and y = 0
/// \param[in]  mnp  most points that a mesh may have, at least 32
/// \param[in,out] np points of the mesh to begin with, 4 to `mnp`; on exit those of the final mesh
/// \param[in,out] x `mnp` elements: `x[0]` is a and `x[np - 1]` is b, and between them with Kor_UserInitMesh a strictly increasing
///                  mesh; on exit the final mesh
/// \param[in,out] y `neq` by `mnp`, row-major, component i at point j in `y[i * tdy + j]`: with Kor_UserInitMesh the approximation
///                  to begin with; on exit the solution
/// \param[in]  tdy  trailing dimension of `y`, at least `mnp`
/// \param[out] errest `neq` elements: the greatest estimated error of each component over the mesh, absolute
/// \param[in]  tol  accuracy wanted of y, absolute, greater than 0
/// \param[in]  jacobf puts the Jacobian df_i/dy_j into `f[i * neq + j]`, which comes filled with zeros; null for differences
/// \param[in]  jacobg puts the Jacobians of the conditions, dbc_i/dy_j(a) into `jya[i * neq + j]` and dbc_i/dy_j(b) into
///                  `jyb[i * neq + j]`, which come filled with zeros; null exactly if `jacobf` is
/// \param[in]  jaceps puts df_i/deps into `f`, `neq` values that come as zeros; given exactly if Jacobians and continuation are
/// \param[in]  jacgep puts dbc_i/deps into `bceps`, `neq` values that come as zeros; given exactly if `jaceps` is
/// \param[in]  comm passed to the functions as it stands, never read; may be null
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `neq` is less than 1, or `mnp` less than 32.
/// - NE_REAL_ARG_LE: `tol` is not greater than 0.
/// - NE_INT_RANGE_CONS: `np`, `numbeg` or `nummix` is out of its range.
/// - NE_2_INT_ARG_LT: `tdy` is less than `mnp`.
/// - NE_2_INT_ARG_ZERO: `numbeg` and `nummix` are both 0.
/// - NE_BAD_PARAM: `init` is neither of its two values.
/// - NE_2_REAL_ARG_LE: `x[np - 1]` is not greater than `x[0]`.
/// - NE_NOT_STRICTLY_INCREASING: the given mesh is not strictly increasing.
/// - NE_INVALID_FUN_JAC: one of `jacobf` and `jacobg` is null and the other is not.
/// - NE_INVALID_FUN_NO_JAC_CONT, NE_INVALID_FUN_JAC_NO_CONT, NE_INVALID_FUN_JAC_CONT: `jaceps` and `jacgep` do not fit.
/// - NE_ALLOC_FAIL: there is not enough memory: about mnp neq (17 neq + 16) doubles.
/// - NE_CONV_MESH: `mnp` points are not enough; the last solution is returned.
/// - NE_CONV_MESH_INIT: the Newton iteration has failed on every mesh, with continuation for eps = 0.
/// - NE_CONV_ROUNDOFF: rounding errors hide what `tol` asks for; the solution is as good as can be.
/// - NE_CONV_CONT: the Newton iteration fails on the mesh of a value of eps that was reached.
/// - NE_CONV_JACOBG: the Jacobian of the conditions is singular.
/// - NE_CONV_CONT_DEP: nothing depends on eps.
/// - NE_CONV_CONT_DELEPS: no step of eps is small enough: the solutions do not go on; `deleps` holds the last one.
///
/// After NE_CONV_MESH and NE_CONV_ROUNDOFF the best solution is returned, after NE_CONV_CONT and NE_CONV_CONT_DELEPS that for the last
/// eps that was reached; all others leave `np`, `x` and `y` untouched.
/// \par Accuracy
/// Estimates of the error are at most `tol` in every component at every point of the mesh, absolutely. They are those of the
/// solution of order six; what is returned is of order eight and as a rule far better.
/// \par Method
/// Simpson's equations on the mesh, solved by a damped Newton iteration (P. Deuflhard, Numer. Math. 22 (1974) 289-315); deferred
/// correction (V. Pereyra, Numer. Math. 10 (1967) 316-323) by the equations of Lobatto's rule of five points, of order eight, and an
/// error estimate by those of four points, of order six; meshes that share the defects out evenly; orthogonal elimination, in
/// time proportional to the mesh (S. J. Wright, SIAM J. Sci. Stat. Comput. 13 (1992) 742-764). Where the iteration fails, or no mesh
/// finds a layer, the problem is reached from one with all slopes reduced.
/// \par Thread safety
/// Safe and reentrant.
/// \par See also
/// d02gac(), d02gbc() for simpler conditions.
/// \par Example
/// \code{.c}
/// static void troesch(Integer neq, double x, double eps, const double y[], double f[], void *comm)
/// {
///     f[0] = y[1];
///     f[1] = 10.0 * eps * sinh(10.0 * eps * y[0]);
/// }
/// static void ends(Integer neq, double eps, const double ya[], const double yb[], double bc[], void *comm)
/// {
///     bc[0] = ya[0];
///     bc[1] = yb[0] - 1.0;
/// }
/// ...
/// double deleps = 0.1, x[300] = {0.0}, y[2 * 300], errest[2];
/// Integer np = 17;
/// x[16] = 1.0;
/// d02rac(2, &deleps, troesch, 1, 0, ends, Kor_DefInitMesh, 300, &np, x, y, 300, errest, 1e-8, NULL, NULL, NULL, NULL, NULL, &fail);
/// \endcode
void d02rac(Integer neq, double *deleps,
            void (*fcn)(Integer neq, double x, double eps, const double y[], double f[], void *comm), Integer numbeg,
            Integer nummix,
            void (*g)(Integer neq, double eps, const double ya[], const double yb[], double bc[], void *comm),
            Integer init, Integer mnp, Integer *np, double x[], double y[], Integer tdy, double errest[], double tol,
            void (*jacobf)(Integer neq, double x, double eps, const double y[], double f[], void *comm),
            void (*jacobg)(Integer neq, double eps, const double ya[], const double yb[], double jya[], double jyb[],
                           void *comm),
            void (*jaceps)(Integer neq, double x, double eps, const double y[], double f[], void *comm),
            void (*jacgep)(Integer neq, double eps, const double ya[], const double yb[], double bceps[], void *comm),
            void *comm, KorError *fail);

KOR_END_DECLS

#endif
