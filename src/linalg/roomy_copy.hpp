// Where LAPACK works on a complex matrix.
//
// The complex gemv of OpenBLAS (seen in 0.3.21) reads some elements beyond the end of a vector that is not contiguous. To
// LAPACK the rows of its matrix are such vectors, and what lies beyond the last element is outside the array of the caller.
// Therefore a complex matrix is worked on in a copy with rows to spare; a real one stays where it is. LAPACK's work space, where
// it keeps matrices of its own, needs as much room behind it.
#pragma once

#include <type_traits>

#include "frame/workspace.hpp"
#include "linalg/copies.hpp"
#include "linalg/scalar.hpp"

namespace kor::linalg {

template <Scalar T>
class RoomyCopy {
  public:
    // m rows of n elements; the memory is had at once, the elements come by take().
    RoomyCopy(Integer m, Integer n, T *a, Integer tda)
        : m_{m}, n_{n}, tda_{tda}, a_{a}, copy_{kCopies ? (Count{m} + kSpare) * n : Count{1}}
    {
    }

    // Elements behind a work space in which the columns of matrices have so many elements.
    static Count behind_work(Integer column) { return Count{kCopies ? kSpare : 0} * column; }

    explicit operator bool() const { return static_cast<bool>(copy_); }
    T *data() const { return kCopies ? copy_.data() : a_; }
    Integer td() const { return kCopies ? n_ : tda_; }
    void take() const { copy_rows(m_, n_, a_, tda_, data(), td()); }
    void give_back() const { copy_rows(m_, n_, data(), td(), a_, tda_); }

  private:
    static constexpr Integer kSpare = 8;
    static constexpr bool kCopies = std::is_same_v<T, Complex>;
    Integer m_, n_, tda_;
    T *a_;
    Workspace<T> copy_;
};

} // namespace kor::linalg
