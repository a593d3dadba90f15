// Arrays of elements of any size, a stride apart.
#pragma once

#include <cstddef>
#include <cstring>

#include <kor.h>

namespace kor::sort {

struct Elements {
    unsigned char *first;
    std::ptrdiff_t stride; // in bytes, negative to walk backwards

    // The arguments of a routine; what it may not change it does not change.
    Elements(const void *vec, Integer stride_in_bytes)
        : first{static_cast<unsigned char *>(const_cast<void *>(vec))}, stride{stride_in_bytes}
    {
    }
    unsigned char *operator[](std::ptrdiff_t i) const { return first + i * stride; }
    Elements from(std::ptrdiff_t i) const
    {
        Elements rest = *this;
        rest.first = (*this)[i];
        return rest;
    }
    Elements reversed(std::ptrdiff_t n) const
    {
        Elements backwards = *this;
        backwards.first = (*this)[n - 1];
        backwards.stride = -stride;
        return backwards;
    }
};

using Comparator = Integer (*)(const void *, const void *);

// What a comparison of a with b says of a in the order wanted.
template <bool descending>
constexpr bool sorts_after(Integer comparison)
{
    return descending ? comparison < 0 : comparison > 0;
}
template <bool descending>
constexpr bool sorts_before(Integer comparison)
{
    return descending ? comparison > 0 : comparison < 0;
}

// The size of an element: one that the compiler knows, so that a copy is one or two moves, or any other.
template <std::size_t bytes>
struct FixedWidth {
    static constexpr std::size_t size() { return bytes; }
};
struct AnyWidth {
    std::size_t bytes;
    std::size_t size() const { return bytes; }
};

// Calls work(width) with the kind of width that suits the size.
template <class Work>
auto with_width(std::size_t size, Work &&work)
{
    switch (size) {
    case 4:
        return work(FixedWidth<4>{});
    case 8:
        return work(FixedWidth<8>{});
    case 16:
        return work(FixedWidth<16>{});
    default:
        return work(AnyWidth{size});
    }
}

template <std::size_t bytes>
void copy_element(FixedWidth<bytes>, unsigned char *to, const unsigned char *from)
{
    std::memcpy(to, from, bytes);
}

// Elements are short as a rule, and there are many: what a call costs counts. The pieces may overlap.
inline void copy_element(AnyWidth width, unsigned char *to, const unsigned char *from)
{
    const std::size_t n = width.size();
    const auto piece = [&](auto bytes, std::size_t at) { copy_element(bytes, to + at, from + at); };
    if (n > 64) {
        std::memcpy(to, from, n);
    } else if (n >= 16) {
        piece(FixedWidth<16>{}, 0);
        if (n > 32) {
            piece(FixedWidth<16>{}, 16);
            piece(FixedWidth<16>{}, n - 32);
        }
        piece(FixedWidth<16>{}, n - 16);
    } else if (n >= 8) {
        piece(FixedWidth<8>{}, 0);
        piece(FixedWidth<8>{}, n - 8);
    } else if (n >= 4) {
        piece(FixedWidth<4>{}, 0);
        piece(FixedWidth<4>{}, n - 4);
    } else {
        for (std::size_t i = 0; i < n; ++i) to[i] = from[i];
    }
}

template <std::size_t bytes>
void swap_elements(FixedWidth<bytes>, unsigned char *a, unsigned char *b)
{
    unsigned char x[bytes], y[bytes];
    std::memcpy(x, a, bytes);
    std::memcpy(y, b, bytes);
    std::memcpy(a, y, bytes);
    std::memcpy(b, x, bytes);
}

inline void swap_elements(AnyWidth width, unsigned char *a, unsigned char *b)
{
    std::size_t left = width.size();
    for (; left >= 16; left -= 16, a += 16, b += 16) swap_elements(FixedWidth<16>{}, a, b);
    for (; left >= 8; left -= 8, a += 8, b += 8) swap_elements(FixedWidth<8>{}, a, b);
    for (; left >= 4; left -= 4, a += 4, b += 4) swap_elements(FixedWidth<4>{}, a, b);
    for (; left > 0; --left, ++a, ++b) swap_elements(FixedWidth<1>{}, a, b);
}

} // namespace kor::sort
