/// \file g05.h
/// Chapter g05: random numbers.
///
/// All routines draw from one uniform generator, of which each thread has its own: x(i+1) = 13^13 x(i) mod 2^59,
/// delivered as x / 2^59 rounded to double. A thread that has not been seeded starts from the same default value as
/// every other: give each thread a seed of its own, and draw these seeds with g05dyc(0, 2147483647) rather than count
/// them. Drawing takes no lock, and nothing is shared between threads. All results are the same bits on every
/// processor.
///
/// The generator serves simulation of ordinary size. Its period is 2^57, about 1.4 10^17; one simulation should stay
/// below the square root of that, 4 10^8 numbers. Successive k-tuples lie on a lattice, as those of every generator of
/// this kind, and the low bits of x have short periods. Streams keep the ratios of their seeds: with seeds 0 and 1 the
/// numbers of one are three times those of the other, modulo 1; with three seeds in a row u - 2 v + w is an integer at
/// every step. It is not fit for cryptography. The guide of the chapter says more.
#ifndef KOR_G05_H
#define KOR_G05_H

#include <kor.h>

KOR_BEGIN_DECLS

/// What g05ddc() and g05dgc() carry from call to call.
typedef struct {
    double v
        [2]; ///< [0]: the fraction that holds the random bits of g05ddc(); [1]: the spare of g05dgc(), negative if none
} KorG05Carry;

/// \brief The next uniform random number of this thread's stream.
///
/// \return a number greater than 0 and less than 1: x / 2^59, between 2^-59 and 1 - 2^-53
///
/// \par Errors
/// None.
/// \par Accuracy
/// The number is x / 2^59 rounded once; what would round to 1 becomes 1 - 2^-53.
/// \par Method
/// Multiplicative congruential generator, x(i+1) = 13^13 x(i) mod 2^59, x odd; period 2^57. Sixty-three numbers are
/// made at a time and wait in a buffer. D. H. Lehmer, Ann. Comput. Lab. Harvard 26 (1951) 141-146.
/// \par Thread safety
/// Safe, without a lock: each thread has its own stream.
/// \par Example
/// \code{.c}
/// g05cbc(0);
/// double u = g05cac();   // 0.795121...
/// \endcode
double g05cac(void);

/// \brief Starts this thread's stream from a seed: the same seed gives the same stream, everywhere.
///
/// The stream starts behind x = 2 |seed| + 1, and one term is skipped. What samplers carry over is discarded. Seeds of
/// streams that are used together should be large and without a pattern: see the head of the chapter.
///
/// \param[in] seed any integer; its sign does not count
///
/// \par Errors
/// None.
/// \par Thread safety
/// Safe: it concerns this thread alone.
/// \par Example
/// \code{.c}
/// g05cbc(20240517);
/// \endcode
void g05cbc(Integer seed);

/// \brief Starts this thread's stream from the clock: a different stream in each call.
///
/// The seed is the time in seconds, or one more than the last seed from the clock if that is not less, in any thread.
/// Save the state with g05cfc() where a run must be repeatable after all.
///
/// \par Errors
/// - NE_SYSTEM_TIME: the clock cannot be read. There is no record to report to: the process ends.
/// \par Thread safety
/// Safe: two threads that call at once get different seeds.
/// \par Example
/// \code{.c}
/// g05ccc();
/// \endcode
void g05ccc(void);

/// \brief Puts this thread's stream back to its default start.
///
/// The stream is then the one that a thread has when it draws without any seeding; no term is skipped. What samplers
/// carry over is discarded.
///
/// \par Errors
/// None.
/// \par Thread safety
/// Safe: it concerns this thread alone.
/// \par Example
/// \code{.c}
/// g05cxc();
/// \endcode
void g05cxc(void);

/// \brief Saves this thread's stream, with all that samplers carry over.
///
/// Give both arrays to g05cgc(), in this thread or another, now or in a later run, to go on from here. They hold plain
/// numbers and may be written to a file; print `xstate` with 17 digits.
///
/// \param[out] istate 9 elements: the term reached, in pieces, behind a check sum
/// \param[out] xstate 4 elements: the values carried over, behind a check value
///
/// \par Errors
/// None.
/// \par Thread safety
/// Safe: it concerns this thread alone.
/// \par Example
/// \code{.c}
/// Integer istate[9];
/// double xstate[4];
/// g05cfc(istate, xstate);
/// double u = g05cac();
/// g05cgc(istate, xstate, &fail);
/// double same = g05cac();   // equal to u
/// \endcode
void g05cfc(Integer istate[], double xstate[]);

/// \brief Restores a stream that g05cfc() saved.
///
/// The next number is the one that followed when the state was saved, and samplers go on with what they carried then.
///
/// \param[in] istate the 9 elements of g05cfc()
/// \param[in] xstate the 4 elements of g05cfc()
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_STATE_CORRUPT: the arrays do not hold a saved state: a check sum does not agree, or an element cannot be. The
///   stream goes on as it was.
/// \par Thread safety
/// Safe: it concerns this thread alone.
/// \par Example
/// See g05cfc().
void g05cgc(const Integer istate[], const double xstate[], KorError *fail);

/// \brief What g05ddc() and g05dgc() of this thread carry over to their next calls.
/// \return the two values
/// \par Thread safety
/// Safe.
KorG05Carry get_bg05ca(void);

/// \brief The normal deviate that g05fdc() of this thread has in hand.
/// \return the deviate, of mean 0 and standard deviation 1; exactly 256 if there is none
/// \par Thread safety
/// Safe.
double get_dg05ca(void);

/// \brief A uniform random number between two ends.
///
/// a (1 - U) + b U, where U is the next uniform number and a the lower end.
///
/// \param[in] a one end
/// \param[in] b the other end, less than, equal to or greater than `a`
/// \return a number in the closed range
///
/// \par Errors
/// None. Ends that are not finite give a result that is not.
/// \par Accuracy
/// Never outside the range, whatever rounding does; with an end at 0 the number has full relative accuracy.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double angle = g05dac(0.0, 6.283185307179586);
/// \endcode
double g05dac(double a, double b);

/// \brief An exponential deviate.
///
/// -|a| log U: density exp(-x / |a|) / |a|. Exactly one uniform number is used.
///
/// \param[in] a the mean; its sign does not count
/// \return the deviate, not negative
///
/// \par Errors
/// None.
/// \par Accuracy
/// Within 2 ulp of the formula.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double gap = g05dbc(2.5);   // time to the next arrival, in the mean 2.5
/// \endcode
double g05dbc(double a);

/// \brief A normal deviate.
///
/// \param[in] a the mean
/// \param[in] b the standard deviation
/// \return the deviate
///
/// \par Errors
/// None.
/// \par Accuracy
/// The law is exact down to tails of 2^-40; deviates beyond 7.1 standard deviations are not made.
/// \par Method
/// Random bits choose an interval between normal quantiles, comparisons of uniform numbers a point in it: no elementary
/// function is formed. R. P. Brent, Comm. ACM 17 (1974) 704-706. It uses two uniform numbers or more, 2.4 in the
/// mean, and carries a fraction over to its next call. g05fdc() is faster for many deviates.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double height = g05ddc(175.0, 7.5);
/// \endcode
double g05ddc(double a, double b);

/// \brief A Cauchy deviate.
///
/// Density 1 / (pi b (1 + ((x - a) / b)^2)).
///
/// \param[in] a the median
/// \param[in] b half the distance between the quartiles
/// \return the deviate
///
/// \par Errors
/// None.
/// \par Method
/// Ratio of the coordinates of a point that is uniform in a half disc: two uniform numbers, 2.5 in the mean.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double x = g05dfc(0.0, 1.0);
/// \endcode
double g05dfc(double a, double b);

/// \brief A gamma deviate whose shape is a multiple of one half: a chi-squared deviate, scaled.
///
/// b times a gamma deviate of shape g and scale 1, whose density is x^(g-1) exp(-x) / Gamma(g). With b = 2 it is a
/// chi-squared deviate with 2g degrees of freedom.
///
/// \param[in] g the shape, not negative; 2g is an integer to within 1e-6; 0 gives 0
/// \param[in] b the scale, not negative
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
/// \return the deviate; 0 after an error
///
/// \par Errors
/// - NE_REAL_ARG_LT: 2g or `b` is negative.
/// - NE_REAL_ARG_NON_INTEGRAL: 2g is not an integer.
/// - NE_REAL_ARG_GT: 2g is greater than 2147483647.
/// \par Method
/// A sum of exponential deviates and, for odd 2g, half the square of a normal deviate; these come in pairs, and the
/// spare one waits for the next call. The time is proportional to g: g05ffc() takes any shape at the same cost.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double chi2 = g05dgc(2.5, 2.0, &fail);   // 5 degrees of freedom
/// \endcode
double g05dgc(double g, double b, KorError *fail);

/// \brief A Poisson deviate, for means that may change from call to call.
///
/// Probability of k: exp(-alamda) alamda^k / k!. What depends on the mean is kept until a call with another mean.
///
/// \param[in]  alamda the mean, greater than 0, at most 1073741823.5
/// \param[out] status 0: done; 1: `alamda` is not greater than 0; 2: it is too large
/// \return the deviate; 0 when `status` is not 0
///
/// \par Errors
/// None through a record: `status`, and a line on the standard output stream.
/// \par Method
/// Means below 7.5: products of uniform numbers. Others: ratio of uniforms, three uniform numbers a trial, J. H. Ahrens
/// and U. Dieter, Computing 25 (1980) 193-208. For a mean that stays the same g05ecc() and g05eyc() are faster.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// Integer status, events = g05drc(12.5, &status);
/// \endcode
Integer g05drc(double alamda, Integer *status);

/// \brief A random integer from a closed range, each with the same probability.
///
/// \param[in] a one end
/// \param[in] b the other end, less than, equal to or greater than `a`
/// \return an integer between the ends, both of which can come
///
/// \par Errors
/// None.
/// \par Accuracy
/// Probabilities agree to a relative 2^-20 for the widest range, to 2^-47 for six values.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// Integer die = g05dyc(1, 6);
/// \endcode
Integer g05dyc(Integer a, Integer b);

/// \brief Sets up the reference vector of a multivariate normal law, for g05ezc().
///
/// The covariance matrix is factored, c = L L'; it may be singular.
///
/// \param[in]  a   n elements: the means
/// \param[in]  n   the number of variables, at least 1
/// \param[in]  c   n rows of `tdc` elements: the covariance matrix; the lower triangle is read
/// \param[in]  tdc the length of the rows of `c`, at least n
/// \param[in]  eps the relative accuracy of `c`: faults up to eps times the variances (a negative variance in what is left
///                 of a variable when others are given, a covariance where no variance is left) are taken for rounding
///                 errors; at least 0, at most 0.1 / n. Use 0 for a matrix that is right to the last digits
/// \param[out] r   `lr` elements, of which (n+1)(n+2)/2 are used: n, the means, the columns of L
/// \param[in]  lr  the length of `r`, at least (n+1)(n+2)/2 + 1
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `n` is less than 1, or `lr` too small.
/// - NE_2_INT_ARG_LT: `tdc` is less than `n`.
/// - NE_REAL_ARG_LT: `eps` is negative.
/// - NE_REAL_ARG_GT: `eps` is greater than 0.1 / n.
/// - NE_NOT_POS_SEM_DEF: `c` is not positive semi-definite to the accuracy `eps`, or not finite.
/// - NE_ALLOC_FAIL: no memory.
///
/// `r` is untouched after an error.
/// \par Accuracy
/// L L' differs from c by at most about 8 n machine precisions times the variances (or, where that much is wrong with c, by
/// eps times them), however near to singular c is.
/// \par Method
/// Cholesky's factorisation, in the order of the variables. Where it fails, because c is singular to rounding error or
/// worse: with the largest remaining variance first, N. J. Higham, in Reliable Numerical Computation (1990) 161-185, and an
/// LQ factorisation that makes the factor triangular.
/// \par Thread safety
/// Safe. The vector may be read by several threads at once.
/// \par Example
/// \code{.c}
/// const double mean[] = {1.0, 2.0}, c[] = {4.0, 1.0, 1.0, 3.0};
/// double r[7], z[2];
/// g05eac(mean, 2, c, 2, 0.0, r, 7, &fail);
/// g05ezc(z, r);
/// \endcode
void g05eac(const double a[], Integer n, const double c[], Integer tdc, double eps, double r[], Integer lr,
            KorError *fail);

/// \brief Sets up the reference vector of a Poisson law, for g05eyc().
///
/// The table holds the values from trunc(t - 7.15 sqrt(t)), or 0, to trunc(t + 7.15 sqrt(t) + 8.5).
///
/// \param[in]  t  the mean, not negative, at most 2.147e9
/// \param[out] r  `nr` elements
/// \param[in]  nr the length of `r`, at least trunc(20 sqrt(t)) + 20; a longer one makes g05eyc() a little faster
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_REAL_ARG_LT: `t` is negative.
/// - NE_REAL_ARG_GT: `t` is greater than 2.147e9.
/// - NE_INT_ARG_LT: `nr` is too small; the message gives the length needed.
/// - NE_ALLOC_FAIL: no memory.
///
/// `r` is untouched after an error.
/// \par Accuracy
/// Values outside the table, of a total probability below 2e-12, are not made; the probabilities of the others are
/// right to about 1e-15 of their sum.
/// \par Method
/// Ratios of neighbouring probabilities, from the mode outwards; indexed search, H. C. Chen and Y. Asau, AIIE Trans. 6
/// (1974) 163-166.
/// \par Thread safety
/// Safe. The vector may be read by several threads at once.
/// \par Example
/// \code{.c}
/// double r[120];
/// g05ecc(25.0, r, 120, &fail);
/// Integer k = g05eyc(r);
/// \endcode
void g05ecc(double t, double r[], Integer nr, KorError *fail);

/// \brief Sets up the reference vector of a binomial law, for g05eyc().
///
/// The table holds the values within 7.15 standard deviations of the mean, as that of g05ecc(), and at most n.
///
/// \param[in]  n  the number of trials, not negative
/// \param[in]  p  the probability of success in a trial, from 0 to 1
/// \param[out] r  `nr` elements
/// \param[in]  nr the length of `r`, at least trunc(20 sqrt(n p (1 - p))) + 20; a longer one makes g05eyc() a little
///                faster
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `n` is negative; or `nr` is too small, and the message gives the length needed.
/// - NE_REAL_ARG_LT: `p` is negative.
/// - NE_REAL_ARG_GT: `p` is greater than 1.
/// - NE_ALLOC_FAIL: no memory.
///
/// `r` is untouched after an error.
/// \par Accuracy
/// As g05ecc().
/// \par Method
/// As g05ecc().
/// \par Thread safety
/// Safe. The vector may be read by several threads at once.
/// \par Example
/// \code{.c}
/// double r[70];
/// g05edc(20, 0.3, r, 70, &fail);
/// Integer successes = g05eyc(r);
/// \endcode
void g05edc(Integer n, double p, double r[], Integer nr, KorError *fail);

/// \brief Sets up the reference vector of any discrete law, for g05eyc().
///
/// The law gives the values ip1, ip1 + 1, ..., ip1 + np - 1. Its probabilities, or cumulative probabilities, are
/// divided by their total: weights of any total serve as well.
///
/// \param[in]  p         np elements: probabilities, not negative; or cumulative probabilities, not decreasing
/// \param[in]  np        the number of values, at least 1
/// \param[in]  ip1       the value to which `p[0]` belongs
/// \param[in]  comp_type Kor_PDF: `p` holds probabilities; Kor_CDF: cumulative ones
/// \param[out] r         `nr` elements; must not overlap `p`
/// \param[in]  nr        the length of `r`, at least trunc(1.4 np + 0.5) + 5; a longer one makes g05eyc() a little
///                       faster
/// \param[in,out] fail   the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `np` is less than 1; or `nr` is too small, and the message gives the length needed.
/// - NE_INT_ARG_GT: the last value would not be an Integer.
/// - NE_BAD_PARAM: `comp_type` is neither Kor_PDF nor Kor_CDF.
/// - NE_NEG_PROB: an element of `p` is negative or not a number.
/// - NE_NOT_INCREASING: cumulative probabilities decrease.
/// - NE_ALL_PROB_ZERO: the total is 0.
/// - NE_PROB_NOT_ONE: the total is infinite.
///
/// `r` is untouched after an error.
/// \par Accuracy
/// The table is right to the last bit or two. A value of probability 0 is never made.
/// \par Method
/// Indexed search, H. C. Chen and Y. Asau, AIIE Trans. 6 (1974) 163-166.
/// \par Thread safety
/// Safe. The vector may be read by several threads at once.
/// \par Example
/// \code{.c}
/// const double loaded[] = {1.0, 1.0, 1.0, 1.0, 1.0, 5.0};
/// double r[13];
/// g05exc(loaded, 6, 1, Kor_PDF, r, 13, &fail);
/// Integer die = g05eyc(r);                     // a six in half of all throws
/// \endcode
void g05exc(const double p[], Integer np, Integer ip1, Integer comp_type, double r[], Integer nr, KorError *fail);

/// \brief A random integer from a discrete law, by its reference vector.
///
/// \param[in] r the vector that g05ecc(), g05edc() or g05exc() has set up
/// \return the integer; 0 when `r` is not such a vector
///
/// \par Errors
/// There is no record. Where it shows that `r` was never set up, or belongs to g05ezc(), the text of NE_REF_VEC goes to
/// the standard error stream and nothing is drawn.
/// \par Accuracy
/// That of the table.
/// \par Method
/// Indexed search: one uniform number, and from one to four comparisons in the mean.
/// \par Thread safety
/// Safe; threads may share a vector.
/// \par Example
/// See g05exc().
Integer g05eyc(const double r[]);

/// \brief A random vector from a multivariate normal law, by its reference vector.
///
/// z = a + L w, where w holds n deviates of g05ddc(0, 1).
///
/// \param[out] z n elements: the vector
/// \param[in]  r the vector that g05eac() has set up
///
/// \par Errors
/// There is no record. Where it shows that `r` was never set up, or belongs to g05eyc(), the text of NE_REF_VEC goes to
/// the standard error stream, nothing is drawn and `z` is untouched.
/// \par Thread safety
/// Safe; threads may share a reference vector.
/// \par Example
/// See g05eac().
void g05ezc(double z[], const double r[]);

/// \brief Puts integers into random order, each order with the same probability.
///
/// \param[in,out] index n elements, in any order; on return in random order
/// \param[in]     n     their number, at least 1
/// \param[in,out] fail  the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `n` is less than 1. The report calls the routine "G05EHC".
/// \par Method
/// n - 1 exchanges, one uniform number each. R. Durstenfeld, Comm. ACM 7 (1964) 420. A stream of period 2^57 reaches
/// all orders of 18 elements at most.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// Integer order[] = {0, 1, 2, 3, 4};
/// g05ehc(order, 5, &fail);
/// \endcode
void g05ehc(Integer index[], Integer n, KorError *fail);

/// \brief A random sample of integers without replacement, each sample with the same probability.
///
/// \param[in]  ia n elements: the population
/// \param[in]  n  its size, at least 1
/// \param[out] iz m elements: the sample, in the order of the population
/// \param[in]  m  its size, from 1 to n
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `n` or `m` is less than 1.
/// - NE_2_INT_ARG_GT: `m` is greater than `n`.
/// \par Method
/// Each element in turn is taken with probability (still wanted) / (still left), one uniform number each, until the
/// sample is complete. D. E. Knuth, The Art of Computer Programming 2, 3.4.2, algorithm S.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// const Integer patients[] = {101, 102, 103, 104, 105, 106};
/// Integer treated[3];
/// g05ejc(patients, 6, treated, 3, &fail);
/// \endcode
void g05ejc(const Integer ia[], Integer n, Integer iz[], Integer m, KorError *fail);

/// \brief Uniform random numbers in bulk.
///
/// The numbers that n calls of g05dac(a, b) would give, many times faster.
///
/// \param[in]  a one end
/// \param[in]  b the other end, less than, equal to or greater than `a`
/// \param[in]  n how many; nothing is done if it is less than 1
/// \param[out] x n elements in the closed range
///
/// \par Errors
/// None.
/// \par Accuracy
/// As g05dac().
/// \par Method
/// As g05cac(), in blocks of vector code.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double x[1000];
/// g05fac(0.0, 1.0, 1000, x);
/// \endcode
void g05fac(double a, double b, Integer n, double x[]);

/// \brief Normal deviates in bulk.
///
/// The deviates come in pairs: a + b r cos(t), a + b r sin(t) with r = sqrt(-2 log U), t = 2 pi V. With an odd number
/// of them one is in hand at the end; it is the first of the next call.
///
/// \param[in]  a the mean
/// \param[in]  b the standard deviation
/// \param[in]  n how many; nothing is done if it is less than 1
/// \param[out] x n elements: the deviates
///
/// \par Errors
/// None.
/// \par Accuracy
/// Logarithm, cosine and sine are right to 0.9 ulp, a deviate of mean 0 to 2.5 ulp of the formula. Deviates reach 9.04
/// standard deviations.
/// \par Method
/// G. E. P. Box and M. E. Muller, Ann. Math. Statist. 29 (1958) 610-611, in vector code. A run cut into several calls
/// gives the same deviates as one call.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double x[1000];
/// g05fdc(0.0, 1.0, 1000, x);
/// \endcode
void g05fdc(double a, double b, Integer n, double x[]);

/// \brief Beta deviates.
///
/// Density x^(a-1) (1-x)^(b-1) / B(a, b), 0 < x < 1.
///
/// \param[in]  a the first parameter, greater than 0, at most 1e300
/// \param[in]  b the second parameter, greater than 0, at most 1e300
/// \param[in]  n how many, at least 1
/// \param[out] x n elements: the deviates. Small parameters put a part of the law below the smallest or next to 1
///               beyond the largest double below it: such deviates are 0 or 1
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_REAL_ARG_LE: `a` or `b` is not greater than 0.
/// - NE_REAL_ARG_GT: `a` or `b` is greater than 1e300.
/// - NE_INT_ARG_LE: `n` is less than 1.
/// \par Method
/// R. C. H. Cheng, Comm. ACM 21 (1978) 317-322: algorithm BB where both parameters are greater than 1, else BC. A trial
/// takes two uniform numbers; a deviate takes at most 1.5 trials with BB, from 1 to 2 with BC in most cases and 4 where
/// one parameter is tiny and the other 1.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double share[100];
/// g05fec(2.0, 3.5, 100, share, &fail);
/// \endcode
void g05fec(double a, double b, Integer n, double x[], KorError *fail);

/// \brief Gamma deviates.
///
/// Density x^(a-1) exp(-x/b) / (b^a Gamma(a)), x > 0.
///
/// \param[in]  a the shape, greater than 0, at most 1e300
/// \param[in]  b the scale, greater than 0
/// \param[in]  n how many, at least 1
/// \param[out] x n elements: the deviates. With a small shape a part of the law lies below the smallest double, even
///               before it is multiplied by b (half of it with shape 0.001): such deviates are 0
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_REAL_ARG_LE: `a` or `b` is not greater than 0.
/// - NE_REAL_ARG_GT: `a` is greater than 1e300.
/// - NE_INT_ARG_LE: `n` is less than 1.
/// \par Method
/// Shape 1: -b log U. Above 1: rejection from Student's t with two degrees of freedom, D. J. Best, Appl. Statist. 27
/// (1978) 181-182. Below 1: rejection from a power and an exponential tail, J. H. Ahrens and U. Dieter, Computing 12
/// (1974) 223-246, joined where L. Devroye, Non-Uniform Random Variate Generation (1986), has them. A trial takes two
/// uniform numbers; a deviate takes 1 to 1.3 trials below 1, 3 just above 1, 1.9 with shape 1.5, 1.4 with large shapes.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double wait[100];
/// g05ffc(2.3, 1.5, 100, wait, &fail);
/// \endcode
void g05ffc(double a, double b, Integer n, double x[], KorError *fail);

/// \brief A realisation of an ARMA process, stationary from its first value.
///
/// z[t] = phi[0] z[t-1] + ... + phi[p-1] z[t-p] + e[t] - theta[0] e[t-1] - ... - theta[q-1] e[t-q], with normal e of
/// mean 0 and variance `vara`. (Note the signs of theta, those of Box and Jenkins.)
///
/// \param[in]  p     the order of the autoregression, not negative
/// \param[in]  q     the order of the moving average, not negative
/// \param[in]  phi   p elements: the coefficients of the autoregression; not read when p is 0
/// \param[in]  theta q elements: the coefficients of the moving average; not read when q is 0
/// \param[in]  vara  the variance of e, greater than 0
/// \param[in]  n     the number of values, at least 1
/// \param[out] z     n elements: the series
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `p` or `q` is negative, or `n` less than 1.
/// - NE_REAL_ARG_LE: `vara` is not greater than 0.
/// - NE_ALLOC_FAIL: no memory.
/// - NE_STATIONARITY: the autoregression is not stationary.
///
/// `z` is untouched after an error.
/// \par Accuracy
/// The law of the series is exact from its first value: there is no run-in.
/// \par Method
/// The autoregression is drawn through its predictions, whose coefficients follow from phi by the Levinson recursion
/// run downwards (all reflection coefficients below 1: stationary); then the moving average is taken. It takes n + q
/// deviates of g05ddc(). J. Durbin, Rev. Int. Statist. Inst. 28 (1960) 233-244.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// const double phi[] = {0.4, 0.2}, theta[] = {0.5};
/// double z[200];
/// g05hac(2, 1, phi, theta, 1.0, 200, z, &fail);
/// \endcode
void g05hac(Integer p, Integer q, const double phi[], const double theta[], double vara, Integer n, double z[],
            KorError *fail);

/// \brief A realisation of an asymmetric GARCH(p, q) process, with shifted news.
///
/// e[t] = sqrt(h[t]) times a normal deviate, with the variance
/// h[t] = theta[0] + sum theta[i] (e[t-i] + gamma)^2, i = 1 to q, + sum theta[q+j] h[t-j], j = 1 to p.
///
/// \param[in]     num   the number of observations, at least 1
/// \param[in]     p     the number of variances in the recursion, not negative
/// \param[in]     q     the number of squares in the recursion, at least 1
/// \param[in]     theta p + q + 1 elements: the constant, greater than 0; the coefficients of the squares; those of the
///                      variances; none negative
/// \param[in]     gamma the asymmetry; 0 for a symmetric process
/// \param[in]     fcall Kor_Garch_Fcall_True: a new series; Kor_Garch_Fcall_False: the series of the last call goes on
/// \param[in,out] ht    num + max(p, q) elements: on return the variances in the first `num`, and behind them, oldest
///                      first, the last max(p, q) of the series, which a call with Kor_Garch_Fcall_False reads there
///                      (move them to ht[num] when `num` changes)
/// \param[in,out] et    num + max(p, q) elements: the observations, kept in the same way
/// \param[in,out] fail  the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `num` or `q` is less than 1, or `p` negative.
/// - NE_ARRAY_CONS: an element of `theta` is out of range; or, with Kor_Garch_Fcall_False, `ht` and `et` do not hold
///   what a call before left there.
/// - NE_REAL_ARG_CONS: `gamma` is not finite.
/// - NE_BAD_PARAM: `fcall` is neither of the two.
/// - NE_STATIONARITY: a new series is wanted of a process without a stationary variance: the sum of all coefficients is
///   1 or more. (Such a process can be continued from a history that you set yourself.)
///
/// `ht` and `et` are untouched after an error.
/// \par Method
/// A new series starts at the stationary variance and runs unseen until a disturbance has died down to 2^-53, for `num`
/// steps at least and about 100,000 at most; deviates of g05ddc(). R. F. Engle and V. K. Ng, J. Finance 48 (1993)
/// 1749-1778.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// const double theta[] = {0.1, 0.15, 0.8};
/// double ht[1001], et[1001];
/// g05hkc(1000, 1, 1, theta, -0.1, Kor_Garch_Fcall_True, ht, et, &fail);
/// \endcode
void g05hkc(Integer num, Integer p, Integer q, const double theta[], double gamma, Integer fcall, double ht[],
            double et[], KorError *fail);

/// \brief A realisation of an asymmetric GARCH(p, q) process, with news scaled by its sign.
///
/// As g05hkc(), with the variance
/// h[t] = theta[0] + sum theta[i] (|e[t-i]| + gamma e[t-i])^2, i = 1 to q, + sum theta[q+j] h[t-j], j = 1 to p.
///
/// \param[in]     num   the number of observations, at least 1
/// \param[in]     p     the number of variances in the recursion, not negative
/// \param[in]     q     the number of squares in the recursion, at least 1
/// \param[in]     theta p + q + 1 elements, as in g05hkc()
/// \param[in]     gamma the asymmetry; negative: bad news weigh more
/// \param[in]     fcall Kor_Garch_Fcall_True: a new series; Kor_Garch_Fcall_False: the series of the last call goes on
/// \param[in,out] ht    num + max(p, q) elements: the variances, as in g05hkc()
/// \param[in,out] et    num + max(p, q) elements: the observations, as in g05hkc()
/// \param[in,out] fail  the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// As g05hkc(). NE_STATIONARITY: (1 + gamma^2) times the sum of the coefficients of the squares, plus that of the
/// variances, is 1 or more.
/// \par Method
/// As g05hkc().
/// \par Thread safety
/// Safe.
/// \par Example
/// As g05hkc().
void g05hlc(Integer num, Integer p, Integer q, const double theta[], double gamma, Integer fcall, double ht[],
            double et[], KorError *fail);

/// \brief A realisation of an asymmetric GARCH(p, q) process, with more weight for bad news.
///
/// As g05hkc(), with the variance
/// h[t] = theta[0] + sum (theta[i] + gamma [e[t-i] < 0]) e[t-i]^2, i = 1 to q, + sum theta[q+j] h[t-j], j = 1 to p.
///
/// \param[in]     num   the number of observations, at least 1
/// \param[in]     p     the number of variances in the recursion, not negative
/// \param[in]     q     the number of squares in the recursion, at least 1
/// \param[in]     theta p + q + 1 elements, as in g05hkc()
/// \param[in]     gamma the asymmetry; theta[i] + gamma is not negative for i = 1 to q
/// \param[in]     fcall Kor_Garch_Fcall_True: a new series; Kor_Garch_Fcall_False: the series of the last call goes on
/// \param[in,out] ht    num + max(p, q) elements: the variances, as in g05hkc()
/// \param[in,out] et    num + max(p, q) elements: the observations, as in g05hkc()
/// \param[in,out] fail  the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// As g05hkc(). NE_REAL_ARG_CONS: theta[i] + gamma is negative. NE_STATIONARITY: the sum of all coefficients and
/// q gamma / 2 is 1 or more.
/// \par Method
/// As g05hkc(). L. R. Glosten, R. Jagannathan and D. E. Runkle, J. Finance 48 (1993) 1779-1801.
/// \par Thread safety
/// Safe.
/// \par Example
/// As g05hkc().
void g05hmc(Integer num, Integer p, Integer q, const double theta[], double gamma, Integer fcall, double ht[],
            double et[], KorError *fail);

KOR_END_DECLS

#endif
