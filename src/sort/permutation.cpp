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

// Turns the cycles of a permutation over, all of whose indices are marked: each place receives, without a mark, the one that
// leads to it.
//
// A walk goes from place to place until one is done. Several walks at once, from different starts, hide the time that
// memory takes; where one comes to the start of another, that place is not yet done, and what follows is.
void turn_cycles(Integer *rank, Integer n, Integer base)
{
    constexpr int walks = 8;
    struct {
        Integer from, place;
    } walk[walks];
    Integer next_start = 0;
    const auto start = [&](auto &at) {
        while (next_start < n && !is_marked(rank[next_start])) ++next_start;
        if (next_start == n) return false;
        at = {next_start, value_of(rank[next_start]) - base};
        ++next_start;
        return true;
    };

    int active = 0;
    while (active < walks && start(walk[active])) ++active;
    while (active > 0)
        for (int i = 0; i < active; ++i) {
            auto &[from, place] = walk[i];
            const Integer next = rank[place];
            if (is_marked(next)) {
                rank[place] = from + base;
                from = place;
                place = value_of(next) - base;
            } else if (!start(walk[i])) {
                walk[i--] = walk[--active];
            }
        }
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
    turn_cycles(rank, n, base);
    return Permuted::done;
}

void invert_good_permutation(Integer *rank, Integer n)
{
    constexpr Integer few = 1024;
    if (n <= few) {
        Integer copy[few];
        std::copy_n(rank, n, copy);
        for (Integer i = 0; i < n; ++i) rank[copy[i]] = i;
    } else {
        for (Integer i = 0; i < n; ++i) rank[i] = marked(rank[i]);
        turn_cycles(rank, n, 0);
    }
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
