// Work space that costs no allocation while it is small.
#pragma once

#include "frame/workspace.hpp"

namespace kor::linalg {

// `count` elements, not initialised: within the object up to kSmall, from the library's allocator beyond. False when the
// memory could not be had.
template <class T, std::size_t kSmall>
class Scratch {
  public:
    explicit Scratch(Count count)
    {
        if (count.overflow() || count.value() > kSmall)
            data_ = heap_.allocate(count) ? heap_.data() : nullptr;
        else
            data_ = small_;
    }
    Scratch(const Scratch &) = delete;
    Scratch &operator=(const Scratch &) = delete;

    explicit operator bool() const { return data_ != nullptr; }
    T *data() const { return data_; }
    T &operator[](std::ptrdiff_t i) const { return data_[i]; }

  private:
    T *data_;
    Workspace<T> heap_;
    T small_[kSmall];
};

} // namespace kor::linalg
