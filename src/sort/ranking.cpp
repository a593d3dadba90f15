// Ranks of elements, by merging chains of their indices.
#include "sort/ranking.hpp"

#include "sort/chains.hpp"

namespace kor::sort {

namespace {

constexpr Integer kNone = -1;

// Elements chained through an array of indices.
template <bool descending>
struct IndexChain {
    using Node = Integer;

    Elements elements;
    Comparator compare;
    Integer *successor;

    static constexpr Node end() { return kNone; }
    Node next(Node i) const { return successor[i]; }
    void link(Node i, Node j) const { successor[i] = j; }
    bool after(Node i, Node j) const { return sorts_after<descending>(compare(elements[i], elements[j])); }
};

template <bool descending>
void rank_in_order(Elements elements, Integer n, Comparator compare, Integer *ranks)
{
    const IndexChain<descending> chain{elements, compare, ranks};
    ChainSorter<IndexChain<descending>> sorter{chain};
    for (Integer i = 0; i < n; ++i) sorter.add(i);

    Integer rank = 0;
    for (Integer i = sorter.finish(); i != kNone;) {
        const Integer next = ranks[i];
        ranks[i] = rank++;
        i = next;
    }
}

} // namespace

void rank_elements(Elements elements, Integer n, Comparator compare, Integer order, Integer *ranks)
{
    if (order == Kor_Descending)
        rank_in_order<true>(elements, n, compare, ranks);
    else
        rank_in_order<false>(elements, n, compare, ranks);
}

} // namespace kor::sort
