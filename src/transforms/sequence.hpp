// Transforms of one sequence after another, or of a few side by side, out of place with a work array.
#pragma once

#include "transforms/kernels.hpp"

namespace kor::transforms {

enum class Kind { complex, real, hermitian };

// A complex sequence or a packed one: the imaginary parts are null for the latter.
struct Sequence {
    double *re;
    double *im;
};

// How a transform of length n proceeds: the leading stages act along contiguous rows, the others across them, and between
// the two the array is transposed. `lead` is 0 for lengths that are too short, or too unevenly factored, for that.
class Plan {
  public:
    Plan(Kind kind, Index n, const double *trig);

    Index length() const { return n_; }
    Stages &stages() { return stages_; }

    // Doubles of work space that transform() needs.
    static Index work_size(Kind kind, Index n) { return kind == Kind::complex ? 4 * n : 2 * n; }

    // A transform in place, its result multiplied by `scale`.
    void transform(Sequence x, double scale, double *work) const;

    // The same for `count` sequences, element j of sequence i at i * n + j.
    void transform_rows(Index count, Sequence x, double scale, double *work) const;

  private:
    struct Buffers;
    Kind kind_;
    Index n_;
    Stages stages_;
    int lead_;
    Index lead_product_;
};

} // namespace kor::transforms
