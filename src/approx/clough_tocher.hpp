// The Clough-Tocher element: three cubics on a triangle, joined smoothly, with the derivative across each edge linear.
//
// Each corner with the centroid makes a third of the triangle. The cubics stand in Bernstein form: what is written 5/3 and 3
// with values and gradients becomes averages of control points here. R. W. Clough and J. L. Tocher (1965); P. Lancaster and
// K. Salkauskas, Curve and Surface Fitting (1986), chapter 10; G. Farin, Comput. Aided Geom. Design 3 (1986) 83-127.
#pragma once

#include <cmath>

#include "approx/plane_predicates.hpp"

namespace kor::approx {

struct Corner {
    Point at;
    double f, fx, fy;
};

struct ValueAndGradient {
    double value, x, y;
};

class CloughTocher {
  public:
    explicit CloughTocher(const Corner corners[3])
    {
        for (int i = 0; i < 3; ++i) corner_[i] = corners[i];
        const Point &a = corner_[0].at;
        // Offsets from the first corner, for the sake of small triangles far from the origin.
        const double bx = corner_[1].at.x - a.x, by = corner_[1].at.y - a.y, cx = corner_[2].at.x - a.x,
                     cy = corner_[2].at.y - a.y;
        // A measure of length that keeps squares within the range of doubles.
        unit_ = 1.0 / (std::fabs(bx) + std::fabs(by) + std::fabs(cx) + std::fabs(cy));
        const double centroid_x = (bx + cx) / 3.0, centroid_y = (by + cy) / 3.0;
        for (int i = 0; i < 3; ++i) {
            const double to_x = centroid_x - (corner_[i].at.x - a.x), to_y = centroid_y - (corner_[i].at.y - a.y);
            arm_x_[i] = to_x;
            arm_y_[i] = to_y;
            towards_centroid_[i] = corner_[i].f + (corner_[i].fx * to_x + corner_[i].fy * to_y) / 3.0;
        }
        for (int i = 0; i < 3; ++i) {
            const int j = (i + 1) % 3;
            const Corner &p = corner_[i], &q = corner_[j];
            const double ex = q.at.x - p.at.x, ey = q.at.y - p.at.y;
            after_[i] = p.f + (p.fx * ex + p.fy * ey) / 3.0;
            before_[i] = q.f - (q.fx * ex + q.fy * ey) / 3.0;
            // Foot of the centroid on the edge; across the edge the derivative in the middle is the mean of those at the ends.
            const double u = unit_ * ex, v = unit_ * ey;
            const double foot = (unit_ * arm_x_[i] * u + unit_ * arm_y_[i] * v) / (u * u + v * v);
            const double across_p = towards_centroid_[i] - ((1.0 - foot) * p.f + foot * after_[i]);
            const double across_q = towards_centroid_[j] - ((1.0 - foot) * before_[i] + foot * q.f);
            middle_[i] = ((1.0 - foot) * after_[i] + foot * before_[i]) + 0.5 * (across_p + across_q);
        }
        for (int i = 0; i < 3; ++i) inner_[i] = (towards_centroid_[i] + middle_[i] + middle_[(i + 2) % 3]) / 3.0;
        centre_ = (inner_[0] + inner_[1] + inner_[2]) / 3.0;
    }

    // At the point with barycentric coordinates b, all at least 0 with sum 1.
    double value(const double b[3]) const
    {
        const int k = smallest(b), i = (k + 1) % 3, j = (k + 2) % 3;
        return cubic(i, j, b[i] - b[k], b[j] - b[k], 3.0 * b[k]).value;
    }

    ValueAndGradient value_and_gradient(const double b[3]) const
    {
        const int k = smallest(b), i = (k + 1) % 3, j = (k + 2) % 3;
        const Third third = cubic(i, j, b[i] - b[k], b[j] - b[k], 3.0 * b[k]);
        // Derivatives along the edge and towards the centroid, resolved into x and y.
        const double ex = unit_ * (corner_[j].at.x - corner_[i].at.x), ey = unit_ * (corner_[j].at.y - corner_[i].at.y);
        const double ax = unit_ * arm_x_[i], ay = unit_ * arm_y_[i], area = ex * ay - ey * ax;
        return {third.value, (third.along * ay - third.inwards * ey) / area * unit_,
                (third.inwards * ex - third.along * ax) / area * unit_};
    }

  private:
    struct Third {
        double value, along, inwards;
    };

    static int smallest(const double b[3])
    {
        if (b[0] <= b[1]) return b[0] <= b[2] ? 0 : 2;
        return b[1] <= b[2] ? 1 : 2;
    }

    // The cubic on corner i, corner j and the centroid, at weights u, v, w: averages of control points.
    Third cubic(int i, int j, double u, double v, double w) const
    {
        const auto mean = [u, v, w](double a, double b, double c) { return u * a + v * b + w * c; };
        const double uu = mean(corner_[i].f, after_[i], towards_centroid_[i]);
        const double uv = mean(after_[i], before_[i], middle_[i]);
        const double vv = mean(before_[i], corner_[j].f, towards_centroid_[j]);
        const double uw = mean(towards_centroid_[i], middle_[i], inner_[i]);
        const double vw = mean(middle_[i], towards_centroid_[j], inner_[j]);
        const double ww = mean(inner_[i], inner_[j], centre_);
        const double of_u = mean(uu, uv, uw), of_v = mean(uv, vv, vw), of_w = mean(uw, vw, ww);
        return {mean(of_u, of_v, of_w), 3.0 * (of_v - of_u), 3.0 * (of_w - of_u)};
    }

    Corner corner_[3];
    double unit_;
    double arm_x_[3], arm_y_[3]; // from corner i to the centroid
    double towards_centroid_[3]; // control points: next to corner i, towards the centroid
    double after_[3];            // on the edge from i to the next corner, next to i
    double before_[3];           // on that edge, next to its other end
    double middle_[3];           // beside the middle of that edge
    double inner_[3];            // between corner i and the centroid, next to the centroid
    double centre_;              // at the centroid
};

} // namespace kor::approx
