// Transforms of one sequence after another, or of a few side by side, out of place with a work array.
#include "transforms/sequence.hpp"

#include <algorithm>

#include "transforms/transpose.hpp"

namespace kor::transforms {

namespace {

// Rows this long, and this many of them, fill the registers of every generation of processors.
constexpr Index kEnough = 8;

} // namespace

Plan::Plan(Kind kind, Index n, const double *trig) : kind_{kind}, n_{n}, stages_{n, trig}, lead_{0}, lead_product_{1}
{
    while (lead_ < stages_.count && lead_product_ < kEnough) lead_product_ *= stages_.stage[lead_++].radix;
    if (lead_product_ < kEnough || n_ / lead_product_ < kEnough) {
        lead_ = 0;
        lead_product_ = 1;
    }
}

// The data travel from the caller's array through the work array and back; with an odd number of moves they touch a
// second work array once.
class Plan::Buffers {
  public:
    Buffers(Sequence x, double *work, Index size, int moves) : cycle_{x, {}, {}}, left_{moves}
    {
        for (int i = 1; i < 3; ++i, work += size) {
            cycle_[i].re = work;
            if (x.im != nullptr) cycle_[i].im = work += size;
        }
    }
    Sequence source() const { return cycle_[at_]; }
    Sequence target() const { return cycle_[next()]; }
    void moved()
    {
        at_ = next();
        --left_;
    }

  private:
    int next() const
    {
        if (at_ == 1) return left_ % 2 == 0 ? 2 : 0;
        return at_ == 2 ? 0 : 1;
    }
    Sequence cycle_[3];
    int at_ = 0;
    int left_;
};

namespace {

struct Pass {
    const Kernels &kernel = kernels();
    Kind kind;

    void across(const Stage &stage, Index batch, Sequence in, Sequence out, double scale) const
    {
        if (stage.after > 1) scale = 1.0;
        switch (kind) {
        case Kind::complex: return kernel.complex_across(stage, batch, in.re, in.im, out.re, out.im, scale);
        case Kind::real: return kernel.real_across(stage, batch, in.re, out.re, scale);
        case Kind::hermitian: return kernel.hermitian_across(stage, batch, in.re, out.re, scale);
        }
    }
    void along(const Stage &stage, Sequence in, Sequence out) const
    {
        switch (kind) {
        case Kind::complex: return kernel.complex_along(stage, in.re, in.im, out.re, out.im);
        case Kind::real: return kernel.real_along(stage, in.re, out.re);
        case Kind::hermitian: return kernel.hermitian_along(stage, in.re, out.re);
        }
    }
};

} // namespace

void Plan::transform(Sequence x, double scale, double *work) const
{
    if (n_ == 1) return;
    const Pass pass{.kind = kind_};
    const int moves = stages_.count + (lead_ > 0 ? 1 : 0);
    Buffers buffers{x, work, n_, moves};
    const auto move = [&](auto step) {
        step(buffers.source(), buffers.target());
        buffers.moved();
    };
    const auto across = [&](int i) {
        move([&](Sequence in, Sequence out) { pass.across(stages_.stage[i], 1, in, out, scale); });
    };
    const auto along = [&](int i) { move([&](Sequence in, Sequence out) { pass.along(stages_.stage[i], in, out); }); };

    if (kind_ == Kind::real) {
        for (int i = stages_.count - 1; i >= lead_; --i) across(i);
        if (lead_ > 0)
            move([&](Sequence in, Sequence out) { columns_to_rows(stages_.stage, lead_, n_, in.re, out.re); });
        for (int i = lead_ - 1; i >= 0; --i) along(i);
    } else {
        for (int i = 0; i < lead_; ++i) along(i);
        if (lead_ > 0)
            move([&](Sequence in, Sequence out) {
                rows_to_columns(stages_.stage, lead_, n_, in.re, out.re);
                if (kind_ == Kind::complex) rows_to_columns(stages_.stage, lead_, n_, in.im, out.im);
            });
        for (int i = lead_; i < stages_.count; ++i) across(i);
    }
    if (moves == 1) {
        std::copy_n(buffers.source().re, n_, x.re);
        if (x.im != nullptr) std::copy_n(buffers.source().im, n_, x.im);
    }
}

void Plan::transform_rows(Index count, Sequence x, double scale, double *work) const
{
    for (Index i = 0; i < count; ++i)
        transform({x.re + i * n_, x.im != nullptr ? x.im + i * n_ : nullptr}, scale, work);
}

} // namespace kor::transforms
