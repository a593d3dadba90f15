// Many sequences of one length, with the caller's table of roots: the driver of the multiple-sequence engine.
#pragma once

#include "frame/workspace.hpp"
#include "transforms/prime_length.hpp"
#include "transforms/sequence.hpp"

namespace kor::transforms {

// Transforms of rows: z_k = n^-1/2 sum_j x_j exp(-2 pi i j k / n), from real x to Hermitian z, from Hermitian x to real
// z, or from complex x to complex z. Element j of row i stands at i * n + j. A row of one element stays as it is.
class Rows {
  public:
    Rows(Kind kind, Index n, const double *trig) : kind_{kind}, n_{n}, plan_{kind, n, trig} {}
    Rows(const Rows &) = delete;

    // Takes the memory for up to `m` rows at a time; false when there is none. Nothing can fail after that.
    bool prepare(Index m);

    void transform(Index m, Sequence x);

  private:
    Kind kind_;
    Index n_;
    Plan plan_;
    Index side_by_side_ = 1; // rows that are transposed and transformed together
    LargePrimes primes_;

    // Work for short sequences is on the stack: asking for memory would take as long as a transform.
    static constexpr Index kOnStack = 1024;
    double on_stack_[kOnStack];
    Workspace<double> work_;
    double *memory_ = nullptr;
};

// The drivers by kind: false, with the data untouched, when there is no memory.
inline bool transform_rows(Kind kind, Index m, Index n, Sequence x, const double *trig)
{
    if (m == 1 && has_butterfly(kind, n)) {
        transform_whole(kind, n, x, unitary_scale(n));
        return true;
    }
    Rows rows{kind, n, trig};
    if (!rows.prepare(m)) return false;
    rows.transform(m, x);
    return true;
}
inline bool c06fpx(Index m, Index n, double *x, const double *trig)
{
    return transform_rows(Kind::real, m, n, {x, nullptr}, trig);
}
inline bool c06fqx(Index m, Index n, double *x, const double *trig)
{
    return transform_rows(Kind::hermitian, m, n, {x, nullptr}, trig);
}
inline bool c06frx(Index m, Index n, double *x, double *y, const double *trig)
{
    return transform_rows(Kind::complex, m, n, {x, y}, trig);
}

} // namespace kor::transforms
