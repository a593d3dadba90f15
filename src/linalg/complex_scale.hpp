// x := alpha x for complex vectors in contiguous memory.
#pragma once

#include <cstddef>

#include <kor.h>

namespace kor::linalg {

void scale_contiguous(std::ptrdiff_t n, const Complex &alpha, Complex *x);

} // namespace kor::linalg
