// Transforms of one sequence, or of several side by side, out of place with a work array.
#include "transforms/sequence.hpp"

#include <algorithm>

#include "transforms/passes.hpp"

namespace kor::transforms {

namespace {

// Rows up to this length leave room in the first cache for a block of eight of them, its roots, and the block that it
// is transformed into; so do blocks of so many elements for columns.
constexpr Index kShortRow = 96;
constexpr Index kColumnElements = 768;

// Columns of long sequences: a page of memory should not be visited for a line or two, whatever fits the second cache.
constexpr Index kLong = 4096;
constexpr Index kLongColumnElements = 8192, kLongColumns = 32;

constexpr Index kRowBlock = kLine;

} // namespace

// Two sweeps pay when the data outgrow the first cache, and sooner for complex data, whose first sweep fills registers
// with columns.
bool Plan::one_sweep_is_faster() const
{
    constexpr Index kLongestPacked = 400, kLongestPackedInThree = 600;
    // Roundings are others in two sweeps than in one: a sequence is to give the same bits alone as among others.
    if (n_ <= kLongestSideBySide || stages_.count <= 2) return true;
    if (kind_ == Kind::complex) return stages_.in_first_pass > 0;
    return n_ <= kLongestPacked ||
           (n_ <= kLongestPackedInThree && stages_.count == 3 && stages_.stage[1].radix <= kLargestPlainRadix);
}

Plan::Plan(Kind kind, Index n, const double *trig)
    : kind_{kind}, n_{n}, stages_{Stages::fewest(kind, n, trig)}, columns_{n}
{
    if (one_sweep_is_faster()) return;

    kernel_ = &kernels_for_length(kind == Kind::complex ? n : n / 4);
    // Few rows keep the sweep over the columns cheap, but the other one must not outgrow the cache. Columns of packed
    // sequences come in pairs.
    Index rows = 1, columns = n;
    int lead = 0;
    const auto better_with_more_rows = [&] {
        const Index radix = stages_.stage[lead].radix;
        return rows < kernel_->lanes || (columns > kShortRow && rows * radix <= columns / radix);
    };
    while (lead < stages_.count && better_with_more_rows()) {
        rows *= stages_.stage[lead].radix;
        columns = stages_.stage[lead++].after;
    }
    if (rows < kernel_->lanes || columns < (kind_ == Kind::complex ? 1 : 2) * kernel_->lanes) return;
    lead_ = lead;
    rows_ = rows;
    columns_ = columns;
    row_block_ = std::min(rows_, kRowBlock);
    const auto columns_of = [&](Index elements) { return elements / rows_ / kRowBlock * kRowBlock; };
    column_block_ = std::min(columns_, n < kLong ? std::max(columns_of(kColumnElements), kRowBlock)
                                                 : std::max(columns_of(kLongColumnElements), kLongColumns));
}

// Blocks of rows or columns; passes go to and fro between the two.
struct Plan::Blocks {
    double *memory;
    Index size; // of one of them

    // `elements` of each part in use.
    Sequence block(int i, Index elements, bool complex) const
    {
        double *const re = memory + i * size;
        return {re, complex ? re + elements : nullptr};
    }
};

Plan::Blocks Plan::blocks(double *memory) const
{
    const Index parts = kind_ == Kind::complex ? 2 : 1;
    // Columns are complex whatever the data.
    return {memory, whole_lines(std::max(parts * columns_ * row_block_, 2 * rows_ * column_block_))};
}

Index Plan::work_size() const
{
    const Index parts = kind_ == Kind::complex ? 2 : 1;
    return kLine + (lead_ == 0 ? 2 * parts * one_sweep_part() : parts * whole_lines(n_) + 2 * blocks(nullptr).size);
}

namespace {

// Calls body(i) for ranges [i, i + step) that cover [0, count); the last may overlap the one before.
template <class Body>
void in_ranges(Index count, Index step, Body body)
{
    for (Index i = 0; i < count; i += step) body(std::min(i, count - step));
}

// The passes over rows for one kind of data: those without twiddle factors scale.
struct Passes {
    decltype(Kernels::complex_pass) pass;
    decltype(Kernels::complex_whole) whole;

    void operator()(const Stage &stage, const Block &block, Sequence in, Sequence out, double scale) const
    {
        block.after == 1 ? whole(stage, block, in, out, scale) : pass(stage, block, in, out);
    }
};
Passes passes_of(const Kernels &kernel, Kind kind)
{
    switch (kind) {
    case Kind::real:
        return {kernel.real_pass, kernel.real_whole};
    case Kind::hermitian:
        return {kernel.hermitian_pass, kernel.hermitian_whole};
    case Kind::complex:
        break;
    }
    return {kernel.complex_pass, kernel.complex_whole};
}

// Those for a stage of a transform of one sequence, or of several side by side: registers should be filled.
Passes passes_for(Kind kind, const Stage &stage, Index batch)
{
    const Index across = batch > 1 ? 1 : kind == Kind::complex ? stage.after : stage.after / 2;
    return passes_of(kernels_for_lanes(std::max(batch * stage.before, across)), kind);
}

} // namespace

void transform_whole(Kind kind, Index n, Sequence x, double scale)
{
    const AloneTable &alone = kernels_for_length(n).alone;
    (kind == Kind::complex ? alone.complex : kind == Kind::real ? alone.real : alone.hermitian)[n](x, scale);
}

void Plan::transform(Sequence in, Sequence out, double scale, double *work) const
{
    if (n_ == 1) return;
    work = at_line(work);
    if (lead_ == 0) return transform_in_one_sweep(in, out, scale, work);
    switch (kind_) {
    case Kind::complex:
        return transform_complex(in, out, scale, work);
    case Kind::real:
        return transform_real(in, out, scale, work);
    case Kind::hermitian:
        return transform_hermitian(in, out, scale, work);
    }
}

Sequence Plan::transform_side_by_side(Index batch, Sequence x, Sequence spare, double scale) const
{
    const int end = stages_.count - 1;
    const Array one{x, batch}, other{spare, batch};
    const bool reversed = kind_ == Kind::real;
    return run_passes(reversed ? end : 0, reversed ? 0 : end, one, kNone, one, other,
                      [&](int i, Array from, Array to) {
                          const Stage &stage = stages_.stage[i];
                          passes_for(kind_, stage, batch)(stage, {stage.before, stage.after, batch, batch, batch},
                                                          from.at, to.at, scale);
                      })
        .at;
}

Index Plan::one_sweep_part() const { return whole_lines(n_ + kLine); }

void Plan::transform_in_one_sweep(Sequence in, Sequence out, double scale, double *work) const
{
    const Index part = one_sweep_part();
    const bool complex = out.im != nullptr;
    double *const one = work, *const other = work + (complex ? 2 : 1) * part;
    const int step = kind_ == Kind::real ? -1 : 1;
    // A single pass has a single butterfly, which reads all before it writes: it may go from an array to itself. The
    // pointers are kept apart: pairs of them would be put together in memory, and waited for.
    double *from = in.re, *from_im = in.im;
    int i = step < 0 ? stages_.count - 1 : 0, left = stages_.count;
    if (stages_.in_first_pass > 0) {
        i = stages_.in_first_pass;
        left -= i;
        kernels_for_lanes(stages_.stage[i - 1].after)
            .complex_lead(stages_.stage, i, {from, from_im}, {one, one + part});
        from = one;
        from_im = one + part;
    }
    for (; left > 0; --left, i += step) {
        double *to = from == one ? other : one, *to_im = complex ? to + part : nullptr;
        if (left == 1) {
            to = out.re;
            to_im = out.im;
        }
        const Stage &stage = stages_.stage[i];
        passes_for(kind_, stage, 1)(stage, {stage.before, stage.after, 1, 1, 1}, {from, from_im}, {to, to_im}, scale);
        from = to;
        from_im = to_im;
    }
}

void Plan::transform_complex(Sequence in, Sequence out, double scale, double *work) const
{
    const Passes pass = passes_of(*kernel_, kind_);
    const Index part = whole_lines(n_);
    const Sequence middle{work, work + part};
    const Blocks both = blocks(work + 2 * part);

    in_ranges(columns_, column_block_, [&](Index first) {
        const Index width = column_block_, size = rows_ * width;
        run_passes(0, lead_ - 1, {shifted(in, first), columns_}, {shifted(middle, first), columns_},
                   {both.block(0, size, true), width}, {both.block(1, size, true), width},
                   [&](int i, Array from, Array to) {
                       const Stage &stage = stages_.stage[i];
                       kernel_->columns_pass(stage, {stage.before, stage.after / columns_, width, from.row, to.row},
                                             {columns_, first}, from.at, to.at);
                   });
    });
    in_ranges(rows_, row_block_, [&](Index first) {
        const Index width = row_block_, size = columns_ * width;
        const Array block{both.block(0, size, true), width};
        kernel_->transpose(width, columns_, middle.re + first * columns_, columns_, block.at.re, width);
        kernel_->transpose(width, columns_, middle.im + first * columns_, columns_, block.at.im, width);
        run_passes(lead_, stages_.count - 1, block, {shifted(out, first), rows_}, block,
                   {both.block(1, size, true), width}, [&](int i, Array from, Array to) {
                       const Stage &stage = stages_.stage[i];
                       pass(stage, {stage.before / rows_, stage.after, width, from.row, to.row}, from.at, to.at, scale);
                   });
    });
}

void Plan::transform_real(Sequence in, Sequence out, double scale, double *work) const
{
    const Passes pass = passes_of(*kernel_, kind_);
    double *const middle = work;
    const Blocks both = blocks(work + whole_lines(n_));

    in_ranges(rows_, row_block_, [&](Index first) {
        const Index width = row_block_;
        const Array done = run_passes(
            stages_.count - 1, lead_, {shifted(in, first), rows_}, kNone, {both.block(0, 0, false), width},
            {both.block(1, 0, false), width}, [&](int i, Array from, Array to) {
                const Stage &stage = stages_.stage[i];
                pass(stage, {stage.before / rows_, stage.after, width, from.row, to.row}, from.at, to.at, scale);
            });
        kernel_->transpose(columns_, width, done.at.re, width, middle + first * columns_, columns_);
    });

    // Columns 0 and Q/2 are real, or real but for their twiddle factors; the others come in conjugate pairs.
    run_passes(
        lead_ - 1, 0, {{middle, nullptr}, columns_}, {out, columns_}, {both.block(0, 0, false), 1},
        {both.block(1, 0, false), 1}, [&](int i, Array from, Array to) {
            const Stage &stage = stages_.stage[i];
            pass(stage, {stage.before, stage.after / columns_, 1, from.row, to.row, columns_}, from.at, to.at, 1.0);
        });
    const auto columns_back = [&](Index first, Index width, bool packed) {
        const Index size = rows_ * width;
        const Array block0{both.block(0, size, true), width}, block1{both.block(1, size, true), width};
        return run_passes(lead_ - 1, 0, packed ? Array{{middle, nullptr}, columns_} : block0,
                          packed ? Array{out, 0} : kNone, block0, block1,
                          [&](int i, Array from, Array to) {
                              const Stage &stage = stages_.stage[i];
                              const bool is_first = packed && i == lead_ - 1, is_last = packed && i == 0;
                              kernel_->columns_pass_back(
                                  stage, {stage.before, stage.after / columns_, width, from.row, to.row},
                                  {columns_, first, is_first ? ColumnsOf::short_sequences : ColumnsOf::complex_block,
                                   is_last ? ColumnsOf::long_sequence : ColumnsOf::complex_block, rows_},
                                  from.at, to.at);
                          })
            .at;
    };
    if (columns_ % 2 == 0) {
        const Index half = columns_ / 2;
        const Sequence column = both.block(0, rows_, true);
        for (Index s = 0; s < rows_; ++s) {
            column.re[s] = middle[s * columns_ + half];
            column.im[s] = 0.0;
        }
        const Sequence done = columns_back(half, 1, false);
        for (Index k = 0; 2 * k < rows_; ++k) {
            out.re[k * columns_ + half] = done.re[k];
            if (2 * k + 1 < rows_) out.re[(rows_ - k) * columns_ - half] = done.im[k];
        }
    }
    const Index pairs = (columns_ - 1) / 2, width = std::min(pairs, column_block_);
    in_ranges(pairs, width, [&](Index i) { columns_back(i + 1, width, true); });
}

void Plan::transform_hermitian(Sequence in, Sequence out, double scale, double *work) const
{
    const Passes pass = passes_of(*kernel_, kind_);
    double *const middle = work;
    const Blocks both = blocks(work + whole_lines(n_));

    run_passes(
        0, lead_ - 1, {in, columns_}, {{middle, nullptr}, columns_}, {both.block(0, 0, false), 1},
        {both.block(1, 0, false), 1}, [&](int i, Array from, Array to) {
            const Stage &stage = stages_.stage[i];
            pass(stage, {stage.before, stage.after / columns_, 1, from.row, to.row, columns_}, from.at, to.at, 1.0);
        });
    const auto columns_forward = [&](Index first, Index width, bool packed) {
        const Index size = rows_ * width;
        const Array block0{both.block(0, size, true), width}, block1{both.block(1, size, true), width};
        return run_passes(0, lead_ - 1, packed ? Array{in, 0} : block0,
                          packed ? Array{{middle, nullptr}, columns_} : kNone, block0, block1,
                          [&](int i, Array from, Array to) {
                              const Stage &stage = stages_.stage[i];
                              const bool is_first = packed && i == 0, is_last = packed && i == lead_ - 1;
                              kernel_->columns_pass(
                                  stage, {stage.before, stage.after / columns_, width, from.row, to.row},
                                  {columns_, first, is_first ? ColumnsOf::long_sequence : ColumnsOf::complex_block,
                                   is_last ? ColumnsOf::short_sequences : ColumnsOf::complex_block, rows_},
                                  from.at, to.at);
                          })
            .at;
    };
    if (columns_ % 2 == 0) {
        const Index half = columns_ / 2;
        const Sequence column = both.block(0, rows_, true);
        for (Index k = 0; 2 * k < rows_; ++k) {
            const Index mirror = rows_ - 1 - k;
            column.re[k] = column.re[mirror] = in.re[k * columns_ + half];
            column.im[k] = k == mirror ? 0.0 : in.re[mirror * columns_ + half];
            column.im[mirror] = -column.im[k];
        }
        const Sequence done = columns_forward(half, 1, false);
        for (Index s = 0; s < rows_; ++s) middle[s * columns_ + half] = done.re[s];
    }
    const Index pairs = (columns_ - 1) / 2, width = std::min(pairs, column_block_);
    in_ranges(pairs, width, [&](Index i) { columns_forward(i + 1, width, true); });

    in_ranges(rows_, row_block_, [&](Index first) {
        const Index width = row_block_;
        const Array block{both.block(0, 0, false), width};
        kernel_->transpose(width, columns_, middle + first * columns_, columns_, block.at.re, width);
        run_passes(lead_, stages_.count - 1, block, {shifted(out, first), rows_}, block,
                   {both.block(1, 0, false), width}, [&](int i, Array from, Array to) {
                       const Stage &stage = stages_.stage[i];
                       pass(stage, {stage.before / rows_, stage.after, width, from.row, to.row}, from.at, to.at, scale);
                   });
    });
}

} // namespace kor::transforms
