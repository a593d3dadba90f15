// Arrays of records of any size and stride: each record holds a key, and where there is room the place it came from.
#pragma once

#include <cstdint>
#include <cstring>
#include <set>
#include <stdexcept>
#include <vector>

#include <kor.h>

namespace kor::testing {

class Records {
  public:
    Records(const std::vector<int> &keys, int size, int stride)
        : size_{size}, stride_{stride}, n_{static_cast<int>(keys.size())},
          bytes_(keys.empty() ? 0 : static_cast<std::size_t>((n_ - 1) * std::abs(stride) + size))
    {
        for (std::size_t i = 0; i < bytes_.size(); ++i) bytes_[i] = filler(i);
        for (int i = 0; i < n_; ++i) {
            const Content content{static_cast<int32_t>(keys[static_cast<std::size_t>(i)]), i};
            if (size_ < 8)
                *at(i) = static_cast<unsigned char>(content.key); // small keys only
            else {
                std::memcpy(at(i), &content, sizeof content);
                // The rest of a record travels with it.
                for (int j = 8; j < size_; ++j) at(i)[j] = rest(i, j);
            }
        }
        watched() = this;
    }
    Records(const Records &) = delete;
    ~Records() { watched() = nullptr; }

    unsigned char *first() { return n_ > 0 ? at(0) : nullptr; }
    int size() const { return size_; }
    int stride() const { return stride_; }
    int count() const { return n_; }

    static int key(const void *record, int size)
    {
        if (size < 8) return *static_cast<const unsigned char *>(record);
        int32_t key;
        std::memcpy(&key, record, sizeof key);
        return key;
    }
    std::vector<int> keys()
    {
        std::vector<int> all;
        for (int i = 0; i < n_; ++i) all.push_back(key(at(i), size_));
        return all;
    }
    // Where each came from; for records of 8 bytes or more.
    std::vector<int> origins()
    {
        std::vector<int> all;
        for (int i = 0; i < n_; ++i) {
            Content content;
            std::memcpy(&content, at(i), sizeof content);
            all.push_back(content.origin);
        }
        return all;
    }
    // All records are whole, and nothing between them has changed.
    bool intact()
    {
        std::vector<bool> inside(bytes_.size());
        for (int i = 0; i < n_; ++i) {
            Content content{};
            if (size_ >= 8) std::memcpy(&content, at(i), sizeof content);
            for (int j = 0; j < size_; ++j) {
                inside[static_cast<std::size_t>(at(i) - bytes_.data() + j)] = true;
                if (size_ >= 8 && j >= 8 && at(i)[j] != rest(content.origin, j)) return false;
            }
        }
        for (std::size_t i = 0; i < bytes_.size(); ++i)
            if (!inside[i] && bytes_[i] != filler(i)) return false;
        return true;
    }

    // Compares keys and counts.
    static Integer compare_copies(const void *a, const void *b)
    {
        ++comparisons();
        const int x = key(a, watched()->size_), y = key(b, watched()->size_);
        return x < y ? -7 : (x > y ? 3 : 0);
    }
    // The same, and insists on being shown records of the array, not copies of them.
    static Integer compare(const void *a, const void *b)
    {
        const Records &records = *watched();
        records.insist_on(a);
        records.insist_on(b);
        return compare_copies(a, b);
    }
    static long &comparisons()
    {
        static thread_local long count = 0;
        return count;
    }
    static Records *&watched()
    {
        static thread_local Records *records = nullptr;
        return records;
    }

  private:
    struct Content {
        int32_t key, origin;
    };

    unsigned char *at(int i) { return bytes_.data() + (stride_ > 0 ? i * stride_ : (n_ - 1 - i) * -stride_); }
    void insist_on(const void *record) const
    {
        const auto offset = static_cast<const unsigned char *>(record) - bytes_.data();
        if (offset < 0 || offset >= static_cast<std::ptrdiff_t>(bytes_.size()) || offset % std::abs(stride_) != 0)
            throw std::logic_error{"the comparator saw something else than an element of the array"};
    }
    static unsigned char filler(std::size_t i) { return static_cast<unsigned char>(0xA0 + i % 31); }
    static unsigned char rest(int origin, int j) { return static_cast<unsigned char>(origin * 7 + j); }

    int size_, stride_, n_;
    std::vector<unsigned char> bytes_;
};

} // namespace kor::testing
