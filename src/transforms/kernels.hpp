// The vectorised inner loops of the chapter, compiled once for each generation of processors.
//
// Every generation runs the same arithmetic in the same order on every element; only the number of elements in a
// register differs. Results are therefore the same on every processor, but for signs of zeros (products with 1).
#pragma once

#include <cstdint>

#include "transforms/stages.hpp"

namespace kor::transforms {

// A complex sequence or a packed one: the imaginary parts are null for the latter.
struct Sequence {
    double *re;
    double *im;
};

// The rows that a pass works on. It takes the first `width` elements of each; rows stand `in_row` and `out_row` apart.
struct Block {
    Index before; // the rows of the input are numbered (l * after + a) * before + b, l below the radix, ...
    Index after;  // ... those of the output (a * radix + k) * before + b
    Index width;
    Index in_row, out_row;
    Index spread = 1; // the twiddle factors of row a are those of the stage's place a * spread
};

// Columns first..first + width - 1 of `count`. What a pass reads or writes is a block of complex rows; or packed
// Hermitian sequences of length `count`, one in each row; or one packed sequence of length rows * count, whose place c
// + k * count is column c of row k. For packed sequences first >= 1 and 2 (first + width) <= count + 1.
enum class ColumnsOf { complex_block, short_sequences, long_sequence };
struct Columns {
    Index count;
    Index first;
    ColumnsOf in = ColumnsOf::complex_block, out = ColumnsOf::complex_block;
    Index rows = 0; // of a long sequence
};

// Factors that vary with row and column: bases(row) (1 + roots(row, c)), where roots(row, c) stands at row * roots_row
// + c.
struct Factored {
    Sequence bases;
    Sequence roots;
    Index roots_row;
};

// Registers go to and from memory fastest when they do not straddle two lines of the cache: work arrays begin at a
// line.
inline constexpr Index kLine = 8; // doubles
inline double *at_line(double *p)
{
    const auto place = reinterpret_cast<std::uintptr_t>(p) / sizeof(double);
    return p + (kLine - static_cast<Index>(place % kLine)) % kLine;
}
inline constexpr Index whole_lines(Index count) { return (count + kLine - 1) / kLine * kLine; }

// Transforms of one sequence in place, multiplied by `scale`, for the lengths that have a butterfly.
struct AloneTable {
    using Transform = void (*)(Sequence x, double scale);
    Transform complex[kLongestButterfly + 1], real[kLongestButterfly + 1], hermitian[kLongestButterfly + 1];
};

struct Kernels {
    Index lanes; // elements in a register
    AloneTable alone;

    // exp(-2 pi i (first + step j) / n) for j = 0..count-1: cosines and negated sines, each within 0.75 ulp.
    // 0 <= first, step < n.
    void (*unit_roots)(Index n, Index first, Index step, Index count, double *cosines, double *sines);

    // The table of all stages of a transform of length n, without its stamps.
    void (*root_table)(const Stages &, Index n, double *trig);

    // out(j, i) = in(i, j) for `rows` by `columns` elements; rows stand `in_row` apart in the one, `out_row` in the
    // other. Here and below, arrays do not overlap.
    void (*transpose)(Index rows, Index columns, const double *in, Index in_row, double *out, Index out_row);

    // Exchanges a(i, j) with b(j, i) for i, j < size; rows stand `stride` apart. With a = b, transposes a.
    void (*swap_transposed)(Index size, Index stride, double *a, double *b);

    // One stage of a transform, with the same twiddle factors for all elements of a row. For real and Hermitian data,
    // `a` counts the places f of packed sequences:
    //   complex:   row (l * after + a) * before + b   -> row (a * radix + k) * before + b
    //   real:      row (f * radix + l) * before + b   -> row g * before + b
    //   Hermitian: row g * before + b                 -> row (f * radix + l) * before + b
    // f and g are places in packed Hermitian sequences of length `after` and radix * after.
    void (*complex_pass)(const Stage &, const Block &, Sequence in, Sequence out);
    void (*real_pass)(const Stage &, const Block &, Sequence in, Sequence out);
    void (*hermitian_pass)(const Stage &, const Block &, Sequence in, Sequence out);

    // The first one or two stages, as lead_passes.inl has them, of a single sequence: what complex_pass() would give.
    // There are at least so many columns as registers have lanes. Past the end of `out`, up to a register may be
    // written.
    void (*complex_lead)(const Stage *, int count, Sequence in, Sequence out);

    // A stage without twiddle factors, where `after` is 1; results are multiplied by `scale`.
    void (*complex_whole)(const Stage &, const Block &, Sequence in, Sequence out, double scale);
    void (*real_whole)(const Stage &, const Block &, Sequence in, Sequence out, double scale);
    void (*hermitian_whole)(const Stage &, const Block &, Sequence in, Sequence out, double scale);

    // One stage with twiddle factors of its own for each element c of row a: those of the stage's place
    // a * columns.count + columns.first + c. They come after the butterfly, or before it, where the rows are
    //   row (a * radix + l) * before + b -> row (k * after + a) * before + b.
    // The forward pass may read from a long sequence and write to short ones, the pass back the other way.
    void (*columns_pass)(const Stage &, const Block &, const Columns &, Sequence in, Sequence out);
    void (*columns_pass_back)(const Stage &, const Block &, const Columns &, Sequence in, Sequence out);

    // roots(l, c) = exp(-2 pi i l c / n) - 1 for l < rows, c < width, at l * width + c; 8 rows width <= n.
    void (*roots_less_one)(Index n, Index rows, Index width, Sequence roots);

    // As complex_pass(), but without large primes, for some columns that may be read from short sequences or written to
    // a long one. What is read from anything but a complex block that goes to a long sequence is multiplied by factors
    // first.
    void (*factors_pass)(const Stage &, const Block &, const Columns &, const Factored &, Sequence in, Sequence out);
    // The opposite way, from a long sequence or to short ones; what goes to short sequences is multiplied by factors
    // last.
    void (*factors_pass_back)(const Stage &, const Block &, const Columns &, const Factored &, Sequence in,
                              Sequence out);
};

// The fastest that this processor can run.
const Kernels &kernels();

// The same for short lengths: long registers would stay empty, or overlap too much.
const Kernels &kernels_for_length(Index n);

// Those with the longest registers that so many elements fill, or else the shortest.
const Kernels &kernels_for_lanes(Index elements);

} // namespace kor::transforms
