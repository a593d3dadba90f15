// Transforms of one sequence, or of several side by side, out of place with a work array.
#pragma once

#include "transforms/kernels.hpp"

namespace kor::transforms {

// Sequences up to this length are better transformed side by side, if there are several.
inline constexpr Index kLongestSideBySide = 96;

// How a transform of length n = R Q proceeds. The sequence is an array of R rows and Q columns. The leading stages,
// with the product R of radices, act on its columns, the others on its rows; real data take the two in the opposite
// order. Each of the two sweeps works on a few columns or rows at a time, in a block that stays in the cache, and goes
// over the whole of the data once.
class Plan {
  public:
    Plan(Kind kind, Index n, const double *trig);

    Index length() const { return n_; }
    Stages &stages() { return stages_; }

    // Doubles of work space that transform() needs.
    Index work_size() const;

    // From `in` to `out`, which may be the same, multiplied by `scale`.
    void transform(Sequence in, Sequence out, double scale, double *work) const;

    // `batch` sequences side by side, element j of sequence i at j * batch + i, from x to x or to `spare`: to the one
    // that is returned.
    Sequence transform_side_by_side(Index batch, Sequence x, Sequence spare, double scale) const;

  private:
    struct Blocks;
    bool one_sweep_is_faster() const;
    Index one_sweep_part() const; // size of a part of the two work arrays
    Blocks blocks(double *memory) const;
    void transform_complex(Sequence in, Sequence out, double scale, double *work) const;
    void transform_real(Sequence in, Sequence out, double scale, double *work) const;
    void transform_hermitian(Sequence in, Sequence out, double scale, double *work) const;
    void transform_in_one_sweep(Sequence in, Sequence out, double scale, double *work) const;

    Kind kind_;
    Index n_;
    Stages stages_;
    int lead_ = 0;   // stages that act on columns; 0 for lengths too short, or too unevenly factored, for two sweeps
    Index rows_ = 1; // R
    Index columns_;  // Q
    // For two sweeps:
    const Kernels *kernel_ = nullptr;
    Index row_block_ = 0; // rows that are worked on together
    Index column_block_ = 0;
};

// The transform of a sequence whose length has a butterfly of its own, in place, without tables or memory.
void transform_whole(Kind kind, Index n, Sequence x, double scale);

} // namespace kor::transforms
