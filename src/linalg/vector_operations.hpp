// The standard operations on vectors, one template for real and complex. A short vector, or one whose increment is 0 (in
// which BLAS libraries differ), is done in a plain loop; the rest by BLAS.
#pragma once

#include "linalg/blas.hpp"
#include "linalg/complex_scale.hpp"
#include "linalg/norm.hpp"
#include "linalg/rotation.hpp"
#include "linalg/scalar.hpp"
#include "linalg/strided.hpp"

namespace kor::linalg {

// Up to this length a loop in place is quicker than the call of BLAS: see bench/linalg/bench_operations.
template <Scalar T>
inline constexpr Integer kShortVector = std::is_same_v<T, double> ? 8 : 4;

template <Scalar T>
bool plain_loop(Integer n, Integer incx, Integer incy = 1)
{
    return n <= kShortVector<T> || incx == 0 || incy == 0;
}

// Scalar products of complex vectors that are not contiguous are left to the plain loop as well: OpenBLAS 0.3.21 reads elements
// beyond their ends.
template <Scalar T>
bool plain_product(Integer n, Integer incx, Integer incy)
{
    return plain_loop<T>(n, incx, incy) || (std::is_same_v<T, Complex> && (incx != 1 || incy != 1));
}

// conj(x)' y
template <Scalar T>
T dot(Integer n, const T *x, Integer incx, const T *y, Integer incy)
{
    if (!plain_product<T>(n, incx, incy)) return blas::dot(n, x, incx, y, incy);
    const Strided<const T> u{x, n, incx}, v{y, n, incy};
    T sum{};
    for (Integer i = 0; i < n; ++i) sum += conj(u[i]) * v[i];
    return sum;
}

// y := alpha x + y
template <Scalar T>
void axpy(Integer n, const T &alpha, const T *x, Integer incx, T *y, Integer incy)
{
    if (n <= 0 || alpha == T{}) return;
    if (!plain_loop<T>(n, incx, incy)) return blas::axpy(n, alpha, x, incx, y, incy);
    const Strided<const T> u{x, n, incx};
    const Strided<T> v{y, n, incy};
    for (Integer i = 0; i < n; ++i) v[i] += alpha * u[i];
}

// x := alpha x. BLAS libraries take alpha = 0 for an order to clear x; here a NaN or an infinity shows in the result.
template <Scalar T, Scalar Factor>
void scal(Integer n, const Factor &alpha, T *x, Integer incx)
{
    if constexpr (std::is_same_v<Factor, Complex>)
        if (incx == 1 || incx == -1) return scale_contiguous(n, alpha, x);
    if (!plain_loop<T>(n, incx) && !(alpha == Factor{})) return blas::scal(n, alpha, x, forward(incx));
    const Strided<T> u{x, n, incx};
    for (Integer i = 0; i < n; ++i) u[i] = alpha * u[i];
}

// y := x
template <Scalar T>
void copy(Integer n, const T *x, Integer incx, T *y, Integer incy)
{
    if (!plain_loop<T>(n, incx, incy)) return blas::copy(n, x, incx, y, incy);
    const Strided<const T> u{x, n, incx};
    const Strided<T> v{y, n, incy};
    for (Integer i = 0; i < n; ++i) v[i] = u[i];
}

template <Scalar T>
void swap(Integer n, T *x, Integer incx, T *y, Integer incy)
{
    if (!plain_loop<T>(n, incx, incy)) return blas::swap(n, x, incx, y, incy);
    const Strided<T> u{x, n, incx}, v{y, n, incy};
    for (Integer i = 0; i < n; ++i) {
        const T kept = u[i];
        u[i] = v[i];
        v[i] = kept;
    }
}

// x := c x + s y, y := c y - s x
inline void rot(Integer n, double *x, Integer incx, double *y, Integer incy, double c, double s)
{
    if (!plain_loop<double>(n, incx, incy)) return blas::rot(n, x, incx, y, incy, c, s);
    const Strided<double> u{x, n, incx}, v{y, n, incy};
    for (Integer i = 0; i < n; ++i) turn(u[i], v[i], c, s);
}

// Sum of |x|, of |re| + |im| if complex.
template <Scalar T>
double asum(Integer n, const T *x, Integer incx)
{
    if (n > 2 * kShortVector<T>) return sum_of_moduli(n, x, incx);
    const Strided<const T> u{x, n, incx};
    double sum = 0.0;
    for (Integer i = 0; i < n; ++i) sum += modulus_sum(u[i]);
    return sum;
}

// x := value
template <class T>
void fill(Integer n, T value, T *x, Integer incx)
{
    const Strided<T> u{x, n, incx};
    for (Integer i = 0; i < n; ++i) u[i] = value;
}

// x := -x
template <Scalar T>
void negate(Integer n, T *x, Integer incx)
{
    const Strided<T> u{x, n, incx};
    for (Integer i = 0; i < n; ++i) u[i] = -u[i];
}

} // namespace kor::linalg
