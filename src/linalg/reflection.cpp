// Elementary reflections (Householder transformations), normalised so that u' u = 2.
//
// With r = |(alpha; x)|, beta = -sign(alpha) r and zeta^2 = 1 + |alpha| / r the vector u = (zeta; -x / (zeta beta)) has
// u' u = 2, and u' (alpha; x) = sign(alpha) r zeta. Nothing cancels: |alpha| and r are added. In complex numbers
// u = (zeta; zeta x / (alpha - beta)) with Re(alpha) in the place of alpha, and gamma = 1 + i Im(alpha) / (beta - Re(alpha))
// makes beta real.
#include "linalg/reflection.hpp"

#include <algorithm>
#include <cmath>

#include "frame/constants.hpp"
#include "linalg/norm.hpp"
#include "linalg/rotation.hpp"
#include "linalg/scalar.hpp"
#include "linalg/vector_operations.hpp"

namespace kor::linalg {

namespace {

// Numbers below this are scaled up before their reciprocals are formed.
constexpr double kSmallLength = 0x1p-1000;
constexpr double kScaleUp = 0x1p+200;

// A NaN is not negligible.
template <Scalar T>
bool negligible(Integer n, const T *x, Integer incx, double bound)
{
    const Strided<const T> u{x, n, incx};
    for (Integer i = 0; i < n; ++i)
        if (!(largest_part(u[i]) <= bound)) return false;
    return true;
}

template <Scalar T>
double length_with(T alpha, Integer n, const T *x, Integer incx)
{
    return std::hypot(modulus(alpha), euclidean_norm(n, x, incx));
}

} // namespace

double make_reflection(Integer n, double &alpha, double *x, Integer incx, double tol)
{
    if (n <= 0 || negligible(n, x, incx, std::max(kPrecision * std::fabs(alpha), tol))) return 0.0;

    double length = length_with(alpha, n, x, incx), size = std::fabs(alpha);
    const double beta = -std::copysign(length, alpha);
    if (length < kSmallLength) {
        scal(n, kScaleUp, x, incx);
        length *= kScaleUp;
        size *= kScaleUp;
    }
    const double zeta = std::sqrt(1.0 + size / length);
    scal(n, std::copysign(1.0, alpha) / (zeta * length), x, incx);
    alpha = beta;
    return zeta;
}

Complex make_reflection(Integer n, Complex &alpha, Complex *x, Integer incx, double tol)
{
    if (n <= 0 || negligible(n, x, incx, std::max(kPrecision * largest_part(alpha), tol))) {
        if (alpha.im == 0.0) return {0.0, 0.0};
        fill(n, Complex{}, x, incx);
    }

    const double length = length_with(alpha, n, x, incx);
    const double beta = -std::copysign(length, alpha.re);
    const double zeta = std::sqrt(1.0 + std::fabs(alpha.re) / length);
    // zeta / (alpha - beta), of numbers near 1: the difference may be out of the range of reciprocals.
    const double scale = std::isfinite(length) ? std::ldexp(1.0, -std::max(std::ilogb(length), -1021)) : 1.0;
    const Complex difference = {scale * alpha.re - scale * beta, scale * alpha.im};
    const double square = difference.re * difference.re + difference.im * difference.im;
    scal(n, scale, x, incx);
    scal(n, (zeta / square) * conj(difference), x, incx);
    const double twist = -difference.im / difference.re;
    alpha = {beta, 0.0};
    return {zeta, twist};
}

void apply_reflection(Integer n, double zeta, const double *z, Integer incz, double &delta, double *y, Integer incy)
{
    if (zeta == 0.0) return;
    const double product = zeta * delta + dot(n, z, incz, y, incy);
    delta -= zeta * product;
    axpy(n, -product, z, incz, y, incy);
}

} // namespace kor::linalg
