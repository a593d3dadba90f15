// Matrices for the tests: in coordinate storage, in arrays that the library may replace, and dense beside them.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <map>
#include <random>
#include <utility>
#include <vector>

#include <kor/f11.h>
#include <kor/x04.h>

namespace kor::testing {

using Dense = std::vector<std::vector<double>>;

// Element by element; coordinates count from 1.
using Elements = std::map<std::pair<Integer, Integer>, double>;

// The three arrays, from the library's allocator.
struct Stored {
    Integer n = 0, nnz = 0, la = 0;
    double *a = nullptr;
    Integer *irow = nullptr, *icol = nullptr;

    Stored(Integer order, const Elements &elements, Integer length = 0)
        : n{order}, nnz{static_cast<Integer>(elements.size())}, la{std::max(length, 2 * nnz)}
    {
        const auto room = static_cast<std::size_t>(la);
        a = static_cast<double *>(x04bbc(room * sizeof *a));
        irow = static_cast<Integer *>(x04bbc(room * sizeof *irow));
        icol = static_cast<Integer *>(x04bbc(room * sizeof *icol));
        Integer p = 0;
        for (const auto &[place, value] : elements) {
            a[p] = value;
            irow[p] = place.first;
            icol[p++] = place.second;
        }
    }
    Stored(const Stored &) = delete;
    ~Stored()
    {
        void *blocks[] = {a, irow, icol};
        for (void *&block : blocks) x04bdc(&block);
    }
};

inline Dense dense(Integer n, const Elements &elements, bool symmetric = false)
{
    const auto order = static_cast<std::size_t>(n);
    Dense matrix(order, std::vector<double>(order, 0.0));
    for (const auto &[place, value] : elements) {
        const auto i = static_cast<std::size_t>(place.first - 1), j = static_cast<std::size_t>(place.second - 1);
        matrix[i][j] = value;
        if (symmetric) matrix[j][i] = value;
    }
    return matrix;
}

inline Elements lower_triangle(const Elements &elements)
{
    Elements lower;
    for (const auto &[place, value] : elements)
        if (place.second <= place.first) lower[place] = value;
    return lower;
}

// Convection and diffusion on a square grid, by central differences: `wind` is the cell Peclet number; 0 gives Poisson's.
inline Elements grid(Integer side, double wind = 0.0)
{
    Elements elements;
    for (Integer i = 0; i < side; ++i)
        for (Integer j = 0; j < side; ++j) {
            const Integer row = i * side + j + 1;
            elements[{row, row}] = 4.0;
            if (j > 0) elements[{row, row - 1}] = -1.0 - wind;
            if (j + 1 < side) elements[{row, row + 1}] = -1.0 + wind;
            if (i > 0) elements[{row, row - side}] = -1.0;
            if (i + 1 < side) elements[{row, row + side}] = -1.0;
        }
    return elements;
}

// About `density` of the elements at random, and a diagonal of `diagonal` plus noise.
inline Elements scattered(Integer n, double density, double diagonal, unsigned seed)
{
    std::mt19937 source{seed};
    std::uniform_real_distribution<double> uniform{-1.0, 1.0};
    Elements elements;
    for (Integer i = 1; i <= n; ++i)
        for (Integer j = 1; j <= n; ++j) {
            const double value = uniform(source);
            if (i == j)
                elements[{i, j}] = diagonal + value;
            else if (0.5 * (uniform(source) + 1.0) < density)
                elements[{i, j}] = value;
        }
    return elements;
}

} // namespace kor::testing
