/// \file d01.h
/// Chapter d01: numerical integration.
#ifndef KOR_D01_H
#define KOR_D01_H

#include <kor.h>

KOR_BEGIN_DECLS

/// The sub-intervals of an adaptive integration, in the order of the axis.
///
/// The arrays have `max_num_subint` elements each, zeros behind the first `subint_count`. They are the caller's once the
/// routine has returned with a result, that is, after success and after all errors from NE_QUAD_MAX_SUBDIV on: free each with
/// `x04bdc((void **)&record.left_ends)` and so on. After other errors the record is untouched.
typedef struct {
    Integer subint_count;   ///< number of sub-intervals
    Integer eval_count;     ///< calls of the integrand
    double *left_ends;      ///< left ends of the sub-intervals
    double *right_ends;     ///< right ends
    double *subint_results; ///< estimates of the integrals over them
    double *subint_errors;  ///< estimates of the errors of these
} KorQuadRecord;

/// The intervals of a Fourier integral over an infinite range. The arrays have `maxintervals` elements each, and are the
/// caller's as those of KorQuadRecord.
typedef struct {
    Integer interval_count;   ///< number of intervals
    Integer eval_count;       ///< calls of the integrand
    Integer max_subint_used;  ///< the most sub-intervals that one interval needed
    double *interval_results; ///< estimates of the integrals over the intervals
    double *interval_errors;  ///< estimates of the errors of these
    Integer
        *interval_flags; ///< what happened there: 0 nothing, 1 too many sub-intervals, 2 round-off, 3 bad behaviour, 4
                         ///< failed extrapolation, 5 divergence
} KorQuadIntervalRecord;

/// \brief The integral of a function over a finite range: the general-purpose routine.
///
/// Integrates f over (a, b) to the accuracy asked for. Algebraic and logarithmic singularities at the ends, or anywhere, are dealt
/// with by extrapolation.
///
/// \param[in]  f      the function; called on this thread only. A point where it is infinite or not a number does no
///                    harm if it stands alone
/// \param[in]  a      one end of the range
/// \param[in]  b      the other end; may be less than `a`, and the integral has then the opposite sign
/// \param[in]  epsabs absolute error wanted, taken by its modulus
/// \param[in]  epsrel relative error wanted, taken by its modulus; both may be 0, and then the routine does what it can and
///                    ends with NE_QUAD_ROUNDOFF_TOL
/// \param[in]  max_num_subint most sub-intervals, at least 1; 200 to 500 serve for most integrals
/// \param[out] result the integral; after NE_QUAD errors the best value found
/// \param[out] abserr estimate of |result - integral|
/// \param[out] qp     the sub-intervals; its arrays become the caller's, see KorQuadRecord
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `max_num_subint` is less than 1.
/// - NE_ALLOC_FAIL: there is not enough memory.
/// - NE_QUAD_MAX_SUBDIV: `max_num_subint` sub-intervals were not enough. Look at the record for the difficult place.
/// - NE_QUAD_ROUNDOFF_TOL: rounding errors prevent the accuracy asked for; `abserr` tells what was reached.
/// - NE_QUAD_BAD_SUBDIV: the integrand behaves extremely badly around the sub-interval told.
/// - NE_QUAD_ROUNDOFF_EXTRAPL: the extrapolation is spoilt by rounding or does not converge; `abserr` may be too small.
/// - NE_QUAD_NO_CONV: the integral probably diverges, or converges very slowly.
///
/// `result`, `abserr` and `qp` are set after success and after NE_QUAD errors, and untouched after the others.
/// \par Accuracy
/// |result - integral| is at most the greater of |epsabs| and |epsrel result| if the routine succeeds, for all but very unusual
/// functions; `abserr` is usually far too large.
/// \par Method
/// Adaptive bisection with the 10-point Gauss and 21-point Kronrod pair, and Wynn's epsilon algorithm. R. Piessens,
/// E. de Doncker-Kapenga, C. W. Ueberhuber and D. K. Kahaner, QUADPACK, Springer 1983 (algorithm QAGS).
/// \par Thread safety
/// Safe and reentrant: f may itself integrate.
/// \par See also
/// d01akc() for oscillating functions without singularities, d01alc() if you know where the singularities are.
/// \par Example
/// \code{.c}
/// static double f(double x) { return log(x) / sqrt(x); }
/// ...
/// double result, abserr;
/// KorQuadRecord qp;
/// KorError fail = {0};
/// d01ajc(f, 0.0, 1.0, 0.0, 1e-10, 200, &result, &abserr, &qp, &fail);   // -4
/// \endcode
void d01ajc(double (*f)(double x), double a, double b, double epsabs, double epsrel, Integer max_num_subint,
            double *result, double *abserr, KorQuadRecord *qp, KorError *fail);

/// \brief The integral of an oscillating function without singularities over a finite range.
///
/// Integrates f over (a, b) to the accuracy asked for, without extrapolation: the choice for functions that oscillate or have narrow
/// peaks, but no singularity.
///
/// \param[in]  f      the function; called on this thread only. A point where it is infinite or not a number does no
///                    harm if it stands alone
/// \param[in]  a      one end of the range
/// \param[in]  b      the other end; may be less than `a`
/// \param[in]  epsabs absolute error wanted, taken by its modulus
/// \param[in]  epsrel relative error wanted, taken by its modulus; both may be 0, and then the routine does what it can and
///                    ends with NE_QUAD_ROUNDOFF_TOL
/// \param[in]  max_num_subint most sub-intervals, at least 1; 200 to 500 serve for most integrals
/// \param[out] result the integral; after NE_QUAD errors the best value found
/// \param[out] abserr estimate of |result - integral|
/// \param[out] qp     the sub-intervals; its arrays become the caller's, see KorQuadRecord
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `max_num_subint` is less than 1.
/// - NE_ALLOC_FAIL: there is not enough memory.
/// - NE_QUAD_MAX_SUBDIV: `max_num_subint` sub-intervals were not enough. Look at the record for the difficult place.
/// - NE_QUAD_ROUNDOFF_TOL: rounding errors prevent the accuracy asked for; `abserr` tells what was reached.
/// - NE_QUAD_BAD_SUBDIV: the integrand behaves extremely badly around the sub-interval told.
///
/// `result`, `abserr` and `qp` are set after success and after NE_QUAD errors, and untouched after the others.
/// \par Accuracy
/// |result - integral| is at most the greater of |epsabs| and |epsrel result| if the routine succeeds, for all but very unusual
/// functions; `abserr` is usually far too large.
/// \par Method
/// Adaptive bisection with the 30-point Gauss and 61-point Kronrod pair (QUADPACK, Springer 1983, algorithm QAG).
/// \par Thread safety
/// Safe and reentrant: f may itself integrate.
/// \par See also
/// d01anc() if the oscillation is a factor cos(omega x) or sin(omega x).
/// \par Example
/// \code{.c}
/// static double f(double x) { return x * sin(30.0 * x) * cos(x); }
/// ...
/// d01akc(f, 0.0, 6.283185307179586, 0.0, 1e-12, 200, &result, &abserr, &qp, &fail);   // -0.20967247966117
/// \endcode
void d01akc(double (*f)(double x), double a, double b, double epsabs, double epsrel, Integer max_num_subint,
            double *result, double *abserr, KorQuadRecord *qp, KorError *fail);

/// \brief The integral of a function over a finite range, with break points.
///
/// Integrates f over (a, b) to the accuracy asked for, where f has singularities, jumps or kinks at known points.
///
/// \param[in]  f      the function; called on this thread only. A point where it is infinite or not a number does no
///                    harm if it stands alone
/// \param[in]  a      one end of the range
/// \param[in]  b      the other end; may be less than `a`
/// \param[in]  nbrkpts number of break points, at least 0
/// \param[in]  brkpts `nbrkpts` points between a and b, in any order
/// \param[in]  epsabs absolute error wanted, taken by its modulus
/// \param[in]  epsrel relative error wanted, taken by its modulus; both may be 0, and then the routine does what it can and
///                    ends with NE_QUAD_ROUNDOFF_TOL
/// \param[in]  max_num_subint most sub-intervals, at least 1; 200 to 500 serve for most integrals
/// \param[out] result the integral; after NE_QUAD errors the best value found
/// \param[out] abserr estimate of |result - integral|
/// \param[out] qp     the sub-intervals; its arrays become the caller's, see KorQuadRecord
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `max_num_subint` is less than 1.
/// - NE_INT_ARG_LT: `nbrkpts` is negative.
/// - NE_2_INT_ARG_LE: `max_num_subint` is not greater than `nbrkpts`.
/// - NE_QUAD_BRKPTS_INVAL: a break point lies outside the range; nothing has been computed.
/// - NE_ALLOC_FAIL: there is not enough memory.
/// - NE_QUAD_MAX_SUBDIV: `max_num_subint` sub-intervals were not enough. Look at the record for the difficult place.
/// - NE_QUAD_ROUNDOFF_TOL: rounding errors prevent the accuracy asked for; `abserr` tells what was reached.
/// - NE_QUAD_BAD_SUBDIV: the integrand behaves extremely badly around the sub-interval told.
/// - NE_QUAD_ROUNDOFF_EXTRAPL: the extrapolation is spoilt by rounding or does not converge; `abserr` may be too small.
/// - NE_QUAD_NO_CONV: the integral probably diverges, or converges very slowly.
///
/// `result`, `abserr` and `qp` are set after success and after NE_QUAD errors, and untouched after the others.
/// \par Accuracy
/// |result - integral| is at most the greater of |epsabs| and |epsrel result| if the routine succeeds, for all but very unusual
/// functions; `abserr` is usually far too large.
/// \par Method
/// Adaptive bisection of the pieces with the 10-point Gauss and 21-point Kronrod pair, and Wynn's epsilon algorithm (QUADPACK,
/// Springer 1983, algorithm QAGP).
/// \par Thread safety
/// Safe and reentrant: f may itself integrate.
/// \par See also
/// d01ajc() if you do not know the points.
/// \par Example
/// \code{.c}
/// static double f(double x) { return 1.0 / sqrt(fabs(x - 1.0 / 7.0)); }
/// ...
/// const double breaks[1] = {1.0 / 7.0};
/// d01alc(f, 0.0, 1.0, 1, breaks, 0.0, 1e-12, 200, &result, &abserr, &qp, &fail);   // 2.60757
/// \endcode
void d01alc(double (*f)(double x), double a, double b, Integer nbrkpts, const double brkpts[], double epsabs,
            double epsrel, Integer max_num_subint, double *result, double *abserr, KorQuadRecord *qp, KorError *fail);

/// \brief The integral of a function over an infinite or half-infinite range.
///
/// Integrates f over (bound, infinity), (-infinity, bound) or (-infinity, infinity) to the accuracy asked for.
///
/// \param[in]  f      the function; called on this thread only. A point where it is infinite or not a number does no
///                    harm if it stands alone
/// \param[in]  boundinf Kor_UpperSemiInfinite, Kor_LowerSemiInfinite or Kor_Infinite
/// \param[in]  bound  the finite end; not looked at with Kor_Infinite
/// \param[in]  epsabs absolute error wanted, taken by its modulus
/// \param[in]  epsrel relative error wanted, taken by its modulus; both may be 0, and then the routine does what it can and
///                    ends with NE_QUAD_ROUNDOFF_TOL
/// \param[in]  max_num_subint most sub-intervals, at least 1; 200 to 500 serve for most integrals
/// \param[out] result the integral; after NE_QUAD errors the best value found
/// \param[out] abserr estimate of |result - integral|
/// \param[out] qp     the sub-intervals; its arrays become the caller's, see KorQuadRecord
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `max_num_subint` is less than 1.
/// - NE_BAD_PARAM: `boundinf` is none of the three.
/// - NE_ALLOC_FAIL: there is not enough memory.
/// - NE_QUAD_MAX_SUBDIV: `max_num_subint` sub-intervals were not enough. Look at the record for the difficult place.
/// - NE_QUAD_ROUNDOFF_TOL: rounding errors prevent the accuracy asked for; `abserr` tells what was reached.
/// - NE_QUAD_BAD_SUBDIV: the integrand behaves extremely badly around the sub-interval told.
/// - NE_QUAD_ROUNDOFF_EXTRAPL: the extrapolation is spoilt by rounding or does not converge; `abserr` may be too small.
/// - NE_QUAD_NO_CONV: the integral probably diverges, or converges very slowly.
///
/// `result`, `abserr` and `qp` are set after success and after NE_QUAD errors, and untouched after the others.
/// \par Accuracy
/// |result - integral| is at most the greater of |epsabs| and |epsrel result| if the routine succeeds, for all but very unusual
/// functions; `abserr` is usually far too large.
/// \par Method
/// The range is carried to (0, 1) by x = bound +- (1 - t)/t; for the whole line f(x) + f(-x) is integrated. Then as d01ajc(), with
/// the 7-point Gauss and 15-point Kronrod pair (QUADPACK, Springer 1983, algorithm QAGI). The sub-intervals in `qp` are those
/// of t.
/// \par Thread safety
/// Safe and reentrant: f may itself integrate.
/// \par See also
/// d01asc() for Fourier integrals. Place `bound` where the function lives: a peak far away is easily missed.
/// \par Example
/// \code{.c}
/// static double f(double x) { return exp(-x * x); }
/// ...
/// d01amc(f, Kor_Infinite, 0.0, 0.0, 1e-12, 200, &result, &abserr, &qp, &fail);   // sqrt(pi)
/// \endcode
void d01amc(double (*f)(double x), Integer boundinf, double bound, double epsabs, double epsrel, Integer max_num_subint,
            double *result, double *abserr, KorQuadRecord *qp, KorError *fail);

/// \brief The integral of f(x) cos(omega x) or f(x) sin(omega x) over a finite range.
///
/// Integrates f times the weight over (a, b) to the accuracy asked for; `omega` may be as large as you like.
///
/// \param[in]  f      the function; called on this thread only. A point where it is infinite or not a number does no
///                    harm if it stands alone
/// \param[in]  a      one end of the range
/// \param[in]  b      the other end; may be less than `a`
/// \param[in]  omega  the frequency, in radians per unit of x; any sign, 0 allowed
/// \param[in]  wt_func Kor_Cosine or Kor_Sine
/// \param[in]  epsabs absolute error wanted, taken by its modulus
/// \param[in]  epsrel relative error wanted, taken by its modulus; both may be 0, and then the routine does what it can and
///                    ends with NE_QUAD_ROUNDOFF_TOL
/// \param[in]  max_num_subint most sub-intervals, at least 1; 200 to 500 serve for most integrals
/// \param[out] result the integral; after NE_QUAD errors the best value found
/// \param[out] abserr estimate of |result - integral|
/// \param[out] qp     the sub-intervals; its arrays become the caller's, see KorQuadRecord
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `max_num_subint` is less than 1.
/// - NE_BAD_PARAM: `wt_func` is neither of the two.
/// - NE_ALLOC_FAIL: there is not enough memory.
/// - NE_QUAD_MAX_SUBDIV: `max_num_subint` sub-intervals were not enough. Look at the record for the difficult place.
/// - NE_QUAD_ROUNDOFF_TOL: rounding errors prevent the accuracy asked for; `abserr` tells what was reached.
/// - NE_QUAD_BAD_SUBDIV: the integrand behaves extremely badly around the sub-interval told.
/// - NE_QUAD_ROUNDOFF_EXTRAPL: the extrapolation is spoilt by rounding or does not converge; `abserr` may be too small.
/// - NE_QUAD_NO_CONV: the integral probably diverges, or converges very slowly.
///
/// `result`, `abserr` and `qp` are set after success and after NE_QUAD errors, and untouched after the others.
/// \par Accuracy
/// |result - integral| is at most the greater of |epsabs| and |epsrel result| if the routine succeeds, for all but very unusual
/// functions; `abserr` is usually far too large.
/// \par Method
/// Adaptive bisection. Where the weight turns fast, a Chebyshev series of f is integrated exactly against it; where it does not, the
/// 7-point Gauss and 15-point Kronrod pair is applied to the product. Then Wynn's epsilon algorithm (QUADPACK, Springer 1983,
/// algorithm QAWO).
/// \par Thread safety
/// Safe and reentrant: f may itself integrate.
/// \par See also
/// d01asc() for an infinite range.
/// \par Example
/// \code{.c}
/// static double f(double x) { return log(x); }
/// ...
/// d01anc(f, 0.0, 1.0, 31.41592653589793, Kor_Sine, 0.0, 1e-10, 200, &result, &abserr, &qp, &fail);   // -0.128136848399
/// \endcode
void d01anc(double (*f)(double x), double a, double b, double omega, Integer wt_func, double epsabs, double epsrel,
            Integer max_num_subint, double *result, double *abserr, KorQuadRecord *qp, KorError *fail);

/// \brief The integral of a function with algebraic and logarithmic singularities at the ends of a finite range.
///
/// Integrates f(x) (x - a)^alfa (b - x)^beta v(x) over (a, b), where v is 1, ln(x - a), ln(b - x) or their product.
///
/// \param[in]  f      the function; called on this thread only. A point where it is infinite or not a number does no
///                    harm if it stands alone
/// \param[in]  a      lower end of the range
/// \param[in]  b      upper end, greater than `a`
/// \param[in]  alfa   power at a, greater than -1
/// \param[in]  beta   power at b, greater than -1
/// \param[in]  wt_func Kor_Alg, Kor_Alg_loga, Kor_Alg_logb or Kor_Alg_loga_logb
/// \param[in]  epsabs absolute error wanted, taken by its modulus
/// \param[in]  epsrel relative error wanted, taken by its modulus; both may be 0, and then the routine does what it can and
///                    ends with NE_QUAD_ROUNDOFF_TOL
/// \param[in]  max_num_subint most sub-intervals, at least 2; 200 to 500 serve for most integrals
/// \param[out] result the integral; after NE_QUAD errors the best value found
/// \param[out] abserr estimate of |result - integral|
/// \param[out] qp     the sub-intervals; its arrays become the caller's, see KorQuadRecord
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `max_num_subint` is less than 2.
/// - NE_REAL_ARG_LE: `alfa` or `beta` is not greater than -1.
/// - NE_2_REAL_ARG_LE: `b` is not greater than `a`.
/// - NE_BAD_PARAM: `wt_func` is none of the four.
/// - NE_ALLOC_FAIL: there is not enough memory.
/// - NE_QUAD_MAX_SUBDIV: `max_num_subint` sub-intervals were not enough. Look at the record for the difficult place.
/// - NE_QUAD_ROUNDOFF_TOL: rounding errors prevent the accuracy asked for; `abserr` tells what was reached.
/// - NE_QUAD_BAD_SUBDIV: the integrand behaves extremely badly around the sub-interval told.
///
/// `result`, `abserr` and `qp` are set after success and after NE_QUAD errors, and untouched after the others.
/// \par Accuracy
/// |result - integral| is at most the greater of |epsabs| and |epsrel result| if the routine succeeds, for all but very unusual
/// functions; `abserr` is usually far too large.
/// \par Method
/// Adaptive bisection. Next to the ends a Chebyshev series of the regular factors is integrated exactly against the singular one
/// (QUADPACK, Springer 1983, algorithm QAWS).
/// \par Thread safety
/// Safe and reentrant: f may itself integrate.
/// \par See also
/// d01ajc() if the powers are not known.
/// \par Example
/// \code{.c}
/// static double f(double x) { return cos(x); }
/// ...
/// d01apc(f, 0.0, 1.0, -0.5, 0.0, Kor_Alg_loga, 0.0, 1e-12, 200, &result, &abserr, &qp, &fail);   // integral of cos(x) ln(x)/sqrt(x)
/// \endcode
void d01apc(double (*f)(double x), double a, double b, double alfa, double beta, Integer wt_func, double epsabs,
            double epsrel, Integer max_num_subint, double *result, double *abserr, KorQuadRecord *qp, KorError *fail);

/// \brief The Cauchy principal value of the integral of f(x)/(x - c) over a finite range.
///
/// Integrates f times the weight 1/(x - c) over (a, b), in the sense of the principal value if c lies inside.
///
/// \param[in]  f      the function; called on this thread only. A point where it is infinite or not a number does no
///                    harm if it stands alone
/// \param[in]  a      one end of the range
/// \param[in]  b      the other end; may be less than `a`
/// \param[in]  c      the pole, equal to neither end
/// \param[in]  epsabs absolute error wanted, taken by its modulus
/// \param[in]  epsrel relative error wanted, taken by its modulus; both may be 0, and then the routine does what it can and
///                    ends with NE_QUAD_ROUNDOFF_TOL
/// \param[in]  max_num_subint most sub-intervals, at least 1; 200 to 500 serve for most integrals
/// \param[out] result the integral; after NE_QUAD errors the best value found
/// \param[out] abserr estimate of |result - integral|
/// \param[out] qp     the sub-intervals; its arrays become the caller's, see KorQuadRecord
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `max_num_subint` is less than 1.
/// - NE_2_REAL_ARG_EQ: `c` is equal to `a` or to `b`.
/// - NE_ALLOC_FAIL: there is not enough memory.
/// - NE_QUAD_MAX_SUBDIV: `max_num_subint` sub-intervals were not enough. Look at the record for the difficult place.
/// - NE_QUAD_ROUNDOFF_TOL: rounding errors prevent the accuracy asked for; `abserr` tells what was reached.
/// - NE_QUAD_BAD_SUBDIV: the integrand behaves extremely badly around the sub-interval told.
///
/// `result`, `abserr` and `qp` are set after success and after NE_QUAD errors, and untouched after the others.
/// \par Accuracy
/// |result - integral| is at most the greater of |epsabs| and |epsrel result| if the routine succeeds, for all but very unusual
/// functions; `abserr` is usually far too large.
/// \par Method
/// Adaptive bisection that avoids c. Near c a Chebyshev series of f is integrated exactly against the weight (QUADPACK, Springer 1983,
/// algorithm QAWC).
/// \par Thread safety
/// Safe and reentrant: f may itself integrate.
/// \par See also
/// d01ajc() for integrals without a pole.
/// \par Example
/// \code{.c}
/// static double f(double x) { return 1.0 / (x * x + 0.01); }
/// ...
/// d01aqc(f, -1.0, 1.0, 0.5, 0.0, 1e-12, 200, &result, &abserr, &qp, &fail);   // -628.461728506562
/// \endcode
void d01aqc(double (*f)(double x), double a, double b, double c, double epsabs, double epsrel, Integer max_num_subint,
            double *result, double *abserr, KorQuadRecord *qp, KorError *fail);

/// \brief The Fourier integral of f(x) cos(omega x) or f(x) sin(omega x) over (a, infinity).
///
/// Integrates interval by interval, each an odd number of half periods long, and extrapolates the sums. f must tend to zero.
///
/// \param[in]  f      the function; called on this thread only. A point where it is infinite or not a number does no
///                    harm if it stands alone
/// \param[in]  a      the finite end
/// \param[in]  omega  the frequency, in radians per unit of x; 0 is allowed: with Kor_Sine the integral is 0
/// \param[in]  wt_func Kor_Cosine or Kor_Sine
/// \param[in]  maxintervals most intervals, at least 3; 50 serve for most integrals
/// \param[in]  max_num_subint most sub-intervals of an interval, at least 1
/// \param[in]  epsabs absolute error wanted, taken by its modulus
/// \param[out] result the integral; after NE_QUAD errors the best value found
/// \param[out] abserr estimate of |result - integral|
/// \param[out] qp     the intervals; its arrays become the caller's, see KorQuadIntervalRecord
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `max_num_subint` is less than 1, or `maxintervals` is less than 3.
/// - NE_BAD_PARAM: `wt_func` is neither of the two.
/// - NE_ALLOC_FAIL: there is not enough memory.
/// - NE_QUAD_BAD_SUBDIV_INT: there was trouble on at least one interval; its flag tells which. Each such interval also makes a
///   report of its own while the routine goes on: NE_QUAD_MAX_SUBDIV_SPEC_INT, NE_QUAD_ROUNDOFF_TOL_SPEC_INT,
///   NE_QUAD_BAD_SPEC_INT, NE_QUAD_NO_CONV_SPEC_INT or NE_QUAD_DIVERGENCE_SPEC_INT. A handler sees them all.
/// - NE_QUAD_MAX_INT: `maxintervals` intervals were not enough.
/// - NE_QUAD_EXTRAPL_INT: the extrapolation of the sums does not converge.
/// - NE_QUAD_MAX_SUBDIV, NE_QUAD_ROUNDOFF_ABS_TOL, NE_QUAD_BAD_SUBDIV, NE_QUAD_ROUNDOFF_EXTRAPL, NE_QUAD_NO_CONV: as in
///   d01amc(), with `omega` = 0 only.
///
/// `result`, `abserr` and `qp` are set after success and after NE_QUAD errors, and untouched after the others.
/// \par Accuracy
/// |result - integral| is at most |epsabs| if the routine succeeds, for all but very unusual functions.
/// \par Method
/// Each interval as in d01anc(), with tolerances in a geometric series; the sums by Wynn's epsilon algorithm (QUADPACK, Springer 1983,
/// algorithm QAWF).
/// \par Thread safety
/// Safe and reentrant: f may itself integrate.
/// \par See also
/// d01amc() for integrals that do not oscillate.
/// \par Example
/// \code{.c}
/// static double f(double x) { return x > 0.0 ? 1.0 / sqrt(x) : 0.0; }
/// ...
/// KorQuadIntervalRecord qp;
/// d01asc(f, 0.0, 1.5707963267948966, Kor_Cosine, 50, 200, 1e-10, &result, &abserr, &qp, &fail);   // 1
/// \endcode
void d01asc(double (*f)(double x), double a, double omega, Integer wt_func, Integer maxintervals,
            Integer max_num_subint, double epsabs, double *result, double *abserr, KorQuadIntervalRecord *qp,
            KorError *fail);

/// \brief The integral of a function over a finite range: the general-purpose routine, with a pointer to the caller's data.
///
/// As d01ajc(), with the pointer `comm` as second argument of f.
///
/// \param[in]  f      the function; called on this thread only; receives `comm` as its second argument. A point where it is infinite or not a number does no
///                    harm if it stands alone
/// \param[in]  a      one end of the range
/// \param[in]  b      the other end; may be less than `a`, and the integral has then the opposite sign
/// \param[in]  epsabs absolute error wanted, taken by its modulus
/// \param[in]  epsrel relative error wanted, taken by its modulus; both may be 0, and then the routine does what it can and
///                    ends with NE_QUAD_ROUNDOFF_TOL
/// \param[in]  max_num_subint most sub-intervals, at least 1; 200 to 500 serve for most integrals
/// \param[out] result the integral; after NE_QUAD errors the best value found
/// \param[out] abserr estimate of |result - integral|
/// \param[out] qp     the sub-intervals; its arrays become the caller's, see KorQuadRecord
/// \param[in]  comm   passed to f as it stands, never read; may be null
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// As d01ajc().
/// \par Accuracy
/// As d01ajc().
/// \par Method
/// As d01ajc().
/// \par Thread safety
/// Safe and reentrant: f may itself integrate.
/// \par See also
/// d01ajc().
/// \par Example
/// \code{.c}
/// static double f(double x, void *comm) { return log(x) / sqrt(x); }
/// ...
/// double result, abserr;
/// KorQuadRecord qp;
/// KorError fail = {0};
/// d01sjc(f, 0.0, 1.0, 0.0, 1e-10, 200, &result, &abserr, &qp, NULL, &fail);   // -4
/// \endcode
void d01sjc(double (*f)(double x, void *comm), double a, double b, double epsabs, double epsrel, Integer max_num_subint,
            double *result, double *abserr, KorQuadRecord *qp, void *comm, KorError *fail);

/// \brief The integral of an oscillating function without singularities over a finite range, with a pointer to the caller's data.
///
/// As d01akc(), with the pointer `comm` as second argument of f.
///
/// \param[in]  f      the function; called on this thread only; receives `comm` as its second argument. A point where it is infinite or not a number does no
///                    harm if it stands alone
/// \param[in]  a      one end of the range
/// \param[in]  b      the other end; may be less than `a`
/// \param[in]  epsabs absolute error wanted, taken by its modulus
/// \param[in]  epsrel relative error wanted, taken by its modulus; both may be 0, and then the routine does what it can and
///                    ends with NE_QUAD_ROUNDOFF_TOL
/// \param[in]  max_num_subint most sub-intervals, at least 1; 200 to 500 serve for most integrals
/// \param[out] result the integral; after NE_QUAD errors the best value found
/// \param[out] abserr estimate of |result - integral|
/// \param[out] qp     the sub-intervals; its arrays become the caller's, see KorQuadRecord
/// \param[in]  comm   passed to f as it stands, never read; may be null
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// As d01akc().
/// \par Accuracy
/// As d01akc().
/// \par Method
/// As d01akc().
/// \par Thread safety
/// Safe and reentrant: f may itself integrate.
/// \par See also
/// d01akc().
/// \par Example
/// \code{.c}
/// static double f(double x, void *comm) { return x * sin(30.0 * x) * cos(x); }
/// ...
/// d01skc(f, 0.0, 6.283185307179586, 0.0, 1e-12, 200, &result, &abserr, &qp, NULL, &fail);   // -0.20967247966117
/// \endcode
void d01skc(double (*f)(double x, void *comm), double a, double b, double epsabs, double epsrel, Integer max_num_subint,
            double *result, double *abserr, KorQuadRecord *qp, void *comm, KorError *fail);

/// \brief The integral of a function over a finite range, with break points, with a pointer to the caller's data.
///
/// As d01alc(), with the pointer `comm` as second argument of f.
///
/// \param[in]  f      the function; called on this thread only; receives `comm` as its second argument. A point where it is infinite or not a number does no
///                    harm if it stands alone
/// \param[in]  a      one end of the range
/// \param[in]  b      the other end; may be less than `a`
/// \param[in]  nbrkpts number of break points, at least 0
/// \param[in]  brkpts `nbrkpts` points between a and b, in any order
/// \param[in]  epsabs absolute error wanted, taken by its modulus
/// \param[in]  epsrel relative error wanted, taken by its modulus; both may be 0, and then the routine does what it can and
///                    ends with NE_QUAD_ROUNDOFF_TOL
/// \param[in]  max_num_subint most sub-intervals, at least 1; 200 to 500 serve for most integrals
/// \param[out] result the integral; after NE_QUAD errors the best value found
/// \param[out] abserr estimate of |result - integral|
/// \param[out] qp     the sub-intervals; its arrays become the caller's, see KorQuadRecord
/// \param[in]  comm   passed to f as it stands, never read; may be null
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// As d01alc().
/// \par Accuracy
/// As d01alc().
/// \par Method
/// As d01alc().
/// \par Thread safety
/// Safe and reentrant: f may itself integrate.
/// \par See also
/// d01alc().
/// \par Example
/// \code{.c}
/// static double f(double x, void *comm) { return 1.0 / sqrt(fabs(x - 1.0 / 7.0)); }
/// ...
/// const double breaks[1] = {1.0 / 7.0};
/// d01slc(f, 0.0, 1.0, 1, breaks, 0.0, 1e-12, 200, &result, &abserr, &qp, NULL, &fail);   // 2.60757
/// \endcode
void d01slc(double (*f)(double x, void *comm), double a, double b, Integer nbrkpts, const double brkpts[],
            double epsabs, double epsrel, Integer max_num_subint, double *result, double *abserr, KorQuadRecord *qp,
            void *comm, KorError *fail);

/// \brief The integral of a function over an infinite or half-infinite range, with a pointer to the caller's data.
///
/// As d01amc(), with the pointer `comm` as second argument of f.
///
/// \param[in]  f      the function; called on this thread only; receives `comm` as its second argument. A point where it is infinite or not a number does no
///                    harm if it stands alone
/// \param[in]  boundinf Kor_UpperSemiInfinite, Kor_LowerSemiInfinite or Kor_Infinite
/// \param[in]  bound  the finite end; not looked at with Kor_Infinite
/// \param[in]  epsabs absolute error wanted, taken by its modulus
/// \param[in]  epsrel relative error wanted, taken by its modulus; both may be 0, and then the routine does what it can and
///                    ends with NE_QUAD_ROUNDOFF_TOL
/// \param[in]  max_num_subint most sub-intervals, at least 1; 200 to 500 serve for most integrals
/// \param[out] result the integral; after NE_QUAD errors the best value found
/// \param[out] abserr estimate of |result - integral|
/// \param[out] qp     the sub-intervals; its arrays become the caller's, see KorQuadRecord
/// \param[in]  comm   passed to f as it stands, never read; may be null
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// As d01amc().
/// \par Accuracy
/// As d01amc().
/// \par Method
/// As d01amc().
/// \par Thread safety
/// Safe and reentrant: f may itself integrate.
/// \par See also
/// d01amc().
/// \par Example
/// \code{.c}
/// static double f(double x, void *comm) { return exp(-x * x); }
/// ...
/// d01smc(f, Kor_Infinite, 0.0, 0.0, 1e-12, 200, &result, &abserr, &qp, NULL, &fail);   // sqrt(pi)
/// \endcode
void d01smc(double (*f)(double x, void *comm), Integer boundinf, double bound, double epsabs, double epsrel,
            Integer max_num_subint, double *result, double *abserr, KorQuadRecord *qp, void *comm, KorError *fail);

/// \brief The integral of f(x) cos(omega x) or f(x) sin(omega x) over a finite range, with a pointer to the caller's data.
///
/// As d01anc(), with the pointer `comm` as second argument of f.
///
/// \param[in]  f      the function; called on this thread only; receives `comm` as its second argument. A point where it is infinite or not a number does no
///                    harm if it stands alone
/// \param[in]  a      one end of the range
/// \param[in]  b      the other end; may be less than `a`
/// \param[in]  omega  the frequency, in radians per unit of x; any sign, 0 allowed
/// \param[in]  wt_func Kor_Cosine or Kor_Sine
/// \param[in]  epsabs absolute error wanted, taken by its modulus
/// \param[in]  epsrel relative error wanted, taken by its modulus; both may be 0, and then the routine does what it can and
///                    ends with NE_QUAD_ROUNDOFF_TOL
/// \param[in]  max_num_subint most sub-intervals, at least 1; 200 to 500 serve for most integrals
/// \param[out] result the integral; after NE_QUAD errors the best value found
/// \param[out] abserr estimate of |result - integral|
/// \param[out] qp     the sub-intervals; its arrays become the caller's, see KorQuadRecord
/// \param[in]  comm   passed to f as it stands, never read; may be null
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// As d01anc().
/// \par Accuracy
/// As d01anc().
/// \par Method
/// As d01anc().
/// \par Thread safety
/// Safe and reentrant: f may itself integrate.
/// \par See also
/// d01anc().
/// \par Example
/// \code{.c}
/// static double f(double x, void *comm) { return log(x); }
/// ...
/// d01snc(f, 0.0, 1.0, 31.41592653589793, Kor_Sine, 0.0, 1e-10, 200, &result, &abserr, &qp, NULL, &fail);   // -0.128136848399
/// \endcode
void d01snc(double (*f)(double x, void *comm), double a, double b, double omega, Integer wt_func, double epsabs,
            double epsrel, Integer max_num_subint, double *result, double *abserr, KorQuadRecord *qp, void *comm,
            KorError *fail);

/// \brief The integral of a function with algebraic and logarithmic singularities at the ends of a finite range, with a pointer to the caller's data.
///
/// As d01apc(), with the pointer `comm` as second argument of f.
///
/// \param[in]  f      the function; called on this thread only; receives `comm` as its second argument. A point where it is infinite or not a number does no
///                    harm if it stands alone
/// \param[in]  a      lower end of the range
/// \param[in]  b      upper end, greater than `a`
/// \param[in]  alfa   power at a, greater than -1
/// \param[in]  beta   power at b, greater than -1
/// \param[in]  wt_func Kor_Alg, Kor_Alg_loga, Kor_Alg_logb or Kor_Alg_loga_logb
/// \param[in]  epsabs absolute error wanted, taken by its modulus
/// \param[in]  epsrel relative error wanted, taken by its modulus; both may be 0, and then the routine does what it can and
///                    ends with NE_QUAD_ROUNDOFF_TOL
/// \param[in]  max_num_subint most sub-intervals, at least 2; 200 to 500 serve for most integrals
/// \param[out] result the integral; after NE_QUAD errors the best value found
/// \param[out] abserr estimate of |result - integral|
/// \param[out] qp     the sub-intervals; its arrays become the caller's, see KorQuadRecord
/// \param[in]  comm   passed to f as it stands, never read; may be null
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// As d01apc().
/// \par Accuracy
/// As d01apc().
/// \par Method
/// As d01apc().
/// \par Thread safety
/// Safe and reentrant: f may itself integrate.
/// \par See also
/// d01apc().
/// \par Example
/// \code{.c}
/// static double f(double x, void *comm) { return cos(x); }
/// ...
/// d01spc(f, 0.0, 1.0, -0.5, 0.0, Kor_Alg_loga, 0.0, 1e-12, 200, &result, &abserr, &qp, NULL, &fail);   // integral of cos(x) ln(x)/sqrt(x)
/// \endcode
void d01spc(double (*f)(double x, void *comm), double a, double b, double alfa, double beta, Integer wt_func,
            double epsabs, double epsrel, Integer max_num_subint, double *result, double *abserr, KorQuadRecord *qp,
            void *comm, KorError *fail);

/// \brief The Cauchy principal value of the integral of f(x)/(x - c) over a finite range, with a pointer to the caller's data.
///
/// As d01aqc(), with the pointer `comm` as second argument of f.
///
/// \param[in]  f      the function; called on this thread only; receives `comm` as its second argument. A point where it is infinite or not a number does no
///                    harm if it stands alone
/// \param[in]  a      one end of the range
/// \param[in]  b      the other end; may be less than `a`
/// \param[in]  c      the pole, equal to neither end
/// \param[in]  epsabs absolute error wanted, taken by its modulus
/// \param[in]  epsrel relative error wanted, taken by its modulus; both may be 0, and then the routine does what it can and
///                    ends with NE_QUAD_ROUNDOFF_TOL
/// \param[in]  max_num_subint most sub-intervals, at least 1; 200 to 500 serve for most integrals
/// \param[out] result the integral; after NE_QUAD errors the best value found
/// \param[out] abserr estimate of |result - integral|
/// \param[out] qp     the sub-intervals; its arrays become the caller's, see KorQuadRecord
/// \param[in]  comm   passed to f as it stands, never read; may be null
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// As d01aqc().
/// \par Accuracy
/// As d01aqc().
/// \par Method
/// As d01aqc().
/// \par Thread safety
/// Safe and reentrant: f may itself integrate.
/// \par See also
/// d01aqc().
/// \par Example
/// \code{.c}
/// static double f(double x, void *comm) { return 1.0 / (x * x + 0.01); }
/// ...
/// d01sqc(f, -1.0, 1.0, 0.5, 0.0, 1e-12, 200, &result, &abserr, &qp, NULL, &fail);   // -628.461728506562
/// \endcode
void d01sqc(double (*f)(double x, void *comm), double a, double b, double c, double epsabs, double epsrel,
            Integer max_num_subint, double *result, double *abserr, KorQuadRecord *qp, void *comm, KorError *fail);

/// \brief The Fourier integral of f(x) cos(omega x) or f(x) sin(omega x) over (a, infinity), with a pointer to the caller's data.
///
/// As d01asc(), with the pointer `comm` as second argument of f.
///
/// \param[in]  f      the function; called on this thread only; receives `comm` as its second argument. A point where it is infinite or not a number does no
///                    harm if it stands alone
/// \param[in]  a      the finite end
/// \param[in]  omega  the frequency, in radians per unit of x; 0 is allowed: with Kor_Sine the integral is 0
/// \param[in]  wt_func Kor_Cosine or Kor_Sine
/// \param[in]  maxintervals most intervals, at least 3; 50 serve for most integrals
/// \param[in]  max_num_subint most sub-intervals of an interval, at least 1
/// \param[in]  epsabs absolute error wanted, taken by its modulus
/// \param[out] result the integral; after NE_QUAD errors the best value found
/// \param[out] abserr estimate of |result - integral|
/// \param[out] qp     the intervals; its arrays become the caller's, see KorQuadIntervalRecord
/// \param[in]  comm   passed to f as it stands, never read; may be null
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// As d01asc().
/// \par Accuracy
/// As d01asc().
/// \par Method
/// As d01asc().
/// \par Thread safety
/// Safe and reentrant: f may itself integrate.
/// \par See also
/// d01asc().
/// \par Example
/// \code{.c}
/// static double f(double x, void *comm) { return x > 0.0 ? 1.0 / sqrt(x) : 0.0; }
/// ...
/// KorQuadIntervalRecord qp;
/// d01ssc(f, 0.0, 1.5707963267948966, Kor_Cosine, 50, 200, 1e-10, &result, &abserr, &qp, NULL, &fail);   // 1
/// \endcode
void d01ssc(double (*f)(double x, void *comm), double a, double omega, Integer wt_func, Integer maxintervals,
            Integer max_num_subint, double epsabs, double *result, double *abserr, KorQuadIntervalRecord *qp,
            void *comm, KorError *fail);

/// \brief The integral of a function by a Gaussian rule.
///
/// The families:
/// - Kor_Legendre: over (a, b); exact for polynomials of degree 2 npts - 1.
/// - Kor_Rational: over (a, infinity) if a + b > 0, over (-infinity, a) if a + b < 0; exact for sums of powers 1/(x + b)^i, i = 2
///   to 2 npts + 1.
/// - Kor_Laguerre: over (a, infinity) if b > 0, over (-infinity, a) if b < 0; exact for exp(-b x) times polynomials of degree
///   2 npts - 1.
/// - Kor_Hermite: over the whole line, b > 0; exact for exp(-b (x - a)^2) times polynomials of degree 2 npts - 1.
///
/// f is the whole integrand: the weight function of the family is part of it.
///
/// \param[in]  quadrule the family: Kor_Legendre, Kor_Rational, Kor_Laguerre or Kor_Hermite
/// \param[in]  f      the function; called on this thread only
/// \param[in]  a      first parameter of the range
/// \param[in]  b      second parameter of the range
/// \param[in]  npts   number of points, at least 1; stored are 1, 2, 3, 4, 5, 6, 8, 10, 12, 14, 16, 20, 24, 32, 48 and 64, and the next
///                    smaller of them is taken
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
/// \return the integral; 0 after an error other than NE_QUAD_GAUSS_NPTS_RULE and NE_QUAD_GAUSS_LAG_HER_WTS
///
/// \par Errors
/// - NE_BAD_PARAM: `quadrule` is none of the four.
/// - NE_INT_ARG_LT: `npts` is less than 1.
/// - NE_QUAD_GAUSS_CONS: a + b = 0 (rational), b = 0 (Laguerre) or b <= 0 (Hermite).
/// - NE_QUAD_GAUSS_NPTS_RULE: a rule with `npts` points is not stored; the value is that of the next smaller one.
/// - NE_QUAD_GAUSS_LAG_HER_WTS: weights underflow, and their terms are left out; the value stands.
/// \par Accuracy
/// Nodes and weights are right to the last bits; how well the rule fits f is for the caller to judge: compare two orders.
/// \par Method
/// P. J. Davis and P. Rabinowitz, Methods of Numerical Integration, Academic Press 1984, chapters 2.7 and 3.6.
/// \par Thread safety
/// Safe and reentrant.
/// \par Example
/// \code{.c}
/// static double f(double x) { return exp(-x) * cos(x); }
/// ...
/// double integral = d01bac(Kor_Laguerre, f, 0.0, 1.0, 24, &fail);   // 0.5
/// \endcode
double d01bac(Integer quadrule, double (*f)(double x), double a, double b, Integer npts, KorError *fail);

/// \brief The integral of a function by a Gaussian rule, with a pointer to the caller's data.
///
/// The families:
/// - Kor_Legendre: over (a, b); exact for polynomials of degree 2 npts - 1.
/// - Kor_Rational: over (a, infinity) if a + b > 0, over (-infinity, a) if a + b < 0; exact for sums of powers 1/(x + b)^i, i = 2
///   to 2 npts + 1.
/// - Kor_Laguerre: over (a, infinity) if b > 0, over (-infinity, a) if b < 0; exact for exp(-b x) times polynomials of degree
///   2 npts - 1.
/// - Kor_Hermite: over the whole line, b > 0; exact for exp(-b (x - a)^2) times polynomials of degree 2 npts - 1.
///
/// f is the whole integrand: the weight function of the family is part of it.
///
/// \param[in]  quadrule the family: Kor_Legendre, Kor_Rational, Kor_Laguerre or Kor_Hermite
/// \param[in]  f      the function; called on this thread only; receives `comm` as its second argument
/// \param[in]  a      first parameter of the range
/// \param[in]  b      second parameter of the range
/// \param[in]  npts   number of points, at least 1; stored are 1, 2, 3, 4, 5, 6, 8, 10, 12, 14, 16, 20, 24, 32, 48 and 64, and the next
///                    smaller of them is taken
/// \param[in]  comm   passed to f as it stands, never read; may be null
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
/// \return the integral; 0 after an error other than NE_QUAD_GAUSS_NPTS_RULE and NE_QUAD_GAUSS_LAG_HER_WTS
///
/// \par Errors
/// - NE_BAD_PARAM: `quadrule` is none of the four.
/// - NE_INT_ARG_LT: `npts` is less than 1.
/// - NE_QUAD_GAUSS_CONS: a + b = 0 (rational), b = 0 (Laguerre) or b <= 0 (Hermite).
/// - NE_QUAD_GAUSS_NPTS_RULE: a rule with `npts` points is not stored; the value is that of the next smaller one.
/// - NE_QUAD_GAUSS_LAG_HER_WTS: weights underflow, and their terms are left out; the value stands.
/// \par Accuracy
/// Nodes and weights are right to the last bits; how well the rule fits f is for the caller to judge: compare two orders.
/// \par Method
/// P. J. Davis and P. Rabinowitz, Methods of Numerical Integration, Academic Press 1984, chapters 2.7 and 3.6.
/// \par Thread safety
/// Safe and reentrant.
/// \par Example
/// \code{.c}
/// static double f(double x, void *comm) { return exp(-x) * cos(x); }
/// ...
/// double integral = d01tac(Kor_Laguerre, f, 0.0, 1.0, 24, NULL, &fail);   // 0.5
/// \endcode
double d01tac(Integer quadrule, double (*f)(double x, void *comm), double a, double b, Integer npts, void *comm,
              KorError *fail);

/// \brief Weights and abscissae of a Gaussian rule.
///
/// For the integral of f over the range of the family (see d01bac()): the sum of weight[i] f(abscis[i]).
///
/// \param[in]  quadrule the family: Kor_Legendre, Kor_Rational, Kor_Laguerre or Kor_Hermite
/// \param[in]  a      first parameter of the range
/// \param[in]  b      second parameter of the range
/// \param[in]  npts   number of points, as in d01bac()
/// \param[out] weight `npts` weights, which make up for the weight function of the family; zeros behind those of a smaller rule
/// \param[out] abscis `npts` abscissae; zeros behind those of a smaller rule
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_BAD_PARAM: `quadrule` is none of the four.
/// - NE_INT_ARG_LT: `npts` is less than 1.
/// - NE_QUAD_GAUSS_CONS: a + b = 0 (rational), b = 0 (Laguerre) or b <= 0 (Hermite).
/// - NE_QUAD_GAUSS_NPTS_RULE: a rule with `npts` points is not stored; the next smaller one is given.
/// - NE_QUAD_GAUSS_LAG_HER_WTS: weights underflow, and are 0.
///
/// After the first three the outputs are untouched.
/// \par Accuracy
/// Right to the last bits.
/// \par Method
/// As d01bac().
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double w[3], x[3];
/// d01bbc(Kor_Legendre, 0.0, 1.0, 3, w, x, &fail);   // x = 0.1127, 0.5, 0.8873; w = 5/18, 8/18, 5/18
/// \endcode
void d01bbc(Integer quadrule, double a, double b, Integer npts, double weight[], double abscis[], KorError *fail);

/// \brief The integral of a function that is given by a table.
///
/// Integrates over (x[0], x[n-1]); the points need not be evenly spaced.
///
/// \param[in]  n    number of points, at least 4
/// \param[in]  x    n points, strictly increasing or strictly decreasing; in the latter case the integral has the sign of that
///                  orientation
/// \param[in]  y    n values
/// \param[out] ans  the integral, with the correction that fourth differences suggest
/// \param[out] er   estimate of |ans - integral|: the size of the correction, and twice the standard error that errors in the
///                  data may cause if fourth differences are due to them; 0 for n = 4, where there are none
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `n` is less than 4.
/// - NE_QUAD_FIRST_TWO_PTS_EQL: the first two points are equal.
/// - NE_NOT_STRICTLY_INCREASING, NE_NOT_STRICTLY_DECREASING: the points do not go on in the direction of the first two.
///
/// The outputs are then untouched.
/// \par Accuracy
/// Exact for cubics, but for rounding; O(h^4) before the correction. On smooth data the error is far less than `er` as soon as
/// ten points follow the function; on noisy data it is within `er` in 19 cases of 20.
/// \par Method
/// P. E. Gill and G. F. Miller, Comput. J. 15 (1972) 80-83: cubics through four neighbouring points.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// const double x[5] = {0.0, 0.5, 1.5, 2.0, 3.0}, y[5] = {0.0, 0.125, 3.375, 8.0, 27.0};
/// double ans, er;
/// d01gac(5, x, y, &ans, &er, &fail);   // 20.25, 0
/// \endcode
void d01gac(Integer n, const double x[], const double y[], double *ans, double *er, KorError *fail);

/// \brief The integral of a function of several variables over a box, by adaptive cubature.
///
/// \param[in]  ndim   number of variables, 2 to 15
/// \param[in]  f      the function, of `ndim` variables in x; called on this thread only
/// \param[in]  a      ndim lower ends of the box
/// \param[in]  b      ndim upper ends; an end below its partner turns the sign of the integral
/// \param[in]  minpts least number of evaluations of f
/// \param[in]  maxpts most evaluations, at least minpts and 2^ndim + 2 ndim^2 + 2 ndim + 1
/// \param[in]  eps    relative accuracy wanted, greater than 0
/// \param[out] acc    estimate of the relative error reached (of the error itself, if the integral is 0)
/// \param[out] finval the integral; after NE_QUAD_MAX_INTEGRAND_EVAL the best value found
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INVALID_INT_RANGE_2: `ndim` is not in 2 to 15.
/// - NE_2_INT_ARG_LT: `maxpts` is less than `minpts`.
/// - NE_REAL_ARG_LE: `eps` is not greater than 0.
/// - NE_QUAD_MAX_INTEGRAND_CONS: `maxpts` does not suffice for one application of the rule.
/// - NE_ALLOC_FAIL: there is not enough memory.
/// - NE_QUAD_MAX_INTEGRAND_EVAL: `maxpts` evaluations were not enough; `finval` and `acc` hold what was reached.
///
/// After the others the outputs are untouched.
/// \par Accuracy
/// As `acc` tells, for smooth functions usually far better. Costs grow as 2^ndim: in many dimensions see d01gbc().
/// \par Method
/// Rules of degree 7 and 5; the box with the largest difference is halved where the integrand varies most. A. C. Genz and
/// A. A. Malik, J. Comput. Appl. Math. 6 (1980) 295-302.
/// \par Thread safety
/// Safe and reentrant.
/// \par Example
/// \code{.c}
/// static double f(Integer ndim, const double x[]) { return exp(-x[0] * x[1]); }
/// ...
/// const double a[2] = {0.0, 0.0}, b[2] = {1.0, 1.0};
/// double acc, integral;
/// d01fcc(2, f, a, b, 0, 10000, 1e-8, &acc, &integral, &fail);   // 0.79659959930
/// \endcode
void d01fcc(Integer ndim, double (*f)(Integer ndim, const double x[]), const double a[], const double b[],
            Integer minpts, Integer maxpts, double eps, double *acc, double *finval, KorError *fail);

/// \brief The integral of a function of several variables over a box, by adaptive cubature, with a pointer to the caller's data.
///
/// \param[in]  ndim   number of variables, 2 to 15
/// \param[in]  f      the function, of `ndim` variables in x; called on this thread only; receives `comm` as its last argument
/// \param[in]  a      ndim lower ends of the box
/// \param[in]  b      ndim upper ends; an end below its partner turns the sign of the integral
/// \param[in]  minpts least number of evaluations of f
/// \param[in]  maxpts most evaluations, at least minpts and 2^ndim + 2 ndim^2 + 2 ndim + 1
/// \param[in]  eps    relative accuracy wanted, greater than 0
/// \param[out] acc    estimate of the relative error reached (of the error itself, if the integral is 0)
/// \param[out] finval the integral; after NE_QUAD_MAX_INTEGRAND_EVAL the best value found
/// \param[in]  comm   passed to f as it stands, never read; may be null
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INVALID_INT_RANGE_2: `ndim` is not in 2 to 15.
/// - NE_2_INT_ARG_LT: `maxpts` is less than `minpts`.
/// - NE_REAL_ARG_LE: `eps` is not greater than 0.
/// - NE_QUAD_MAX_INTEGRAND_CONS: `maxpts` does not suffice for one application of the rule.
/// - NE_ALLOC_FAIL: there is not enough memory.
/// - NE_QUAD_MAX_INTEGRAND_EVAL: `maxpts` evaluations were not enough; `finval` and `acc` hold what was reached.
///
/// After the others the outputs are untouched.
/// \par Accuracy
/// As `acc` tells, for smooth functions usually far better. Costs grow as 2^ndim: in many dimensions see d01gbc().
/// \par Method
/// Rules of degree 7 and 5; the box with the largest difference is halved where the integrand varies most. A. C. Genz and
/// A. A. Malik, J. Comput. Appl. Math. 6 (1980) 295-302.
/// \par Thread safety
/// Safe and reentrant.
/// \par Example
/// \code{.c}
/// static double f(Integer ndim, const double x[], void *comm) { return exp(-x[0] * x[1]); }
/// ...
/// const double a[2] = {0.0, 0.0}, b[2] = {1.0, 1.0};
/// double acc, integral;
/// d01wcc(2, f, a, b, 0, 10000, 1e-8, &acc, &integral, NULL, &fail);   // 0.79659959930
/// \endcode
void d01wcc(Integer ndim, double (*f)(Integer ndim, const double x[], void *comm), const double a[], const double b[],
            Integer minpts, Integer maxpts, double eps, double *acc, double *finval, void *comm, KorError *fail);

/// \brief The integral of a function of several variables over a box, by the Monte Carlo method.
///
/// \param[in]  ndim   number of variables, at least 1
/// \param[in]  f      the function, of `ndim` variables in x; called on this thread only
/// \param[in]  method Kor_OneIteration: a quarter of the points finds the strata, all others make one estimate;
///                    Kor_ManyIterations: estimates from growing numbers of points are averaged until `eps` is met
/// \param[in]  cont   Kor_Cold: a new integral; Kor_Warm: `finval` and `acc` hold an earlier, independent estimate and its standard
///                    error, to be averaged with the new one; Kor_Hot: the same, and the sampling starts with strata of equal
///                    size, as many as there can be
/// \param[in]  a      ndim lower ends of the box
/// \param[in]  b      ndim upper ends
/// \param[in]  mincls least number of evaluations of f, less than `maxcls`
/// \param[in]  maxcls most evaluations, at least 4 (ndim + 1)
/// \param[in]  eps    relative accuracy wanted (standard error over integral), at least 0; with 0 all `maxcls` evaluations are made
/// \param[in]  maxlcs most strata, at least 1
/// \param[in,out] finval the integral; an earlier estimate on entry with Kor_Warm and Kor_Hot
/// \param[in,out] acc its standard error; that of the earlier estimate on entry with Kor_Warm and Kor_Hot
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `ndim` is less than 1.
/// - NE_REAL_ARG_LT: `eps` is less than 0.
/// - NE_BAD_PARAM: `method` or `cont` is none of its values.
/// - NE_2_INT_ARG_LT: `maxcls` is less than 4 (ndim + 1).
/// - NE_2_INT_ARG_GE: `mincls` is not less than `maxcls`.
/// - NE_QUAD_MAX_INTEGRAND_EVAL: `maxlcs` is less than 1, and nothing has been done; or `maxcls` evaluations were not enough, and
///   `finval` and `acc` hold what was reached.
/// - NE_ALLOC_FAIL: there is not enough memory.
/// \par Accuracy
/// The true error is within three standard errors with a probability of 99.7 per cent, if f has a finite variance.
/// \par Method
/// Stratified sampling; strata that hold much of the variance are halved, and points are drawn in proportion to it (J. Neyman,
/// 1934; W. H. Press and G. R. Farrar, Computers in Physics 4 (1990) 190-195). Numbers from g05cac().
/// \par Thread safety
/// Safe: each thread has its own generator. Set it by g05cbc() for the same result every time.
/// \par Example
/// \code{.c}
/// static double f(Integer ndim, const double x[]) { double s = 0.0; for (Integer i = 0; i < ndim; ++i) s += x[i] * x[i]; return s; }
/// ...
/// g05cbc(1);
/// d01gbc(5, f, Kor_ManyIterations, Kor_Cold, a, b, 1000, 100000, 0.001, 256, &integral, &acc, &fail);   // 1.67 over the unit cube
/// \endcode
void d01gbc(Integer ndim, double (*f)(Integer ndim, const double x[]), Integer method, Integer cont, const double a[],
            const double b[], Integer mincls, Integer maxcls, double eps, Integer maxlcs, double *finval, double *acc,
            KorError *fail);

/// \brief The integral of a function of several variables over a box, by the Monte Carlo method, with a pointer to the caller's data.
///
/// \param[in]  ndim   number of variables, at least 1
/// \param[in]  f      the function, of `ndim` variables in x; called on this thread only; receives `comm` as its last argument
/// \param[in]  method Kor_OneIteration: a quarter of the points finds the strata, all others make one estimate;
///                    Kor_ManyIterations: estimates from growing numbers of points are averaged until `eps` is met
/// \param[in]  cont   Kor_Cold: a new integral; Kor_Warm: `finval` and `acc` hold an earlier, independent estimate and its standard
///                    error, to be averaged with the new one; Kor_Hot: the same, and the sampling starts with strata of equal
///                    size, as many as there can be
/// \param[in]  a      ndim lower ends of the box
/// \param[in]  b      ndim upper ends
/// \param[in]  mincls least number of evaluations of f, less than `maxcls`
/// \param[in]  maxcls most evaluations, at least 4 (ndim + 1)
/// \param[in]  eps    relative accuracy wanted (standard error over integral), at least 0; with 0 all `maxcls` evaluations are made
/// \param[in]  maxlcs most strata, at least 1
/// \param[in,out] finval the integral; an earlier estimate on entry with Kor_Warm and Kor_Hot
/// \param[in,out] acc its standard error; that of the earlier estimate on entry with Kor_Warm and Kor_Hot
/// \param[in]  comm   passed to f as it stands, never read; may be null
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `ndim` is less than 1.
/// - NE_REAL_ARG_LT: `eps` is less than 0.
/// - NE_BAD_PARAM: `method` or `cont` is none of its values.
/// - NE_2_INT_ARG_LT: `maxcls` is less than 4 (ndim + 1).
/// - NE_2_INT_ARG_GE: `mincls` is not less than `maxcls`.
/// - NE_QUAD_MAX_INTEGRAND_EVAL: `maxlcs` is less than 1, and nothing has been done; or `maxcls` evaluations were not enough, and
///   `finval` and `acc` hold what was reached.
/// - NE_ALLOC_FAIL: there is not enough memory.
/// \par Accuracy
/// The true error is within three standard errors with a probability of 99.7 per cent, if f has a finite variance.
/// \par Method
/// Stratified sampling; strata that hold much of the variance are halved, and points are drawn in proportion to it (J. Neyman,
/// 1934; W. H. Press and G. R. Farrar, Computers in Physics 4 (1990) 190-195). Numbers from g05cac().
/// \par Thread safety
/// Safe: each thread has its own generator. Set it by g05cbc() for the same result every time.
/// \par Example
/// \code{.c}
/// static double f(Integer ndim, const double x[], void *comm) { double s = 0.0; for (Integer i = 0; i < ndim; ++i) s += x[i] * x[i]; return s; }
/// ...
/// g05cbc(1);
/// d01xbc(5, f, Kor_ManyIterations, Kor_Cold, a, b, 1000, 100000, 0.001, 256, &integral, &acc, NULL, &fail);   // 1.67 over the unit cube
/// \endcode
void d01xbc(Integer ndim, double (*f)(Integer ndim, const double x[], void *comm), Integer method, Integer cont,
            const double a[], const double b[], Integer mincls, Integer maxcls, double eps, Integer maxlcs,
            double *finval, double *acc, void *comm, KorError *fail);

KOR_END_DECLS

#endif
