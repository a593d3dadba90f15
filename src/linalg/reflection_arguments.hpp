// Where the scalars of a factorisation's reflections are.
#pragma once

#include "frame/report.hpp"
#include "linalg/arguments.hpp"
#include "linalg/scratch.hpp"

namespace kor::linalg {

constexpr bool is_place(Integer wheret) { return between(wheret, Kor_ElementsIn, Kor_ElementsSeparate); }

// The k scalars: those given, or copies of the diagonal of a.
template <class T>
class Scalars {
  public:
    Scalars(Integer wheret, Integer k, const T *a, Integer tda, const T *separate)
        : copies_{Count{wheret == Kor_ElementsIn ? k : 0}}, data_{separate}
    {
        if (wheret == Kor_ElementsSeparate || !copies_) return;
        for (std::ptrdiff_t j = 0; j < k; ++j) copies_[j] = a[j * tda + j];
        data_ = copies_.data();
    }
    explicit operator bool() const { return bool{copies_}; }
    const T *data() const { return data_; }

  private:
    Scratch<T, 32> copies_;
    const T *data_;
};

} // namespace kor::linalg
