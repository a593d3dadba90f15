// The Delaunay triangulation of points in the plane.
#pragma once

#include <kor.h>

#include "approx/plane_predicates.hpp"
#include "frame/workspace.hpp"

namespace kor::approx {

// The triangulation as linked lists of neighbours: for each node in turn its neighbours in counter-clockwise order, by their
// numbers from 1; in the list of a node on the boundary they start and end with neighbours on the boundary, and a 0 follows.
// `ends[i]` is the number, from 1, of the last element of the list of node i.
struct NeighbourLists {
    Integer m;
    const Integer *lists;
    const Integer *ends;

    Integer begin(Integer node) const { return node == 0 ? 0 : ends[node - 1]; }
    Integer end(Integer node) const { return ends[node]; }
};

// The order of points by x, then by y: equal ones become neighbours.
void sort_points(Integer m, const double *x, const double *y, Integer *order);

// Two different indices with the same point, in `order`; false if there are none.
bool find_repeated(Integer m, const double *x, const double *y, const Integer *order, Integer &first, Integer &second);

bool all_collinear(Integer m, const double *x, const double *y, const Integer *order);

// Space for the triangulation of m points: 6 m directed edges.
struct DelaunayWorkspace {
    explicit DelaunayWorkspace(Integer m)
        : origin{Count{6} * Count{m}}, next{Count{6} * Count{m}}, previous{Count{6} * Count{m}}
    {
    }
    explicit operator bool() const { return origin && next && previous; }
    Workspace<Integer> origin, next, previous;
};

// Triangulates distinct points that are not all on one line; `order` is theirs. Fills lists (6 m + 1 elements) and ends (m).
void triangulate(Integer m, const double *x, const double *y, const Integer *order, const DelaunayWorkspace &work,
                 Integer *lists, Integer *ends);

} // namespace kor::approx
