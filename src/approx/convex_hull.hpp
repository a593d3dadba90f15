// The largest distance between points in the plane.
#pragma once

#include <algorithm>

#include "approx/plane_predicates.hpp"

namespace kor::approx {

// The square of the diameter of m >= 2 points, from their order by x and y; `hull` is space for m + 1 indices. The ends of
// the diameter are opposite corners of the convex hull: M. Shamos (1978).
inline double squared_diameter(Integer m, const double *x, const double *y, const Integer *order, Integer *hull)
{
    const auto point = [x, y](Integer i) { return Point{x[i], y[i]}; };
    const auto square = [x, y](Integer i, Integer j) {
        const double dx = x[i] - x[j], dy = y[i] - y[j];
        return dx * dx + dy * dy;
    };
    // Lower hull from left to right, then upper hull back; the last index repeats the first.
    Integer h = 0;
    const auto extend = [&](Integer i, Integer base) {
        while (h - base >= 2 && orientation(point(hull[h - 2]), point(hull[h - 1]), point(i)) <= 0) --h;
        hull[h++] = i;
    };
    for (Integer k = 0; k < m; ++k) extend(order[k], 0);
    const Integer base = h - 1;
    for (Integer k = m - 2; k >= 0; --k) extend(order[k], base);
    const Integer corners = h - 1;
    if (corners <= 2) return square(order[0], order[m - 1]);

    const auto area = [x, y](Integer a, Integer b, Integer c) {
        return (x[b] - x[a]) * (y[c] - y[a]) - (y[b] - y[a]) * (x[c] - x[a]);
    };
    double largest = 0.0;
    Integer opposite = 1;
    for (Integer i = 0; i < corners; ++i) {
        for (Integer steps = 0; steps < corners; ++steps) {
            const Integer next = (opposite + 1) % corners;
            if (!(area(hull[i], hull[i + 1], hull[next]) > area(hull[i], hull[i + 1], hull[opposite]))) break;
            opposite = next;
        }
        for (const Integer j : {hull[opposite], hull[(opposite + 1) % corners]})
            largest = std::max({largest, square(hull[i], j), square(hull[i + 1], j)});
    }
    return largest;
}

} // namespace kor::approx
