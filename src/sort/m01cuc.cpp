// m01cuc: sorts a linked list, by a comparator; equal elements keep their order.
#include <kor/m01.h>

#include <cstring>
#include <utility>

#include "sort/arguments.hpp"
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

// Sorts a list by relinking it: merges from the bottom up, with no memory but a stack of lists.
template <bool descending>
class ListSorter {
  public:
    ListSorter(Links links, Comparator compare) : links_{links}, compare_{compare} {}

    void *sort(void *head)
    {
        // Pairs are sorted and go on the stack, where lists of equal length merge as a binary counter carries.
        for (Integer pairs = 1; head != nullptr; ++pairs) {
            void *first = head, *second = links_.next(first);
            if (second == nullptr) {
                push(first);
                break;
            }
            head = links_.next(second);
            if (after(first, second)) std::swap(first, second);
            links_.link(first, second);
            links_.link(second, nullptr);
            push(first);
            for (Integer carry = pairs; carry % 2 == 0; carry /= 2) merge_top();
        }
        while (depth_ > 1) merge_top();
        return stack_[0];
    }

  private:
    static constexpr int kMaxLists = 32; // their lengths are different powers of two

    bool after(void *a, void *b) const { return sorts_after<descending>(compare_(a, b)); }
    void push(void *list) { stack_[depth_++] = list; }
    void merge_top()
    {
        --depth_;
        stack_[depth_ - 1] = merged(stack_[depth_ - 1], stack_[depth_]);
    }

    // Ties are taken from the first list, which came earlier.
    void *merged(void *a, void *b) const
    {
        bool take_b = after(a, b);
        void *const head = take_b ? b : a;
        for (;; take_b = !take_b) {
            // Along one list for as long as it supplies the next element; then over to the other.
            void *last;
            if (take_b) {
                do {
                    last = b;
                    b = links_.next(b);
                } while (b != nullptr && after(a, b));
                links_.link(last, a);
                if (b == nullptr) return head;
            } else {
                do {
                    last = a;
                    a = links_.next(a);
                } while (a != nullptr && !after(a, b));
                links_.link(last, b);
                if (a == nullptr) return head;
            }
        }
    }

    Links links_;
    Comparator compare_;
    void *stack_[kMaxLists];
    int depth_ = 0;
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

} // namespace

void m01cuc(void **head, Integer link, Integer (*compare)(const void *a, const void *b), Integer order, KorError *fail)
{
    const kor::Report report{"m01cuc", fail};
    if (*head == nullptr) return report.success();
    if (!order_is_right(report, order)) return;

    const Links links{link};
    if (!list_ends(links, *head)) return report.error<NE_CH_LOOP>();
    *head = order == Kor_Descending ? ListSorter<true>{links, compare}.sort(*head)
                                    : ListSorter<false>{links, compare}.sort(*head);
    report.success();
}
