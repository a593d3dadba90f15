/// \file g01.h
/// Chapter g01: distributions and descriptive statistics.
#ifndef KOR_G01_H
#define KOR_G01_H

#include <kor.h>

KOR_BEGIN_DECLS

/// \brief The deviate of a lower tail probability of the standard normal law.
///
/// The x with P(X <= x) = `p`.
///
/// \param[in] p the probability, strictly between 0 and 1
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
/// \return x; 0 after an error
///
/// \par Errors
/// - NE_REAL_ARG_LE: `p` is not greater than 0.
/// - NE_REAL_ARG_GE: `p` is not less than 1.
/// \par Accuracy
/// A few units in the last place, given `p`; a `p` next to 1 cannot be known well: use g01fac() with Kor_UpperTail
/// there.
/// \par Method
/// A rational start and two steps of Halley's method on the tail itself.
/// \par Thread safety
/// Safe.
/// \par See also
/// g01fac(), which takes any tail.
/// \par Example
/// \code{.c}
/// double x = g01cec(0.975, &fail);   // x = 1.95996398454005
/// \endcode
double g01cec(double p, KorError *fail);

/// \brief Tail probabilities of the standard normal law.
///
/// P(X <= x), P(X > x), P(|X| > |x|) or P(|X| <= |x|) of the density exp(-x^2/2) / sqrt(2 pi).
///
/// \param[in] tail Kor_LowerTail, Kor_UpperTail, Kor_TwoTailSignif (outside (-|x|, |x|)) or Kor_TwoTailConfid (inside
///             it)
/// \param[in] x the deviate, in standard deviations; infinities are allowed
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
/// \return the probability; 0 after an error
///
/// \par Errors
/// - NE_BAD_PARAM: `tail` is none of these.
/// \par Accuracy
/// A few units in the last place. Each tail is computed as a tail, never as a difference from 1: small relative errors
/// down to 1e-300. A NaN gives NaN.
/// \par Method
/// Through the error function and its complement, with the rounding errors of x / sqrt 2 and of its square put back.
/// \par Thread safety
/// Safe.
/// \par See also
/// g01fac() for the inverse.
/// \par Example
/// \code{.c}
/// double q = g01eac(Kor_UpperTail, 1.96, &fail);   // q = 0.0249978951482204
/// \endcode
double g01eac(Integer tail, double x, KorError *fail);

/// \brief Deviates of the standard normal law.
///
/// The x whose tail has probability `p`: the inverse of g01eac(). For the two-sided tails x >= 0.
///
/// \param[in] tail Kor_LowerTail, Kor_UpperTail, Kor_TwoTailSignif (outside (-|x|, |x|)) or Kor_TwoTailConfid (inside
///             it)
/// \param[in] p the probability, strictly between 0 and 1
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
/// \return x; 0 after an error
///
/// \par Errors
/// - NE_BAD_PARAM: `tail` is none of these.
/// - NE_REAL_ARG_LE: `p` is not greater than 0.
/// - NE_REAL_ARG_GE: `p` is not less than 1.
/// \par Accuracy
/// A few units in the last place, near the median too, where x is small.
/// \par Method
/// A rational start and two steps of Halley's method on the tail itself; a series near the median.
/// \par Thread safety
/// Safe.
/// \par See also
/// g01eac()
/// \par Example
/// \code{.c}
/// double x = g01fac(Kor_TwoTailConfid, 0.95, &fail);   // x = 1.95996398454005
/// \endcode
double g01fac(Integer tail, double p, KorError *fail);

/// \brief Tail probabilities of Student's t law.
///
/// P(T <= t), P(T > t), P(|T| > |t|) or P(|T| <= |t|) of the density proportional to (1 + t^2/df)^(-(df+1)/2).
///
/// \param[in] tail Kor_LowerTail, Kor_UpperTail, Kor_TwoTailSignif (outside (-|t|, |t|)) or Kor_TwoTailConfid (inside
///             it)
/// \param[in] t the deviate; infinities are allowed
/// \param[in] df degrees of freedom, at least 1; need not be whole
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
/// \return the probability; 0 after an error
///
/// \par Errors
/// - NE_BAD_PARAM: `tail` is none of these.
/// - NE_REAL_ARG_LT: `df` is less than 1.
/// \par Accuracy
/// Each tail is computed as a tail, never as a difference from 1: small relative errors down to 1e-300. A NaN gives
/// NaN.
/// \par Method
/// t^2/df are the odds of a beta variable with shapes 1/2 and df/2, for all `df`: see g01eec().
/// \par Thread safety
/// Safe.
/// \par See also
/// g01fbc() for the inverse.
/// \par Example
/// \code{.c}
/// double p = g01ebc(Kor_TwoTailSignif, 2.5, 10.0, &fail);   // p = 0.0314468442366088
/// \endcode
double g01ebc(Integer tail, double t, double df, KorError *fail);

/// \brief Deviates of Student's t law.
///
/// The t whose tail has probability `p`: the inverse of g01ebc(). For the two-sided tails t >= 0.
///
/// \param[in] tail Kor_LowerTail, Kor_UpperTail, Kor_TwoTailSignif (outside (-|t|, |t|)) or Kor_TwoTailConfid (inside
///             it)
/// \param[in] p the probability, strictly between 0 and 1
/// \param[in] df degrees of freedom, at least 1
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
/// \return t; 0 after an error
///
/// \par Errors
/// - NE_BAD_PARAM: `tail` is none of these.
/// - NE_REAL_ARG_LE: `p` is not greater than 0.
/// - NE_REAL_ARG_GE: `p` is not less than 1.
/// - NE_REAL_ARG_LT: `df` is less than 1.
/// - NE_SOL_NOT_CONV: the search has not converged; the result is its last point. No argument is known that leads here.
/// \par Accuracy
/// As good as the condition of the problem allows: the tail of the result is `p` within a few units in the last place.
/// \par Method
/// Newton's method for the logarithm of the smaller tail against the logarithm of the variable t^2/df; closed forms in
/// the far tail and next to the median.
/// \par Thread safety
/// Safe.
/// \par See also
/// g01ebc()
/// \par Example
/// \code{.c}
/// double t = g01fbc(Kor_UpperTail, 0.025, 10.0, &fail);   // t = 2.22813885198627
/// \endcode
double g01fbc(Integer tail, double p, double df, KorError *fail);

/// \brief Tail probabilities of the chi-squared law.
///
/// P(X <= x) or P(X > x), X the sum of the squares of `df` standard normal variables.
///
/// \param[in] tail Kor_LowerTail or Kor_UpperTail
/// \param[in] x the value, at least 0
/// \param[in] df degrees of freedom, greater than 0; need not be whole
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
/// \return the probability; 0 after an error
///
/// \par Errors
/// - NE_BAD_PARAM: `tail` is none of these.
/// - NE_REAL_ARG_LT: `x` is less than 0.
/// - NE_REAL_ARG_LE: `df` is not greater than 0.
/// \par Accuracy
/// Each tail is computed as a tail, never as a difference from 1: small relative errors down to 1e-300. A NaN gives
/// NaN.
/// \par Method
/// The incomplete gamma ratios of shape df/2 at x/2.
/// \par Thread safety
/// Safe.
/// \par See also
/// g01fcc() for the inverse; g01efc().
/// \par Example
/// \code{.c}
/// double q = g01ecc(Kor_UpperTail, 18.3, 10.0, &fail);   // q = 0.0501090614114625
/// \endcode
double g01ecc(Integer tail, double x, double df, KorError *fail);

/// \brief Deviates of the chi-squared law.
///
/// The x with P(X <= x) = `p`; 0 for `p` = 0.
///
/// \param[in] p the lower tail probability, at least 0 and less than 1
/// \param[in] df degrees of freedom, greater than 0
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
/// \return x; 0 after an error
///
/// \par Errors
/// - NE_REAL_ARG_LT: `p` is less than 0.
/// - NE_REAL_ARG_GE: `p` is not less than 1.
/// - NE_REAL_ARG_LE: `df` is not greater than 0.
/// - NE_PROBAB_CLOSE_TO_TAIL: the deviate is too small or too large for a number; the result is 0.
/// - NE_SOL_NOT_CONV: the search has not converged; the result is its last point. No argument is known that leads here.
/// \par Accuracy
/// As good as the condition of the problem allows: the tail of the result is `p` within a few units in the last place.
/// \par Method
/// Newton's method for the logarithm of the smaller tail against the logarithm of the variable, whose tails are log-
/// concave: convergence is monotone.
/// \par Thread safety
/// Safe.
/// \par See also
/// g01ecc()
/// \par Example
/// \code{.c}
/// double x = g01fcc(0.95, 10.0, &fail);   // x = 18.3070380532751
/// \endcode
double g01fcc(double p, double df, KorError *fail);

/// \brief Tail probabilities of the F law.
///
/// P(F <= f) or P(F > f), F the ratio of two mean squares with `df1` and `df2` degrees of freedom.
///
/// \param[in] tail Kor_LowerTail or Kor_UpperTail
/// \param[in] f the ratio, at least 0
/// \param[in] df1 degrees of freedom of the numerator, greater than 0
/// \param[in] df2 degrees of freedom of the denominator, greater than 0
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
/// \return the probability; 0 after an error
///
/// \par Errors
/// - NE_BAD_PARAM: `tail` is none of these.
/// - NE_REAL_ARG_LE: `df1` is not greater than 0.
/// - NE_REAL_ARG_LE: `df2` is not greater than 0.
/// - NE_REAL_ARG_LT: `f` is less than 0.
/// \par Accuracy
/// Each tail is computed as a tail, never as a difference from 1: small relative errors down to 1e-300. A NaN gives
/// NaN.
/// \par Method
/// df1 f / df2 are the odds of a beta variable with shapes df1/2 and df2/2, for all degrees up to 1e22; beyond that
/// chi-squared. The time grows as the root of the smaller of the two degrees.
/// \par Thread safety
/// Safe.
/// \par See also
/// g01fdc() for the inverse.
/// \par Example
/// \code{.c}
/// double q = g01edc(Kor_UpperTail, 4.0, 3.0, 12.0, &fail);   // q = 0.0345903571556469
/// \endcode
double g01edc(Integer tail, double f, double df1, double df2, KorError *fail);

/// \brief Deviates of the F law.
///
/// The f with P(F <= f) = `p`; 0 for `p` = 0.
///
/// \param[in] p the lower tail probability, at least 0 and less than 1
/// \param[in] df1 degrees of freedom of the numerator, greater than 0
/// \param[in] df2 degrees of freedom of the denominator, greater than 0
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
/// \return f; 0 after an error
///
/// \par Errors
/// - NE_REAL_ARG_LT: `p` is less than 0.
/// - NE_REAL_ARG_GE: `p` is not less than 1.
/// - NE_REAL_ARG_LE: `df1` is not greater than 0.
/// - NE_REAL_ARG_LE: `df2` is not greater than 0.
/// - NE_PROBAB_CLOSE_TO_TAIL: the deviate is too small or too large for a number; the result is 0.
/// - NE_SOL_NOT_CONV: the search has not converged; the result is its last point. No argument is known that leads here.
/// \par Accuracy
/// As good as the condition of the problem allows: the tail of the result is `p` within a few units in the last place.
/// \par Method
/// Newton's method for the logarithm of the smaller tail against the logarithm of the variable, the odds df1 f / df2.
/// \par Thread safety
/// Safe.
/// \par See also
/// g01edc()
/// \par Example
/// \code{.c}
/// double f = g01fdc(0.95, 3.0, 12.0, &fail);   // f = 3.49029481949761
/// \endcode
double g01fdc(double p, double df1, double df2, KorError *fail);

/// \brief Tail probabilities and density of the beta law.
///
/// The density is x^(a-1) (1-x)^(b-1) / B(a, b) on (0, 1).
///
/// \param[in] x the value, from 0 to 1
/// \param[in] a first shape, greater than 0, at most 1.0e6
/// \param[in] b second shape, greater than 0, at most 1.0e6
/// \param[in] tol relative accuracy wanted; not read, because the result is always as accurate as can be
/// \param[out] p P(X <= x)
/// \param[out] q P(X > x)
/// \param[out] pdf the density at `x`; 0 at `x` = 0 and `x` = 1 whatever the shapes
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_REAL_ARG_LT: `x` is less than 0.
/// - NE_REAL_ARG_GT: `x` is greater than 1.
/// - NE_REAL_ARG_LE: `a` is not greater than 0.
/// - NE_REAL_ARG_GT: `a` is greater than 1.0e6.
/// - NE_REAL_ARG_LE: `b` is not greater than 0.
/// - NE_REAL_ARG_GT: `b` is greater than 1.0e6.
/// - NE_PROBAB_CLOSE_TO_TAIL: the smaller tail is below 2.2e-308; `p`, `q`, `pdf` are 1, 0, 0 for `x` >= 0.5 and 0, 1,
///   0 below. After the other errors they are untouched.
/// \par Accuracy
/// Each tail is computed as a tail, never as a difference from 1: small relative errors down to 1e-300. A NaN gives
/// NaN.
/// \par Method
/// A power series of positive terms below the mean, a continued fraction near it, and their factor x^a (1-x)^b / B(a,
/// b) as a saddle point with a low part. A. R. DiDonato and A. H. Morris, ACM Trans. Math. Softw. 18 (1992) 360-373.
/// \par Thread safety
/// Safe.
/// \par See also
/// g01fec() for the inverse.
/// \par Example
/// \code{.c}
/// double p, q, pdf;
/// g01eec(0.25, 1.0, 2.0, 0.0, &p, &q, &pdf, &fail);   // p = 0.4375, q = 0.5625, pdf = 1.5
/// \endcode
void g01eec(double x, double a, double b, double tol, double *p, double *q, double *pdf, KorError *fail);

/// \brief Deviates of the beta law.
///
/// The x with P(X <= x) = `p`; 0 and 1 for `p` = 0 and 1.
///
/// \param[in] p the lower tail probability, from 0 to 1
/// \param[in] a first shape, greater than 0, at most 1.0e6
/// \param[in] b second shape, greater than 0, at most 1.0e6
/// \param[in] tol relative accuracy wanted; not read, because the result is always as accurate as can be
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
/// \return x; 0 also where x is below the smallest number; 0 after an error
///
/// \par Errors
/// - NE_REAL_ARG_LT: `p` is less than 0.
/// - NE_REAL_ARG_GT: `p` is greater than 1.
/// - NE_REAL_ARG_LE: `a` is not greater than 0.
/// - NE_REAL_ARG_GT: `a` is greater than 1.0e6.
/// - NE_REAL_ARG_LE: `b` is not greater than 0.
/// - NE_REAL_ARG_GT: `b` is greater than 1.0e6.
/// - NE_SOL_NOT_CONV: the search has not converged; the result is its last point. No argument is known that leads here.
/// \par Accuracy
/// As good as the condition of the problem allows: the tail of the result is `p` within a few units in the last place.
/// \par Method
/// Newton's method for the logarithm of the smaller tail against the logarithm of the variable, the odds x / (1 - x).
/// \par Thread safety
/// Safe.
/// \par See also
/// g01eec()
/// \par Example
/// \code{.c}
/// double x = g01fec(0.4375, 1.0, 2.0, 0.0, &fail);   // x = 0.25
/// \endcode
double g01fec(double p, double a, double b, double tol, KorError *fail);

/// \brief Tail probabilities of the gamma law.
///
/// The density is x^(a-1) exp(-x/b) / (b^a Gamma(a)), x > 0.
///
/// \param[in] tail Kor_LowerTail or Kor_UpperTail
/// \param[in] g the value, at least 0, in the unit of `b`
/// \param[in] a the shape, greater than 0
/// \param[in] b the scale, greater than 0
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
/// \return the probability; 0 after an error
///
/// \par Errors
/// - NE_BAD_PARAM: `tail` is none of these.
/// - NE_REAL_ARG_LT: `g` is less than 0.
/// - NE_REAL_ARG_LE: `a` is not greater than 0.
/// - NE_REAL_ARG_LE: `b` is not greater than 0.
/// \par Accuracy
/// Each tail is computed as a tail, never as a difference from 1: small relative errors down to 1e-300. A NaN gives
/// NaN. Given the quotient g/b, which is rounded.
/// \par Method
/// The incomplete gamma ratios of shape a at g/b.
/// \par Thread safety
/// Safe.
/// \par See also
/// g01ffc() for the inverse.
/// \par Example
/// \code{.c}
/// double q = g01efc(Kor_UpperTail, 3.0, 1.0, 1.5, &fail);   // q = 0.135335283236613
/// \endcode
double g01efc(Integer tail, double g, double a, double b, KorError *fail);

/// \brief Deviates of the gamma law.
///
/// The g with P(X <= g) = `p`; 0 for `p` = 0.
///
/// \param[in] p the lower tail probability, at least 0 and less than 1
/// \param[in] a the shape, greater than 0, at most 1.0e6
/// \param[in] b the scale, greater than 0
/// \param[in] tol relative accuracy wanted; not read, because the result is always as accurate as can be
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
/// \return g; 0 after an error
///
/// \par Errors
/// - NE_REAL_ARG_LT: `p` is less than 0.
/// - NE_REAL_ARG_GE: `p` is not less than 1.
/// - NE_REAL_ARG_LE: `a` is not greater than 0.
/// - NE_REAL_ARG_GT: `a` is greater than 1.0e6.
/// - NE_REAL_ARG_LE: `b` is not greater than 0.
/// - NE_PROBAB_CLOSE_TO_TAIL: the deviate is too small or too large for a number; the result is 0.
/// - NE_SOL_NOT_CONV: the search has not converged; the result is its last point. No argument is known that leads here.
/// \par Accuracy
/// As good as the condition of the problem allows: the tail of the result is `p` within a few units in the last place.
/// \par Method
/// Newton's method for the logarithm of the smaller tail against the logarithm of the variable; log-concavity makes
/// convergence monotone.
/// \par Thread safety
/// Safe.
/// \par See also
/// g01efc()
/// \par Example
/// \code{.c}
/// double g = g01ffc(0.5, 1.0, 1.0, 0.0, &fail);   // g = 0.693147180559945
/// \endcode
double g01ffc(double p, double a, double b, double tol, KorError *fail);

/// \brief The upper tail of the chi-squared law with a whole number of degrees of freedom.
///
/// P(X > x), X the sum of the squares of `n` standard normal variables.
///
/// \param[in] x the value, at least 0
/// \param[in] n degrees of freedom, at least 1
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
/// \return the probability; 0 after an error
///
/// \par Errors
/// - NE_REAL_ARG_LT: `x` is less than 0.
/// - NE_INT_ARG_LT: `n` is less than 1.
/// \par Accuracy
/// Each tail is computed as a tail, never as a difference from 1: small relative errors down to 1e-300. A NaN gives
/// NaN.
/// \par Method
/// The incomplete gamma ratio of shape n/2 at x/2.
/// \par Thread safety
/// Safe.
/// \par See also
/// g01ecc(), which takes any degrees of freedom and either tail.
/// \par Example
/// \code{.c}
/// double q = g01bcc(18.3, 10, &fail);   // q = 0.0501090614114625
/// \endcode
double g01bcc(double x, Integer n, KorError *fail);

/// \brief Probabilities of the binomial law.
///
/// X is the number of successes in `n` independent trials that succeed with probability `p` each.
///
/// \param[in] n trials, at least 0
/// \param[in] p probability of success, strictly between 0 and 1
/// \param[in] k successes, from 0 to `n`
/// \param[out] plek P(X <= k)
/// \param[out] pgtk P(X > k)
/// \param[out] peqk P(X = k)
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `n` or `k` is less than 0.
/// - NE_REAL_ARG_LE: `p` is not greater than 0.
/// - NE_REAL_ARG_GE: `p` is not less than 1.
/// - NE_2_INT_ARG_GT: `k` is greater than `n`.
/// - NE_ARG_TOO_LARGE: `n` is too large for a double to hold exactly.
/// - NE_VARIANCE_TOO_LARGE: n p (1 - p) exceeds 1.0e6.
/// \par Accuracy
/// Each of the three is computed as what it is: relative errors of at most 1e-14 down to 1e-300.
/// \par Method
/// The tails are those of beta laws, see g01eec(); the point probability is a saddle point with a low part. C. Loader,
/// Fast and accurate computation of binomial probabilities (2000).
/// \par Thread safety
/// Safe.
/// \par See also
/// g01bkc(), g01blc()
/// \par Example
/// \code{.c}
/// double le, gt, eq;
/// g01bjc(10, 0.5, 5, &le, &gt, &eq, &fail);   // le = 0.623046875, gt = 0.376953125, eq = 0.24609375
/// \endcode
void g01bjc(Integer n, double p, Integer k, double *plek, double *pgtk, double *peqk, KorError *fail);

/// \brief Probabilities of the Poisson law.
///
/// P(X = k) = rlamda^k exp(-rlamda) / k!.
///
/// \param[in] rlamda the mean, greater than 0, at most 1.0e6
/// \param[in] k the count, at least 0
/// \param[out] plek P(X <= k)
/// \param[out] pgtk P(X > k)
/// \param[out] peqk P(X = k)
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_REAL_ARG_LE: `rlamda` is not greater than 0.
/// - NE_REAL_ARG_GT: `rlamda` is greater than 1.0e6.
/// - NE_INT_ARG_LT: `k` is less than 0.
/// \par Accuracy
/// Each of the three is computed as what it is: relative errors of at most 1e-14 down to 1e-300.
/// \par Method
/// The tails are the incomplete gamma ratios of shape k + 1 at `rlamda`.
/// \par Thread safety
/// Safe.
/// \par See also
/// g01bjc(), g01blc()
/// \par Example
/// \code{.c}
/// double le, gt, eq;
/// g01bkc(2.0, 2, &le, &gt, &eq, &fail);   // le = 0.676676416183064, gt = 0.323323583816936, eq = 0.270670566473225
/// \endcode
void g01bkc(double rlamda, Integer k, double *plek, double *pgtk, double *peqk, KorError *fail);

/// \brief Probabilities of the hypergeometric law.
///
/// X is the number of marked objects among `l` drawn without replacement from `n` of which `m` are marked.
///
/// \param[in] n objects, at least 0
/// \param[in] l draws, from 0 to `n`
/// \param[in] m marked objects, from 0 to `n`
/// \param[in] k the count, from max(0, l + m - n) to min(l, m)
/// \param[out] plek P(X <= k)
/// \param[out] pgtk P(X > k)
/// \param[out] peqk P(X = k)
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `n`, `l`, `m` or `k` is less than 0.
/// - NE_2_INT_ARG_GT: `l` or `m` is greater than `n`, or `k` greater than `l` or `m`.
/// - NE_INT_ARG_CONS: `k` is less than l + m - n.
/// - NE_ARG_TOO_LARGE: `n` is too large for a double to hold exactly.
/// - NE_VARIANCE_TOO_LARGE: the variance l m (n - l) (n - m) / (n^2 (n - 1)) exceeds 1.0e6.
/// \par Accuracy
/// Each of the three is computed as what it is: relative errors of at most 1e-14 down to 1e-300.
/// \par Method
/// The point probability from three binomial saddle points with a low part; the tail away from the mean by the ratios
/// of neighbouring terms.
/// \par Thread safety
/// Safe.
/// \par See also
/// g01bjc(), g01bkc()
/// \par Example
/// \code{.c}
/// double le, gt, eq;
/// g01blc(10, 2, 5, 1, &le, &gt, &eq, &fail);   // le = 0.777777777777778, gt = 0.222222222222222, eq = 0.555555555555556
/// \endcode
void g01blc(Integer n, Integer l, Integer m, Integer k, double *plek, double *pgtk, double *peqk, KorError *fail);

/// \brief Lower tail probabilities of the non-central chi-squared law.
///
/// P(X <= x), X the sum of the squares of `df` normal variables of variance 1 whose means have squares that add to
/// `lambda`.
///
/// \param[in] x the value, at least 0
/// \param[in] df degrees of freedom, at least 0; with 0 the law has a mass exp(-lambda/2) at 0
/// \param[in] lambda non-centrality, at least 0, and not 0 where `df` is 0
/// \param[in] tol relative accuracy wanted; a value below 10 x02ajc(), or from 1 up, stands for 10 x02ajc()
/// \param[in] max_iter the number of terms that may be summed, at least 1; 500 is ample unless `lambda` exceeds 1000
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
/// \return the probability; 0 after an error
///
/// \par Errors
/// - NE_REAL_ARG_LT: `x` is less than 0.
/// - NE_REAL_ARG_LT: also for `df` and `lambda`.
/// - NE_2_REAL_ARG_CONS: `df` and `lambda` are both 0.
/// - NE_INT_ARG_LT: `max_iter` is less than 1.
/// - NE_CONV: more than `max_iter` terms are needed.
/// \par Accuracy
/// `tol`, relative to the result, down to 1e-290; about 1e-14 at best. A NaN gives NaN.
/// \par Method
/// Poisson weights times central tails, summed from the top downwards: every operation adds positive numbers.
/// \par Thread safety
/// Safe.
/// \par See also
/// g01ecc()
/// \par Example
/// \code{.c}
/// double p = g01gcc(8.26, 20.0, 3.5, 5e-6, 50, &fail);   // p = 0.00321470412666985
/// \endcode
double g01gcc(double x, double df, double lambda, double tol, Integer max_iter, KorError *fail);

/// \brief Lower tail probabilities of the non-central F law.
///
/// P(F <= f), F the ratio of a non-central chi-squared variable over `df1` and a central one over `df2`.
///
/// \param[in] f the ratio, at least 0
/// \param[in] df1 degrees of freedom of the numerator, greater than 0, at most 1.0e6
/// \param[in] df2 degrees of freedom of the denominator, greater than 0, at most 1.0e6
/// \param[in] lambda non-centrality, from 0 to -2 ln(x02amc()) = 1416.79
/// \param[in] tol relative accuracy wanted; a value below 10 x02ajc(), or from 1 up, stands for 10 x02ajc()
/// \param[in] max_iter the number of terms that may be summed, at least 1; 500 is ample unless `lambda` exceeds 1000
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
/// \return the probability; 0 after an error
///
/// \par Errors
/// - NE_REAL_ARG_LT: `f` is less than 0.
/// - NE_REAL_ARG_CONS: `df1`, `df2` or `lambda` is out of its range.
/// - NE_INT_ARG_LT: `max_iter` is less than 1.
/// - NE_CONV: more than `max_iter` terms are needed.
/// \par Accuracy
/// `tol`, relative to the result, down to 1e-290; about 1e-14 at best. A NaN gives NaN.
/// \par Method
/// Poisson weights times central tails, summed from the top downwards: every operation adds positive numbers.
/// \par Thread safety
/// Safe.
/// \par See also
/// g01edc(), g01gec()
/// \par Example
/// \code{.c}
/// double p = g01gdc(5.5, 1.5, 25.5, 3.0, 5e-6, 50, &fail);   // p = 0.821427363202122
/// \endcode
double g01gdc(double f, double df1, double df2, double lambda, double tol, Integer max_iter, KorError *fail);

/// \brief Lower tail probabilities of the non-central beta law.
///
/// P(X <= x) = sum over j of exp(-lambda/2) (lambda/2)^j / j! times I_x(a + j, b).
///
/// \param[in] x the value, from 0 to 1
/// \param[in] a first shape, greater than 0, at most 1.0e6
/// \param[in] b second shape, greater than 0, at most 1.0e6
/// \param[in] lambda non-centrality, from 0 to -2 ln(x02amc()) = 1416.79
/// \param[in] tol relative accuracy wanted; a value below 10 x02ajc(), or from 1 up, stands for 10 x02ajc()
/// \param[in] max_iter the number of terms that may be summed, at least 1; 500 is ample unless `lambda` exceeds 1000
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
/// \return the probability; 0 after an error
///
/// \par Errors
/// - NE_REAL_ARG_CONS: `x`, `a`, `b` or `lambda` is out of its range.
/// - NE_INT_ARG_LT: `max_iter` is less than 1.
/// - NE_CONV: more than `max_iter` terms are needed.
/// \par Accuracy
/// `tol`, relative to the result, down to 1e-290; about 1e-14 at best. A NaN gives NaN.
/// \par Method
/// Poisson weights times central tails, summed from the top downwards: every operation adds positive numbers.
/// \par Thread safety
/// Safe.
/// \par See also
/// g01eec(), g01gdc()
/// \par Example
/// \code{.c}
/// double p = g01gec(0.25, 1.0, 2.0, 1.0, 0.0, 100, &fail);   // p = 0.316797401942714
/// \endcode
double g01gec(double x, double a, double b, double lambda, double tol, Integer max_iter, KorError *fail);

KOR_END_DECLS

#endif
