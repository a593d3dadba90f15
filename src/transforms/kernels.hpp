// The vectorised inner loops of the chapter, compiled once for each generation of processors.
//
// Every generation runs the same arithmetic in the same order on every element; only the number of elements in a register
// differs. Results are therefore the same bits on every processor.
#pragma once

#include "transforms/stages.hpp"

namespace kor::transforms {

struct Kernels {
    // exp(-2 pi i (first + step j) / n) for j = 0..count-1: cosines and negated sines, each within 0.75 ulp.
    // 0 <= first, step < n.
    void (*unit_roots)(Index n, Index first, Index step, Index count, double *cosines, double *sines);

    // One stage of a complex, real or Hermitian transform, from `in` to `out`, which must not overlap.
    //
    // `across` works on B = batch * stage.before sequences side by side, and multiplies its outputs that have no twiddle
    // factor by `scale`: all of them, if stage.after is 1.
    //   complex:   in[(l * after + j) * B + b] -> out[(j * radix + k) * B + b]
    //   real:      in[(f * radix + l) * B + b] -> out[g * B + b]
    //   Hermitian: in[g * B + b]               -> out[(f * radix + l) * B + b]
    // `along` works on stage.before contiguous blocks of radix * after elements.
    //   complex:   in[l * after + j]           -> out[k * after + j]
    //   real:      in[l * after + f]           -> out[g]
    //   Hermitian: in[g]                       -> out[l * after + f]
    // Here l and k count the radix, j the `after` elements of a row; f and g are places in packed Hermitian sequences of
    // length `after` and radix * after.
    using ComplexAcross = void (*)(const Stage &, Index batch, const double *in_re, const double *in_im, double *out_re,
                                   double *out_im, double scale);
    using ComplexAlong = void (*)(const Stage &, const double *in_re, const double *in_im, double *out_re,
                                  double *out_im);
    using PackedAcross = void (*)(const Stage &, Index batch, const double *in, double *out, double scale);
    using PackedAlong = void (*)(const Stage &, const double *in, double *out);
    ComplexAcross complex_across;
    ComplexAlong complex_along;
    PackedAcross real_across;
    PackedAlong real_along;
    PackedAcross hermitian_across;
    PackedAlong hermitian_along;
};

// The fastest that this processor can run.
const Kernels &kernels();

} // namespace kor::transforms
