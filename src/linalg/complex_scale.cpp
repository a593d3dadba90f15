// x := alpha x for complex vectors: each number beside itself with its parts interchanged, times alpha's parts.
#include "linalg/complex_scale.hpp"

#include "frame/dispatch.hpp"
#include "linalg/lanes.hpp"
#include "linalg/scalar.hpp"

namespace kor::linalg {

KOR_CLONES void scale_contiguous(std::ptrdiff_t n, const Complex &alpha, Complex *x)
{
    const double c = alpha.re, s = alpha.im;
    const Lanes cross = {-s, s, -s, s, -s, s, -s, s};
    double *const parts = reinterpret_cast<double *>(x);
    std::ptrdiff_t i = 0;
    for (; i + kWidth / 2 <= n; i += kWidth / 2) {
        const Lanes z = load(parts + 2 * i);
        const Lanes interchanged = __builtin_shufflevector(z, z, 1, 0, 3, 2, 5, 4, 7, 6);
        store(parts + 2 * i, c * z + cross * interchanged);
    }
    for (; i < n; ++i) x[i] = Complex{c * x[i].re - s * x[i].im, c * x[i].im + s * x[i].re};
}

} // namespace kor::linalg
