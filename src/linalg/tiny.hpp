// The smallest matrix operations as plain loops, for orders at which the call of BLAS costs more than the work.
#pragma once

#include <cstddef>

#include "linalg/scalar.hpp"
#include "linalg/strided.hpp"

namespace kor::linalg {

// Limits of the work, in multiplications, up to which the loops are quicker: see bench/linalg/bench_operations.
inline constexpr Integer kTinyProduct = 16;       // matrix and vector
inline constexpr Integer kTinyMatrixProduct = 27; // matrix and matrix
inline constexpr Integer kTinyTriangle = 8;       // order of a triangle

// The work of a product of these dimensions is within the limit. No product of them overflows.
constexpr bool is_tiny(Integer limit, Integer m, Integer n, Integer k = 1)
{
    return m <= limit && n <= limit && k <= limit && m * n * k <= limit;
}

// op(A), read from a row-major matrix.
template <Scalar T>
struct Transposable {
    const T *a;
    std::ptrdiff_t row_step, column_step;
    bool conjugated;

    Transposable(Integer trans, const T *matrix, Integer tda)
        : a{matrix}, row_step{trans == NoTranspose ? tda : 1}, column_step{trans == NoTranspose ? 1 : tda},
          conjugated{trans == ConjugateTranspose}
    {
    }
    T operator()(std::ptrdiff_t i, std::ptrdiff_t j) const
    {
        const T element = a[i * row_step + j * column_step];
        return conjugated ? conj(element) : element;
    }
};

// alpha sum + beta old; with beta = 0 the old value does not matter.
template <Scalar T>
T combined(const T &alpha, const T &sum, const T &beta, const T &old)
{
    return beta == T{} ? alpha * sum : alpha * sum + beta * old;
}

// y := alpha op(A) x + beta y, op(A) m by n.
template <Scalar T>
void tiny_gemv(Integer trans, Integer m, Integer n, const T &alpha, const T *a, Integer tda, const T *x, Integer incx,
               const T &beta, T *y, Integer incy)
{
    const Transposable<T> A{trans, a, tda};
    const Strided<const T> u{x, n, incx};
    const Strided<T> v{y, m, incy};
    for (Integer i = 0; i < m; ++i) {
        T sum{};
        for (Integer j = 0; j < n; ++j) sum += A(i, j) * u[j];
        v[i] = combined(alpha, sum, beta, v[i]);
    }
}

// C := alpha op(A) op(B) + beta C, op(A) m by k, op(B) k by n.
template <Scalar T>
void tiny_gemm(Integer transa, Integer transb, Integer m, Integer n, Integer k, const T &alpha, const T *a, Integer tda,
               const T *b, Integer tdb, const T &beta, T *c, Integer tdc)
{
    const Transposable<T> A{transa, a, tda}, B{transb, b, tdb};
    for (Integer i = 0; i < m; ++i)
        for (Integer j = 0; j < n; ++j) {
            T sum{};
            for (Integer l = 0; l < k; ++l) sum += A(i, l) * B(l, j);
            T &element = c[std::ptrdiff_t{i} * tdc + j];
            element = combined(alpha, sum, beta, element);
        }
}

// A := alpha x y' + A
template <Scalar T>
void tiny_ger(Integer m, Integer n, const T &alpha, const T *x, Integer incx, const T *y, Integer incy, T *a,
              Integer tda)
{
    const Strided<const T> u{x, m, incx}, v{y, n, incy};
    for (Integer i = 0; i < m; ++i) {
        const T factor = alpha * u[i];
        for (Integer j = 0; j < n; ++j) a[std::ptrdiff_t{i} * tda + j] += factor * v[j];
    }
}

// x := op(A) x, A triangular.
template <Scalar T>
void tiny_trmv(Integer uplo, Integer trans, Integer diag, Integer n, const T *a, Integer tda, T *x, Integer incx)
{
    const Transposable<T> A{trans, a, tda};
    const Strided<T> u{x, n, incx};
    const bool unit = diag == UnitTriangular, upper = (uplo == UpperTriangle) == (trans == NoTranspose);
    for (Integer step = 0; step < n; ++step) {
        const Integer i = upper ? step : n - 1 - step;
        T sum = unit ? u[i] : A(i, i) * u[i];
        for (Integer j = upper ? i + 1 : 0, end = upper ? n : i; j < end; ++j) sum += A(i, j) * u[j];
        u[i] = sum;
    }
}

// x := op(A)^-1 x, A triangular.
inline void tiny_trsv(Integer uplo, Integer trans, Integer diag, Integer n, const double *a, Integer tda, double *x,
                      Integer incx)
{
    const Transposable<double> A{trans, a, tda};
    const Strided<double> u{x, n, incx};
    const bool unit = diag == UnitTriangular, upper = (uplo == UpperTriangle) == (trans == NoTranspose);
    for (Integer step = 0; step < n; ++step) {
        const Integer i = upper ? n - 1 - step : step;
        double sum = u[i];
        for (Integer j = upper ? i + 1 : 0, end = upper ? n : i; j < end; ++j) sum -= A(i, j) * u[j];
        u[i] = unit ? sum : sum / A(i, i);
    }
}

} // namespace kor::linalg
