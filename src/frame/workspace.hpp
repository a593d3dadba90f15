// Work space of a routine: over the library's allocator, sized with overflow checks, freed on every path.
#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <type_traits>
#include <utility>

#include <kor/x04.h>

namespace kor {

// A count of elements formed from interface integers: negative factors count as none, an overflow is remembered.
class Count {
  public:
    Count(std::integral auto n)
        : value_{n > 0 ? static_cast<std::size_t>(n) : 0}, overflow_{n > 0 && !std::in_range<std::size_t>(n)}
    {
    }

    friend Count operator*(Count a, Count b)
    {
        Count product{0};
        product.overflow_ = a.overflow_ | b.overflow_ | __builtin_mul_overflow(a.value_, b.value_, &product.value_);
        return product;
    }
    friend Count operator+(Count a, Count b)
    {
        Count sum{0};
        sum.overflow_ = a.overflow_ | b.overflow_ | __builtin_add_overflow(a.value_, b.value_, &sum.value_);
        return sum;
    }

    std::size_t value() const { return value_; }
    bool overflow() const { return overflow_; }

  private:
    std::size_t value_;
    bool overflow_;
};

// `count` elements, not initialised. False when the memory could not be had: the caller reports NE_ALLOC_FAIL.
template <class T>
class Workspace {
    static_assert(std::is_trivially_copyable_v<T> && std::is_trivially_destructible_v<T>);

  public:
    Workspace() = default;
    explicit Workspace(Count count) { allocate(count); }
    Workspace(Workspace &&other) noexcept
        : data_{std::exchange(other.data_, nullptr)}, size_{std::exchange(other.size_, 0)}
    {
    }
    Workspace &operator=(Workspace &&other) noexcept
    {
        std::swap(data_, other.data_);
        std::swap(size_, other.size_);
        return *this;
    }
    ~Workspace() { free(); }

    bool allocate(Count count)
    {
        free();
        const Count bytes = count * Count{sizeof(T)};
        if (bytes.overflow() || bytes.value() > PTRDIFF_MAX) return false;
        // An empty array is an array: it must not look like a failure.
        data_ = static_cast<T *>(x04bbc(bytes.value() > 0 ? bytes.value() : 1));
        size_ = data_ != nullptr ? count.value() : 0;
        return data_ != nullptr;
    }

    // Hands the array to somebody who will free it with x04bdc.
    T *release()
    {
        size_ = 0;
        return std::exchange(data_, nullptr);
    }

    explicit operator bool() const { return data_ != nullptr; }
    T *data() const { return data_; }
    std::size_t size() const { return size_; }
    T *begin() const { return data_; }
    T *end() const { return data_ + size_; }
    T &operator[](std::ptrdiff_t i) const { return data_[i]; }

  private:
    void free()
    {
        void *block = data_;
        if (block != nullptr) x04bdc(&block);
        data_ = nullptr;
        size_ = 0;
    }

    T *data_ = nullptr;
    std::size_t size_ = 0;
};

} // namespace kor
