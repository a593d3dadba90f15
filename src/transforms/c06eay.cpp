// c06eay: the permutation of a sequence that a transform in place needs, and its inverse.
//
// The mirrored dimensions need nothing but swaps, since the permutation undoes itself there. Several dimensions in the
// middle, coprime ones, need their cycles followed: rows of the data move along them.
#include <algorithm>
#include <bitset>
#include <utility>

#include "transforms/in_place.hpp"

namespace kor::transforms {

namespace {

// Digits i_1..i_count of `value`, i_1 the slowest, put together in the opposite order; sizes as given.
Index reversed_digits(const Index *size, int count, Index value)
{
    Index result = 0;
    for (int i = count - 1; i >= 0; --i) {
        result = result * size[i] + value % size[i];
        value /= size[i];
    }
    return result;
}

// The opposite: digits are read with the sizes in reversed order.
Index restored_digits(const Index *size, int count, Index value)
{
    Index result = 0;
    for (int i = 0; i < count; ++i) {
        result = result * size[i] + value % size[i];
        value /= size[i];
    }
    return result;
}

// Exchanges (i_1, .., s, .., i_k) with (i_k, .., s, .., i_1), s standing for all dimensions in the middle.
void swap_mirrored(const Dimensions &d, double *x)
{
    if (d.mirrored == 0) return;
    const Index edge = d.size[0], stride = d.n / edge;
    const Index inner = d.mirrored_product / edge; // all mirrored dimensions but the outermost
    const Index middle = d.n / (d.mirrored_product * d.mirrored_product);
    const Kernels &kernel = kernels_for_length(edge * edge);
    for (Index first = 0; first < inner; ++first) {
        // A tile spans the outermost dimension at both ends; its partner has the inner digits exchanged.
        const Index partner_last = reversed_digits(d.size + 1, d.mirrored - 1, first);
        for (Index last = 0; last < inner; ++last) {
            const Index partner_first = restored_digits(d.size + 1, d.mirrored - 1, last);
            if (partner_first < first) continue;
            for (Index s = 0; s < middle; ++s) {
                double *const tile = x + ((first * middle + s) * inner + last) * edge;
                double *const partner = x + ((partner_first * middle + s) * inner + partner_last) * edge;
                if (partner_first > first || partner_last >= last) kernel.swap_transposed(edge, stride, tile, partner);
            }
        }
    }
}

// Follows the cycles of row(r) := row(source(r)), r < rows. Rows already moved are marked in a window of the rows; a
// cycle that has a row before the window was done there.
template <class Source, class SwapRows>
void follow_cycles(Index rows, Source source, SwapRows swap_rows)
{
    constexpr Index kWindow = Index{1} << 15;
    std::bitset<kWindow> done;
    for (Index window = 0; window < rows; window += kWindow) {
        done.reset();
        const auto mark = [&](Index r) {
            if (r < window + kWindow) done.set(static_cast<std::size_t>(r - window));
        };
        for (Index start = window; start < std::min(rows, window + kWindow); ++start) {
            if (done.test(static_cast<std::size_t>(start - window))) continue;
            Index r = source(start);
            while (r > start) r = source(r);
            if (r < start) continue;
            mark(start);
            for (Index to = start, from = source(to); from != start; to = from, from = source(to)) {
                swap_rows(to, from);
                mark(from);
            }
        }
    }
}

template <class Source>
void permute_middle(const Dimensions &d, double *x, Source source)
{
    const Index width = d.mirrored_product, rows = d.n / (width * width);
    for (Index outer = 0; outer < width; ++outer, x += rows * width)
        follow_cycles(rows, source, [&](Index to, Index from) {
            std::swap_ranges(x + to * width, x + (to + 1) * width, x + from * width);
        });
}

} // namespace

void c06eay(const Dimensions &d, double *x)
{
    swap_mirrored(d, x);
    const int middle = d.count - 2 * d.mirrored;
    if (middle > 1) permute_middle(d, x, [&](Index row) { return reversed_digits(d.size + d.mirrored, middle, row); });
}

void c06eay_inverse(const Dimensions &d, double *x)
{
    const int middle = d.count - 2 * d.mirrored;
    if (middle > 1) permute_middle(d, x, [&](Index row) { return restored_digits(d.size + d.mirrored, middle, row); });
    swap_mirrored(d, x);
}

} // namespace kor::transforms
