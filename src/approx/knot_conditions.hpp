// The conditions of Schoenberg and Whitney: when knots and points determine a spline.
#pragma once

#include "approx/cubic_bspline.hpp"

namespace kor::approx {

// Whether B-spline i is greater than 0 at x. The first and the last one are so at the ends of the range.
inline bool basis_positive(const Knots &t, Integer i, double x)
{
    if (t[i] < x && x < t[i + kOrder]) return true;
    if (x == t[i] && t[i + kDegree] == x && x < t[i + kOrder]) return true;
    return x == t[i + kOrder] && x == t.last() && t[i + 1] == x && t[i] < x;
}

// Gives each B-spline a distinct point of its own where it is positive, greedily, for points in non-decreasing order with
// positive weights. Returns the index of the first B-spline that finds none, -1 if all do.
inline Integer first_without_point(const Knots &t, Integer m, const double *x)
{
    Integer r = 0;
    for (Integer i = 0; i < t.basis_size(); ++i) {
        while (r < m && !basis_positive(t, i, x[r])) ++r;
        if (r == m) return i;
        const double taken = x[r];
        while (r < m && x[r] == taken) ++r;
    }
    return -1;
}

} // namespace kor::approx
