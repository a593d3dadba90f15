/// \file c06.h
/// Chapter c06: discrete Fourier transforms, convolutions and correlations, sine and cosine transforms.
///
/// Conventions. All transforms have the negative exponent and the scale n^-1/2:
/// z_k = n^-1/2 sum_{j=0}^{n-1} x_j exp(-2 pi i j k / n), k = 0..n-1. Applied to the conjugate of z this gives the
/// conjugate of x back. Complex sequences are two arrays, real and imaginary parts. The transform of real data is
/// Hermitian, z_{n-k} = conj(z_k), and is packed in n elements: Re z_k stands at k for 0 <= k <= n/2, Im z_k at n - k
/// for 1 <= k <= (n-1)/2.
#ifndef KOR_C06_H
#define KOR_C06_H

#include <kor.h>

KOR_BEGIN_DECLS

/// \brief The discrete Fourier transform of a real sequence, in place.
///
/// z_k = n^-1/2 sum_{j=0}^{n-1} x_j exp(-2 pi i j k / n) for real x; z is Hermitian and comes back packed.
///
/// \param[in]     n    the length, at least 2, with no prime factor above 19 and at most 20 prime factors in all
/// \param[in,out] x    `n` elements: the sequence; on exit Re z_k at k for 0 <= k <= n/2, Im z_k at n - k for
///                     1 <= k <= (n-1)/2, in the unit of x
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LE: `n` is less than 2.
/// - NE_C06_FACTOR_GT: a prime factor of `n` is greater than 19.
/// - NE_C06_TOO_MANY_FACTORS: `n` has more than 20 prime factors, counted with repetitions.
///
/// The data are then untouched.
/// \par Accuracy
/// The root-mean-square error, relative to the root mean square of the result, stays near 0.1 log2(n) units of 2.2e-16.
/// The results are the same on every processor, but for the signs of zeros.
/// \par Method
/// Mixed radix, n taken as a product that reads the same from either end but for a middle that has each prime at most
/// once, so that the permutation is done by swaps (Singleton, IEEE Trans. Audio Electroacoust. AU-17 (1969) 93-103;
/// Temperton, J. Comput. Phys. 52 (1983) 1-23). Blocks and columns that fit the cache are transformed on the stack,
/// which takes about 170 kB; nothing is allocated. Each thread keeps the roots of the last length of a block, 32 kB.
/// \par Thread safety
/// Safe.
/// \par See also
/// c06gbc() and then c06ebc() lead back to x; c06gsc() writes z out; c06fpc() takes every length, and many sequences.
/// \par Example
/// \code{.c}
/// double x[4] = {1.0, 2.0, 3.0, 5.0};
/// c06eac(4, x, &fail);   // 5.5, -1.0, -1.5, 1.5: z = 5.5, -1 + 1.5 i, -1.5, -1 - 1.5 i
/// \endcode
void c06eac(Integer n, double x[], KorError *fail);

/// \brief The discrete Fourier transform of a Hermitian sequence, in place.
///
/// z_k = n^-1/2 sum_{j=0}^{n-1} x_j exp(-2 pi i j k / n) for Hermitian x; z is real. The exponent is negative here as
/// well: to invert c06eac(), conjugate first with c06gbc().
///
/// \param[in]     n    the length, at least 2, with no prime factor above 19 and at most 20 prime factors in all
/// \param[in,out] x    `n` elements: x packed, Re x_j at j for 0 <= j <= n/2, Im x_j at n - j for 1 <= j <= (n-1)/2; on
///                     exit z, in the unit of x
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LE: `n` is less than 2.
/// - NE_C06_FACTOR_GT: a prime factor of `n` is greater than 19.
/// - NE_C06_TOO_MANY_FACTORS: `n` has more than 20 prime factors, counted with repetitions.
///
/// The data are then untouched.
/// \par Accuracy
/// The root-mean-square error, relative to the root mean square of the result, stays near 0.1 log2(n) units of 2.2e-16.
/// The results are the same on every processor, but for the signs of zeros.
/// \par Method
/// Mixed radix, n taken as a product that reads the same from either end but for a middle that has each prime at most
/// once, so that the permutation is done by swaps (Singleton, IEEE Trans. Audio Electroacoust. AU-17 (1969) 93-103;
/// Temperton, J. Comput. Phys. 52 (1983) 1-23). Blocks and columns that fit the cache are transformed on the stack,
/// which takes about 170 kB; nothing is allocated. Each thread keeps the roots of the last length of a block, 32 kB.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double x[4] = {5.5, -1.0, -1.5, 1.5};
/// c06gbc(4, x, &fail);
/// c06ebc(4, x, &fail);   // 1.0, 2.0, 3.0, 5.0
/// \endcode
void c06ebc(Integer n, double x[], KorError *fail);

/// \brief The discrete Fourier transform of a complex sequence, in place.
///
/// z_k = n^-1/2 sum_{j=0}^{n-1} (x_j + i y_j) exp(-2 pi i j k / n).
///
/// \param[in]     n    the length, at least 2, with no prime factor above 19 and at most 20 prime factors in all
/// \param[in,out] x    `n` elements: real parts of the sequence; on exit of the transform
/// \param[in,out] y    `n` elements: imaginary parts
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LE: `n` is less than 2.
/// - NE_C06_FACTOR_GT: a prime factor of `n` is greater than 19.
/// - NE_C06_TOO_MANY_FACTORS: `n` has more than 20 prime factors, counted with repetitions.
///
/// The data are then untouched.
/// \par Accuracy
/// The root-mean-square error, relative to the root mean square of the result, stays near 0.1 log2(n) units of 2.2e-16.
/// The results are the same on every processor, but for the signs of zeros.
/// \par Method
/// Mixed radix, n taken as a product that reads the same from either end but for a middle that has each prime at most
/// once, so that the permutation is done by swaps (Singleton, IEEE Trans. Audio Electroacoust. AU-17 (1969) 93-103;
/// Temperton, J. Comput. Phys. 52 (1983) 1-23). Blocks and columns that fit the cache are transformed on the stack,
/// which takes about 170 kB; nothing is allocated. Each thread keeps the roots of the last length of a block, 32 kB.
/// \par Thread safety
/// Safe.
/// \par See also
/// For the inverse call c06gcc() on `y` before and after, or exchange the two arrays in the call. c06frc() takes every
/// length, and many sequences.
/// \par Example
/// \code{.c}
/// double x[2] = {1.0, 2.0}, y[2] = {0.0, -1.0};
/// c06ecc(2, x, y, &fail);   // z = (3 - i) / sqrt(2), (-1 + i) / sqrt(2)
/// \endcode
void c06ecc(Integer n, double x[], double y[], KorError *fail);

/// \brief The circular convolution or correlation of two real sequences.
///
/// Convolution: z_k = sum_{j=0}^{n-1} x_j y_{k-j}; correlation: z_k = sum_{j=0}^{n-1} x_j y_{k+j}; indices modulo n.
///
/// \param[in]     Operation Kor_Convolution or Kor_Correlation
/// \param[in]     n    the length, at least 2, with no prime factor above 19 and at most 20 prime factors in all
/// \param[in,out] x    `n` elements: one sequence; on exit z, in the unit of x times that of y
/// \param[in,out] y    `n` elements: the other; on exit the transform of z, packed as by c06eac()
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_BAD_PARAM: `Operation` is neither of the two.
/// - NE_INT_ARG_LE: `n` is less than 2.
/// - NE_C06_FACTOR_GT: a prime factor of `n` is greater than 19.
/// - NE_C06_TOO_MANY_FACTORS: `n` has more than 20 prime factors, counted with repetitions.
///
/// The data are then untouched.
/// \par Accuracy
/// Errors are relative to the product of the norms of x and y: a few units of 2.2e-16 times log2(n).
/// \par Method
/// Two transforms of real sequences, their product, one transform back, all as in c06eac(). Pad with zeros for a
/// convolution that does not wrap round.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double x[4] = {1.0, 2.0, 0.0, 0.0}, y[4] = {3.0, 4.0, 0.0, 0.0};
/// c06ekc(Kor_Convolution, 4, x, y, &fail);   // x = 3.0, 10.0, 8.0, 0.0
/// \endcode
void c06ekc(Integer Operation, Integer n, double x[], double y[], KorError *fail);

/// \brief Discrete Fourier transforms of several real sequences, of any length.
///
/// z_k = n^-1/2 sum_{j=0}^{n-1} x_j exp(-2 pi i j k / n) for each real sequence x; z is Hermitian and comes back
/// packed.
///
/// \param[in]     m    the number of sequences, at least 1
/// \param[in]     n    their length, at least 1; with n = 1 the data stay as they are
/// \param[in,out] x    `m` by `n` elements, element j of sequence i at i n + j; on exit Re z_k of sequence i at i n + k
///                     for 0 <= k <= n/2, Im z_k at i n + n - k for 1 <= k <= (n-1)/2
/// \param[in]     trig 2 `n` elements, filled by c06gzc() for the length `n`
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `m` is less than 1; `n` is less than 1.
/// - NE_C06_NOT_TRIG: `trig` does not carry the stamp of length `n`: it was not filled by c06gzc(), or for another
///   length.
/// - NE_ALLOC_FAIL: there is no memory.
///
/// `m` and `n` are both looked at, and both reported if both are wrong; the record keeps the last report. The data are
/// untouched after any of them.
/// \par Accuracy
/// The root-mean-square error, relative to the root mean square of the result, stays near 0.1 log2(n) units of 2.2e-16,
/// for prime lengths as well. A sequence gives the same numbers wherever it stands among the others, and on every
/// processor.
/// \par Method
/// Mixed radix with the factors 6, 4, 2, 3, 5 and larger primes, self-sorting (Stockham; Temperton, J. Comput. Phys. 52
/// (1983) 340-350). Prime factors above 61 go through a convolution (Rader, Proc. IEEE 56 (1968) 1107-1108), so that no
/// length costs more than O(n log n).
/// \par Thread safety
/// Safe; threads may share one table.
/// \par See also
/// c06gqc() and then c06fqc() lead back to x; c06gsc() writes z out.
/// \par Example
/// \code{.c}
/// double trig[2 * 4], x[2 * 4] = {1.0, 2.0, 3.0, 5.0,   0.0, 1.0, 0.0, 0.0};
/// c06gzc(4, trig, &fail);
/// c06fpc(2, 4, x, trig, &fail);   // 5.5, -1.0, -1.5, 1.5,   0.5, 0.0, -0.5, -0.5
/// \endcode
void c06fpc(Integer m, Integer n, double x[], const double trig[], KorError *fail);

/// \brief Discrete Fourier transforms of several Hermitian sequences, of any length.
///
/// z_k = n^-1/2 sum_{j=0}^{n-1} x_j exp(-2 pi i j k / n) for each Hermitian sequence x; z is real. The exponent is
/// negative here as well: to invert c06fpc(), conjugate first with c06gqc().
///
/// \param[in]     m    the number of sequences, at least 1
/// \param[in]     n    their length, at least 1; with n = 1 the data stay as they are
/// \param[in,out] x    `m` by `n` elements: Re x_j of sequence i at i n + j for 0 <= j <= n/2, Im x_j at i n + n - j
///                     for 1 <= j <= (n-1)/2; on exit z_k of sequence i at i n + k
/// \param[in]     trig 2 `n` elements, filled by c06gzc() for the length `n`
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `m` is less than 1; `n` is less than 1.
/// - NE_C06_NOT_TRIG: `trig` does not carry the stamp of length `n`: it was not filled by c06gzc(), or for another
///   length.
/// - NE_ALLOC_FAIL: there is no memory.
///
/// `m` and `n` are both looked at, and both reported if both are wrong; the record keeps the last report. The data are
/// untouched after any of them.
/// \par Accuracy
/// The root-mean-square error, relative to the root mean square of the result, stays near 0.1 log2(n) units of 2.2e-16,
/// for prime lengths as well. A sequence gives the same numbers wherever it stands among the others, and on every
/// processor.
/// \par Method
/// Mixed radix with the factors 6, 4, 2, 3, 5 and larger primes, self-sorting (Stockham; Temperton, J. Comput. Phys. 52
/// (1983) 340-350). Prime factors above 61 go through a convolution (Rader, Proc. IEEE 56 (1968) 1107-1108), so that no
/// length costs more than O(n log n).
/// \par Thread safety
/// Safe; threads may share one table.
/// \par Example
/// \code{.c}
/// double trig[2 * 4], x[4] = {5.5, -1.0, -1.5, 1.5};
/// c06gzc(4, trig, &fail);
/// c06gqc(1, 4, x, &fail);
/// c06fqc(1, 4, x, trig, &fail);   // 1.0, 2.0, 3.0, 5.0
/// \endcode
void c06fqc(Integer m, Integer n, double x[], const double trig[], KorError *fail);

/// \brief Discrete Fourier transforms of several complex sequences, of any length.
///
/// z_k = n^-1/2 sum_{j=0}^{n-1} (x_j + i y_j) exp(-2 pi i j k / n) for each sequence.
///
/// \param[in]     m    the number of sequences, at least 1
/// \param[in]     n    their length, at least 1; with n = 1 the data stay as they are
/// \param[in,out] x    `m` by `n` elements, element j of sequence i at i n + j: real parts; on exit of the transforms
/// \param[in,out] y    the imaginary parts, in the same way
/// \param[in]     trig 2 `n` elements, filled by c06gzc() for the length `n`
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `m` is less than 1; `n` is less than 1.
/// - NE_C06_NOT_TRIG: `trig` does not carry the stamp of length `n`: it was not filled by c06gzc(), or for another
///   length.
/// - NE_ALLOC_FAIL: there is no memory.
///
/// `m` and `n` are both looked at, and both reported if both are wrong; the record keeps the last report. The data are
/// untouched after any of them.
/// \par Accuracy
/// The root-mean-square error, relative to the root mean square of the result, stays near 0.1 log2(n) units of 2.2e-16,
/// for prime lengths as well. A sequence gives the same numbers wherever it stands among the others, and on every
/// processor.
/// \par Method
/// Mixed radix with the factors 6, 4, 2, 3, 5 and larger primes, self-sorting (Stockham; Temperton, J. Comput. Phys. 52
/// (1983) 340-350). Prime factors above 61 go through a convolution (Rader, Proc. IEEE 56 (1968) 1107-1108), so that no
/// length costs more than O(n log n).
/// \par Thread safety
/// Safe; threads may share one table.
/// \par See also
/// For the inverse call c06gcc() on all of `y` before and after, or exchange the two arrays in the call.
/// \par Example
/// \code{.c}
/// double trig[2 * 2], x[2] = {1.0, 2.0}, y[2] = {0.0, -1.0};
/// c06gzc(2, trig, &fail);
/// c06frc(1, 2, x, y, trig, &fail);   // z = (3 - i) / sqrt(2), (-1 + i) / sqrt(2)
/// \endcode
void c06frc(Integer m, Integer n, double x[], double y[], const double trig[], KorError *fail);

/// \brief The two-dimensional discrete Fourier transform of a complex array.
///
/// z_{kl} = (m n)^-1/2 sum_{i=0}^{m-1} sum_{j=0}^{n-1} (x_{ij} + i y_{ij}) exp(-2 pi i (i k / m + j l / n)).
///
/// \param[in]     m    rows, at least 1
/// \param[in]     n    columns, at least 1
/// \param[in,out] x    `m` by `n` elements, element (i, j) at i n + j: real parts; on exit of the transform
/// \param[in,out] y    the imaginary parts, in the same way
/// \param[in]     trigm 2 `m` elements, filled by c06gzc() for the length `m`
/// \param[in]     trign 2 `n` elements, filled by c06gzc() for the length `n`; the same table serves if m = n
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `m` is less than 1; `n` is less than 1.
/// - NE_C06_NOT_TRIG: `trigm` does not carry the stamp of length `m`; `trign` does not carry that of length `n`.
/// - NE_ALLOC_FAIL: there is no memory.
///
/// `m` and `n` are both looked at, and both reported if both are wrong, then likewise both tables; the record keeps the
/// last report. The data are untouched after any of them.
/// \par Accuracy
/// The root-mean-square error, relative to the root mean square of the result, stays near 0.1 log2(n) units of 2.2e-16,
/// for prime lengths as well. A sequence gives the same numbers wherever it stands among the others, and on every
/// processor.
/// \par Method
/// The rows, then, through a transposed copy of the array, the columns, each as by c06frc().
/// \par Thread safety
/// Safe; threads may share one table.
/// \par Example
/// \code{.c}
/// double trig[2 * 2], x[4] = {1.0, 2.0, 3.0, 4.0}, y[4] = {0.0};
/// c06gzc(2, trig, &fail);
/// c06fuc(2, 2, x, y, trig, trig, &fail);   // 5.0, -1.0, -2.0, 0.0
/// \endcode
void c06fuc(Integer m, Integer n, double x[], double y[], const double trigm[], const double trign[], KorError *fail);

/// \brief The conjugate of a Hermitian sequence, in place.
///
/// Negates the imaginary parts of a packed sequence, as c06eac() leaves it.
///
/// \param[in]     n    the length, at least 1
/// \param[in,out] x    `n` elements: Re x_k at k, Im x_k at n - k; on exit the conjugate sequence
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `n` is less than 1.
/// \par Accuracy
/// Exact.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double x[4] = {5.5, -1.0, -1.5, 1.5};
/// c06gbc(4, x, &fail);   // 5.5, -1.0, -1.5, -1.5
/// \endcode
void c06gbc(Integer n, double x[], KorError *fail);

/// \brief The conjugate of a complex sequence, in place.
///
/// Negates all imaginary parts.
///
/// \param[in]     n    the length, at least 1
/// \param[in,out] y    `n` elements: the imaginary parts
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `n` is less than 1.
/// \par Accuracy
/// Exact.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double y[2] = {0.5, -1.0};
/// c06gcc(2, y, &fail);   // -0.5, 1.0
/// \endcode
void c06gcc(Integer n, double y[], KorError *fail);

/// \brief The conjugates of several Hermitian sequences, in place.
///
/// Negates the imaginary parts of packed sequences, as c06fpc() leaves them.
///
/// \param[in]     m    the number of sequences, at least 1
/// \param[in]     n    their length, at least 1
/// \param[in,out] x    `m` by `n` elements: Re x_k of sequence i at i n + k, Im x_k at i n + n - k; on exit the
///                     conjugates
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `m` is less than 1; `n` is less than 1. Both are reported if both are wrong; the record keeps the
///   last.
/// \par Accuracy
/// Exact.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double x[2 * 3] = {1.0, 2.0, 3.0,   4.0, 5.0, 6.0};
/// c06gqc(2, 3, x, &fail);   // 1.0, 2.0, -3.0,   4.0, 5.0, -6.0
/// \endcode
void c06gqc(Integer m, Integer n, double x[], KorError *fail);

/// \brief Several Hermitian sequences written out as complex sequences.
///
/// Turns the packed form that c06eac() and c06fpc() leave into full arrays of real and imaginary parts.
///
/// \param[in]  m    the number of sequences, at least 1
/// \param[in]  n    their length, at least 1
/// \param[in]  x    `m` by `n` elements: Re x_k of sequence i at i n + k, Im x_k at i n + n - k
/// \param[out] u    `m` by `n` elements: the real part of element k of sequence i at i n + k
/// \param[out] v    the imaginary parts, in the same way; neither may overlap x
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `m` is less than 1; `n` is less than 1. Both are reported if both are wrong; the record keeps the
///   last.
/// \par Accuracy
/// Exact.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double x[4] = {5.5, -1.0, -1.5, 1.5}, u[4], v[4];
/// c06gsc(1, 4, x, u, v, &fail);   // u = 5.5, -1.0, -1.5, -1.0;  v = 0.0, 1.5, 0.0, -1.5
/// \endcode
void c06gsc(Integer m, Integer n, const double x[], double u[], double v[], KorError *fail);

/// \brief The table of roots of unity that the transforms of several sequences need.
///
/// Fill it once for a length and use it as often as that length comes up; it is read only by the transforms.
///
/// \param[in]  n    the length, at least 1
/// \param[out] trig 2 `n` elements. With the factors of n in the order 6, 4, 2, 3, 5, larger primes, P the product of
///                  those before a factor p and v = n/(P p): (p-1) v places from n(P-1)/P on, rows k = 1..p-1 of the
///                  angles 2 pi P j k/n, j = 0..v-1, for p above 6 the angle 2 pi k/p in place of j = 0. Place i holds
///                  the cosine and n + i the negated sine. Elements n-1 and 2n-1 hold n: the stamp that the transforms
///                     look for
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `n` is less than 1.
/// \par Accuracy
/// Every element within 0.75 ulp: each angle is reduced exactly, in integers, before it is rounded.
/// \par Method
/// Reduction to the first octant, then polynomials.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double trig[2 * 3];
/// c06gzc(3, trig, &fail);   // 1.0, 1.0, 3.0,   0.0, 0.0, 3.0
/// \endcode
void c06gzc(Integer n, double trig[], KorError *fail);

/// \brief Sine transforms of several sequences.
///
/// z_k = (2/n)^1/2 sum_{j=1}^{n-1} x_j sin(pi j k / n), k = 1..n-1. The transform is its own inverse.
///
/// \param[in]     m    the number of sequences, at least 1
/// \param[in]     n    one more than the length of a sequence, at least 1; with n = 1 there is nothing to do, and `x`
///                     may be null
/// \param[in,out] x    `m` by `n`-1 elements, element j = 1..n-1 of sequence i at i (n-1) + j - 1; on exit z
/// \param[in]     trig 2 `n` elements, filled by c06gzc() for the length `n`
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `m` is less than 1, or `n` is less than 1.
/// - NE_C06_NOT_TRIG: `trig` does not carry the stamp of length `n`: it was not filled by c06gzc(), or for another
///   length.
/// - NE_ALLOC_FAIL: there is no memory.
///
/// The first offence is the one reported. The data are untouched after any of them.
/// \par Accuracy
/// The root-mean-square error, relative to the root mean square of the result, grows like the logarithm of n: no
/// running sums are used, whose errors would grow like its square root.
/// \par Method
/// Elements of even and of odd index of the odd extension of x are transformed as real sequences of length n.
/// \par Thread safety
/// Safe; threads may share one table.
/// \par Example
/// \code{.c}
/// double trig[2 * 4], x[3] = {1.0, 2.0, 3.0};
/// c06gzc(4, trig, &fail);
/// c06hac(1, 4, x, trig, &fail);   // 2 + sqrt(2), -sqrt(2), 2 - sqrt(2)
/// \endcode
void c06hac(Integer m, Integer n, double x[], const double trig[], KorError *fail);

/// \brief Cosine transforms of several sequences.
///
/// z_k = (2/n)^1/2 (x_0/2 + sum_{j=1}^{n-1} x_j cos(pi j k / n) + (-1)^k x_n/2), k = 0..n. The transform is its own
/// inverse.
///
/// \param[in]     m    the number of sequences, at least 1
/// \param[in]     n    one less than the length of a sequence, at least 1
/// \param[in,out] x    `m` by `n`+1 elements, element j = 0..n of sequence i at i (n+1) + j; on exit z
/// \param[in]     trig 2 `n` elements, filled by c06gzc() for the length `n`
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `m` is less than 1, or `n` is less than 1.
/// - NE_C06_NOT_TRIG: `trig` does not carry the stamp of length `n`: it was not filled by c06gzc(), or for another
///   length.
/// - NE_ALLOC_FAIL: there is no memory.
///
/// The first offence is the one reported. The data are untouched after any of them.
/// \par Accuracy
/// The root-mean-square error, relative to the root mean square of the result, grows like the logarithm of n: no
/// running sums are used, whose errors would grow like its square root.
/// \par Method
/// Elements of even and of odd index of the even extension of x are transformed as real sequences of length n.
/// \par Thread safety
/// Safe; threads may share one table.
/// \par Example
/// \code{.c}
/// double trig[2 * 2], x[3] = {1.0, 2.0, 3.0};
/// c06gzc(2, trig, &fail);
/// c06hbc(1, 2, x, trig, &fail);   // 4.0, -1.0, 0.0
/// \endcode
void c06hbc(Integer m, Integer n, double x[], const double trig[], KorError *fail);

/// \brief Quarter-wave sine transforms of several sequences, forward or backward.
///
/// Forward:  z_k = n^-1/2 (sum_{j=1}^{n-1} x_j sin(pi j (2k-1) / (2n)) + (-1)^(k-1) x_n/2), k = 1..n.
/// Backward: x_j = 2 n^-1/2 sum_{k=1}^{n} z_k sin(pi (2k-1) j / (2n)), j = 1..n. Each undoes the other.
///
/// \param[in]     direct Kor_ForwardTransform or Kor_BackwardTransform
/// \param[in]     m    the number of sequences, at least 1
/// \param[in]     n    their length, at least 1
/// \param[in,out] x    `m` by `n` elements, element j = 1..n of sequence i at i n + j - 1; on exit the transforms
/// \param[in]     trig 2 `n` elements, filled by c06gzc() for the length `n`
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_BAD_PARAM: `direct` is neither of the two.
/// - NE_INT_ARG_LT: `m` is less than 1, or `n` is less than 1.
/// - NE_C06_NOT_TRIG: `trig` does not carry the stamp of length `n`: it was not filled by c06gzc(), or for another
///   length.
/// - NE_ALLOC_FAIL: there is no memory.
///
/// The first offence is the one reported. The data are untouched after any of them.
/// \par Accuracy
/// The root-mean-square error, relative to the root mean square of the result, grows like the logarithm of n: no
/// running sums are used, whose errors would grow like its square root.
/// \par Method
/// One real or Hermitian transform of length n between two steps that mix neighbours (Swarztrauber, Math. Comp. 47
/// (1986) 323-346).
/// \par Thread safety
/// Safe; threads may share one table.
/// \par Example
/// \code{.c}
/// double trig[2 * 2], x[2] = {1.0, 2.0};
/// c06gzc(2, trig, &fail);
/// c06hcc(Kor_ForwardTransform, 1, 2, x, trig, &fail);    // 1/2 + 1/sqrt(2), 1/2 - 1/sqrt(2)
/// c06hcc(Kor_BackwardTransform, 1, 2, x, trig, &fail);   // 1.0, 2.0
/// \endcode
void c06hcc(Integer direct, Integer m, Integer n, double x[], const double trig[], KorError *fail);

/// \brief Quarter-wave cosine transforms of several sequences, forward or backward.
///
/// Forward:  z_k = n^-1/2 (x_0/2 + sum_{j=1}^{n-1} x_j cos(pi j (2k+1) / (2n))), k = 0..n-1.
/// Backward: x_j = 2 n^-1/2 sum_{k=0}^{n-1} z_k cos(pi (2k+1) j / (2n)), j = 0..n-1. Each undoes the other.
///
/// \param[in]     direct Kor_ForwardTransform or Kor_BackwardTransform
/// \param[in]     m    the number of sequences, at least 1
/// \param[in]     n    their length, at least 1
/// \param[in,out] x    `m` by `n` elements, element j = 0..n-1 of sequence i at i n + j; on exit the transforms
/// \param[in]     trig 2 `n` elements, filled by c06gzc() for the length `n`
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_BAD_PARAM: `direct` is neither of the two.
/// - NE_INT_ARG_LT: `m` is less than 1, or `n` is less than 1.
/// - NE_C06_NOT_TRIG: `trig` does not carry the stamp of length `n`: it was not filled by c06gzc(), or for another
///   length.
/// - NE_ALLOC_FAIL: there is no memory.
///
/// The first offence is the one reported. The data are untouched after any of them.
/// \par Accuracy
/// The root-mean-square error, relative to the root mean square of the result, grows like the logarithm of n: no
/// running sums are used, whose errors would grow like its square root.
/// \par Method
/// As c06hcc().
/// \par Thread safety
/// Safe; threads may share one table.
/// \par Example
/// \code{.c}
/// double trig[2 * 2], x[2] = {1.0, 2.0};
/// c06gzc(2, trig, &fail);
/// c06hdc(Kor_ForwardTransform, 1, 2, x, trig, &fail);    // 1/sqrt(8) + 1, 1/sqrt(8) - 1
/// c06hdc(Kor_BackwardTransform, 1, 2, x, trig, &fail);   // 1.0, 2.0
/// \endcode
void c06hdc(Integer direct, Integer m, Integer n, double x[], const double trig[], KorError *fail);

KOR_END_DECLS

#endif
