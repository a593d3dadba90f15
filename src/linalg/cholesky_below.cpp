// Cholesky factorisation below the diagonal. Small matrices are factorised along the rows of conj(L)' in a buffer, larger ones
// by LAPACK. Where that refuses, a recursion by halves tells the stage: the upper left block, the block below it by a
// triangular solve, and what that leaves of the lower right one.
#include "linalg/cholesky_below.hpp"

#include <algorithm>
#include <cmath>

#include "frame/constants.hpp"
#include "frame/dispatch.hpp"
#include "frame/views.hpp"
#include "linalg/blas.hpp"
#include "linalg/lapack.hpp"

namespace kor::linalg {

namespace {

constexpr Integer kBlock = 32;
// Orders beyond which LAPACK is quicker than the recursion: see bench/linalg/bench_dense.
constexpr Integer kLapack = 24;

// A = U^H U, U in the place of the upper triangle of A: row k, once it is final, is taken off the rows below it. pivot[k] is
// the square of U(k, k) before the root was taken. Returns 0 or the stage, from 1, whose pivot is not a positive number.
template <Scalar T>
[[gnu::always_inline]] inline Integer factor_rows(Integer n, T *u, std::ptrdiff_t tdu, double *pivot)
{
    // The next pivot waits for the quotients by this one, but not for its root, unless they might overflow.
    constexpr double kPlainPivot = 0x1p-500;
    for (Integer k = 0; k < n; ++k) {
        T *const __restrict pivot_row = u + k * tdu;
        const double x = real(pivot_row[k]), root = std::sqrt(x);
        pivot[k] = x;
        if (!(x > 0.0 && x <= kLargest)) return k + 1;
        const bool plain = x > kPlainPivot;
        const double divisor = plain ? 1.0 / x : 1.0, reciprocal = 1.0 / root;
        pivot_row[k] = root * one<T>();
        if (!plain)
            for (Integer j = k + 1; j < n; ++j) pivot_row[j] = pivot_row[j] * reciprocal;
        for (Integer i = k + 1; i < n; ++i) {
            T *const __restrict row = u + i * tdu;
            const T factor = conj(pivot_row[i]) * divisor;
            for (Integer j = i; j < n; ++j) row[j] = row[j] - factor * pivot_row[j];
        }
        if (plain)
            for (Integer j = k + 1; j < n; ++j) pivot_row[j] = pivot_row[j] * reciprocal;
    }
    return 0;
}
KOR_CLONES Integer factor_block(Integer n, double *u, std::ptrdiff_t tdu, double *pivot)
{
    return factor_rows(n, u, tdu, pivot);
}
KOR_CLONES Integer factor_block(Integer n, Complex *u, std::ptrdiff_t tdu, double *pivot)
{
    return factor_rows(n, u, tdu, pivot);
}

// The recursion on the lower triangle; the diagonal of L takes the place of that of A for the while.
template <Scalar T>
struct Recursion {
    RowMajor<T> A;
    Integer tda;
    Determinant<double> &determinant;

    Integer factor(Integer first, Integer last)
    {
        const Integer n = last - first;
        if (n <= kBlock) return block(first, n);
        const Integer middle = first + (n / 2 + kBlock - 1) / kBlock * kBlock;
        if (const Integer stage = factor(first, middle)) return stage;
        blas::trsm(blas::kRowMajor, RightSide, LowerTriangle, ConjugateTranspose, NotUnitTriangular, last - middle,
                   middle - first, one<T>(), &A(first, first), tda, &A(middle, first), tda);
        subtract_product(middle, last, first);
        return factor(middle, last);
    }

    // The rows [middle, last) of L, as far as they are known, are taken off the lower triangle.
    void subtract_product(Integer middle, Integer last, Integer first)
    {
        if constexpr (std::is_same_v<T, double>)
            blas::syrk(blas::kRowMajor, LowerTriangle, NoTranspose, last - middle, middle - first, -1.0,
                       &A(middle, first), tda, 1.0, &A(middle, middle), tda);
        else
            blas::herk(blas::kRowMajor, LowerTriangle, NoTranspose, last - middle, middle - first, -1.0,
                       &A(middle, first), tda, 1.0, &A(middle, middle), tda);
    }

    Integer block(Integer first, Integer n)
    {
        T u[kBlock * kBlock];
        double pivot[kBlock];
        for (Integer i = 0; i < n; ++i)
            for (Integer j = 0; j <= i; ++j) u[j * n + i] = conj(A(first + i, first + j));
        const Integer stage = factor_block(n, u, n, pivot);
        for (Integer k = 0, end = stage != 0 ? stage : n; k < end; ++k) determinant.multiply(pivot[k]);
        for (Integer i = 0; i < n; ++i)
            for (Integer j = 0; j <= i; ++j) A(first + i, first + j) = conj(u[j * n + i]);
        return stage != 0 ? first + stage : 0;
    }
};

template <Scalar T>
Integer factor_small(Integer n, RowMajor<T> A, double *p, Determinant<double> &determinant)
{
    T u[kBlock * kBlock];
    double pivot[kBlock];
    for (Integer i = 0; i < n; ++i) std::copy(&A(i, i), &A(i, 0) + n, u + i * n + i);
    const Integer stage = factor_block(n, u, n, pivot);
    for (Integer k = 0, end = stage != 0 ? stage : n; k < end; ++k) determinant.multiply(pivot[k]);
    for (Integer i = 1; i < n; ++i)
        for (Integer j = 0; j < i; ++j) A(i, j) = conj(u[j * n + i]);
    const Integer known = stage != 0 ? stage - 1 : n;
    for (Integer k = 0; k < n; ++k) p[k] = k < known ? 1.0 / real(u[k * n + k]) : 0.0;
    return stage;
}

// By LAPACK's potrf in the upper triangle, which for it is a lower one, and there much quicker than in the other; the lower
// triangle keeps A meanwhile, and the two change places at the end. False if A is not positive definite, or not finite: the
// recursion then finds out where.
template <Scalar T>
bool by_lapack(Integer n, RowMajor<T> A, Integer tda, Determinant<double> &determinant)
{
    reflect_upper(n, A.a, tda, A.a, tda);
    bool sound = lapack::potrf(LowerTriangle, n, A.a, tda) == 0;
    transpose_in_place<true>(n, A.a, tda);
    for (Integer k = 0; k < n; ++k) sound = sound && real(A(k, k)) > 0.0 && real(A(k, k)) <= kLargest;
    for (Integer k = 0; sound && k < n; ++k) determinant.multiply(real(A(k, k)) * real(A(k, k)));
    return sound;
}

template <Scalar T>
Integer factor_matrix(Integer n, T *a, Integer tda, double *p, Determinant<double> &determinant)
{
    const RowMajor<T> A{a, tda};
    if (n <= kLapack) return factor_small(n, A, p, determinant);

    // The diagonal of A waits in p. Imaginary parts there, which are not read, come back as zero.
    for (Integer k = 0; k < n; ++k) p[k] = real(A(k, k));
    Integer stage = 0;
    if (!by_lapack(n, A, tda, determinant)) {
        for (Integer k = 0; k < n; ++k) A(k, k) = p[k] * one<T>();
        reflect_upper(n, a, tda, a, tda);
        stage = Recursion<T>{A, tda, determinant}.factor(0, n);
    }
    const Integer known = stage != 0 ? stage - 1 : n;
    for (Integer k = 0; k < n; ++k) {
        const double diagonal = p[k];
        p[k] = k < known ? 1.0 / real(A(k, k)) : 0.0;
        A(k, k) = diagonal * one<T>();
    }
    return stage;
}

// The triangle of a diagonal block, along the rows of X: L y = x, or conj(L)' y = x.
template <Scalar T>
[[gnu::always_inline]] inline void solve_rows(bool adjoint, Integer n, Integer nrhs, const T *a, std::ptrdiff_t tda,
                                              const double *p, T *x, std::ptrdiff_t tdx)
{
    for (Integer step = 0; step < n; ++step) {
        const Integer k = adjoint ? n - 1 - step : step;
        T *const __restrict known = x + k * tdx;
        for (Integer j = 0; j < nrhs; ++j) known[j] = known[j] * p[k];
        for (Integer i = adjoint ? 0 : k + 1, end = adjoint ? k : n; i < end; ++i) {
            const T factor = adjoint ? conj(a[k * tda + i]) : a[i * tda + k];
            T *const __restrict row = x + i * tdx;
            for (Integer j = 0; j < nrhs; ++j) row[j] = row[j] - factor * known[j];
        }
    }
}
KOR_CLONES void solve_block(bool adjoint, Integer n, Integer nrhs, const double *a, std::ptrdiff_t tda, const double *p,
                            double *x, std::ptrdiff_t tdx)
{
    solve_rows(adjoint, n, nrhs, a, tda, p, x, tdx);
}
KOR_CLONES void solve_block(bool adjoint, Integer n, Integer nrhs, const Complex *a, std::ptrdiff_t tda,
                            const double *p, Complex *x, std::ptrdiff_t tdx)
{
    solve_rows(adjoint, n, nrhs, a, tda, p, x, tdx);
}

// The same for one right-hand side whose elements are contiguous: along the rows of L.
template <Scalar T>
[[gnu::always_inline]] inline void solve_row_by_row(bool adjoint, Integer n, const T *a, std::ptrdiff_t tda,
                                                    const double *p, T *__restrict x)
{
    constexpr int kSums = 4; // independent sums, which need not wait for each other
    if (!adjoint)
        for (Integer i = 0; i < n; ++i) {
            const T *const row = a + i * tda;
            T sum[kSums] = {x[i]};
            Integer k = 0;
            for (; k + kSums <= i; k += kSums)
                for (int s = 0; s < kSums; ++s) sum[s] = sum[s] - row[k + s] * x[k + s];
            for (; k < i; ++k) sum[0] = sum[0] - row[k] * x[k];
            x[i] = ((sum[0] + sum[1]) + (sum[2] + sum[3])) * p[i];
        }
    else
        for (Integer k = n - 1; k >= 0; --k) {
            const T *const row = a + k * tda;
            const T known = x[k] = x[k] * p[k];
            for (Integer i = 0; i < k; ++i) x[i] = x[i] - conj(row[i]) * known;
        }
}
KOR_CLONES void solve_single(bool adjoint, Integer n, const double *a, std::ptrdiff_t tda, const double *p, double *x)
{
    solve_row_by_row(adjoint, n, a, tda, p, x);
}
KOR_CLONES void solve_single(bool adjoint, Integer n, const Complex *a, std::ptrdiff_t tda, const double *p, Complex *x)
{
    solve_row_by_row(adjoint, n, a, tda, p, x);
}

// Y := Y - op(A) X, A m by k as it stands.
template <Scalar T>
void subtract(Integer trans, Integer m, Integer k, Integer nrhs, const T *a, Integer tda, const T *x, T *y, Integer tdx)
{
    if (nrhs == 1)
        blas::gemv(blas::kRowMajor, trans, m, k, -one<T>(), a, tda, x, tdx, one<T>(), y, tdx);
    else
        blas::gemm(blas::kRowMajor, trans, NoTranspose, trans == NoTranspose ? m : k, nrhs,
                   trans == NoTranspose ? k : m, -one<T>(), a, tda, x, tdx, one<T>(), y, tdx);
}

template <Scalar T>
void solve(Integer n, Integer nrhs, const T *a, Integer tda, const double *p, T *x, Integer tdx)
{
    const RowMajor<const T> A{a, tda};
    const RowMajor<T> X{x, tdx};
    const auto solve_diagonal_block = [&](bool adjoint, Integer k, Integer width) {
        if (nrhs == 1 && tdx == 1)
            solve_single(adjoint, width, &A(k, k), tda, p + k, x + k);
        else
            solve_block(adjoint, width, nrhs, &A(k, k), tda, p + k, X.row(k), tdx);
    };
    for (Integer k = 0; k < n; k += kBlock) {
        const Integer width = std::min(kBlock, n - k), end = k + width;
        solve_diagonal_block(false, k, width);
        if (end < n) subtract(NoTranspose, n - end, width, nrhs, &A(end, k), tda, X.row(k), X.row(end), tdx);
    }
    for (Integer k = (n - 1) / kBlock * kBlock; k >= 0; k -= kBlock) {
        const Integer width = std::min(kBlock, n - k), end = k + width;
        if (end < n) subtract(ConjugateTranspose, n - end, width, nrhs, &A(end, k), tda, X.row(end), X.row(k), tdx);
        solve_diagonal_block(true, k, width);
    }
}

} // namespace

Integer cholesky_below(Integer n, double *a, Integer tda, double *p, Determinant<double> &determinant)
{
    return factor_matrix(n, a, tda, p, determinant);
}
Integer cholesky_below(Integer n, Complex *a, Integer tda, double *p, Determinant<double> &determinant)
{
    return factor_matrix(n, a, tda, p, determinant);
}

void cholesky_below_solve(Integer n, Integer nrhs, const double *a, Integer tda, const double *p, double *x,
                          Integer tdx)
{
    solve(n, nrhs, a, tda, p, x, tdx);
}
void cholesky_below_solve(Integer n, Integer nrhs, const Complex *a, Integer tda, const double *p, Complex *x,
                          Integer tdx)
{
    solve(n, nrhs, a, tda, p, x, tdx);
}

} // namespace kor::linalg
