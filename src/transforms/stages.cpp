// The stages of a transform, each with its part of the table of roots.
#include "transforms/stages.hpp"

#include <algorithm>

namespace kor::transforms {

namespace {

// The radices of the stages of a length.
template <class Number, int kMost>
struct Radices {
    Number radix[kMost];
    int count, in_first_pass;
};
using AnyRadices = Radices<Index, kMaxFactors>;

// The last factors, from `from` on, as one.
constexpr AnyRadices ending_in_one(const Factors &factors, int from, Index product, int in_first_pass)
{
    AnyRadices radices{{}, from + 1, in_first_pass};
    for (int i = 0; i < from; ++i) radices.radix[i] = factors.factor[i];
    radices.radix[from] = product;
    return radices;
}

constexpr bool can_lead(const Factors &factors, int count)
{
    for (const Lead &lead : kLeads) {
        bool same = lead.count == count;
        for (int i = 0; same && i < count; ++i) same = lead.radix[i] == factors.factor[i];
        if (same) return true;
    }
    return false;
}

constexpr AnyRadices fewest_radices(Kind kind, Index n)
{
    constexpr Index kFewestColumns = 4;
    if (has_butterfly(kind, n)) return {{n}, 1, 0};
    const Factors factors = c06fpz(n);

    // Two passes for a complex sequence: the shorter of the two transforms should be as long as can be.
    AnyRadices best{};
    Index best_shorter = 0, lead = 1;
    for (int i = 1; kind == Kind::complex && i <= 3 && i < factors.count; ++i) {
        lead *= factors.factor[i - 1];
        const Index rest = n / lead, shorter = std::min(lead, rest);
        if (!has_butterfly(kind, rest) || rest < kFewestColumns || shorter <= best_shorter) continue;
        if (!can_lead(factors, i)) continue;
        best = ending_in_one(factors, i, rest, i);
        best_shorter = shorter;
    }
    if (best_shorter > 0) return best;

    int from = factors.count - 1;
    Index product = 1;
    best = ending_in_one(factors, from, factors.factor[from], 0);
    for (; from >= 0 && product <= kLongestButterfly; --from) {
        product *= factors.factor[from];
        if (has_butterfly(kind, product)) best = ending_in_one(factors, from, product, 0);
    }
    return best;
}

// Found beforehand for short lengths: to find them takes as long as a transform.
constexpr Index kTabulated = 1024;
constexpr int kMostTabulated = 6;
using ShortRadices = Radices<std::uint16_t, kMostTabulated>;
struct Table {
    ShortRadices length[kTabulated + 1];
};
constexpr Table tabulated(Kind kind)
{
    Table table{};
    for (Index n = 2; n <= kTabulated; ++n) {
        const AnyRadices radices = fewest_radices(kind, n);
        ShortRadices &entry = table.length[n];
        entry.count = radices.count;
        entry.in_first_pass = radices.in_first_pass;
        for (int i = 0; i < radices.count; ++i) entry.radix[i] = static_cast<std::uint16_t>(radices.radix[i]);
    }
    return table;
}
constexpr Table kComplexTable = tabulated(Kind::complex), kPackedTable = tabulated(Kind::real);

} // namespace

template <class Number>
Stages::Stages(const Number *radices, int radix_count, int first_count, Index n, const double *trig)
    : count{radix_count}, in_first_pass{first_count}
{
    Index after = 1;
    for (int i = count - 1; i >= 0; --i) {
        stage[i].radix = static_cast<Index>(radices[i]);
        stage[i].after = after;
        after *= stage[i].radix;
        const Index offset = n - after; // n (before - 1) / before
        stage[i].cosines = trig + offset;
        stage[i].sines = trig + n + offset;
        stage[i].prime = nullptr;
    }
    Index before = 1;
    for (int i = 0; i < count; ++i) {
        stage[i].before = before;
        before *= stage[i].radix;
    }
}

Stages::Stages(Index n, const double *trig) : Stages{c06fpz(n), n, trig} {}

Stages Stages::fewest(Kind kind, Index n, const double *trig)
{
    if (n == 1) return {n, trig};
    if (n <= kTabulated) {
        const ShortRadices &radices = (kind == Kind::complex ? kComplexTable : kPackedTable).length[n];
        return {radices.radix, radices.count, radices.in_first_pass, n, trig};
    }
    const AnyRadices radices = fewest_radices(kind, n);
    return {radices.radix, radices.count, radices.in_first_pass, n, trig};
}

} // namespace kor::transforms
