// The Delaunay triangulation of points in the plane, by division into halves and merging, in time O(n log n).
//
// Source: L. Guibas and J. Stolfi, ACM Trans. Graphics 4 (1985) 74-123. Every decision is a predicate that is exact, so that
// collinear runs, points on a common circle and coordinates of any scale need no special treatment.
#include "approx/delaunay.hpp"

#include <algorithm>
#include <cstdlib>

namespace kor::approx {

namespace {

constexpr Integer kNobody = -1; // origin of a removed edge

// Edges in both directions: that with number e runs from origin[e], its reverse is e ^ 1. The edges that leave a point form
// a ring, `next` counter-clockwise.
class Subdivision {
  public:
    Subdivision(const double *x, const double *y, const DelaunayWorkspace &work)
        : x_{x}, y_{y}, origin_{work.origin.data()}, next_{work.next.data()}, previous_{work.previous.data()}
    {
    }

    struct Ends {
        Integer left;  // counter-clockwise edge of the hull out of its leftmost point
        Integer right; // clockwise edge of the hull out of its rightmost point
    };

    Ends triangulate(const Integer *points, Integer count)
    {
        if (count == 2) {
            const Integer e = make(points[0], points[1]);
            return {e, reverse(e)};
        }
        if (count == 3) return triangle(points);
        const Integer half = count / 2;
        const Ends left = triangulate(points, half);
        const Ends right = triangulate(points + half, count - half);
        return merge(left, right);
    }

    Integer size() const { return size_; }
    Integer origin(Integer e) const { return origin_[e]; }
    Integer next(Integer e) const { return next_[e]; }
    static Integer reverse(Integer e) { return e ^ 1; }
    Integer target(Integer e) const { return origin_[reverse(e)]; }

  private:
    Point point(Integer i) const { return {x_[i], y_[i]}; }
    Integer on_left_face(Integer e) const
    {
        return previous_[reverse(e)];
    } // the edge after e round the face on its left

    bool turns_left(Integer a, Integer b, Integer c) const { return orientation(point(a), point(b), point(c)) > 0; }
    bool left_of(Integer p, Integer e) const { return turns_left(p, origin(e), target(e)); }
    bool right_of(Integer p, Integer e) const { return turns_left(p, target(e), origin(e)); }
    bool inside(Integer a, Integer b, Integer c, Integer d) const
    {
        return in_circle(point(a), point(b), point(c), point(d)) > 0;
    }

    Integer make(Integer from, Integer to)
    {
        Integer e = free_;
        if (e >= 0) {
            free_ = next_[e];
        } else {
            e = size_;
            size_ += 2;
        }
        origin_[e] = from;
        origin_[reverse(e)] = to;
        for (const Integer d : {e, reverse(e)}) next_[d] = previous_[d] = d;
        return e;
    }

    void insert_after(Integer in_ring, Integer e)
    {
        const Integer after = next_[in_ring];
        next_[in_ring] = e;
        previous_[e] = in_ring;
        next_[e] = after;
        previous_[after] = e;
    }

    // A new edge from the end of a to the start of b, along the face on the left of both.
    Integer connect(Integer a, Integer b)
    {
        const Integer e = make(target(a), origin(b));
        insert_after(on_left_face(a), e);
        insert_after(b, reverse(e));
        return e;
    }

    void remove(Integer e)
    {
        for (const Integer d : {e, reverse(e)}) {
            next_[previous_[d]] = next_[d];
            previous_[next_[d]] = previous_[d];
        }
        origin_[e] = origin_[reverse(e)] = kNobody;
        e &= ~Integer{1};
        next_[e] = free_;
        free_ = e;
    }

    Ends triangle(const Integer *p)
    {
        const Integer a = make(p[0], p[1]), b = make(p[1], p[2]);
        insert_after(reverse(a), b);
        const int turn = orientation(point(p[0]), point(p[1]), point(p[2]));
        if (turn == 0) return {a, reverse(b)};
        const Integer c = connect(b, a);
        if (turn > 0) return {a, reverse(b)};
        return {reverse(c), c};
    }

    Ends merge(Ends left, Ends right)
    {
        // The lower common tangent.
        Integer l = left.right, r = right.left;
        for (;;) {
            if (left_of(origin(r), l))
                l = on_left_face(l);
            else if (right_of(origin(l), r))
                r = next_[reverse(r)];
            else
                break;
        }
        Integer base = connect(reverse(r), l);
        if (origin(l) == origin(left.left)) left.left = reverse(base);
        if (origin(r) == origin(right.right)) right.right = base;

        // Upwards, edge by edge from one half to the other; old edges that are in the way go.
        const auto above = [this, &base](Integer e) { return right_of(target(e), base); };
        for (;;) {
            Integer l_candidate = next_[reverse(base)];
            if (above(l_candidate)) {
                while (inside(target(base), origin(base), target(l_candidate), target(next_[l_candidate]))) {
                    const Integer following = next_[l_candidate];
                    remove(l_candidate);
                    l_candidate = following;
                }
            }
            Integer r_candidate = previous_[base];
            if (above(r_candidate)) {
                while (inside(target(base), origin(base), target(r_candidate), target(previous_[r_candidate]))) {
                    const Integer following = previous_[r_candidate];
                    remove(r_candidate);
                    r_candidate = following;
                }
            }
            const bool l_above = above(l_candidate), r_above = above(r_candidate);
            if (!l_above && !r_above) break;
            if (!l_above ||
                (r_above && inside(target(l_candidate), origin(l_candidate), origin(r_candidate), target(r_candidate))))
                base = connect(r_candidate, reverse(base));
            else
                base = connect(reverse(base), reverse(l_candidate));
        }
        return {left.left, right.right};
    }

    const double *x_, *y_;
    Integer *origin_, *next_, *previous_;
    Integer size_ = 0;
    Integer free_ = -1; // removed edges, linked by `next`
};

} // namespace

void sort_points(Integer m, const double *x, const double *y, Integer *order)
{
    for (Integer i = 0; i < m; ++i) order[i] = i;
    std::sort(order, order + m, [x, y](Integer i, Integer j) {
        if (x[i] != x[j]) return x[i] < x[j];
        if (y[i] != y[j]) return y[i] < y[j];
        return i < j;
    });
}

bool find_repeated(Integer m, const double *x, const double *y, const Integer *order, Integer &first, Integer &second)
{
    for (Integer i = 1; i < m; ++i) {
        first = order[i - 1];
        second = order[i];
        if (x[first] == x[second] && y[first] == y[second]) return true;
    }
    return false;
}

bool all_collinear(Integer m, const double *x, const double *y, const Integer *order)
{
    const Integer a = order[0], b = order[m - 1];
    for (Integer i = 1; i < m - 1; ++i) {
        const Integer c = order[i];
        if (orientation({x[a], y[a]}, {x[b], y[b]}, {x[c], y[c]}) != 0) return false;
    }
    return true;
}

void triangulate(Integer m, const double *x, const double *y, const Integer *order, const DelaunayWorkspace &work,
                 Integer *lists, Integer *ends)
{
    Subdivision subdivision{x, y, work};
    const Integer hull = subdivision.triangulate(order, m).left;

    // One edge out of each node: e + 1, or -(e + 1) on the boundary, where it is the first one, which follows the hull. The
    // array is read at each node just before the end of its list takes the place.
    Integer *const leaving = ends;
    for (Integer e = 0; e < subdivision.size(); ++e)
        if (subdivision.origin(e) >= 0) leaving[subdivision.origin(e)] = e + 1;
    Integer e = hull;
    do {
        leaving[subdivision.origin(e)] = -(e + 1);
        e = subdivision.next(Subdivision::reverse(e));
    } while (e != hull);

    Integer written = 0;
    for (Integer node = 0; node < m; ++node) {
        const bool boundary = leaving[node] < 0;
        const Integer first = std::abs(leaving[node]) - 1;
        Integer edge = first;
        do {
            lists[written++] = subdivision.target(edge) + 1;
            edge = subdivision.next(edge);
        } while (edge != first);
        if (boundary) lists[written++] = 0;
        ends[node] = written;
    }
}

} // namespace kor::approx
