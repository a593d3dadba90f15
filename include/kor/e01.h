/// \file e01.h
/// Chapter e01: interpolation in one variable, on a grid and of scattered data.
#ifndef KOR_E01_H
#define KOR_E01_H

#include <kor.h>
#include <kor/e02.h>

KOR_BEGIN_DECLS

/// An interpolant of scattered data, made by e01sac(), read by e01sbc(), released by e01szc().
typedef struct {
    Integer stamp1;     ///< -11111 once e01sac() has seen the record
    Integer stamp2;     ///< -23456 once e01sac() has seen the record
    Integer setup_ok;   ///< -11111 after a successful e01sac(), 0 after a failure
    Integer method;     ///< Kor_RC or Kor_Shep
    Integer m;          ///< number of points
    double radius;      ///< Kor_Shep: the radius of the weights
    Boolean has_memory; ///< true while the arrays exist
    double *x;          ///< `m` abscissae, a copy
    double *y;          ///< `m` ordinates, a copy
    double *f;          ///< `m` values, a copy
    double *quad;       ///< Kor_Shep: 5 `m` coefficients of the nodal quadratics
    Integer *mesh; ///< Kor_RC: the triangulation, lists of neighbours (6 `m`+1) and their ends (`m`); then, and for
                   ///< Kor_Shep alone, the points by cells
    double
        *grads; ///< Kor_RC: 2 `m` partial derivatives at the nodes, in x and y in turn; then, and for Kor_Shep alone,
                ///< the frame of the cells
} KorScatterRecord;

/// Choices for the method Kor_Shep of e01sac().
typedef struct {
    double rnw; ///< radius of the weights
    double
        rnq; ///< radius of the fits; if greater than 0, both radii are taken as they are, and `nw` and `nq` are set to 0
    Integer nw;    ///< nodes that the radius of the weights shall hold on average
    Integer nq;    ///< the same for the radius of the fits; 0 or less: `nw` = 9 and `nq` = 18
    Integer minnq; ///< on exit: the least number of other nodes within `rnq` of a node
} KorScatterOptions;

/// \brief The cubic spline through given points.
///
/// The knots are the points but the second and the next to last, so that no conditions are needed at the ends: the first
/// two intervals share one cubic, and so do the last two.
///
/// \param[in]  m      number of points, at least 4
/// \param[in]  x      `m` abscissae, strictly increasing
/// \param[in]  y      `m` ordinates
/// \param[out] spline `m`+4 knots and as many elements of coefficients; the arrays belong to the caller, who releases them
///                    with x04bdc()
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `m` is less than 4.
/// - NE_NOT_STRICTLY_INCREASING: `x` is not strictly increasing, or holds a NaN.
/// - NE_REAL_ARRAY_CONS: an abscissa is infinite.
/// - NE_ALLOC_FAIL: there is not enough memory.
///
/// `spline` is untouched after an error.
/// \par Accuracy
/// The spline passes the points within a few units of machine precision times the size of the neighbouring values.
/// \par Method
/// Elimination in the banded, totally positive matrix of B-splines. C. de Boor and A. Pinkus, Numer. Math. 27 (1977) 485-490.
/// The time is proportional to `m`.
/// \par Thread safety
/// Safe.
/// \par See also
/// e02bbc(), e02bcc(), e02bdc() evaluate, differentiate, integrate the spline. e01bec() keeps monotone data monotone.
/// \par Example
/// \code{.c}
/// double x[5] = {0, 1, 2, 4, 5}, y[5] = {0, 1, 8, 64, 125}, s;
/// KorSpline spline;
/// e01bac(5, x, y, &spline, &fail);
/// e02bbc(3.0, &s, &spline, &fail);   // 27
/// x04bdc((void **)&spline.lamda);
/// x04bdc((void **)&spline.c);
/// \endcode
void e01bac(Integer m, const double x[], const double y[], KorSpline *spline, KorError *fail);

/// \brief Derivatives for a piecewise cubic through given points that is monotone wherever the data are.
///
/// \param[in]  n number of points, at least 2
/// \param[in]  x `n` abscissae, strictly increasing
/// \param[in]  f `n` values
/// \param[out] d `n` derivatives, 0 at each local extremum of the data
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `n` is less than 2.
/// - NE_NOT_MONOTONIC: `x` is not strictly increasing, or holds a NaN or an infinity.
///
/// `d` is untouched after an error.
/// \par Accuracy
/// A few units of machine precision. The curve has a continuous first derivative; its error against a smooth function is of
/// second order at worst, of third order where the data are monotone.
/// \par Method
/// Harmonic means of the slopes, weighted by the lengths of the intervals; three-point formulae at the ends, limited to keep
/// the shape. F. N. Fritsch and J. Butland, SIAM J. Sci. Stat. Comput. 5 (1984) 300-304.
/// \par Thread safety
/// Safe.
/// \par See also
/// e01bfc() evaluates, e01bgc() with derivatives, e01bhc() integrates.
/// \par Example
/// \code{.c}
/// double x[4] = {0, 1, 2, 3}, f[4] = {0, 0, 1, 1}, d[4];
/// e01bec(4, x, f, d, &fail);   // d = {0, 0, 0, 0}: no overshoot
/// \endcode
void e01bec(Integer n, const double x[], const double f[], double d[], KorError *fail);

/// \brief Values of a piecewise cubic in Hermite form.
///
/// \param[in]  n  number of nodes, at least 2
/// \param[in]  x  `n` nodes, strictly increasing
/// \param[in]  f  `n` values at the nodes
/// \param[in]  d  `n` derivatives at the nodes, from e01bec() or elsewhere
/// \param[in]  m  number of points, at least 1
/// \param[in]  px `m` points, in any order; ordered ones are quickest
/// \param[out] pf `m` values; at a node exactly `f`
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `n` is less than 2, or `m` less than 1.
/// - NE_NOT_MONOTONIC: `x` is not strictly increasing.
/// - NW_EXTRAPOLATE: points lie outside [`x[0]`, `x[n-1]`]; the warning names the last of them. They get the value of the
///   cubic of the end interval, as all others have theirs.
///
/// `pf` is untouched after the errors.
/// \par Accuracy
/// A few units of machine precision times the size of the neighbouring values.
/// \par Method
/// Each cubic is evaluated about its nearer end. F. N. Fritsch and R. E. Carlson, SIAM J. Numer. Anal. 17 (1980) 238-246.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// double px[2] = {0.5, 1.5}, pf[2];
/// e01bfc(4, x, f, d, 2, px, pf, &fail);   // with the data of e01bec(): 0.0, 0.5
/// \endcode
void e01bfc(Integer n, const double x[], const double f[], const double d[], Integer m, const double px[], double pf[],
            KorError *fail);

/// \brief Values and first derivatives of a piecewise cubic in Hermite form.
///
/// \param[in]  n  number of nodes, at least 2
/// \param[in]  x  `n` nodes, strictly increasing
/// \param[in]  f  `n` values at the nodes
/// \param[in]  d  `n` derivatives at the nodes
/// \param[in]  m  number of points, at least 1
/// \param[in]  px `m` points, in any order
/// \param[out] pf `m` values
/// \param[out] pd `m` derivatives
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// As e01bfc().
/// \par Accuracy
/// As e01bfc() for the values; for the derivatives the errors are larger by the reciprocal of the interval's length.
/// \par Method
/// As e01bfc().
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// e01bgc(4, x, f, d, 2, px, pf, pd, &fail);   // with the data of e01bfc(): pd = {0.0, 1.5}
/// \endcode
void e01bgc(Integer n, const double x[], const double f[], const double d[], Integer m, const double px[], double pf[],
            double pd[], KorError *fail);

/// \brief The definite integral of a piecewise cubic in Hermite form.
///
/// \param[in]  n        number of nodes, at least 2
/// \param[in]  x        `n` nodes, strictly increasing
/// \param[in]  f        `n` values at the nodes
/// \param[in]  d        `n` derivatives at the nodes
/// \param[in]  a        lower limit
/// \param[in]  b        upper limit; with `b` < `a` the sign of the integral is reversed
/// \param[out] integral the integral from `a` to `b`
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `n` is less than 2.
/// - NE_NOT_MONOTONIC: `x` is not strictly increasing.
/// - NW_INTERVAL_EXTRAPOLATE: a limit, which the warning names, lies outside [`x[0]`, `x[n-1]`]; beyond the ends the cubics
///   of the end intervals are integrated.
///
/// `integral` is untouched after the errors.
/// \par Accuracy
/// A few units of machine precision times the integral of |f|.
/// \par Method
/// The exact integrals of the cubics, summed.
/// \par Thread safety
/// Safe.
/// \par Example
/// \code{.c}
/// e01bhc(4, x, f, d, 0.0, 3.0, &integral, &fail);   // with the data of e01bec(): 1.5
/// \endcode
void e01bhc(Integer n, const double x[], const double f[], const double d[], double a, double b, double *integral,
            KorError *fail);

/// \brief The bicubic spline through the values on a rectangular grid.
///
/// \param[in]  mx     number of grid lines of constant x, at least 4
/// \param[in]  my     number of grid lines of constant y, at least 4
/// \param[in]  x      `mx` abscissae, strictly increasing
/// \param[in]  y      `my` ordinates, strictly increasing
/// \param[in]  f      `mx` by `my` values, row-major: that at (`x[i]`, `y[j]`) is `f[my * i + j]`
/// \param[out] spline `mx`+4 and `my`+4 knots and `mx` by `my` coefficients; the arrays belong to the caller, who releases them
///                    with x04bdc()
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_INT_ARG_LT: `mx` or `my` is less than 4.
/// - NE_NOT_STRICTLY_INCREASING: `x` or `y` is not strictly increasing, or holds a NaN.
/// - NE_REAL_ARRAY_CONS: a coordinate is infinite.
/// - NE_ALLOC_FAIL: there is not enough memory.
///
/// `spline` is untouched after an error.
/// \par Accuracy
/// The spline passes the values within a few units of machine precision times the size of the neighbouring ones.
/// \par Method
/// Splines with the knots of e01bac(), first along y for all x, then along x. C. de Boor, ACM Trans. Math. Softw. 5 (1979)
/// 173-182. The time is proportional to the number of values.
/// \par Thread safety
/// Safe.
/// \par See also
/// e02dec() and e02dfc() evaluate the spline.
/// \par Example
/// \code{.c}
/// KorSpline2D spline;
/// e01dac(mx, my, x, y, f, &spline, &fail);
/// e02dfc(kx, ky, px, py, ff, &spline, &fail);
/// x04bdc((void **)&spline.lamda);
/// x04bdc((void **)&spline.mu);
/// x04bdc((void **)&spline.c);
/// \endcode
void e01dac(Integer mx, Integer my, const double x[], const double y[], const double f[], KorSpline2D *spline,
            KorError *fail);

/// \brief Sets up an interpolant of scattered data in two variables.
///
/// Kor_RC joins the points to triangles and puts a smooth piecewise cubic on these: local, quick, at home with clusters; for a
/// point outside the convex hull it extrapolates linearly. Kor_Shep is a weighted mean of quadratics that are fitted about
/// each point: smooth, best where the points are spread evenly; it has no value far from all points.
///
/// \param[in]  method   Kor_RC (Renka and Cline) or Kor_Shep (modified Shepard)
/// \param[in]  m        number of points, at least 3
/// \param[in]  x        `m` abscissae
/// \param[in]  y        `m` ordinates; x and y in comparable units
/// \param[in]  f        `m` values
/// \param[out] comm     the interpolant; what it held before is not looked at. Its arrays are released by e01szc()
/// \param[in,out] optional for Kor_Shep: the radii, or how many points these shall hold. What is chosen is written back. May be
///                      null: 9 points for the weights, 18 for the fits. Not looked at for Kor_RC
/// \param[in,out] fail  the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_BAD_PARAM: `method` is neither of the two.
/// - NE_INT_ARG_LT: `m` is less than 3.
/// - NE_REAL_ARRAY_CONS: a coordinate or a value is not finite; or, for Kor_Shep, so large or small that squares of distances
///   leave the range of doubles.
/// - NE_ALLOC_FAIL: there is not enough memory.
/// - NE_ALL_DATA_COLLINEAR: Kor_RC: all points lie on one line.
/// - NE_DATA_NOT_UNIQUE: two points coincide; their indices are counted from 0.
/// - NE_RAD_PARAM_INVALID: not 0 < `rnw` <= `rnq`.
/// - NE_NUM_PARAM_INVALID: not 0 < `nw` <= `nq`.
/// - NW_SPARSE_DATA_FIT: a warning: a node has fewer than 6 others within `rnq`, so that its fit is hardly determined; the
///   interpolant is set up and may be used.
///
/// After an error `setup_ok` is 0 and no array is held; after the warning all is as after success.
/// \par Accuracy
/// Both interpolate; both reproduce linear functions to a few units of machine precision, Kor_Shep quadratic ones too, where
/// its points determine them.
/// \par Method
/// Kor_RC: Delaunay triangulation by division and merging with exact predicates (L. Guibas and J. Stolfi, ACM Trans. Graphics
/// 4 (1985) 74-123), in time O(m log m); gradients of least curvature along the edges, iterated until they stand still
/// (R. J. Renka and A. K. Cline, Rocky Mountain J. Math. 14 (1984) 223-237); Clough-Tocher elements. Kor_Shep: R. Franke and
/// G. Nielson, Int. J. Numer. Meth. Engng 15 (1980) 1691-1704; neighbours are found by cells.
/// \par Thread safety
/// Safe.
/// \par See also
/// e02ddc() smooths scattered data; e01dac() interpolates on a grid.
/// \par Example
/// \code{.c}
/// KorScatterRecord surface;
/// e01sac(Kor_RC, m, x, y, f, &surface, NULL, &fail);
/// e01sbc(&surface, n, px, py, pf, &fail);
/// e01szc(&surface);
/// \endcode
void e01sac(Integer method, Integer m, const double x[], const double y[], const double f[], KorScatterRecord *comm,
            KorScatterOptions *optional, KorError *fail);

/// \brief Values of an interpolant of scattered data.
///
/// \param[in]  comm the interpolant, from e01sac(); not changed, so that threads may share it
/// \param[in]  n    number of points, at least 1
/// \param[in]  px   `n` abscissae, in any order; points that follow one another in space are quickest
/// \param[in]  py   `n` ordinates
/// \param[out] pf   `n` values
/// \param[in,out] fail the error record; may be null, and then a failure ends the process
///
/// \par Errors
/// - NE_NO_SETUP: `comm` has never been set up.
/// - NE_SETUP_ERROR: its setup has failed.
/// - NE_STRUCT_CORRUPT: `comm` has been spoilt, or released.
/// - NE_INT_ARG_LT: `n` is less than 1.
/// - NE_TRIANG_INVALID: Kor_RC: the triangulation in `comm` has been spoilt; the values of the points before are set.
/// - NW_VALUE_EXTRAPOLATED: Kor_RC: a warning for each point outside the convex hull of the data; all values are set, and the
///   last warning stands. A point that is not finite gets NaN.
/// - NE_BAD_INTERPOLANT: Kor_Shep: no node lies within the radius about this point; the values of the points before are set.
/// \par Accuracy
/// Kor_Shep gives exactly `f` at a node, Kor_RC too.
/// \par Method
/// Kor_RC: the triangle is found by walking, from that of the point before or from a node of the same cell. As e01sac().
/// \par Thread safety
/// Safe; threads may share an interpolant.
/// \par Example
/// \code{.c}
/// double px[2] = {0.5, 0.6}, py[2] = {0.25, 0.25}, pf[2];
/// e01sbc(&surface, 2, px, py, pf, &fail);
/// \endcode
void e01sbc(const KorScatterRecord *comm, Integer n, const double px[], const double py[], double pf[], KorError *fail);

/// \brief Releases the arrays of an interpolant of scattered data.
///
/// \param[in,out] comm the interpolant; without arrays, because it was released before or its setup has failed, it is left
///                      alone. Must have been seen by e01sac()
/// \par Accuracy
/// No arithmetic is done.
/// \par Method
/// The arrays go back by x04bdc().
/// \par Thread safety
/// Safe, as long as no other thread uses the interpolant.
/// \par Example
/// \code{.c}
/// e01szc(&surface);
/// \endcode
void e01szc(KorScatterRecord *comm);

KOR_END_DECLS

#endif
