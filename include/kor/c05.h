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

KOR_END_DECLS

#endif
