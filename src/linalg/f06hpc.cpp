// f06hpc: applies a plane rotation with complex cosine and sine to two complex vectors (zrot).
#include <kor/f06.h>

#include "linalg/scalar.hpp"
#include "linalg/strided.hpp"

#include "linalg/vector_operations.hpp"

void f06hpc(Integer n, Complex x[], Integer incx, Complex y[], Integer incy, Complex c, Complex s)
{
    using namespace kor::linalg;
    const Strided<Complex> u{x, n, incx}, v{y, n, incy};
    for (Integer i = 0; i < n; ++i) {
        const Complex kept = u[i];
        u[i] = c * kept + s * v[i];
        v[i] = conj(c) * v[i] - conj(s) * kept;
    }
}
