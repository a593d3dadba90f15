/// \file c05.h
/// Chapter c05: zeros of functions of one variable and of systems of equations.
#ifndef KOR_C05_H
#define KOR_C05_H

#include <kor.h>

KOR_BEGIN_DECLS

/// \brief A zero of a continuous function of one variable, in an interval at whose ends its signs differ.
///
/// Finds x between a and b with f(x) = 0. The interval that is known to hold a change of sign shrinks until half its
/// length is at most `xtol`/2, or until |f(x)| is less than `ftol`.
///
/// \param[in]  a    one end of the interval, in the unit of x; `a` greater than `b` is allowed
/// \param[in]  b    the other end, not equal to `a`
/// \param[out] x    the zero; after NE_FUNC_END_VAL it is `b`, after NE_PROBABLE_POLE and NE_XTOL_TOO_SMALL the best point
///                  so far, after other errors untouched
/// \param[in]  f    the function; called on this thread, only at points of the interval
/// \param[in]  xtol accuracy wanted of x, absolute, greater than 0
/// \param[in]  ftol a point with |f| less than `ftol` is taken for a zero at once; with 0 or less only an exact zero is
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_REAL_ARG_LE: `xtol` is not greater than 0.
/// - NE_2_REAL_ARG_EQ: `a` and `b` are equal.
/// - NE_FUNC_END_VAL: f has the same sign at both ends, and neither value is less than `ftol` in modulus.
/// - NE_PROBABLE_POLE: the interval has shrunk as asked, but |f| grows there: a pole rather than a zero.
/// - NE_XTOL_TOO_SMALL: doubles are too coarse near the zero for this `xtol`; `x` is as good as can be.
///
/// \par Accuracy
/// |x - zero| is at most `xtol` (for a function that is evaluated with the right sign).
/// \par Method
/// Linear and quadratic interpolation safeguarded by bisection: after a bisection at most two linear steps and one
/// quadratic step are taken before the next bisection must come, which bounds the work. After J. C. P. Bus and
/// T. J. Dekker, ACM Trans. Math. Softw. 1 (1975) 330-345, with a watch for poles.
/// \par Thread safety
/// Safe, and reentrant: f may itself call the routine.
/// \par See also
/// c05sdc() passes data to f; c05azc() returns to its caller for each value of f.
/// \par Example
/// \code{.c}
/// static double f(double x) { return exp(-x) - x; }
/// ...
/// KorError fail = {0};
/// double x;
/// c05adc(0.0, 1.0, &x, f, 1e-12, 0.0, &fail);   // x = 0.567143290409784
/// \endcode
void c05adc(double a, double b, double *x, double (*f)(double x), double xtol, double ftol, KorError *fail);

/// \brief A zero of a continuous function, as c05adc(), with a pointer to the caller's data.
///
/// \param[in]  a    one end of the interval
/// \param[in]  b    the other end, not equal to `a`
/// \param[out] x    the zero, as in c05adc()
/// \param[in]  f    the function; receives `comm` as its second argument
/// \param[in]  xtol accuracy wanted of x, absolute, greater than 0
/// \param[in]  ftol a point with |f| less than `ftol` is taken for a zero at once
/// \param[in]  comm passed to f as it stands, never read; may be null
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// As c05adc().
/// \par Method
/// As c05adc().
/// \par Thread safety
/// Safe and reentrant.
/// \par Example
/// \code{.c}
/// static double f(double x, void *comm) { return x * x - *(double *)comm; }
/// ...
/// double two = 2.0, x;
/// c05sdc(0.0, 2.0, &x, f, 1e-12, 0.0, &two, &fail);   // x = 1.4142135623731
/// \endcode
void c05sdc(double a, double b, double *x, double (*f)(double x, void *comm), double xtol, double ftol, void *comm,
            KorError *fail);

/// \brief A zero of a continuous function, by reverse communication: returns to its caller for each value of f.
///
/// Set `ind` to 1, `x` and `y` to the ends of the interval, and call until `ind` is 0; each time `ind` comes back as 2, 3
/// or 4, put f(x) into `fx` and call again. With `ind` = -1 at the start the caller has `fx` = f(x) and `c[0]` = f(y)
/// already, and saves two returns.
///
/// \param[in,out] x    first call: a starting point; then the point at which f is wanted; at the end the best point
/// \param[in,out] y    first call: the other starting point, where f has the opposite sign; at the end the other end of
///                     the final interval (not set after NE_PROBABLE_POLE)
/// \param[in]     fx   f(x); not read when `ind` is 1
/// \param[in]     xtol accuracy wanted, greater than 0, in the measure that `ir` chooses
/// \param[in]     ir   the measure: the interval's half length must come to at most 0.5 `xtol` max(|x|, 1) (0, mixed),
///                     0.5 `xtol` (1, absolute), 0.5 `xtol` |x| (2, relative)
/// \param[in,out] c    17 elements, the state: keep them between calls; with `ind` = -1, `c[0]` = f(y) at the start
/// \param[in,out] ind  the protocol: 1 or -1 at the start; 2, 3, 4: evaluate f at x and call again; 0: ended
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_ARG_INVALID: `ind` is not one of -1, 1, 2, 3, 4 (and stays as it was), or `ir` is not 0, 1 or 2.
/// - NE_REAL_ARG_LE: `xtol` is not greater than 0.
/// - NE_FUNC_END_VAL: the values at the two starting points have the same sign.
/// - NE_PROBABLE_POLE: |f| grows as the interval shrinks: a pole rather than a zero. The message holds its "%s" unfilled.
/// - NE_XTOL_TOO_SMALL: doubles are too coarse near the zero for this `xtol`.
///
/// All but the first set `ind` to 0.
/// \par Accuracy
/// As asked by `xtol` and `ir`.
/// \par Method
/// As c05adc().
/// \par Thread safety
/// Safe: all state is in the arguments.
/// \par Example
/// \code{.c}
/// double x = 0.0, y = 2.0, fx = 0.0, c[17];
/// Integer ind = 1;
/// for (c05azc(&x, &y, &fx, 1e-12, 1, c, &ind, &fail); ind != 0; c05azc(&x, &y, &fx, 1e-12, 1, c, &ind, &fail))
///     fx = x * x - 2.0;                           // x = 1.4142135623731
/// \endcode
void c05azc(double *x, double *y, double *fx, double xtol, Integer ir, double c[], Integer *ind, KorError *fail);

/// \brief A zero of n functions of n variables, without derivatives.
///
/// Finds x with f_i(x) = 0, i = 1..n, from a starting point. Scale the unknowns so that their expected values are of
/// similar size: the trust region is a ball.
///
/// \param[in]  n    number of equations and of unknowns, at least 1
/// \param[in]  fcn  computes the n values f(x) in `fvec`; called on this thread. A negative value in `*userflag` stops the
///                  routine
/// \param[in,out] x n elements: the starting point; on exit the best point reached
/// \param[out] fvec n elements: f at that point
/// \param[in]  xtol accuracy wanted of x, relative, at least 0; 0 asks for all that can be had, and ends with
///                  NE_XTOL_TOO_SMALL unless an exact zero is met
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LE: `n` is less than 1.
/// - NE_REAL_ARG_LT: `xtol` is less than 0.
/// - NE_ALLOC_FAIL: there is not enough memory.
/// - NE_USER_STOP: `fcn` has set `*userflag` negative; `fail->errnum` holds its value.
/// - NE_TOO_MANY_FUNC_EVAL: 200(n+1) evaluations were not enough. The search may be continued from the point reached.
/// - NE_XTOL_TOO_SMALL: no better approximation is possible.
/// - NE_NO_IMPROVEMENT: the last ten steps, or the last five Jacobians, brought no good progress: there may be no zero
///   near the starting point.
///
/// After each of these from NE_USER_STOP on `x` and `fvec` hold the best point reached; the others leave them untouched.
/// \par Accuracy
/// The last trust region is at most `xtol` times the norm of x: about -log10(xtol) digits of the larger unknowns.
/// \par Method
/// Powell's hybrid method: a dogleg between the Gauss-Newton step and steepest descent within a trust region, on a
/// Jacobian that is corrected after each step by Broyden's formula and formed anew only after two failures in a row.
/// M. J. D. Powell, in P. Rabinowitz (ed.), Numerical Methods for Nonlinear Algebraic Equations (1970).
/// Derivatives are forward differences, n evaluations for each Jacobian.
/// \par Thread safety
/// Safe and reentrant.
/// \par See also
/// c05tbc() passes data to fcn; c05pbc() takes the Jacobian.
/// \par Example
/// \code{.c}
/// static void circle_and_line(Integer n, const double x[], double fvec[], Integer *userflag)
/// {
///     fvec[0] = x[0] * x[0] + x[1] * x[1] - 1.0;
///     fvec[1] = x[0] - x[1];
/// }
/// ...
/// double x[2] = {1.0, 0.5}, fvec[2];
/// c05nbc(2, circle_and_line, x, fvec, 1e-10, &fail);   // x = (0.707107, 0.707107)
/// \endcode
void c05nbc(Integer n, void (*fcn)(Integer n, const double x[], double fvec[], Integer *userflag), double x[],
            double fvec[], double xtol, KorError *fail);

/// \brief A zero of n functions of n variables, without derivatives, as c05nbc(), with a pointer to the caller's data.
///
/// \param[in]  n    number of equations and of unknowns, at least 1
/// \param[in]  fcn  computes the n values f(x) in `fvec`; called on this thread. A negative value in `*userflag` stops the
///                  routine; `comm` is its last argument
/// \param[in,out] x n elements: the starting point; on exit the best point reached
/// \param[out] fvec n elements: f at that point
/// \param[in]  xtol accuracy wanted of x, relative, at least 0; 0 asks for all that can be had, and ends with
///                  NE_XTOL_TOO_SMALL unless an exact zero is met
/// \param[in]  comm passed to fcn as it stands, never read; may be null
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// As c05nbc().
/// \par Method
/// As c05nbc().
/// \par Thread safety
/// Safe and reentrant.
/// \par Example
/// \code{.c}
/// static void circle_and_line(Integer n, const double x[], double fvec[], Integer *userflag, void *comm)
/// {
///     const double radius = *(const double *)comm;
///     fvec[0] = x[0] * x[0] + x[1] * x[1] - radius * radius;
///     fvec[1] = x[0] - x[1];
/// }
/// ...
/// double radius = 2.0, x[2] = {1.0, 0.5}, fvec[2];
/// c05tbc(2, circle_and_line, x, fvec, 1e-10, &radius, &fail);   // x = (1.414214, 1.414214)
/// \endcode
void c05tbc(Integer n, void (*fcn)(Integer n, const double x[], double fvec[], Integer *userflag, void *comm),
            double x[], double fvec[], double xtol, void *comm, KorError *fail);

/// \brief A zero of n functions of n variables, from their Jacobian.
///
/// As c05nbc(), with derivatives from the caller: check them with c05zbc() first.
///
/// \param[in]  n    number of equations and of unknowns, at least 1
/// \param[in]  fcn  with `*userflag` 1 computes the n values f(x) in `fvec` and must leave `fjac` alone; with 2 computes
///                  the Jacobian, element (i, j) = df_i/dx_j in `fjac[i * tdfjac + j]`, and must leave `fvec` alone. A
///                  negative value in `*userflag` stops the routine
/// \param[in,out] x n elements: the starting point; on exit the best point reached
/// \param[out] fvec n elements: f at that point
/// \param[out] fjac n by n, row-major: the orthogonal factor Q of the last approximation of the Jacobian
/// \param[in]  tdfjac trailing dimension of `fjac`, at least n
/// \param[in]  xtol accuracy wanted of x, relative, at least 0
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LE: `n` is less than 1.
/// - NE_2_INT_ARG_LT: `tdfjac` is less than `n`.
/// - NE_REAL_ARG_LT: `xtol` is less than 0.
/// - NE_ALLOC_FAIL: there is not enough memory.
/// - NE_USER_STOP: `fcn` has set `*userflag` negative; `fail->errnum` holds its value.
/// - NE_TOO_MANY_FUNC_EVAL: 100(n+1) evaluations were not enough. The search may be continued from the point reached.
/// - NE_XTOL_TOO_SMALL: no better approximation is possible.
/// - NE_NO_IMPROVEMENT: the last ten steps, or the last five Jacobians, brought no good progress: there may be no zero
///   near the starting point.
///
/// After each of these from NE_USER_STOP on `x` and `fvec` hold the best point reached; the others leave them untouched.
/// \par Accuracy
/// As c05nbc().
/// \par Method
/// Powell's hybrid method: a dogleg between the Gauss-Newton step and steepest descent within a trust region, on a
/// Jacobian that is corrected after each step by Broyden's formula and formed anew only after two failures in a row.
/// M. J. D. Powell, in P. Rabinowitz (ed.), Numerical Methods for Nonlinear Algebraic Equations (1970).
/// \par Thread safety
/// Safe and reentrant.
/// \par Example
/// \code{.c}
/// static void circle_and_line(Integer n, const double x[], double fvec[], double fjac[], Integer tdfjac, Integer *userflag)
/// {
///     if (*userflag == 1) {
///         fvec[0] = x[0] * x[0] + x[1] * x[1] - 1.0;
///         fvec[1] = x[0] - x[1];
///     } else {
///         fjac[0] = 2.0 * x[0];      fjac[1] = 2.0 * x[1];
///         fjac[tdfjac] = 1.0;        fjac[tdfjac + 1] = -1.0;
///     }
/// }
/// ...
/// double x[2] = {1.0, 0.5}, fvec[2], fjac[4];
/// c05pbc(2, circle_and_line, x, fvec, fjac, 2, 1e-10, &fail);
/// \endcode
void c05pbc(Integer n,
            void (*fcn)(Integer n, const double x[], double fvec[], double fjac[], Integer tdfjac, Integer *userflag),
            double x[], double fvec[], double fjac[], Integer tdfjac, double xtol, KorError *fail);

/// \brief A zero of n functions of n variables, from their Jacobian, as c05pbc(), with a pointer to the caller's data.
///
/// \param[in]  n    number of equations and of unknowns, at least 1
/// \param[in]  fcn  with `*userflag` 1 computes the n values f(x) in `fvec` and must leave `fjac` alone; with 2 computes
///                  the Jacobian, element (i, j) = df_i/dx_j in `fjac[i * tdfjac + j]`, and must leave `fvec` alone. A
///                  negative value in `*userflag` stops the routine; `comm` is its last argument
/// \param[in,out] x n elements: the starting point; on exit the best point reached
/// \param[out] fvec n elements: f at that point
/// \param[out] fjac n by n, row-major: the orthogonal factor Q of the last approximation of the Jacobian
/// \param[in]  tdfjac trailing dimension of `fjac`, at least n
/// \param[in]  xtol accuracy wanted of x, relative, at least 0
/// \param[in]  comm passed to fcn as it stands, never read; may be null
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// As c05pbc().
/// \par Method
/// As c05pbc().
/// \par Thread safety
/// Safe and reentrant.
/// \par Example
/// \code{.c}
/// // fcn is that of c05pbc() with a last argument `void *comm`
/// double radius = 2.0, x[2] = {1.0, 0.5}, fvec[2], fjac[4];
/// c05ubc(2, circle_and_line, x, fvec, fjac, 2, 1e-10, &radius, &fail);
/// \endcode
void c05ubc(Integer n,
            void (*fcn)(Integer n, const double x[], double fvec[], double fjac[], Integer tdfjac, Integer *userflag,
                        void *comm),
            double x[], double fvec[], double fjac[], Integer tdfjac, double xtol, void *comm, KorError *fail);

/// \brief Does a Jacobian fit its function? A check for functions to be passed to c05pbc().
///
/// Along two fixed directions each row's product with the direction is compared with a forward difference of f. It passes
/// when the two agree to about four digits, in the scale of the row's terms.
///
/// \param[in]  n    number of equations and of unknowns, at least 1
/// \param[in]  x    n elements: the point; choose one that is not special, or errors may stay hidden
/// \param[out] fvec n elements: f(x)
/// \param[out] fjac n by n, row-major: the Jacobian at x, as fcn gives it
/// \param[in]  tdfjac trailing dimension of `fjac`, at least n
/// \param[in]  fcn  the function under test, as in c05pbc()
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LE: `n` is less than 1.
/// - NE_2_INT_ARG_LT: `tdfjac` is less than `n`.
/// - NE_ALLOC_FAIL: there is not enough memory.
/// - NE_USER_STOP: `fcn` has set `*userflag` negative; `fail->errnum` holds its value.
/// - NE_DERIV_ERRORS: the Jacobian does not fit; `fvec` and `fjac` hold what fcn computed.
/// \par Accuracy
/// A wrong element is found if its error is more than about 1/1000 of the largest term of its row. Functions with huge
/// second derivatives, or that are computed to less than eight digits, may fail although their Jacobian is right.
/// \par Method
/// Directional differences with step sqrt(x02ajc()) relative to each unknown; three evaluations of f, two for n = 1.
/// \par Thread safety
/// Safe and reentrant.
/// \par Example
/// \code{.c}
/// c05zbc(2, x, fvec, fjac, 2, circle_and_line, &fail);   // fail.code == NE_DERIV_ERRORS: look at fjac
/// \endcode
void c05zbc(Integer n, const double x[], double fvec[], double fjac[], Integer tdfjac,
            void (*fcn)(Integer n, const double x[], double fvec[], double fjac[], Integer tdfjac, Integer *userflag),
            KorError *fail);

/// \brief Does a Jacobian fit its function? As c05zbc(), with a pointer to the caller's data.
///
/// \param[in]  n    number of equations and of unknowns, at least 1
/// \param[in]  x    n elements: the point; choose one that is not special, or errors may stay hidden
/// \param[out] fvec n elements: f(x)
/// \param[out] fjac n by n, row-major: the Jacobian at x, as fcn gives it
/// \param[in]  tdfjac trailing dimension of `fjac`, at least n
/// \param[in]  fcn  the function under test, as in c05pbc(); `comm` is its last argument
/// \param[in]  comm passed to fcn as it stands, never read; may be null
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// As c05zbc().
/// \par Method
/// As c05zbc().
/// \par Thread safety
/// Safe and reentrant.
/// \par Example
/// \code{.c}
/// c05zcc(2, x, fvec, fjac, 2, circle_and_line, &radius, &fail);   // fail.code == NE_DERIV_ERRORS: look at fjac
/// \endcode
void c05zcc(Integer n, const double x[], double fvec[], double fjac[], Integer tdfjac,
            void (*fcn)(Integer n, const double x[], double fvec[], double fjac[], Integer tdfjac, Integer *userflag,
                        void *comm),
            void *comm, KorError *fail);

KOR_END_DECLS

#endif
