// Views of matrices in somebody else's memory.
#pragma once

#include <cstddef>

namespace kor {

// The public interface: a(i, j) is a[i * tda + j], counted from 0.
template <class T>
struct RowMajor {
    T *a;
    std::ptrdiff_t tda;
    T &operator()(std::ptrdiff_t i, std::ptrdiff_t j) const { return a[i * tda + j]; }
    T *row(std::ptrdiff_t i) const { return a + i * tda; }
};
template <class T>
RowMajor(T *, int) -> RowMajor<T>;

// What BLAS and LAPACK take: a(i, j) is a[i + j * lda], counted from 0.
template <class T>
struct ColumnMajor {
    T *a;
    std::ptrdiff_t lda;
    T &operator()(std::ptrdiff_t i, std::ptrdiff_t j) const { return a[i + j * lda]; }
    T *column(std::ptrdiff_t j) const { return a + j * lda; }
};
template <class T>
ColumnMajor(T *, int) -> ColumnMajor<T>;

} // namespace kor
