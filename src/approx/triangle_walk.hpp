// Finding the triangle of a point, by walking over the triangulation.
#pragma once

#include <cmath>

#include "approx/cell_grid.hpp"
#include "approx/delaunay.hpp"

namespace kor::approx {

// Three nodes, counter-clockwise.
struct Triangle {
    Integer node[3];
};

enum class Place { inside, outside, invalid };

// Walks over a triangulation that its owner may have spoilt: every index is tested, and the steps are counted.
class TriangleWalk {
  public:
    TriangleWalk(const NeighbourLists &mesh, const CellGrid &cells, const double *x, const double *y)
        : mesh_{mesh}, cells_{cells}, x_{x}, y_{y}
    {
        valid_ = first_triangle(0, here_);
    }

    // Ends in the triangle of p, or, for a point outside, in one whose edge from node[0] to node[1] is on the boundary and is
    // the nearest to p.
    Place find(const Point &p)
    {
        constexpr int near = 6; // steps after which it is quicker to jump
        if (!valid_) return Place::invalid;
        Place place = Place::invalid;
        if (walk(p, near, place)) return place;
        jump(p);
        // Straight on: no triangle of a Delaunay triangulation is visited twice.
        if (walk(p, 2 * static_cast<int64_t>(mesh_.m) + near, place)) return place;
        return Place::invalid;
    }

    // The point of the segment from a to b that is nearest to p.
    static Point nearest_on_edge(const Point &p, const Point &a, const Point &b)
    {
        const double t = share_along(p, a, b);
        return t == 1.0 ? b : Point{a.x + t * (b.x - a.x), a.y + t * (b.y - a.y)};
    }

    // Its place on the segment, from 0 to 1.
    static double share_along(const Point &p, const Point &a, const Point &b)
    {
        const double ex = b.x - a.x, ey = b.y - a.y, length = std::hypot(ex, ey);
        const double t = ((p.x - a.x) / length * (ex / length) + (p.y - a.y) / length * (ey / length));
        return std::fmin(std::fmax(t, 0.0), 1.0);
    }

    const Triangle &triangle() const { return here_; }
    Point point(Integer node) const { return {x_[node], y_[node]}; }

  private:
    // The neighbour of a that follows b counter-clockwise: 0 or more; -1 if there is none, on the boundary; -2 if a and b are
    // no neighbours.
    Integer following(Integer a, Integer b) const
    {
        const Integer begin = mesh_.begin(a), end = mesh_.end(a);
        if (!list_right(begin, end)) return -2;
        for (Integer k = begin; k < end; ++k) {
            if (mesh_.lists[k] - 1 != b) continue;
            const Integer next = mesh_.lists[k + 1 < end ? k + 1 : begin] - 1;
            return next < mesh_.m ? next : -2;
        }
        return -2;
    }

    bool list_right(Integer begin, Integer end) const
    {
        return begin >= 0 && begin < end && end <= 6 * int64_t{mesh_.m} + 1;
    }

    bool first_triangle(Integer node, Triangle &triangle) const
    {
        const Integer begin = mesh_.begin(node);
        if (!list_right(begin, mesh_.end(node)) || mesh_.end(node) - begin < 2) return false;
        triangle = {{node, mesh_.lists[begin] - 1, mesh_.lists[begin + 1] - 1}};
        return triangle.node[1] >= 0 && triangle.node[1] < mesh_.m && triangle.node[2] >= 0 &&
               triangle.node[2] < mesh_.m;
    }

    // True if the walk has ended, in `place`; false if there were too many steps.
    bool walk(const Point &p, int64_t steps, Place &place)
    {
        for (; steps > 0; --steps) {
            int k = 0;
            while (k < 3 && orientation(point(here_.node[k]), point(here_.node[(k + 1) % 3]), p) >= 0) ++k;
            if (k == 3) {
                place = Place::inside;
                return true;
            }
            const Integer a = here_.node[k], b = here_.node[(k + 1) % 3], c = here_.node[(k + 2) % 3];
            const Integer beyond = following(b, a);
            if (beyond < -1) return true;
            if (beyond == -1) {
                here_ = {{a, b, c}};
                place = along_boundary(p) ? Place::outside : Place::invalid;
                return true;
            }
            here_ = {{b, a, beyond}};
        }
        return false;
    }

    // To the nearest of some nodes: those of the same cell, or, where it is empty, some of all.
    void jump(const Point &p)
    {
        constexpr Integer most = 8;
        double least = distance_to_node(here_.node[0], p);
        bool found = false;
        const auto consider = [&](Integer node) {
            const double d = distance_to_node(node, p);
            Triangle there;
            if (!(d < least) || !first_triangle(node, there)) return;
            least = d;
            here_ = there;
            found = true;
        };
        cells_.some_near(mesh_.m, p.x, p.y, most, consider);
        if (found) return;
        const auto samples = static_cast<Integer>(std::cbrt(static_cast<double>(mesh_.m))) + 1;
        const Integer stride = mesh_.m / samples + 1;
        for (Integer node = 0; node < mesh_.m; node += stride) consider(node);
    }

    double distance_to_node(Integer node, const Point &p) const { return std::hypot(p.x - x_[node], p.y - y_[node]); }

    double distance_to_edge(const Point &p, Integer a, Integer b) const
    {
        const Point foot = nearest_on_edge(p, point(a), point(b));
        return std::hypot(p.x - foot.x, p.y - foot.y);
    }

    // Follows the boundary both ways while it comes nearer to p.
    bool along_boundary(const Point &p)
    {
        double least = distance_to_edge(p, here_.node[0], here_.node[1]);
        for (int64_t steps = 0; steps < mesh_.m; ++steps) {
            // The next edge starts where this one ends; the previous one comes from the last neighbour of its start.
            const Integer a = here_.node[0], b = here_.node[1];
            const Integer onwards = mesh_.lists[mesh_.begin(b)] - 1;
            const Integer last = mesh_.end(a) - 2;
            const Integer backwards = last >= mesh_.begin(a) ? mesh_.lists[last] - 1 : -1;
            if (onwards < 0 || onwards >= mesh_.m || backwards < 0 || backwards >= mesh_.m) return false;
            const double on = distance_to_edge(p, b, onwards), back = distance_to_edge(p, backwards, a);
            Integer from = a, to = b;
            if (on < least && on <= back) {
                from = b;
                to = onwards;
                least = on;
            } else if (back < least) {
                from = backwards;
                to = a;
                least = back;
            } else {
                return true;
            }
            const Integer third = following(from, to);
            if (third < 0) return false;
            here_ = {{from, to, third}};
        }
        return false;
    }

    NeighbourLists mesh_;
    CellGrid cells_;
    const double *x_, *y_;
    Triangle here_{};
    bool valid_;
};

} // namespace kor::approx
