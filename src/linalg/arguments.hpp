// Tests of arguments without an error record: the first offence is told on the standard error stream by its position in
// the argument list, counted from 1, and the routine returns.
#pragma once

#include <algorithm>
#include <concepts>
#include <cstdint>

#include <kor.h>

namespace kor::linalg {

// Tells that parameter number `position` of `routine` is illegal. Never ends the process.
[[gnu::cold]] void f06aaz(const char *routine, Integer position);

// The same for kernels, which report in the words of their layer.
[[gnu::cold]] void f06aaz_f(const char *routine, Integer position);

// One tested argument: its position in the list, and whether it is legal.
struct Argument {
    Integer position;
    bool legal;
};
constexpr Argument argument(Integer position, bool legal) { return {position, legal}; }

// True if all are legal; else the first that is not is told. Give them in the order of the list.
template <std::same_as<Argument>... Arguments>
[[gnu::always_inline]] inline bool accepted(const char *routine, Arguments... arguments)
{
    return (... && (arguments.legal || (f06aaz(routine, arguments.position), false)));
}

// Enumerators of one family follow one another.
constexpr bool between(Integer value, Integer first, Integer last) { return value >= first && value <= last; }
constexpr bool is_transpose(Integer trans) { return between(trans, NoTranspose, ConjugateTranspose); }
constexpr bool is_triangle(Integer uplo) { return between(uplo, UpperTriangle, LowerTriangle); }
constexpr bool is_diagonal(Integer diag) { return between(diag, UnitTriangular, NotUnitTriangular); }
constexpr bool is_side(Integer side) { return between(side, LeftSide, RightSide); }
constexpr bool is_direction(Integer direct) { return between(direct, ForwardSequence, BackwardSequence); }
constexpr bool is_norm(Integer norm) { return between(norm, OneNorm, InfinityNorm); }

// A trailing dimension holds rows of so many columns.
constexpr bool row_fits(Integer tda, Integer columns) { return tda >= std::max(1, columns); }

// ... and rows that hold a band of so many diagonals beside the main one.
constexpr bool band_fits(Integer tda, Integer below, Integer above = 0)
{
    return std::int64_t{tda} > std::int64_t{below} + above;
}

} // namespace kor::linalg
