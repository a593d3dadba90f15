// Many sequences of one length, with the caller's table of roots: the driver of the multiple-sequence engine.
//
// Long sequences are transformed one by one. Short ones go a few at a time, transposed so that the registers run across
// the sequences.
#include "transforms/rows.hpp"

#include <algorithm>
#include <cmath>

#include "transforms/transpose.hpp"

namespace kor::transforms {

namespace {

// Short sequences that go side by side: a few registers full.
constexpr Index kMostSideBySide = 16;

} // namespace

bool Rows::prepare(Index m)
{
    if (n_ == 1) return true;
    bool large_prime = false;
    for (int i = 0; i < plan_.stages().count; ++i) {
        Stage &stage = plan_.stages().stage[i];
        if (stage.radix <= kLargestDirectPrime) continue;
        if (!prime_[i].prepare(stage.radix, stage.cosines, stage.sines, stage.after)) return false;
        stage.prime = &prime_[i];
        large_prime = true;
    }
    const bool together = plan_.short_rows() && !large_prime && m > 1;
    side_by_side_ = together ? std::min(m, kMostSideBySide) : 1;
    const Index transposed = together ? (kind_ == Kind::complex ? 2 : 1) * n_ : 0;
    return work_.allocate((Count{Plan::work_size(kind_, n_)} + Count{transposed}) * Count{side_by_side_});
}

void Rows::transform(Index m, Sequence x)
{
    if (n_ == 1) return;
    const double scale = 1.0 / std::sqrt(static_cast<double>(n_));
    const bool complex = kind_ == Kind::complex;
    for (Index i = 0; i < m; i += side_by_side_) {
        const Sequence row{x.re + i * n_, complex ? x.im + i * n_ : nullptr};
        if (side_by_side_ == 1) {
            plan_.transform(row, scale, work_.data());
            continue;
        }
        const Index count = std::min(side_by_side_, m - i), size = n_ * count;
        const Sequence columns{work_.data(), complex ? work_.data() + size : nullptr};
        transpose(count, n_, row.re, columns.re);
        if (complex) transpose(count, n_, row.im, columns.im);
        plan_.transform_side_by_side(count, columns, columns, scale, work_.data() + (complex ? 2 : 1) * size);
        transpose(n_, count, columns.re, row.re);
        if (complex) transpose(n_, count, columns.im, row.im);
    }
}

} // namespace kor::transforms
