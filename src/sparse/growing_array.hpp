// An array that grows at its end, by a constant factor: what is appended costs constant time on average.
#pragma once

#include <algorithm>
#include <cstddef>
#include <type_traits>

#include <kor/x04.h>

namespace kor::sparse {

template <class T>
class GrowingArray {
    static_assert(std::is_trivially_copyable_v<T>);

  public:
    GrowingArray() = default;
    GrowingArray(const GrowingArray &) = delete;
    GrowingArray &operator=(const GrowingArray &) = delete;
    ~GrowingArray()
    {
        void *block = data_;
        if (block != nullptr) x04bdc(&block);
    }

    // Room for `count` elements in all. False if the memory cannot be had; what is there stays.
    bool reserve(std::size_t count)
    {
        if (count <= capacity_) return true;
        constexpr std::size_t kMost = PTRDIFF_MAX / sizeof(T);
        if (count > kMost) return false;
        const std::size_t capacity = std::max(count, std::min(kMost, capacity_ + capacity_ / 2));
        void *block = x04bcc(data_, capacity * sizeof(T));
        if (block == nullptr) return false;
        data_ = static_cast<T *>(block);
        capacity_ = capacity;
        return true;
    }
    bool append(const T &element)
    {
        if (!reserve(size_ + 1)) return false;
        data_[size_++] = element;
        return true;
    }
    void resize(std::size_t size) { size_ = size; } // within what is reserved

    std::size_t size() const { return size_; }
    T *data() const { return data_; }
    T &operator[](std::size_t i) const { return data_[i]; }

  private:
    T *data_ = nullptr;
    std::size_t size_ = 0, capacity_ = 0;
};

} // namespace kor::sparse
