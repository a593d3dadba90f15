// Permutations in place: inversion, and the rearrangement of elements.
#include "sort/permutation.hpp"

#include <algorithm>
#include <cstdint>

namespace kor::sort {

namespace {

// A mark on an index that leaves it legible: its complement, which is negative.
constexpr Integer marked(Integer index) { return ~index; }
constexpr bool is_marked(Integer index) { return index < 0; }
constexpr Integer value_of(Integer index) { return index < 0 ? ~index : index; }

void clear_marks(Integer *indices, Integer n)
{
    for (Integer i = 0; i < n; ++i) indices[i] = value_of(indices[i]);
}

bool all_in_range(const Integer *indices, Integer n, Integer base)
{
    // Read as unsigned, what lies below the range lies above it.
    uint32_t greatest = 0;
    for (Integer i = 0; i < n; ++i)
        greatest = std::max(greatest, static_cast<uint32_t>(indices[i]) - static_cast<uint32_t>(base));
    return n == 0 || greatest < static_cast<uint32_t>(n);
}

// Marks every place that an index leads to. False, and no marks, if two lead to the same place.
bool mark_places(Integer *rank, Integer n, Integer base)
{
    for (Integer i = 0; i < n; ++i) {
        Integer &place = rank[value_of(rank[i]) - base];
        if (is_marked(place)) {
            clear_marks(rank, n);
            return false;
        }
        place = marked(place);
    }
    return true;
}

template <class Width>
Permuted follow_cycles(Width width, Elements elements, Integer n, Integer *indices, unsigned char *spare)
{
    for (Integer start = 0; start < n; ++start) {
        if (!is_marked(indices[start])) continue;
        // A gap travels along the cycle, filled by the element that belongs there, until that is the one set aside.
        copy_element(width, spare, elements[start]);
        Integer gap = start;
        Integer source = indices[gap] = value_of(indices[gap]);
        while (source != start && is_marked(indices[source])) {
            copy_element(width, elements[gap], elements[source]);
            gap = source;
            source = indices[gap] = value_of(indices[gap]);
        }
        copy_element(width, elements[gap], spare);
        if (source != start) return Permuted::repeated;
    }
    return Permuted::done;
}

} // namespace

Permuted invert_permutation(Integer *rank, Integer n, Integer base)
{
    if (!all_in_range(rank, n, base)) return Permuted::out_of_range;
    if (!mark_places(rank, n, base)) return Permuted::repeated;
    for (Integer start = 0; start < n; ++start) {
        if (!is_marked(rank[start])) continue;
        Integer before = start;
        Integer place = value_of(rank[start]) - base;
        while (place != start) {
            const Integer next = value_of(rank[place]) - base;
            rank[place] = before + base;
            before = place;
            place = next;
        }
        rank[start] = before + base;
    }
    return Permuted::done;
}

Permuted rearrange(Elements elements, Integer n, std::size_t size, Integer *indices, unsigned char *spare)
{
    if (!all_in_range(indices, n, 0)) return Permuted::out_of_range;
    for (Integer i = 0; i < n; ++i)
        if (indices[i] != i) indices[i] = marked(indices[i]);
    const Permuted outcome =
        with_width(size, [&](auto width) { return follow_cycles(width, elements, n, indices, spare); });
    if (outcome != Permuted::done) clear_marks(indices, n);
    return outcome;
}

} // namespace kor::sort
