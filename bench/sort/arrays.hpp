// Many arrays of one shape and length: sorted in turn, so that no branch predictor learns one by heart.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstring>
#include <functional>
#include <memory>
#include <random>
#include <string>
#include <vector>

namespace kor::bench {

struct KeyShape {
    const char *name;
    std::function<double(std::size_t i, std::size_t n, std::mt19937_64 &random)> key;
};

inline const KeyShape kRandom = {"random", [](std::size_t, std::size_t, std::mt19937_64 &random) {
                                     return std::ldexp(static_cast<double>(random() >> 11), -53) - 0.5;
                                 }};

inline const KeyShape kStructured[] = {
    {"sorted", [](std::size_t i, std::size_t, std::mt19937_64 &) { return static_cast<double>(i); }},
    {"reversed", [](std::size_t i, std::size_t n, std::mt19937_64 &) { return static_cast<double>(n - i); }},
    {"organ pipe",
     [](std::size_t i, std::size_t n, std::mt19937_64 &) { return static_cast<double>(std::min(i, n - 1 - i)); }},
    {"16 values", [](std::size_t, std::size_t, std::mt19937_64 &random) { return static_cast<double>(random() % 16); }},
    {"sorted, 1% added",
     [](std::size_t i, std::size_t n, std::mt19937_64 &random) {
         return static_cast<double>(i < n - n / 100 - 1 ? i : random() % n);
     }},
};

// Arrays of records that begin with a key, and room to sort them in.
template <class Record>
class Arrays {
  public:
    Arrays(const KeyShape &shape, std::size_t n) : n_{n}, count_{std::max<std::size_t>(1, kFewest / n)}
    {
        std::mt19937_64 random{n};
        original_.resize(n_ * count_);
        for (std::size_t i = 0; i < original_.size(); ++i) {
            const double key = shape.key(i % n_, n_, random);
            std::memcpy(&original_[i], &key, sizeof key);
        }
    }

    std::size_t length() const { return n_; }
    std::size_t total() const { return original_.size(); }
    void restore() { work() = original_; }
    template <class Sort>
    void sort_all(Sort sort)
    {
        for (std::size_t i = 0; i < total(); i += n_) sort(work().data() + i, n_);
    }
    // How many keys are not those of the sorted arrays.
    template <class Sort>
    double faults(Sort sort)
    {
        restore();
        sort_all(sort);
        double faults = 0;
        for (std::size_t i = 0; i < total(); i += n_) {
            std::vector<double> expected(n_);
            for (std::size_t j = 0; j < n_; ++j) expected[j] = key(original_[i + j]);
            std::sort(expected.begin(), expected.end());
            for (std::size_t j = 0; j < n_; ++j) faults += key(work()[i + j]) != expected[j];
        }
        return faults;
    }

  private:
    static constexpr std::size_t kFewest = 65536; // elements in all: more than a predictor of branches remembers

    static double key(const Record &record)
    {
        double key;
        std::memcpy(&key, &record, sizeof key);
        return key;
    }
    static std::vector<Record> &work()
    {
        static std::vector<Record> shared;
        return shared;
    }

    std::size_t n_, count_;
    std::vector<Record> original_;
};

} // namespace kor::bench
