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
    bool short_rows() const { return lead_ == 0; }

    // Doubles of work space that transform() needs.
    static Index work_size(Kind kind, Index n) { return kind == Kind::complex ? 4 * n : 2 * n; }

    // From `in` to `out`, multiplied by `scale`. `in` may be `out`, or the beginning of the work space.
    void transform(Sequence in, Sequence out, double scale, double *work) const;
    void transform(Sequence x, double scale, double *work) const { transform(x, x, scale, work); }

    // `batch` sequences side by side, element j of sequence i at j * batch + i. `in` is used up.
    void transform_side_by_side(Index batch, Sequence in, Sequence out, double scale, double *work) const;

  private:
    Kind kind_;
    Index n_;
    Stages stages_;
    int lead_;
};

} // namespace kor::transforms
