// What quicksort has still to sort.
#pragma once

#include <bit>
#include <cstddef>

namespace kor::sort {

// How many bad partitions quicksort may meet before it is called astray: about log2 n, as in introsort.
inline int patience_for(std::ptrdiff_t n) { return static_cast<int>(std::bit_width(static_cast<std::size_t>(n))); }

// A part is positions low to high - 1.
struct Part {
    std::ptrdiff_t low, high;
    int patience;

    std::ptrdiff_t size() const { return high - low; }
};

// A stack of parts. When of two parts the larger is pushed first, each is at most half of the one below it, and 32 hold
// them all.
class PendingParts {
  public:
    bool empty() const { return depth_ == 0; }
    void push(const Part &part) { parts_[depth_++] = part; }
    Part pop() { return parts_[--depth_]; }

  private:
    Part parts_[32];
    std::size_t depth_ = 0;
};

} // namespace kor::sort
