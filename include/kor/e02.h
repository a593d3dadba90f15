/// \file e02.h
/// Chapter e02: fitting of curves and surfaces by polynomials and splines, and their evaluation.
///
/// A Chebyshev series is f(x) = a_0/2 + a_1 T_1(xcap) + a_2 T_2(xcap) + ..., its first term halved; xcap, from -1 to 1, is x on
/// the scale of the range of the data. A cubic spline is a sum of B-splines, s(x) = sum_i c_i N_i(x), where N_i lives on the
/// knots `lamda[i]` to `lamda[i+4]`; it is defined between `lamda[3]` and `lamda[n-4]`. A bicubic spline is a sum of products,
/// s(x, y) = sum_ij c_ij M_i(x) N_j(y).
///
/// The arrays of a spline that a routine makes come from x04bbc() and belong to the caller, who releases them with x04bdc();
/// a routine that makes a spline does not look at what the record held before, unless its page says so.
#ifndef KOR_E02_H
#define KOR_E02_H

#include <kor.h>

KOR_BEGIN_DECLS

/// A cubic spline.
typedef struct {
    Integer n;     ///< number of knots, at least 8
    double *lamda; ///< `n` knots, in non-decreasing order; the first and the last four are the end knots
    double *c;     ///< `n`-4 coefficients; arrays that the library makes have `n` elements, the last four of them 0
} KorSpline;

/// A bicubic spline.
typedef struct {
    Integer nx;    ///< number of knots in x, at least 8
    Integer ny;    ///< number of knots in y, at least 8
    double *lamda; ///< `nx` knots in x
    double *mu;    ///< `ny` knots in y
    double *c;     ///< (`nx`-4)(`ny`-4) coefficients, c_ij in `c[i * (ny-4) + j]`
} KorSpline2D;

/// What a smoothing routine remembers, so that a warm start goes on where the call before ended. Allocated by the routine;
/// the caller releases `wrk` and `iwrk` with x04bdc().
typedef struct {
    Integer nwrk;  ///< number of elements of `wrk`
    double *wrk;   ///< reals of the search
    Integer niwrk; ///< number of elements of `iwrk`
    Integer *iwrk; ///< integers of the search
} KorSplineWarm;

/// \brief Least-squares polynomials of all degrees up to a given one, as Chebyshev series.
///
/// Minimises the sum of (`weights[r]` (`y[r]` - f(`x[r]`)))^2 for each degree i = 0..`kplus1`-1 in turn. The variable of the
/// series is xcap = ((x - x_0) - (x_{m-1} - x))/(x_{m-1} - x_0).
///
/// \param[in]  m       number of points, at least 1
/// \param[in]  kplus1  number of degrees wanted, one more than the greatest degree; from 1 to the number of distinct values
///                     in `x`
/// \param[in]  tda     trailing dimension of `a`, at least `kplus1`
/// \param[in]  x       `m` abscissae in non-decreasing order, not all equal
/// \param[in]  y       `m` ordinates
/// \param[in]  weights `m` weights, greater than 0: in proportion to the reciprocal of the standard deviation of `y[r]`
/// \param[out] a       `kplus1` by `kplus1`, row-major: the coefficients for degree i are `a[i * tda + j]`, j = 0..i; what
///                     lies behind them in the row is untouched
/// \param[out] s       `kplus1` elements: the weighted sum of squares of the residuals for each degree
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `m` or `kplus1` is less than 1.
/// - NE_WEIGHTS_NOT_POSITIVE: a weight is not positive.
/// - NE_NOT_NON_DECREASING: `x` is not in non-decreasing order.
/// - NE_REAL_ARRAY_CONS: an abscissa is infinite.
/// - NE_NO_NORMALISATION: all values of `x` are equal.
/// - NE_2_INT_ARG_GT: `kplus1` is greater than the number of distinct abscissae, "mdist".
/// - NE_2_INT_ARG_LT: `tda` is less than `kplus1`.
/// - NE_ALLOC_FAIL: there is not enough memory.
///
/// `a` and `s` are untouched after an error.
/// \par Accuracy
/// Backward stable: the coefficients are those of data changed by a few units of machine precision. For many more points
/// than the square of the degree they are accurate to nearly full precision; for degrees near the number of equally spaced
/// points the problem itself is ill-conditioned.
/// \par Method
/// Householder reflections on the weighted values of the Chebyshev polynomials, a block of rows at a time; one triangle
/// serves all degrees. G. H. Golub, Numer. Math. 7 (1965) 206-216. The time is proportional to `m` `kplus1`^2, the memory to
/// `kplus1`^2.
/// \par Thread safety
/// Safe.
/// \par See also
/// e02aec() evaluates a series; e02afc() interpolates.
/// \par Example
/// \code{.c}
/// double x[5] = {0, 1, 2, 3, 4}, y[5] = {1, 2, 5, 10, 17}, w[5] = {1, 1, 1, 1, 1}, a[9], s[3];
/// e02adc(5, 3, 3, x, y, w, a, s, &fail);   // a[6..8] = {14, 8, 2}: y = 1 + x^2; s[2] = 0
/// \endcode
void e02adc(Integer m, Integer kplus1, Integer tda, const double x[], const double y[], const double weights[],
            double a[], double s[], KorError *fail);

/// \brief The value of a Chebyshev series.
///
/// p = a_0/2 + a_1 T_1(xcap) + ... + a_n T_n(xcap), the first term halved, with n = `nplus1`-1.
///
/// \param[in]  nplus1 number of coefficients, at least 1
/// \param[in]  a      `nplus1` coefficients
/// \param[in]  xcap   the point, from -1 to 1; an excess of rounding errors, up to 4 x02ajc(), counts as the end
/// \param[out] p      the value
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `nplus1` is less than 1.
/// - NE_INVALID_XCAP: `xcap` lies outside the range, or is not a number.
///
/// `p` is untouched after an error.
/// \par Accuracy
/// The error is a small multiple of machine precision times the sum of the moduli of the terms, at the ends as well.
/// \par Method
/// C. W. Clenshaw's recurrence (Math. Tables Aids Comput. 9 (1955) 118-120) for |xcap| up to 1/2; nearer to the ends its
/// form on differences, due to C. Reinsch (J. Oliver, J. Inst. Maths Applics 20 (1977) 379-391).
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double a[3] = {2.0, 0.5, 0.25}, p;
/// e02aec(3, a, 1.0, &p, &fail);   // 1.75
/// \endcode
void e02aec(Integer nplus1, const double a[], double xcap, double *p, KorError *fail);

/// \brief The Chebyshev series of the polynomial through values at the points cos(pi r/n).
///
/// \param[in]  nplus1 number of points and of coefficients, n+1, at least 2
/// \param[in]  f      `nplus1` values: `f[r]` at xcap = cos(pi r/n), from 1 at r = 0 down to -1 at r = n
/// \param[out] a      `nplus1` coefficients, for e02aec()
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `nplus1` is less than 2.
/// - NE_ALLOC_FAIL: there is not enough memory.
///
/// `a` is untouched after an error.
/// \par Accuracy
/// The errors are a small multiple of machine precision times the root mean square of the values.
/// \par Method
/// A discrete cosine transform by c06hbc(), in time O(n log n).
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double f[3] = {1.0, 0.0, 1.0}, a[3];   // x^2 at 1, 0, -1
/// e02afc(3, f, a, &fail);                // a = {1.0, 0.0, 0.5}
/// \endcode
void e02afc(Integer nplus1, const double f[], double a[], KorError *fail);

/// \brief The least-squares cubic spline on given knots.
///
/// Minimises the sum of (`weights[r]` (`y[r]` - s(`x[r]`)))^2 over the splines s with these knots. Put knots closer where the
/// curve bends more. Equal knots lower the smoothness there: two of them let the second derivative jump, three the first,
/// four the value.
///
/// \param[in]     m       number of points, at least 4
/// \param[in]     x       `m` abscissae in non-decreasing order
/// \param[in]     y       `m` ordinates
/// \param[in]     weights `m` weights, greater than 0
/// \param[out]    ss      the weighted sum of squares of the residuals
/// \param[in,out] spline  on entry `n`, the number of knots, at least 8, and `lamda`, an array of `n` elements of the
///                        caller's own, of which `lamda[4]` to `lamda[n-5]` hold the interior knots, in non-decreasing order,
///                        between `x[0]` and `x[m-1]`. On exit the end knots are set to `x[0]` and `x[m-1]`, and `c` is an
///                        array of `n` elements that belongs to the caller
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `m` is less than 4, or `n` less than 8.
/// - NE_NOT_NON_DECREASING: `x` is not in non-decreasing order.
/// - NE_REAL_ARRAY_CONS: an abscissa is infinite.
/// - NE_WEIGHTS_NOT_POSITIVE: a weight is not positive.
/// - NE_KNOTS_OUTSIDE_DATA_INTVL: the first or the last interior knot is not between `x[0]` and `x[m-1]`.
/// - NE_NOT_INCREASING: the interior knots are not in non-decreasing order.
/// - NE_KNOTS_DISTINCT_ABSCI_CONS: there are fewer distinct abscissae than coefficients, `n`-4.
/// - NE_SW_COND_FAIL: too few points lie under some of the B-splines (the conditions of Schoenberg and Whitney); the index is
///   that of the first B-spline for which none is left.
/// - NE_ALLOC_FAIL: there is not enough memory.
///
/// `ss` and the spline are untouched after an error.
/// \par Accuracy
/// Backward stable.
/// \par Method
/// Plane rotations on the banded matrix of B-splines. M. G. Cox, J. Inst. Maths Applics 15 (1975) 95-108. The time is
/// proportional to `m`.
/// \par Thread safety
/// Safe.
/// \par See also
/// e02bbc(), e02bcc() and e02bdc() use the spline; e02bec() chooses the knots.
/// \par Example
/// \code{.c}
/// double t[9] = {[4] = 2.5};                 // one interior knot
/// KorSpline spline = {9, t, NULL};
/// e02bac(m, x, y, weights, &ss, &spline, &fail);
/// ...
/// x04bdc((void **)&spline.c);
/// \endcode
void e02bac(Integer m, const double x[], const double y[], const double weights[], double *ss, KorSpline *spline,
            KorError *fail);

/// \brief The value of a cubic spline.
///
/// \param[in]  x      the point, from `lamda[3]` to `lamda[n-4]`
/// \param[out] s      the value; at a knot where it jumps, the one from the right
/// \param[in]  spline the spline
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: the spline has fewer than 8 knots.
/// - NE_SPLINE_RANGE_INVALID: the spline's range is empty: `lamda[3]` is not less than `lamda[n-4]`.
/// - NE_ABSCI_OUTSIDE_KNOT_INTVL: `x` lies outside the range, or is not a number.
///
/// `s` is untouched after an error.
/// \par Accuracy
/// A few units of machine precision times the largest of the four coefficients that count.
/// \par Method
/// Averages of coefficients. C. de Boor, J. Approx. Theory 6 (1972) 50-62; M. G. Cox, J. Inst. Maths Applics 10 (1972) 134-149.
/// \par Thread safety
/// Safe; threads may share a spline.
/// \par Example
/// \code{.c}
/// double t[8] = {0, 0, 0, 0, 1, 1, 1, 1}, c[4] = {0, 0, 0, 1}, s;   // x^3
/// const KorSpline spline = {8, t, c};
/// e02bbc(0.5, &s, &spline, &fail);   // 0.125
/// \endcode
void e02bbc(double x, double *s, const KorSpline *spline, KorError *fail);

/// \brief The value and the first three derivatives of a cubic spline.
///
/// \param[in]  derivs Kor_LeftDerivs or Kor_RightDerivs: from which side derivatives are taken that jump at a knot. At the
///                    ends of the range they come from inside
/// \param[in]  x      the point, from `lamda[3]` to `lamda[n-4]`
/// \param[out] s      4 elements: the value and the derivatives of order 1, 2, 3
/// \param[in]  spline the spline
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_BAD_PARAM: `derivs` is neither of the two.
/// - NE_INT_ARG_LT: the spline has fewer than 8 knots.
/// - NE_SPLINE_RANGE_INVALID: the spline's range is empty.
/// - NE_ABSCI_OUTSIDE_KNOT_INTVL: `x` lies outside the range, or is not a number.
///
/// `s` is untouched after an error.
/// \par Accuracy
/// That of the value is as in e02bbc(); each derivative multiplies the error by about the reciprocal of the knots' distance.
/// \par Method
/// Differences and averages of coefficients. C. de Boor, A Practical Guide to Splines (1978), chapter 10.
/// \par Thread safety
/// Safe; threads may share a spline.
/// \par Example
/// \code{.c}
/// double s[4];
/// e02bcc(Kor_RightDerivs, 0.5, s, &spline, &fail);   // for x^3: 0.125, 0.75, 3.0, 6.0
/// \endcode
void e02bcc(Integer derivs, double x, double s[4], const KorSpline *spline, KorError *fail);

/// \brief The integral of a cubic spline over its range, from `lamda[3]` to `lamda[n-4]`.
///
/// \param[out] integral the integral
/// \param[in]  spline   the spline
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: the spline has fewer than 8 knots.
/// - NE_SPLINE_RANGE_INVALID: the spline's range is empty.
/// - NE_KNOTS_CONS: the knots are not in non-decreasing order.
///
/// `integral` is untouched after an error.
/// \par Accuracy
/// A few units of machine precision times the integral of the sum of the moduli of the terms.
/// \par Method
/// The sum of c_i (lamda_{i+4} - lamda_i)/4 if the four knots at either end coincide; else Gauss's rule of two points on
/// each span, which is exact as well.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double integral;
/// e02bdc(&integral, &spline, &fail);   // for x^3 on [0, 1]: 0.25
/// \endcode
void e02bdc(double *integral, const KorSpline *spline, KorError *fail);

/// \brief The smoothing cubic spline: it chooses its knots so that the sum of squared residuals comes to a given value.
///
/// Among the splines on its knots with a weighted sum of squares fp = sum (`weights[r]` (`y[r]` - s(`x[r]`)))^2 of at most `s`,
/// the smoothest: the jumps of its third derivative are least. With weights that are the reciprocals of the standard
/// deviations of `y`, values of `s` from m - sqrt(2m) to m + sqrt(2m) are right. Without that knowledge start with a large
/// `s`, and go down by warm starts until the curve follows the data but not their noise.
///
/// \param[in]  start   Kor_Cold: from the beginning; Kor_Warm: from the knots and the state that an earlier call with the same
///                     points has left, usually with another `s` or a larger `nest`
/// \param[in]  m       number of points, at least 4
/// \param[in]  x       `m` abscissae, strictly increasing
/// \param[in]  y       `m` ordinates
/// \param[in]  weights `m` weights, greater than 0
/// \param[in]  s       the smoothing factor, at least 0; with 0 the spline interpolates
/// \param[in]  nest    the greatest number of knots allowed: at least 8, more than `m`/2, and at least `m`+4 if `s` is 0;
///                     `m`+4 is always enough. Memory is taken for `m`+4 knots at most, whatever its value
/// \param[out] fp      the sum of squares: within 0.001 `s` of `s`; less if no interior knot is needed; 0 for an interpolating
///                     spline
/// \param[in,out] warmstartinf what a warm start needs; may be null for a cold start, and then nothing is kept. A cold start
///                     does not look at what the record holds and allocates its arrays; a warm start replaces them. The
///                     caller releases `wrk` and `iwrk`
/// \param[in,out] spline the spline, `n` knots and `n` elements of coefficients; for a warm start on entry the spline of the
///                     earlier call, whose arrays are replaced. The caller releases `lamda` and `c`
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_BAD_PARAM: `start` is neither Kor_Cold nor Kor_Warm.
/// - NE_INT_ARG_LT: `m` is less than 4.
/// - NE_NOT_STRICTLY_INCREASING: `x` is not strictly increasing, or holds a NaN.
/// - NE_REAL_ARRAY_CONS: an abscissa or an ordinate is not finite.
/// - NE_WEIGHTS_NOT_POSITIVE: a weight is not positive.
/// - NE_REAL_ARG_LT: `s` is less than 0.
/// - NE_SF_D_K_CONS: `nest` is too small.
/// - NE_ENUMTYPE_WARM: `start` is Kor_Warm, but `warmstartinf` and `spline` do not hold the results of an earlier call with
///   these points.
/// - NE_ALLOC_FAIL: there is not enough memory.
/// - NE_NUM_KNOTS_1D_GT: more than `nest` knots are needed; the least-squares spline on the knots so far is returned, and a
///   warm start with a larger `nest` goes on from there.
/// - NE_SPLINE_COEFF_CONV: the smoothing parameter was not found; `s` may be too small. The last spline is returned.
///
/// After the last two the outputs are set; after the others they are untouched.
/// \par Accuracy
/// |fp - `s`| is less than 0.001 `s`.
/// \par Method
/// Knots are added where the residuals are largest until a least-squares spline reaches `s`; then the smoothing parameter is
/// found by rational interpolation. P. Dierckx, J. Comput. Appl. Math. 1 (1975) 165-184, and Curve and Surface Fitting with
/// Splines (1993), chapter 5. Each trial takes a time proportional to `m`.
/// \par Thread safety
/// Safe.
/// \par See also
/// e02bbc(), e02bcc(), e02bdc() use the spline; e02bac() takes knots of your own.
/// \par Example
/// \code{.c}
/// KorSpline spline;
/// KorSplineWarm state;
/// e02bec(Kor_Cold, m, x, y, weights, 100.0, m + 4, &fp, &state, &spline, &fail);
/// e02bec(Kor_Warm, m, x, y, weights, 50.0, m + 4, &fp, &state, &spline, &fail);   // goes on from there
/// ...
/// x04bdc((void **)&spline.lamda);
/// x04bdc((void **)&spline.c);
/// x04bdc((void **)&state.wrk);
/// x04bdc((void **)&state.iwrk);
/// \endcode
void e02bec(Integer start, Integer m, const double x[], const double y[], const double weights[], double s,
            Integer nest, double *fp, KorSplineWarm *warmstartinf, KorSpline *spline, KorError *fail);

/// \brief Values of a bicubic spline at points that are linked panel by panel.
///
/// As e02dec(), for many points in no order that are evaluated again and again: once e02zac() has linked them, no
/// intervals are searched for.
///
/// \param[in]  m      number of points, at least 1
/// \param[in]  x      `m` abscissae, from `lamda[3]` to `lamda[nx-4]`
/// \param[in]  y      `m` ordinates, from `mu[3]` to `mu[ny-4]`
/// \param[out] ff     `m` values
/// \param[in]  point  the links, as e02zac() has made them for these points and knots; `m` + (`nx`-7)(`ny`-7) elements
/// \param[in]  spline the spline; `lamda[3]` < `lamda[4]`, `lamda[nx-5]` < `lamda[nx-4]`, and the same for `mu`. The messages
///                    call its members `nx` and `ny` "spline.px" and "spline.py"
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `m` is less than 1, or `nx` or `ny` less than 8.
/// - NE_END_KNOTS_CONS: the first or the last panel in x or in y is empty.
/// - NE_POINT_OUTSIDE_RECT: a point lies outside the rectangle of the spline.
/// - NE_PANEL_ORDER: `point` does not link each point in its own panel; the index is that of the first fault.
///
/// `ff` is untouched after an error.
/// \par Accuracy
/// A few units of machine precision times the largest of the sixteen coefficients that count.
/// \par Method
/// As e02dec(). J. G. Hayes and J. Halliday, J. Inst. Maths Applics 14 (1974) 89-103.
/// \par Thread safety
/// Safe; threads may share a spline.
/// \par Example
/// \code{.c}
/// e02zac(spline.nx, spline.ny, spline.lamda, spline.mu, m, x, y, point, npoint, &fail);
/// e02dbc(m, x, y, ff, point, &spline, &fail);
/// \endcode
void e02dbc(Integer m, const double x[], const double y[], double ff[], const Integer point[],
            const KorSpline2D *spline, KorError *fail);

/// \brief The smoothing bicubic spline for values on a rectangular grid.
///
/// The surface counterpart of e02bec(): among the splines on its knots with fp = sum_ij (f_ij - s(`x[i]`, `y[j]`))^2 at most `s`,
/// the one whose third derivatives jump least.
///
/// \param[in]  start   Kor_Cold: from the beginning; Kor_Warm: from the knots and the state that an earlier call with the same
///                     grid has left
/// \param[in]  mx      number of grid lines of constant x, at least 4
/// \param[in]  x       `mx` abscissae, strictly increasing
/// \param[in]  my      number of grid lines of constant y, at least 4
/// \param[in]  y       `my` ordinates, strictly increasing
/// \param[in]  f       `mx` by `my` values, row-major: that at (`x[i]`, `y[j]`) is `f[my * i + j]`
/// \param[in]  s       the smoothing factor, at least 0; with 0 the spline interpolates. With values of standard deviation
///                     sigma, sigma^2 (`mx` `my` +- sqrt(2 `mx` `my`)) is right
/// \param[in]  nxest   the greatest number of knots in x: at least 8, and at least `mx`+4 if `s` is 0; `mx`+4 is always enough
/// \param[in]  nyest   the greatest number of knots in y: at least 8, and at least `my`+4 if `s` is 0
/// \param[out] fp      the sum of squares: within 0.001 `s` of `s`; less if no interior knot is needed; 0 for an interpolating
///                     spline
/// \param[in,out] warmstartinf what a warm start needs, as in e02bec(); may be null for a cold start
/// \param[in,out] spline the spline; for a warm start on entry that of the earlier call, whose arrays are replaced. The caller
///                     releases `lamda`, `mu` and `c`
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_BAD_PARAM: `start` is neither Kor_Cold nor Kor_Warm.
/// - NE_INT_ARG_LT: `mx` or `my` is less than 4.
/// - NE_NOT_STRICTLY_INCREASING: `x` or `y` is not strictly increasing, or holds a NaN.
/// - NE_REAL_ARRAY_CONS: a coordinate or a value is not finite.
/// - NE_REAL_ARG_LT: `s` is less than 0.
/// - NE_NUM_KNOTS_2D_LT: `nxest` or `nyest` is less than 8.
/// - NE_SF_D_K_CONS: `s` is 0, and `nxest` is less than `mx`+4 or `nyest` less than `my`+4.
/// - NE_ENUMTYPE_WARM: `start` is Kor_Warm, but `warmstartinf` and `spline` do not hold the results of an earlier call with
///   this grid.
/// - NE_ALLOC_FAIL: there is not enough memory.
/// - NE_NUM_KNOTS_2D_GT_RECT: more knots are needed than `nxest` and `nyest` allow; the least-squares spline on the knots so
///   far is returned.
/// - NE_SPLINE_COEFF_CONV: the smoothing parameter was not found; `s` may be too small. The last spline is returned.
///
/// After the last two the outputs are set; after the others they are untouched.
/// \par Accuracy
/// |fp - `s`| is less than 0.001 `s`.
/// \par Method
/// As e02bec(), with knots added now in x, now in y, and the equations solved one dimension at a time. P. Dierckx, SIAM J.
/// Numer. Anal. 19 (1982) 1286-1304, and Curve and Surface Fitting with Splines (1993), chapter 5.
/// \par Thread safety
/// Safe.
/// \par See also
/// e02dec() and e02dfc() evaluate the spline; e02ddc() takes scattered data.
/// \par Example
/// \code{.c}
/// KorSpline2D spline;
/// e02dcc(Kor_Cold, mx, x, my, y, f, 0.1, mx + 4, my + 4, &fp, NULL, &spline, &fail);
/// \endcode
void e02dcc(Integer start, Integer mx, const double x[], Integer my, const double y[], const double f[], double s,
            Integer nxest, Integer nyest, double *fp, KorSplineWarm *warmstartinf, KorSpline2D *spline, KorError *fail);

/// \brief The smoothing bicubic spline for scattered data.
///
/// As e02dcc(), with points anywhere in the plane and weights: fp = sum (`weights[r]` (`f[r]` - s(`x[r]`, `y[r]`)))^2. Where the
/// points leave coefficients undetermined, those of least norm are taken. The rectangle of the spline is that of the points.
///
/// \param[in]  start   Kor_Cold: from the beginning; Kor_Warm: from the knots and the state that an earlier call with the same
///                     points has left
/// \param[in]  m       number of points, at least 16
/// \param[in]  x       `m` abscissae
/// \param[in]  y       `m` ordinates
/// \param[in]  f       `m` values
/// \param[in]  weights `m` weights, at least 16 of them not 0; a point of weight 0 counts for the rectangle alone. Signs do not
///                     matter
/// \param[in]  s       the smoothing factor, greater than 0. With weights that are the reciprocals of the standard deviations
///                     of `f`, values from m - sqrt(2m) to m + sqrt(2m) are right
/// \param[in]  nxest   the greatest number of knots in x, at least 8; 5 + sqrt(m) is usually ample
/// \param[in]  nyest   the greatest number of knots in y, at least 8
/// \param[out] fp      the sum of squares: within 0.001 `s` of `s`, or less if no interior knot is needed
/// \param[out] rank    the rank of the equations that have been solved; less than (`nx`-4)(`ny`-4) where coefficients of least
///                     norm were taken
/// \param[in,out] warmstartinf what a warm start needs, as in e02bec(); may be null for a cold start
/// \param[in,out] spline the spline; for a warm start on entry that of the earlier call, whose arrays are replaced. The caller
///                     releases `lamda`, `mu` and `c`
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_BAD_PARAM: `start` is neither Kor_Cold nor Kor_Warm.
/// - NE_INT_ARG_LT: `m` is less than 16.
/// - NE_REAL_ARRAY_CONS: a coordinate, a value or a weight is not finite.
/// - NE_NON_ZERO_WEIGHTS: fewer than 16 weights are not 0.
/// - NE_ALL_ELEMENTS_EQUAL: all `x`, or all `y`, are equal.
/// - NE_REAL_ARG_LE: `s` is not greater than 0.
/// - NE_NUM_KNOTS_2D_LT: `nxest` or `nyest` is less than 8.
/// - NE_ENUMTYPE_WARM: `start` is Kor_Warm, but `warmstartinf` and `spline` do not hold the results of an earlier call with
///   these points.
/// - NE_ALLOC_FAIL: there is not enough memory.
/// - NE_NUM_KNOTS_2D_GT_SCAT: more knots are needed than `nxest` and `nyest` allow.
/// - NE_NUM_COEFF_GT: more knots are needed, but there are more coefficients than points already.
/// - NE_NO_ADDITIONAL_KNOTS: more knots are needed, but a new one would coincide with an old one.
/// - NE_SPLINE_COEFF_CONV: the smoothing parameter was not found; `s` may be too small.
///
/// After the last four the outputs are set, to the last spline; after the others they are untouched.
/// \par Accuracy
/// |fp - `s`| is less than 0.001 `s`.
/// \par Method
/// As e02bec(); a knot is added where the residuals in a strip between two knots are largest, at their centre of gravity.
/// P. Dierckx, Curve and Surface Fitting with Splines (1993), chapter 9, and IMA J. Numer. Anal. 1 (1981) 267-283.
/// \par Thread safety
/// Safe.
/// \par See also
/// e02dec() and e02dfc() evaluate the spline; e01sac() interpolates scattered data.
/// \par Example
/// \code{.c}
/// KorSpline2D spline;
/// Integer rank;
/// e02ddc(Kor_Cold, m, x, y, f, weights, m, 20, 20, &fp, &rank, NULL, &spline, &fail);
/// \endcode
void e02ddc(Integer start, Integer m, const double x[], const double y[], const double f[], const double weights[],
            double s, Integer nxest, Integer nyest, double *fp, Integer *rank, KorSplineWarm *warmstartinf,
            KorSpline2D *spline, KorError *fail);

/// \brief Values of a bicubic spline at a list of points.
///
/// \param[in]  m      number of points, at least 1
/// \param[in]  x      `m` abscissae, from `lamda[3]` to `lamda[nx-4]`, in any order
/// \param[in]  y      `m` ordinates, from `mu[3]` to `mu[ny-4]`
/// \param[out] ff     `m` values
/// \param[in]  spline the spline
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `m` is less than 1.
/// - NE_NUM_KNOTS_2D_LT: there are fewer than 8 knots in x or in y.
/// - NE_SPLINE_RANGE_INVALID: the spline's range in x or in y is empty.
/// - NE_POINT_OUTSIDE_RECT: a point lies outside the rectangle of the spline, or is not a number.
///
/// `ff` is untouched after an error.
/// \par Accuracy
/// A few units of machine precision times the largest of the sixteen coefficients that count.
/// \par Method
/// Products of B-splines. C. de Boor, J. Approx. Theory 6 (1972) 50-62. Points that follow one another in space are quickest.
/// \par Thread safety
/// Safe; threads may share a spline.
/// \par See also
/// e02dfc() for a mesh of points, which is much faster.
/// \par Example
/// \code{.c}
/// double x[2] = {0.5, 1.5}, y[2] = {0.25, 0.75}, ff[2];
/// e02dec(2, x, y, ff, &spline, &fail);
/// \endcode
void e02dec(Integer m, const double x[], const double y[], double ff[], const KorSpline2D *spline, KorError *fail);

/// \brief Values of a bicubic spline on a mesh of points.
///
/// \param[in]  mx     number of lines of constant x, at least 1
/// \param[in]  my     number of lines of constant y, at least 1
/// \param[in]  x      `mx` abscissae, from `lamda[3]` to `lamda[nx-4]`, in any order
/// \param[in]  y      `my` ordinates, from `mu[3]` to `mu[ny-4]`
/// \param[out] ff     `mx` by `my` values, row-major: that at (`x[i]`, `y[j]`) is `ff[my * i + j]`
/// \param[in]  spline the spline
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `mx` or `my` is less than 1.
/// - NE_NUM_KNOTS_2D_LT: there are fewer than 8 knots in x or in y.
/// - NE_SPLINE_RANGE_INVALID: the spline's range in x or in y is empty.
/// - NE_POINT_OUTSIDE_RECT: a point lies outside the rectangle of the spline, or is not a number.
/// - NE_ALLOC_FAIL: there is not enough memory.
///
/// `ff` is untouched after an error.
/// \par Accuracy
/// A few units of machine precision times the largest of the sixteen coefficients that count.
/// \par Method
/// One dimension after the other: four products for each value. C. de Boor, ACM Trans. Math. Softw. 5 (1979) 173-182.
/// \par Thread safety
/// Safe; threads may share a spline.
/// \par Example
/// \code{.c}
/// double x[3] = {0.0, 0.5, 1.0}, y[2] = {0.25, 0.75}, ff[6];
/// e02dfc(3, 2, x, y, ff, &spline, &fail);
/// \endcode
void e02dfc(Integer mx, Integer my, const double x[], const double y[], double ff[], const KorSpline2D *spline,
            KorError *fail);

/// \brief Links points in the plane into chains, one for each panel of a pair of knot sets, for e02dbc().
///
/// The panels are the rectangles between neighbouring knots. Panel q = i (`py`-7) + j is that of the i-th interval in x and
/// the j-th in y, counted from 0. A point outside the knots belongs to the nearest panel.
///
/// \param[in]  px     number of knots in x, at least 8
/// \param[in]  py     number of knots in y, at least 8
/// \param[in]  lamda  `px` knots; `lamda[3]` to `lamda[px-4]` in non-decreasing order
/// \param[in]  mu     `py` knots; `mu[3]` to `mu[py-4]` in non-decreasing order
/// \param[in]  m      number of points, at least 1
/// \param[in]  x      `m` abscissae
/// \param[in]  y      `m` ordinates
/// \param[out] point  `npoint` elements: `point[m + q]` is the number, from 1, of the first point of panel q, and `point[r - 1]`
///                    that of the next one after point number r; 0 ends a chain
/// \param[in]  npoint number of elements of `point`, at least `m` + (`px`-7)(`py`-7)
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `px` or `py` is less than 8, `m` less than 1, or `npoint` too small.
/// - NE_NOT_INCREASING: the knots are not in non-decreasing order.
/// - NE_KNOTS_COINCIDE: the range of the knots is empty.
/// - NE_REAL_ARRAY_CONS: a coordinate is not a number, or infinite.
///
/// `point` is untouched after an error.
/// \par Accuracy
/// No arithmetic is done.
/// \par Method
/// Binary search. J. G. Hayes and J. Halliday, J. Inst. Maths Applics 14 (1974) 89-103.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// for (Integer r = point[m + q]; r != 0; r = point[r - 1])
///     printf("%g %g\n", x[r - 1], y[r - 1]);   // the points of panel q
/// \endcode
void e02zac(Integer px, Integer py, const double lamda[], const double mu[], Integer m, const double x[],
            const double y[], Integer point[], Integer npoint, KorError *fail);

KOR_END_DECLS

#endif
