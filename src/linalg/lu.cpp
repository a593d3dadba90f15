// LU factorisation with interchanges of rows.
//
// Up to kSmallSystem the elimination runs along the rows in place. Beyond, the columns are halved: the left half is
// factorised, the right one is brought up to date by a triangular solve and a product, and factorised in turn. At the
// bottom of the recursion (S. Toledo, SIAM J. Matrix Anal. Appl. 18 (1997) 1065-1081) stands a panel of a few columns,
// which is copied to a buffer where columns are contiguous. The pivots are those of the elimination column by column.
#include "linalg/lu.hpp"

#include <algorithm>
#include <cmath>

#include "frame/complex.hpp"
#include "frame/constants.hpp"
#include "frame/dispatch.hpp"
#include "frame/views.hpp"
#include "linalg/blas.hpp"
#include "linalg/norm.hpp"

namespace kor::linalg {

namespace {

// Columns of a panel, of which kStrip at a time are eliminated before the others follow.
template <Scalar T>
constexpr Integer kPanel = std::is_same_v<T, double> ? 16 : 8;
constexpr Integer kWidestPanel = kPanel<double>;
constexpr Integer kStrip = 4;

// a / b for many a: complex numbers of no extreme size are multiplied by the reciprocal, formed once.
struct RealDivisor {
    double b;
    explicit RealDivisor(double divisor) : b{divisor} {}
    double operator()(double a) const { return a / b; }
};
struct ComplexDivisor {
    Complex b, reciprocal;
    bool plain;
    explicit ComplexDivisor(Complex divisor) : b{divisor}
    {
        constexpr double kLeast = 0x1p-400, kGreatest = 0x1p400;
        const double square = b.re * b.re + b.im * b.im;
        plain = square > kLeast && square < kGreatest;
        reciprocal = {b.re / square, -b.im / square};
    }
    Complex operator()(Complex a) const { return plain ? a * reciprocal : quotient(a, b); }
};
template <Scalar T>
using Divisor = std::conditional_t<std::is_same_v<T, double>, RealDivisor, ComplexDivisor>;

// What pivots are compared by: the scaled modulus, or its square if complex, which needs no root. `limit` is the bound in
// the same measure.
[[gnu::always_inline]] inline double scaled_size(double a, double scale) { return std::fabs(a) * scale; }
[[gnu::always_inline]] inline double scaled_size(Complex a, double scale)
{
    const double re = a.re * scale, im = a.im * scale;
    return re * re + im * im;
}
double limit_of(double least, const double *) { return least; }
double limit_of(double least, const Complex *) { return least * least; }

// The elimination along rows. The candidates of a stage are compared while the stage before it makes them.
template <Scalar T>
[[gnu::always_inline]] inline Integer eliminate_rows(Integer n, T *a, std::ptrdiff_t tda, double *scale, double limit,
                                                     Integer *pivot)
{
    Integer chosen = 0;
    double best = -1.0;
    const auto consider = [&](Integer i, double size) {
        if (size > best) {
            best = size;
            chosen = i;
        }
    };
    for (Integer i = 0; i < n; ++i) consider(i, scaled_size(a[i * tda], scale[i]));
    for (Integer k = 0; k < n; ++k) {
        if (!(best >= limit)) return k + 1;
        T *const __restrict pivot_row = a + k * tda;
        pivot[k] = chosen + 1;
        if (chosen != k) {
            std::swap_ranges(pivot_row, pivot_row + n, a + chosen * tda);
            scale[chosen] = scale[k];
        }
        const Divisor<T> quotient_of{pivot_row[k]};
        best = -1.0;
        chosen = k + 1;
        for (Integer i = k + 1; i < n; ++i) {
            T *const __restrict row = a + i * tda;
            const T factor = quotient_of(row[k]);
            row[k] = factor;
            // The next stage waits for its candidates: they do not go through memory.
            consider(i, scaled_size(row[k + 1] - factor * pivot_row[k + 1], scale[i]));
            for (Integer j = k + 1; j < n; ++j) row[j] = row[j] - factor * pivot_row[j];
        }
    }
    return 0;
}

KOR_CLONES Integer eliminate(Integer n, double *a, std::ptrdiff_t tda, double *scale, double limit, Integer *pivot)
{
    return eliminate_rows(n, a, tda, scale, limit, pivot);
}
KOR_CLONES Integer eliminate(Integer n, Complex *a, std::ptrdiff_t tda, double *scale, double limit, Integer *pivot)
{
    return eliminate_rows(n, a, tda, scale, limit, pivot);
}

// A panel of m rows and w columns, each column contiguous, m apart.
template <Scalar T>
[[gnu::always_inline]] inline Integer eliminate_columns(Integer m, Integer w, T *panel, double *scale, double limit,
                                                        Integer *pivot)
{
    const ColumnMajor<T> P{panel, m};
    for (Integer first = 0; first < w; first += kStrip) {
        const Integer end = std::min(first + kStrip, w);
        for (Integer k = first; k < end; ++k) {
            T *const __restrict column = P.column(k);
            double best = -1.0;
            for (Integer i = k; i < m; ++i) {
                const double size = scaled_size(column[i], scale[i]);
                best = size > best ? size : best;
            }
            if (!(best >= limit)) return k + 1;
            Integer chosen = k;
            while (scaled_size(column[chosen], scale[chosen]) != best) ++chosen;
            pivot[k] = chosen + 1;
            if (chosen != k) {
                for (Integer j = 0; j < w; ++j) std::swap(P(k, j), P(chosen, j));
                scale[chosen] = scale[k];
            }
            const Divisor<T> quotient_of{column[k]};
            for (Integer i = k + 1; i < m; ++i) column[i] = quotient_of(column[i]);
            for (Integer j = k + 1; j < end; ++j) {
                T *const __restrict other = P.column(j);
                const T factor = other[k];
                for (Integer i = k + 1; i < m; ++i) other[i] = other[i] - column[i] * factor;
            }
        }
        if (end < first + kStrip) break; // a narrow last strip has no columns after it
        const T *const __restrict l0 = P.column(first), *const __restrict l1 = P.column(first + 1),
                                  *const __restrict l2 = P.column(first + 2),
                                  *const __restrict l3 = P.column(first + 3);
        for (Integer j = end; j < w; ++j) {
            T *const __restrict c = P.column(j);
            T u[kStrip];
            for (Integer k = 0; k < kStrip; ++k) {
                u[k] = c[first + k];
                for (Integer l = 0; l < k; ++l) u[k] = u[k] - P(first + k, first + l) * u[l];
                c[first + k] = u[k];
            }
            for (Integer i = end; i < m; ++i)
                c[i] = (((c[i] - l0[i] * u[0]) - l1[i] * u[1]) - l2[i] * u[2]) - l3[i] * u[3];
        }
    }
    return 0;
}

KOR_CLONES Integer eliminate_panel(Integer m, Integer w, double *panel, double *scale, double limit, Integer *pivot)
{
    return eliminate_columns(m, w, panel, scale, limit, pivot);
}
KOR_CLONES Integer eliminate_panel(Integer m, Integer w, Complex *panel, double *scale, double limit, Integer *pivot)
{
    return eliminate_columns(m, w, panel, scale, limit, pivot);
}

// The recursion. All stages before `first` have been applied to the columns [first, last).
template <Scalar T>
struct Recursion {
    Integer n;
    RowMajor<T> A;
    Integer tda;
    double *scale;
    double limit;
    Integer *pivot;
    T *buffer;

    Integer factor(Integer first, Integer last)
    {
        const Integer width = last - first;
        if (width <= kPanel<T>) return panel(first, width);
        const Integer middle = first + (width / 2 + kPanel<T> - 1) / kPanel<T> * kPanel<T>;
        if (const Integer stage = factor(first, middle)) return stage;
        interchange(first, middle, middle, last);
        blas::trsm(blas::kRowMajor, LeftSide, LowerTriangle, NoTranspose, UnitTriangular, middle - first, last - middle,
                   one<T>(), &A(first, first), tda, &A(first, middle), tda);
        blas::gemm(blas::kRowMajor, NoTranspose, NoTranspose, n - middle, last - middle, middle - first, -one<T>(),
                   &A(middle, first), tda, &A(first, middle), tda, one<T>(), &A(middle, middle), tda);
        if (const Integer stage = factor(middle, last)) return stage;
        interchange(middle, last, first, middle);
        return 0;
    }

    Integer panel(Integer first, Integer width)
    {
        const Integer m = n - first;
        for (Integer i = 0; i < m; ++i) {
            const T *const row = &A(first + i, first);
            for (Integer j = 0; j < width; ++j) buffer[j * std::ptrdiff_t{m} + i] = row[j];
        }
        const Integer stage = eliminate_panel(m, width, buffer, scale + first, limit, pivot + first);
        for (Integer i = 0; i < m; ++i) {
            T *const row = &A(first + i, first);
            for (Integer j = 0; j < width; ++j) row[j] = buffer[j * std::ptrdiff_t{m} + i];
        }
        if (stage != 0) return first + stage;
        for (Integer k = first; k < first + width; ++k) pivot[k] += first;
        return 0;
    }

    // The interchanges of the stages [from, to), in the columns [left, right).
    void interchange(Integer from, Integer to, Integer left, Integer right)
    {
        for (Integer k = from; k < to; ++k)
            if (const Integer other = pivot[k] - 1; other != k)
                std::swap_ranges(&A(k, left), &A(k, left) + (right - left), &A(other, left));
    }
};

template <Scalar T>
Integer factor_matrix(Integer n, T *a, Integer tda, double *scale, double least, Integer *pivot, T *work)
{
    const double limit = limit_of(least, a);
    if (n <= kSmallSystem) return eliminate(n, a, tda, scale, limit, pivot);
    return Recursion<T>{n, {a, tda}, tda, scale, limit, pivot, work}.factor(0, n);
}

// Up to this length a plain sum of squares that neither overflowed nor came near underflow is good enough.
constexpr double kSafeSquares = 0x1p-900;

template <Scalar T>
[[gnu::always_inline]] inline bool scales_from_squares(Integer n, const T *a, std::ptrdiff_t tda, double *scale)
{
    for (Integer i = 0; i < n; ++i) {
        double squares = 0.0;
        for (Integer j = 0; j < n; ++j) squares += real(conj(a[i * tda + j]) * a[i * tda + j]);
        scale[i] = squares;
    }
    bool safe = true;
    for (Integer i = 0; i < n; ++i) {
        safe &= scale[i] > kSafeSquares && scale[i] <= kLargest;
        scale[i] = 1.0 / std::sqrt(scale[i]);
    }
    return safe;
}
KOR_CLONES bool small_row_scales(Integer n, const double *a, std::ptrdiff_t tda, double *scale)
{
    return scales_from_squares(n, a, tda, scale);
}
KOR_CLONES bool small_row_scales(Integer n, const Complex *a, std::ptrdiff_t tda, double *scale)
{
    return scales_from_squares(n, a, tda, scale);
}

template <Scalar T>
void scales_of_rows(Integer n, const T *a, Integer tda, double *scale)
{
    if (n <= kSmallSystem && small_row_scales(n, a, tda, scale)) return;
    for (Integer i = 0; i < n; ++i) {
        const double length = euclidean_norm(n, a + std::ptrdiff_t{i} * tda, 1);
        // The length of tiny rows has no finite reciprocal.
        scale[i] = length > 0.0 ? std::min(1.0 / length, kLargest) : 1.0 / length;
    }
}

// One right-hand side of a small system: each unknown is taken off all others as soon as it is known. The next one is taken
// first and stays in its register, because the way through memory is the longest of all.
template <Scalar T>
void solve_small(Integer n, RowMajor<const T> A, T *b, std::ptrdiff_t step)
{
    T x[kSmallSystem];
    for (Integer i = 0; i < n; ++i) x[i] = b[i * step];
    T next = b[0];
    for (Integer k = 0; k + 1 < n; ++k) {
        const T known = next;
        x[k] = known;
        next = x[k + 1] - A(k + 1, k) * known;
        for (Integer i = k + 2; i < n; ++i) x[i] = x[i] - A(i, k) * known;
    }
    for (Integer k = n - 1; k > 0; --k) {
        const T known = Divisor<T>{A(k, k)}(next);
        x[k] = known;
        next = x[k - 1] - A(k - 1, k) * known;
        for (Integer i = 0; i + 1 < k; ++i) x[i] = x[i] - A(i, k) * known;
    }
    x[0] = Divisor<T>{A(0, 0)}(next);
    for (Integer i = 0; i < n; ++i) b[i * step] = x[i];
}

// Several, along the rows of B.
template <Scalar T>
[[gnu::always_inline]] inline void solve_rows(Integer n, Integer nrhs, const T *a, std::ptrdiff_t tda, T *b,
                                              std::ptrdiff_t tdb)
{
    const auto take_off = [=](Integer i, Integer k) {
        const T factor = a[i * tda + k];
        T *const __restrict to = b + i * tdb;
        const T *const __restrict from = b + k * tdb;
        for (Integer j = 0; j < nrhs; ++j) to[j] = to[j] - factor * from[j];
    };
    for (Integer i = 1; i < n; ++i)
        for (Integer k = 0; k < i; ++k) take_off(i, k);
    for (Integer i = n - 1; i >= 0; --i) {
        for (Integer k = i + 1; k < n; ++k) take_off(i, k);
        const Divisor<T> quotient_of{a[i * tda + i]};
        T *const row = b + i * tdb;
        for (Integer j = 0; j < nrhs; ++j) row[j] = quotient_of(row[j]);
    }
}
KOR_CLONES void solve_many(Integer n, Integer nrhs, const double *a, std::ptrdiff_t tda, double *b, std::ptrdiff_t tdb)
{
    solve_rows(n, nrhs, a, tda, b, tdb);
}
KOR_CLONES void solve_many(Integer n, Integer nrhs, const Complex *a, std::ptrdiff_t tda, Complex *b,
                           std::ptrdiff_t tdb)
{
    solve_rows(n, nrhs, a, tda, b, tdb);
}

template <Scalar T>
void solve(Integer n, Integer nrhs, const T *a, Integer tda, const Integer *pivot, T *b, Integer tdb)
{
    const RowMajor<T> B{b, tdb};
    for (Integer k = 0; k < n; ++k)
        if (const Integer other = pivot[k] - 1; other != k) std::swap_ranges(B.row(k), B.row(k) + nrhs, B.row(other));

    if (n <= kSmallSystem)
        return nrhs == 1 ? solve_small(n, RowMajor<const T>{a, tda}, b, tdb) : solve_many(n, nrhs, a, tda, b, tdb);
    if (nrhs == 1) {
        blas::trsv(blas::kRowMajor, LowerTriangle, NoTranspose, UnitTriangular, n, a, tda, b, tdb);
        blas::trsv(blas::kRowMajor, UpperTriangle, NoTranspose, NotUnitTriangular, n, a, tda, b, tdb);
        return;
    }
    blas::trsm(blas::kRowMajor, LeftSide, LowerTriangle, NoTranspose, UnitTriangular, n, nrhs, one<T>(), a, tda, b,
               tdb);
    blas::trsm(blas::kRowMajor, LeftSide, UpperTriangle, NoTranspose, NotUnitTriangular, n, nrhs, one<T>(), a, tda, b,
               tdb);
}

} // namespace

Integer lu_work(Integer n) { return n <= kSmallSystem ? 0 : n * kWidestPanel; }

void row_scales(Integer n, const double *a, Integer tda, double *scale) { scales_of_rows(n, a, tda, scale); }
void row_scales(Integer n, const Complex *a, Integer tda, double *scale) { scales_of_rows(n, a, tda, scale); }

Integer lu_factor(Integer n, double *a, Integer tda, double *scale, double least, Integer *pivot, double *work)
{
    return factor_matrix(n, a, tda, scale, least, pivot, work);
}
Integer lu_factor(Integer n, Complex *a, Integer tda, double *scale, double least, Integer *pivot, Complex *work)
{
    return factor_matrix(n, a, tda, scale, least, pivot, work);
}

void lu_solve(Integer n, Integer nrhs, const double *a, Integer tda, const Integer *pivot, double *b, Integer tdb)
{
    solve(n, nrhs, a, tda, pivot, b, tdb);
}
void lu_solve(Integer n, Integer nrhs, const Complex *a, Integer tda, const Integer *pivot, Complex *b, Integer tdb)
{
    solve(n, nrhs, a, tda, pivot, b, tdb);
}

} // namespace kor::linalg
