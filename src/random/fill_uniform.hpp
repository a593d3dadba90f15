// Numbers in bulk: one core with a path for each generation of processors, all of which give the same bits.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace kor::random {

// Makes the n numbers that follow the term `word`, n >= 0; returns the word of the last one.
std::uint64_t fill_uniform(std::uint64_t word, std::ptrdiff_t n, double *u);

// Makes the 64 numbers that follow the term `word`.
using FillBlock = void (*)(std::uint64_t word, double *u);
struct Path {
    const char *name;
    FillBlock fill;
};
// The paths that this processor can take, the fastest last.
std::span<const Path> fill_paths();

} // namespace kor::random
