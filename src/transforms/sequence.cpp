// Transforms of one sequence, or of several side by side, out of place with a work array.
#include "transforms/sequence.hpp"

#include <algorithm>

#include "transforms/transpose.hpp"

namespace kor::transforms {

namespace {

// Rows this long, and this many of them, fill the registers of every generation of processors.
constexpr Index kEnough = 8;

} // namespace

Plan::Plan(Kind kind, Index n, const double *trig) : kind_{kind}, n_{n}, stages_{n, trig}, lead_{0}
{
    Index rows = 1;
    while (lead_ < stages_.count && rows < kEnough) rows *= stages_.stage[lead_++].radix;
    if (rows < kEnough || n_ / rows < kEnough) lead_ = 0;
}

namespace {

// Where the data stand while a transform moves them from one array to another. They alternate between the target and a
// work array so that the last move ends in the target; a second work array serves where that would be a move in place.
class Journey {
  public:
    Journey(Sequence in, Sequence out, double *work, Index size, int moves) : at_{in}, out_{out}, left_{moves}
    {
        const bool complex = in.im != nullptr;
        first_ = {work, complex ? work + size : nullptr};
        work += complex ? 2 * size : size;
        second_ = {work, complex ? work + size : nullptr};
    }

    template <class Step>
    void move(Step step)
    {
        const Sequence wanted = left_ % 2 == 1 ? out_ : first_;
        const Sequence next = wanted.re == at_.re ? second_ : wanted;
        step(at_, next);
        at_ = next;
        --left_;
    }

    // After the last move.
    void arrive(Index size) const
    {
        if (at_.re == out_.re) return;
        std::copy_n(at_.re, size, out_.re);
        if (at_.im != nullptr) std::copy_n(at_.im, size, out_.im);
    }

  private:
    Sequence at_, out_, first_, second_;
    int left_;
};

void pass_across(Kind kind, const Stage &stage, Index batch, Sequence in, Sequence out, double scale)
{
    const Kernels &kernel = kernels();
    // One pass has no twiddle factors anywhere: it scales.
    if (stage.after > 1) scale = 1.0;
    switch (kind) {
    case Kind::complex:
        return kernel.complex_across(stage, batch, in.re, in.im, out.re, out.im, scale);
    case Kind::real:
        return kernel.real_across(stage, batch, in.re, out.re, scale);
    case Kind::hermitian:
        return kernel.hermitian_across(stage, batch, in.re, out.re, scale);
    }
}

void pass_along(Kind kind, const Stage &stage, Sequence in, Sequence out)
{
    const Kernels &kernel = kernels();
    switch (kind) {
    case Kind::complex:
        return kernel.complex_along(stage, in.re, in.im, out.re, out.im);
    case Kind::real:
        return kernel.real_along(stage, in.re, out.re);
    case Kind::hermitian:
        return kernel.hermitian_along(stage, in.re, out.re);
    }
}

} // namespace

void Plan::transform(Sequence in, Sequence out, double scale, double *work) const
{
    if (lead_ == 0) return transform_side_by_side(1, in, out, scale, work);

    Journey journey{in, out, work, n_, stages_.count + 1};
    const auto across = [&](int i) {
        journey.move([&](Sequence from, Sequence to) { pass_across(kind_, stages_.stage[i], 1, from, to, scale); });
    };
    const auto along = [&](int i) {
        journey.move([&](Sequence from, Sequence to) { pass_along(kind_, stages_.stage[i], from, to); });
    };
    if (kind_ == Kind::real) {
        for (int i = stages_.count - 1; i >= lead_; --i) across(i);
        journey.move([&](Sequence from, Sequence to) { columns_to_rows(stages_.stage, lead_, n_, from.re, to.re); });
        for (int i = lead_ - 1; i >= 0; --i) along(i);
    } else {
        for (int i = 0; i < lead_; ++i) along(i);
        journey.move([&](Sequence from, Sequence to) {
            rows_to_columns(stages_.stage, lead_, n_, from.re, to.re);
            if (kind_ == Kind::complex) rows_to_columns(stages_.stage, lead_, n_, from.im, to.im);
        });
        for (int i = lead_; i < stages_.count; ++i) across(i);
    }
}

void Plan::transform_side_by_side(Index batch, Sequence in, Sequence out, double scale, double *work) const
{
    const Index size = n_ * batch;
    Journey journey{in, out, work, size, stages_.count};
    for (int i = 0; i < stages_.count; ++i) {
        const Stage &stage = stages_.stage[kind_ == Kind::real ? stages_.count - 1 - i : i];
        journey.move([&](Sequence from, Sequence to) { pass_across(kind_, stage, batch, from, to, scale); });
    }
    journey.arrive(size);
}

} // namespace kor::transforms
