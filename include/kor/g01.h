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
/// Within 0.6 units in the last place, given `p`; a `p` next to 1 cannot be known well: use g01fac() with Kor_UpperTail
/// there.
/// \par Method
/// Polynomials on short intervals of the logarithm of the smaller tail, or next to the median of the squared distance of the
/// probability from 1/2.
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
/// Within 0.6 units in the last place, near the median too, where x is small.
/// \par Method
/// Polynomials on short intervals of the logarithm of the smaller tail, or next to the median of the squared distance of the
/// probability from 1/2.
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
/// t^2/df are the odds of a beta variable with shapes 1/2 and df/2, for all `df`: see g01eec(). From df = 30 on nearly always
/// an expansion about the normal law, in powers of 1/(df - 1/2)^2.
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
/// Halley's method for the logarithm of the smaller tail against the logarithm of the variable t^2/df; closed forms in
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
/// Halley's method for the logarithm of the smaller tail against the logarithm of the variable, whose tails are log-
/// concave: the steps cannot go astray.
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
/// chi-squared.
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
/// Halley's method for the logarithm of the smaller tail against the logarithm of the variable, the odds df1 f / df2.
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
/// A power series of positive terms below the mean, a continued fraction near it, an expansion about the normal law where
/// both shapes are large and about the gamma law where one is large and the other at most 1, and their factor x^a (1-x)^b / B(a, b) as a saddle point with a low part. A. R. DiDonato and
/// A. H. Morris, ACM Trans. Math. Softw. 18 (1992) 360-373.
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
/// Halley's method for the logarithm of the smaller tail against the logarithm of the variable, the odds x / (1 - x).
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
/// - NE_ALG_NOT_CONV: the search has not converged; the result is its last point. No argument is known that leads here.
/// \par Accuracy
/// As good as the condition of the problem allows: the tail of the result is `p` within a few units in the last place.
/// \par Method
/// Halley's method for the logarithm of the smaller tail against the logarithm of the variable; log-concavity keeps
/// the steps from going astray. From shape 16 on it starts from the inverse of the uniform expansion of the tail, and one
/// step does: N. M. Temme, Math. Comp. 58 (1992) 755-764.
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

/// \brief Lower tail probabilities of the non-central t law.
///
/// P(T <= t), T = (Z + delta) / S, Z standard normal and S^2 a chi-squared variable divided by its `df` degrees of freedom.
///
/// \param[in] t the value; infinities are allowed
/// \param[in] df degrees of freedom, at least 1; need not be whole
/// \param[in] delta non-centrality, of either sign
/// \param[in] tol relative accuracy wanted; a value below 10 x02ajc(), or from 1 up, stands for 10 x02ajc()
/// \param[in] max_iter the number of terms that may be summed, at least 1; 100 is ample unless `delta` exceeds the root of
///            `df`
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
/// \return the probability; 0 after an error
///
/// \par Errors
/// - NE_REAL_ARG_LT: `df` is less than 1.
/// - NE_INT_ARG_LT: `max_iter` is less than 1.
/// - NE_CONV: more than `max_iter` terms are needed.
/// \par Accuracy
/// `tol`, relative to the result, down to 1e-300; about 1e-14 at best. A NaN gives NaN.
/// \par Method
/// The normal tail averaged over the law of S (for large `delta` the chi-squared tail over that of Z) by the trapezoidal rule,
/// which converges exponentially. All terms are positive.
/// \par Thread safety
/// Safe.
/// \par See also
/// g01ebc()
/// \par Example
/// \code{.c}
/// double p = g01gbc(1.528, 20.0, 2.0, 5e-6, 50, &fail);   // p = 0.31643969
/// \endcode
double g01gbc(double t, double df, double delta, double tol, Integer max_iter, KorError *fail);

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

/// \brief Lower tail probabilities of the bivariate normal law.
///
/// P(X <= x, Y <= y), X and Y standard normal with correlation `rho`.
///
/// \param[in] x first upper limit; infinities are allowed
/// \param[in] y second upper limit; infinities are allowed
/// \param[in] rho correlation, from -1 to 1
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
/// \return the probability; 0 after an error
///
/// \par Errors
/// - NE_REAL_ARG_CONS: `rho` is not in [-1, 1].
/// \par Accuracy
/// Absolute errors of at most 5e-16, for correlations next to -1 and 1 too. A NaN gives NaN.
/// \par Method
/// An integral over the correlation, from 0 or, beyond 0.925, from 1: a Gaussian rule, and a series. R. L. Plackett, Biometrika
/// 41 (1954) 351-360; Z. Drezner and G. O. Wesolowsky, J. Statist. Comput. Simul. 35 (1990) 101-107.
/// \par Thread safety
/// Safe.
/// \par See also
/// g01hbc() for boxes and more variables.
/// \par Example
/// \code{.c}
/// double p = g01hac(1.7, 23.1, 0.0, &fail);   // p = 0.955434537241457
/// \endcode
double g01hac(double x, double y, double rho, KorError *fail);

/// \brief Probabilities of boxes under the multivariate normal law.
///
/// P(X_i <= b_i for all i), P(X_i > a_i for all i), or P(a_i < X_i <= b_i for all i).
///
/// \param[in] tail Kor_LowerTail, Kor_UpperTail or Kor_Central
/// \param[in] n number of variables, 1 to 10
/// \param[in] a `n` lower limits; not looked at for Kor_LowerTail; infinities are allowed
/// \param[in] b `n` upper limits; not looked at for Kor_UpperTail; infinities are allowed
/// \param[in] xmu `n` means
/// \param[in] sig the covariances, n rows of stride `tdsig`; only the lower triangle is read. Positive definite
/// \param[in] tdsig stride of the rows of `sig`, at least `n`
/// \param[in] tol relative accuracy wanted, greater than 0; not looked at for n = 1, and met in any case for n = 2
/// \param[in] maxpts for n >= 3 the most evaluations of the integrand, at least 4 n; 2000 n is reasonable. One application of the
///            rule is made in any case, 401 evaluations for n = 10
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
/// \return the probability; 0 after an error
///
/// \par Errors
/// - NE_BAD_PARAM: `tail` is none of these.
/// - NE_INT_ARG_CONS: `n` is not in 1 to 10.
/// - NE_2_INT_ARG_LT: `tdsig` is less than `n`.
/// - NE_REAL_ARG_LE: `tol` is not greater than 0, and n > 1.
/// - NE_2_INT_ARG_CONS: `maxpts` is less than 4 n, and n >= 3.
/// - NE_2_REAL_ARRAYS_CONS: a limit in `a` is not less than its partner in `b`, for Kor_Central.
/// - NE_NOT_POS_DEF: `sig` is not positive definite.
/// - NE_ALLOC_FAIL: there is not enough memory.
/// - NE_RES_NOT_ACC: `maxpts` evaluations were not enough; the result is the best value found.
/// \par Accuracy
/// A few units in the last place for n = 1, absolute errors of at most 2e-15 for n = 2. For more variables the error
/// estimate of the integration is held below `tol`; n = 3 reaches 1e-12, n = 6 about 1e-5 in 100000 evaluations. A NaN gives NaN.
/// \par Method
/// The last two variables by g01hac(); the first of three by adaptive quadrature, the first of more by adaptive cubature on the
/// unit cube after a transformation that takes one variable after the other. A. Genz, J. Comput. Graph. Statist. 1 (1992)
/// 141-149.
/// \par Thread safety
/// Safe.
/// \par See also
/// g01hac()
/// \par Example
/// \code{.c}
/// const double b[] = {0.0, 0.0, 0.0}, mean[] = {0.0, 0.0, 0.0};
/// const double sig[] = {1.0, 0.5, 0.5, 0.5, 1.0, 0.5, 0.5, 0.5, 1.0};
/// double p = g01hbc(Kor_LowerTail, 3, b, b, mean, sig, 3, 1e-9, 6000, &fail);   // p = 0.25
/// \endcode
double g01hbc(Integer tail, Integer n, const double a[], const double b[], const double xmu[], const double sig[],
              Integer tdsig, double tol, Integer maxpts, KorError *fail);

/// \brief Mean, standard deviation, skewness, kurtosis and range of a sample.
///
/// With W the sum of the weights (of ones, if there are none) and m_k the sum of w (x - mean)^k, divided by W: xsd =
/// sqrt(m_2), xskew = m_3 / m_2^(3/2), xkurt = m_4 / m_2^2 - 3. Note the divisor W: the estimate with n - 1 instead of n is
/// `xsd` times sqrt(n / (n - 1)).
///
/// \param[in] n observations, at least 1
/// \param[in] x the sample, of `n` elements
/// \param[in] wt `n` weights, at least 0; an observation of weight 0 is left out. May be null: all weights are 1
/// \param[out] nvalid observations of positive weight
/// \param[out] xmean their mean, in the unit of `x`
/// \param[out] xsd standard deviation, in the unit of `x`
/// \param[out] xskew skewness
/// \param[out] xkurt kurtosis, 0 for the normal law
/// \param[out] xmin the smallest, NaNs apart
/// \param[out] xmax the largest
/// \param[out] wsum sum of the weights
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `n` is less than 1.
/// - NE_REAL_ARG_LT: a weight is less than 0.
/// - NE_CASES_ZERO: all the weights are 0. `nvalid`, `wsum`, `xsd`, `xskew`, `xkurt` are 0, and the others untouched.
/// - NE_CASES_ONE: only one observation is valid. `xsd`, `xskew`, `xkurt` are 0, and the others hold what they should.
///
/// After the first two the outputs are untouched. Skewness and kurtosis are 0 where the variance is below the fourth root
/// of x02akc(), 1.2e-77, and so also where all observations are equal.
/// \par Accuracy
/// That of the sample as it stands in doubles: mean and standard deviation to a few units in the last place, however small the
/// deviations are beside the mean. Numbers with decimals are rounded when they become doubles, and with a large mean the
/// standard deviation feels that. A NaN gives NaN.
/// \par Method
/// Two passes: the mean to twice the digits, then compensated sums of the powers of the deviations, in units that neither
/// overflow nor underflow.
/// \par Thread safety
/// Safe.
/// \par See also
/// g01alc() for a summary that outliers do not move.
/// \par Example
/// \code{.c}
/// const double x[] = {3.1, 2.7, 3.4, 2.9, 3.0};
/// Integer nvalid;
/// double mean, sd, skew, kurt, least, greatest, weights;
/// g01aac(5, x, NULL, &nvalid, &mean, &sd, &skew, &kurt, &least, &greatest, &weights, &fail);   // 3.02, sd 0.231516738055804
/// \endcode
void g01aac(Integer n, const double x[], const double wt[], Integer *nvalid, double *xmean, double *xsd, double *xskew,
            double *xkurt, double *xmin, double *xmax, double *wsum, KorError *fail);

/// \brief Frequencies of a sample in classes.
///
/// Class 1 holds the values below `cint[0]`, class i those from `cint[i-2]` up to but not including `cint[i-1]`, and the last
/// class the values from `cint[num_class-2]` up: both end classes are open.
///
/// \param[in] n observations, at least 1
/// \param[in] x the sample, of `n` elements
/// \param[in] num_class classes, at least 2
/// \param[in] class_type Kor_ClassBoundaryUser: the boundaries are given; Kor_ClassBoundaryComp: they are computed
/// \param[in,out] cint num_class - 1 boundaries, strictly increasing. Computed ones lie at equal distances, from
///                xmin - 0.0005 d to xmax + 0.0005 d, d the range (or 0.001 |xmin|, or 0.001, where that is 0); with two classes the one
///                boundary is the middle of the range
/// \param[out] ifreq num_class frequencies
/// \param[out] xmin the smallest observation
/// \param[out] xmax the largest
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `n` is less than 1, or `num_class` less than 2.
/// - NE_BAD_PARAM: `class_type` is neither of the two.
/// - NE_NOT_INCREASING: the given boundaries do not increase strictly.
///
/// After an error the outputs are untouched. NaNs are counted nowhere.
/// \par Accuracy
/// Counts are exact.
/// \par Method
/// Bisection among the boundaries.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// const double x[] = {3.1, 2.7, 3.4, 2.9, 3.0};
/// double bounds[] = {2.8, 3.05};
/// Integer counts[3];
/// double least, greatest;
/// g01aec(5, x, 3, Kor_ClassBoundaryUser, bounds, counts, &least, &greatest, &fail);   // 1, 2, 2
/// \endcode
void g01aec(Integer n, const double x[], Integer num_class, Integer class_type, double cint[], Integer ifreq[],
            double *xmin, double *xmax, KorError *fail);

/// \brief The five-number summary of a sample: extremes, hinges and median.
///
/// A hinge is the median of the lower or upper half, to both of which the middle value belongs when `n` is odd.
///
/// \param[in] n observations, at least 5
/// \param[in] x the sample, of `n` elements in any order
/// \param[out] res 5 elements: minimum, lower hinge, median, upper hinge, maximum
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `n` is less than 5.
/// - NE_ALLOC_FAIL: there is not enough memory.
///
/// After an error `res` is untouched.
/// \par Accuracy
/// Observations, or means of two, rounded once. A NaN in the sample makes all five NaN.
/// \par Method
/// Sorting. J. W. Tukey, Exploratory Data Analysis (1977), chapter 2.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// const double x[] = {3.1, 2.7, 3.4, 2.9, 3.0};
/// double five[5];
/// g01alc(5, x, five, &fail);   // 2.7, 2.9, 3.0, 3.1, 3.4
/// \endcode
void g01alc(Integer n, const double x[], double res[], KorError *fail);

/// \brief Normal scores to a given accuracy.
///
/// pp[i-1] is the expected value of the i-th smallest of `n` standard normal variables.
///
/// \param[in] n number of scores, at least 1
/// \param[out] pp `n` scores, ascending; antisymmetric about the middle
/// \param[in] etol largest error allowed, greater than 0
/// \param[out] errest largest estimated error, about 1e-15 for small `n`
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `n` is less than 1.
/// - NE_REAL_ARG_LE: `etol` is not greater than 0.
/// - NE_NORMAL_SCORE_EST: `errest` exceeds `etol`; the scores are as good as they can be. After the others the outputs are
///   untouched.
/// \par Accuracy
/// Absolute errors below 1e-13 up to n = 1e6, whatever `etol`. The time is about 10 us a score.
/// \par Method
/// The trapezoidal rule, which converges exponentially here, about the middle of each order statistic.
/// \par Thread safety
/// Safe.
/// \par See also
/// g01dbc(), g01dhc()
/// \par Example
/// \code{.c}
/// double scores[5], error;
/// g01dac(5, scores, 1e-10, &error, &fail);   // -1.16296447364052, -0.495018970457742, 0, ...
/// \endcode
void g01dac(Integer n, double pp[], double etol, double *errest, KorError *fail);

/// \brief Normal scores.
///
/// pp[i-1] is the expected value of the i-th smallest of `n` standard normal variables.
///
/// \param[in] n number of scores, at least 1
/// \param[out] pp `n` scores, ascending; antisymmetric about the middle
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `n` is less than 1; `pp` is untouched.
/// \par Accuracy
/// Absolute errors below 1e-13 up to n = 1e6: as g01dac().
/// \par Method
/// As g01dac().
/// \par Thread safety
/// Safe.
/// \par See also
/// g01dac() tells an error estimate; g01dhc() gives scores to a sample.
/// \par Example
/// \code{.c}
/// double scores[4];
/// g01dbc(4, scores, &fail);   // -1.02937537300396, -0.297011382274645, 0.297..., 1.029...
/// \endcode
void g01dbc(Integer n, double pp[], KorError *fail);

/// \brief Shapiro and Wilk's test for normality.
///
/// W = (a'x)^2 / S^2, S^2 the sum of the squared deviations from the mean; small values speak against a normal law.
///
/// \param[in] n observations, from 3 to 2000
/// \param[in] x the sample, ascending, of `n` elements
/// \param[in] calc_wts true: the weights are computed; false: `a` holds those of an earlier call with the same `n`
/// \param[in,out] a `n` weights, antisymmetric, with squares that add to 1
/// \param[out] w the statistic
/// \param[out] pw its significance: the probability of a smaller `w` if the law is normal
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `n` is less than 3.
/// - NE_INT_ARG_GT: `n` is greater than 2000.
/// - NE_SAMPLES_NOT_IN_ORDER: `x` does not ascend, or holds a NaN.
/// - NE_SAMPLES_ARE_ALL_EQUAL: all observations are equal.
///
/// After an error the outputs are untouched.
/// \par Accuracy
/// `w` is that of the published weights to all digits but one or two, also next to 1. The law of `w` is known only by a fit:
/// `pw` is good to a few units in the third decimal, and exact for n = 3.
/// \par Method
/// P. Royston, Statist. Comput. 2 (1992) 117-119, and Appl. Statist. 44 (1995) 547-551.
/// \par Thread safety
/// Safe.
/// \par See also
/// m01cac() sorts a sample.
/// \par Example
/// \code{.c}
/// const double x[] = {148, 154, 158, 160, 161, 162, 166, 170, 182, 195, 236};   // weights of men, in pounds
/// double a[11], w, pw;
/// g01ddc(11, x, 1, a, &w, &pw, &fail);   // w = 0.789, pw = 0.0067
/// \endcode
void g01ddc(Integer n, const double x[], Boolean calc_wts, double a[], double *w, double *pw, KorError *fail);

/// \brief Ranks and scores of a sample.
///
/// The i-th smallest of the `n` observations scores
/// - Kor_RankScores: i
/// - Kor_NormalScores: the expected value of the i-th smallest of n standard normal variables
/// - Kor_BlomScores, Kor_TukeyScores, Kor_WaerdenScores: the normal deviate of (i - 3/8) / (n + 1/4), of (i - 1/3) / (n + 1/3),
///   of i / (n + 1)
/// - Kor_SavageScores: the expected value of the i-th smallest of n standard exponential variables, 1/n + ... + 1/(n-i+1).
///
/// Equal observations get
/// - Kor_AverageTies: the mean of the scores of their group
/// - Kor_LowestTies, Kor_HighestTies: the lowest or the highest of them
/// - Kor_RandomTies: the scores of the group in random order, by g05ehc()
/// - Kor_IgnoreTies: the scores of the group in the order in which they stand.
///
/// \param[in] scores which scores: one of the six above
/// \param[in] ties what equal observations get: one of the five above
/// \param[in] n observations, at least 1
/// \param[in] x the sample, of `n` elements in any order
/// \param[out] r `n` scores, r[j] that of x[j]
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_BAD_PARAM: `scores` or `ties` is none of these.
/// - NE_INT_ARG_LT: `n` is less than 1.
/// - NE_ALLOC_FAIL: there is not enough memory.
///
/// After an error `r` is untouched. NaNs count as equal, and as greater than all else.
/// \par Accuracy
/// Ranks are exact; other scores have errors of a few units in the last place, normal scores absolute ones below 1e-13.
/// \par Method
/// A stable sort, and the scores as above.
/// \par Thread safety
/// Safe; Kor_RandomTies draws from the generator of the thread.
/// \par See also
/// g01dbc()
/// \par Example
/// \code{.c}
/// const double x[] = {3.1, 2.7, 3.1, 2.9};
/// double r[4];
/// g01dhc(Kor_RankScores, Kor_AverageTies, 4, x, r, &fail);   // 3.5, 1, 3.5, 2
/// \endcode
void g01dhc(Integer scores, Integer ties, Integer n, const double x[], double r[], KorError *fail);

KOR_END_DECLS

#endif
