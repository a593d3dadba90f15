// The 1-norm of a matrix B that is known by products B x and B'x alone, estimated from below; nearly always exact.
//
//     estimate.begin(n, u);                  // u is the first vector to be multiplied, by B
//     while (estimate.advance(v, u)) ...     // v the product; then u the next vector: by B', by B, by B', ..., last by B
//
// W. W. Hager, SIAM J. Sci. Stat. Comput. 5 (1984) 311-316; N. J. Higham, ACM Trans. Math. Softw. 14 (1988) 381-396.
#pragma once

#include <kor.h>

namespace kor::sparse {

class NormEstimate {
  public:
    void begin(Integer n, double u[]);
    bool advance(const double v[], double u[]);
    bool wants_transpose() const { return wanted_ == Wanted::gradient; }
    double value() const { return value_; }

  private:
    enum class Wanted { product, gradient, alternating };

    bool ask_alternating(double u[]);

    Wanted wanted_;
    Integer n_;
    Integer steps_;
    Integer unit_; // u is this unit vector; -1: u is 1/n throughout
    double value_;
};

} // namespace kor::sparse
