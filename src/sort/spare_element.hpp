// Room for one element: on the stack as a rule, from the heap for a wide one.
#pragma once

#include "frame/workspace.hpp"

namespace kor::sort {

class SpareElement {
  public:
    // Of an array of n elements: with fewer than two there is nothing to move.
    SpareElement(Integer n, Integer size) : wide_{n > 1 && size > kOnStack}
    {
        if (wide_) block_.allocate(Count{size});
    }
    SpareElement(const SpareElement &) = delete;

    explicit operator bool() const { return !wide_ || block_; }
    unsigned char *data() const { return wide_ ? block_.data() : stack_; }

  private:
    static constexpr Integer kOnStack = 256;

    bool wide_;
    Workspace<unsigned char> block_;
    alignas(16) mutable unsigned char stack_[kOnStack];
};

} // namespace kor::sort
