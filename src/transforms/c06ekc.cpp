// c06ekc: circular convolution or correlation of two real sequences.
//
// The product of the transforms, transformed back; all in place.
#include <kor/c06.h>

#include "transforms/arguments.hpp"

using namespace kor::transforms;

namespace {

// y := x y or conj(x) y, and x := the conjugate of y, for packed Hermitian x and y.
void multiply(Index n, double *x, double *y, bool conjugate)
{
    const auto real_product = [&](Index k) { x[k] = y[k] = x[k] * y[k]; };
    real_product(0);
    for (Index k = 1; 2 * k < n; ++k) {
        const double a = x[k], b = y[k], d = y[n - k], c = conjugate ? -x[n - k] : x[n - k];
        x[k] = y[k] = a * b - c * d;
        y[n - k] = a * d + c * b;
        x[n - k] = -y[n - k];
    }
    if (n % 2 == 0) real_product(n / 2);
}

} // namespace

void c06ekc(Integer Operation, Integer n, double x[], double y[], KorError *fail)
{
    const kor::Report report{"c06ekc", fail};
    if (Operation != Kor_Convolution && Operation != Kor_Correlation) return report.error<NE_BAD_PARAM>("Operation");
    InPlaceFactors factors;
    if (!suits_in_place(report, n, factors)) return;

    // Unscaled, the transform of z is the product of the transforms of x and y.
    const double length = static_cast<double>(n);
    transform_in_place(n, factors, Kind::real, {x, nullptr}, 1.0);
    transform_in_place(n, factors, Kind::real, {y, nullptr}, 1.0);
    multiply(n, x, y, Operation == Kor_Correlation);
    transform_in_place(n, factors, Kind::hermitian, {x, nullptr}, 1.0 / length);
    const double scale = unitary_scale(n);
    for (Index k = 0; k < n; ++k) y[k] *= scale;
    report.success();
}
