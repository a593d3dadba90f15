// The linear systems of a boundary value problem, solved in time proportional to the mesh.
//
//     rows at the left end    L u_0            = r        left
//     mixed rows              M u_0 + N u_m    = r        mixed
//     interval i = 0..m-1     A_i u_i + B_i u_(i+1) = r_i n each
//     rows at the right end   R u_m            = r        n - left - mixed
//
// Orthogonal elimination from left to right: the rows that are still open meet those of the next interval, and reflections
// clear the columns of u_i. Stable for every well-conditioned problem, growing and decaying modes alike. Mixed rows drag columns
// of u_m along. S. J. Wright, SIAM J. Sci. Stat. Comput. 13 (1992) 742-764.
#pragma once

#include <cstddef>

#include <kor.h>

#include "frame/workspace.hpp"

namespace kor::ode {

// Are the n conditions independent to working accuracy? `work` holds 2 n (n + 1) elements.
bool rows_are_independent(Integer n, const double *at_left, const double *at_right, double *work);

class BlockSystem {
  public:
    // For up to `most` intervals. False when there is no memory.
    bool allocate(Integer n, Integer left, Integer mixed, Integer most);

    // The conditions, as two n by n row-major matrices for both ends, in the order of the rows above.
    void begin(Integer intervals, const double *at_left, const double *at_right);
    // A and B of the next interval, row-major.
    void add(const double *a, const double *b);
    // False when the system is singular, or not finite.
    bool finish();

    // Takes `conditions` (n) and `rows` (n for each interval), gives u (n for each point).
    void solve(const double *conditions, const double *rows, double *u) const;

  private:
    double *block(Integer i) const { return blocks_.data() + block_size_ * i; }
    std::ptrdiff_t columns() const { return std::ptrdiff_t{n_} * (mixed_ > 0 ? 3 : 2); }

    Integer n_ = 0, left_ = 0, mixed_ = 0, open_ = 0; // open_ rows go on from interval to interval
    Integer height_ = 0;                              // open_ + n_
    Integer intervals_ = 0, next_ = 0;
    std::ptrdiff_t block_size_ = 0;
    // Of each interval, in columns of `height_`: reflections and triangle, what couples u_(i+1) and u_m; then the factors' scales.
    Workspace<double> blocks_;
    Workspace<double> last_; // the same for u_m, n by n, and its scales
    mutable Workspace<double> work_;
    const double *at_right_ = nullptr;
};

} // namespace kor::ode
