// m01cuc: sorts a linked list, by a comparator; equal elements keep their order.
#include <kor/m01.h>

#include <cstring>

#include "sort/arguments.hpp"
#include "sort/chains.hpp"
#include "sort/elements.hpp"

namespace {

using namespace kor::sort;

// The list as its owner keeps it: pointers `offset` bytes into each element, perhaps not aligned.
struct Links {
    std::ptrdiff_t offset;

    void *next(void *element) const
    {
        void *successor;
        std::memcpy(&successor, static_cast<unsigned char *>(element) + offset, sizeof successor);
        return successor;
    }
    void link(void *element, void *successor) const
    {
        std::memcpy(static_cast<unsigned char *>(element) + offset, &successor, sizeof successor);
    }
};

template <bool descending>
struct ListChain : Links {
    using Node = void *;

    Comparator compare;

    static constexpr Node end() { return nullptr; }
    bool after(Node a, Node b) const { return sorts_after<descending>(compare(a, b)); }
};

// Whether the list ends, within the number of elements that can be sorted. A mark is left behind at elements 1, 2, 4, ...:
// in a loop the walk soon meets it again.
bool list_ends(Links links, void *head)
{
    void *mark = nullptr;
    Integer count = 0, next_mark = 1;
    for (void *element = head; element != nullptr; element = links.next(element)) {
        if (element == mark || count == kMaxCount) return false;
        if (++count == next_mark) {
            mark = element;
            next_mark *= 2;
        }
    }
    return true;
}

template <bool descending>
void *sorted_list(Links links, void *head, Comparator compare)
{
    const ListChain<descending> chain{links, compare};
    ChainSorter<ListChain<descending>> sorter{chain};
    for (void *element = head; element != nullptr;) {
        void *next = links.next(element);
        sorter.add(element);
        element = next;
    }
    return sorter.finish();
}

} // namespace

void m01cuc(void **head, Integer link, Integer (*compare)(const void *a, const void *b), Integer order, KorError *fail)
{
    const kor::Report report{"m01cuc", fail};
    if (*head == nullptr) return report.success();
    if (!order_is_right(report, order)) return;

    const Links links{link};
    if (!list_ends(links, *head)) return report.error<NE_CH_LOOP>();
    *head =
        order == Kor_Descending ? sorted_list<true>(links, *head, compare) : sorted_list<false>(links, *head, compare);
    report.success();
}
