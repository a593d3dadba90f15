// Vectors of the interface: an array and an increment.
#pragma once

#include <cstddef>
#include <cstdint>

#include <kor.h>

namespace kor::linalg {

// Element i of a vector of n: a negative increment walks from the far end, 0 takes the same element each time.
template <class T>
struct Strided {
    T *first;
    std::ptrdiff_t increment;

    Strided(T *x, Integer n, Integer inc)
        : first{inc >= 0 || n <= 0 ? x : x - (std::ptrdiff_t{n} - 1) * inc}, increment{inc}
    {
    }
    T &operator[](std::ptrdiff_t i) const { return first[i * increment]; }
};

// The increment that takes the same elements in the order of memory.
inline Integer forward(Integer inc) { return inc < 0 ? static_cast<Integer>(-std::int64_t{inc}) : inc; }

} // namespace kor::linalg
