// On which side of a line, inside or outside a circle: signs that are right whatever the rounding errors.
#pragma once

namespace kor::approx {

struct Point {
    double x, y;
    friend bool operator==(const Point &, const Point &) = default;
};

// 1 if a, b, c turn left (counter-clockwise), -1 if they turn right, 0 if they lie on one line.
int orientation(const Point &a, const Point &b, const Point &c);

// 1 if d lies inside the circle through a, b, c, which turn left; -1 outside, 0 on it.
int in_circle(const Point &a, const Point &b, const Point &c, const Point &d);

} // namespace kor::approx
