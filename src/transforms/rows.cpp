// Many sequences of one length, with the caller's table of roots: the driver of the multiple-sequence engine.
//
// Long sequences are transformed one by one. Short ones go a few at a time, transposed so that the registers run across
// the sequences.
#include "transforms/rows.hpp"

#include "frame/large_pages.hpp"
#include <algorithm>

namespace kor::transforms {

namespace {

// Short sequences that go side by side: a few registers full.
constexpr Index kMostSideBySide = 16;

} // namespace

bool Rows::prepare(Index m)
{
    if (n_ == 1) return true;
    for (int i = 0; i < plan_.stages().count; ++i) {
        Stage &stage = plan_.stages().stage[i];
        if (stage.radix <= kLargestDirectPrime) continue;
        stage.prime = &primes_.add();
        if (!stage.prime->prepare(stage.radix, stage.cosines, stage.sines, stage.after)) return false;
    }
    side_by_side_ = m > 1 && n_ <= kLongestSideBySide && primes_.count() == 0 ? std::min(m, kMostSideBySide) : 1;
    const Index parts = kind_ == Kind::complex ? 2 : 1;
    const Index size = std::max(plan_.work_size(), kLine + 2 * parts * n_ * side_by_side_);
    if (size <= kOnStack) {
        memory_ = on_stack_;
        return true;
    }
    if (!work_.allocate(size)) return false;
    memory_ = work_.data();
    suggest_large_pages(memory_, work_.size() * sizeof(double));
    return true;
}

void Rows::transform(Index m, Sequence x)
{
    if (n_ == 1) return;
    const double scale = unitary_scale(n_);
    const bool complex = kind_ == Kind::complex;
    // Transposed by squares of registers, which should fit into the rows.
    const Kernels &turning = kernels_for_lanes(n_ % 8 == 4 ? 4 : 8);
    for (Index i = 0; i < m; i += side_by_side_) {
        const Sequence row{x.re + i * n_, complex ? x.im + i * n_ : nullptr};
        if (side_by_side_ == 1) {
            plan_.transform(row, row, scale, memory_);
            continue;
        }
        const Index count = std::min(side_by_side_, m - i), size = n_ * count;
        double *const start = at_line(memory_);
        const Sequence columns{start, complex ? start + size : nullptr};
        const Sequence spare{columns.re + (complex ? 2 : 1) * size, complex ? columns.re + 3 * size : nullptr};
        turning.transpose(count, n_, row.re, n_, columns.re, count);
        if (complex) turning.transpose(count, n_, row.im, n_, columns.im, count);
        const Sequence done = plan_.transform_side_by_side(count, columns, spare, scale);
        turning.transpose(n_, count, done.re, count, row.re, n_);
        if (complex) turning.transpose(n_, count, done.im, count, row.im, n_);
    }
}

} // namespace kor::transforms
