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

// A vector shorter than this is scaled up first: its length would lose digits as a subnormal number, and reciprocals
// would overflow.
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

    const double length = length_with(alpha, n, x, incx);
    if (length < kSmallLength) {
        alpha *= kScaleUp;
        scal(n, kScaleUp, x, incx);
        const double zeta = make_reflection(n, alpha, x, incx, 0.0);
        alpha /= kScaleUp;
        return zeta;
    }
    const double zeta = std::sqrt(1.0 + std::fabs(alpha) / length);
    scal(n, std::copysign(1.0, alpha) / (zeta * length), x, incx);
    alpha = -std::copysign(length, alpha);
    return zeta;
}

Complex make_reflection(Integer n, Complex &alpha, Complex *x, Integer incx, double tol)
{
    if (n <= 0 || negligible(n, x, incx, std::max(kPrecision * largest_part(alpha), tol))) {
        if (alpha.im == 0.0) return {0.0, 0.0};
        fill(n, Complex{}, x, incx);
    }

    const double length = length_with(alpha, n, x, incx);
    if (length < kSmallLength) {
        alpha = kScaleUp * alpha;
        scal(n, kScaleUp, x, incx);
        const Complex theta = make_reflection(n, alpha, x, incx, 0.0);
        alpha.re /= kScaleUp;
        return theta;
    }
    const double beta = -std::copysign(length, alpha.re);
    const double zeta = std::sqrt(1.0 + std::fabs(alpha.re) / length);
    // With d = (alpha - beta) / length, which is at least 1 in modulus, the vector is zeta x / (length d).
    const Complex d = {alpha.re / length - beta / length, alpha.im / length};
    scal(n, 1.0 / length, x, incx);
    scal(n, (zeta / (d.re * d.re + d.im * d.im)) * conj(d), x, incx);
    alpha = {beta, 0.0};
    return {zeta, -d.im / d.re};
}

void apply_reflection(Integer n, double zeta, const double *z, Integer incz, double &delta, double *y, Integer incy)
{
    if (zeta == 0.0) return;
    const double product = zeta * delta + dot(n, z, incz, y, incy);
    delta -= zeta * product;
    axpy(n, -product, z, incz, y, incy);
}

} // namespace kor::linalg
