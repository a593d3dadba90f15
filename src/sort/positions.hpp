// Where quicksort looks for a pivot.
#pragma once

#include <cstddef>
#include <cstdint>

namespace kor::sort {

// Numbers that are random enough to look for a pivot by, the same in every call: a linear congruential sequence.
class Positions {
  public:
    void advance() { state_ = state_ * 6364136223846793005u + 1442695040888963407u; }
    // One of 0 to n-1, for each i another.
    std::ptrdiff_t choose(int i, std::ptrdiff_t n) const
    {
        const uint64_t random = (state_ * static_cast<uint64_t>(2 * i + 1)) >> 32;
        return static_cast<std::ptrdiff_t>(random * static_cast<uint64_t>(n) >> 32);
    }

  private:
    uint64_t state_ = 123456789;
};

} // namespace kor::sort
