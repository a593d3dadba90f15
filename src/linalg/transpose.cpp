// Real matrices are transposed two by two.
#include "linalg/transpose.hpp"

#include <cstring>
#include <utility>

namespace kor::linalg {

namespace {

constexpr std::ptrdiff_t kSide = 2;

struct Block {
    typedef double Row __attribute__((vector_size(8 * kSide)));
    Row row0, row1;
};

// The transpose of a block.
[[gnu::always_inline]] inline Block turned(const double *a, std::ptrdiff_t tda)
{
    Block::Row r0, r1;
    std::memcpy(&r0, a, sizeof r0);
    std::memcpy(&r1, a + tda, sizeof r1);
    return {__builtin_shufflevector(r0, r1, 0, 2), __builtin_shufflevector(r0, r1, 1, 3)};
}

[[gnu::always_inline]] inline void store(const Block &block, double *b, std::ptrdiff_t tdb)
{
    std::memcpy(b, &block.row0, sizeof block.row0);
    std::memcpy(b + tdb, &block.row1, sizeof block.row1);
}

// block(i, j) for the blocks below the diagonal, tile by tile, and element(i, j) for the elements in no such block.
template <class VisitBlock, class VisitElement>
[[gnu::always_inline]] inline void cover_below(std::ptrdiff_t n, VisitBlock block, VisitElement element)
{
    const std::ptrdiff_t whole = n - n % kSide;
    for (std::ptrdiff_t i0 = 0; i0 < whole; i0 += kTile)
        for (std::ptrdiff_t j0 = 0; j0 <= i0; j0 += kTile)
            for (std::ptrdiff_t i = i0; i < std::min(whole, i0 + kTile); i += kSide)
                for (std::ptrdiff_t j = j0; j < std::min(i, j0 + kTile); j += kSide) block(i, j);
    for (std::ptrdiff_t i = 0; i < n; ++i)
        for (std::ptrdiff_t j = i < whole ? i - i % kSide : 0; j < i; ++j) element(i, j);
}

} // namespace

void transpose_real(Integer m, Integer n, const double *a, std::ptrdiff_t tda, double *b, std::ptrdiff_t tdb)
{
    const std::ptrdiff_t rows = m - m % kSide, columns = n - n % kSide;
    for (std::ptrdiff_t i0 = 0; i0 < rows; i0 += kTile)
        for (std::ptrdiff_t j0 = 0; j0 < columns; j0 += kTile)
            for (std::ptrdiff_t j = j0; j < std::min(columns, j0 + kTile); j += kSide)
                for (std::ptrdiff_t i = i0; i < std::min(rows, i0 + kTile); i += kSide)
                    store(turned(a + i * tda + j, tda), b + j * tdb + i, tdb);
    for (std::ptrdiff_t i = 0; i < m; ++i)
        for (std::ptrdiff_t j = i < rows ? columns : 0; j < n; ++j) b[j * tdb + i] = a[i * tda + j];
}

void transpose_real_in_place(Integer n, double *a, std::ptrdiff_t tda)
{
    cover_below(
        n,
        [=](std::ptrdiff_t i, std::ptrdiff_t j) {
            const Block below = turned(a + i * tda + j, tda), above = turned(a + j * tda + i, tda);
            store(below, a + j * tda + i, tda);
            store(above, a + i * tda + j, tda);
        },
        [=](std::ptrdiff_t i, std::ptrdiff_t j) { std::swap(a[i * tda + j], a[j * tda + i]); });
}

void reflect_real_upper(Integer n, const double *a, std::ptrdiff_t tda, double *b, std::ptrdiff_t tdb)
{
    cover_below(
        n, [=](std::ptrdiff_t i, std::ptrdiff_t j) { store(turned(a + j * tda + i, tda), b + i * tdb + j, tdb); },
        [=](std::ptrdiff_t i, std::ptrdiff_t j) { b[i * tdb + j] = a[j * tda + i]; });
}

} // namespace kor::linalg
