// Points sorted into the square cells of a grid, to find those near a place without looking at all.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>

#include <kor.h>

#include "frame/workspace.hpp"

namespace kor::approx {

// Geometry and contents live in two plain arrays, so that a record can keep them.
struct CellGrid {
    const double *frame;  // x and y of the lower left corner, side of a cell
    const Integer *cells; // columns, rows, first point of each cell and one behind the last, then the points

    static constexpr Integer kFrameSize = 3;
    static constexpr Integer kHeader = 2;
    // Elements of `cells` for m points: at most m + 1 cells.
    static Count size(Integer m) { return Count{2} * Count{m} + Count{kHeader + 2}; }

    Integer columns() const { return cells[0]; }
    Integer rows() const { return cells[1]; }
    const Integer *starts() const { return cells + kHeader; }
    const Integer *points() const { return starts() + columns() * rows() + 1; }

    Integer index(double offset, Integer count) const
    {
        const double cell = offset / frame[2];
        return cell > 0.0 ? static_cast<Integer>(std::min(cell, count - 1.0)) : 0;
    }

    // Calls visit(k) for all points of the cells that meet the square of half side `radius` about a place.
    template <class Visit>
    void near(double px, double py, double radius, Visit visit) const
    {
        const Integer left = index(px - radius - frame[0], columns()), right = index(px + radius - frame[0], columns());
        const Integer low = index(py - radius - frame[1], rows()), high = index(py + radius - frame[1], rows());
        for (Integer row = low; row <= high; ++row) {
            const Integer *const start = starts() + static_cast<std::ptrdiff_t>(row) * columns();
            for (Integer k = start[left]; k < start[right + 1]; ++k) visit(points()[k]);
        }
    }

    // Calls visit(k) for at most `most` points of the cell at a place. What an owner may have spoilt is tested.
    template <class Visit>
    void some_near(Integer m, double px, double py, Integer most, Visit visit) const
    {
        if (columns() < 1 || rows() < 1 || int64_t{columns()} * rows() > int64_t{m} + 1) return;
        const Integer cell = index(py - frame[1], rows()) * columns() + index(px - frame[0], columns());
        const Integer first = starts()[cell], last = starts()[cell + 1];
        if (first < 0 || last > m) return;
        for (Integer k = first; k < last && k - first < most; ++k)
            if (points()[k] >= 0 && points()[k] < m) visit(points()[k]);
    }

    // Some three points a cell where they are spread evenly.
    static void build(Integer m, const double *x, const double *y, double *frame, Integer *cells)
    {
        const auto [x_low, x_high] = std::minmax_element(x, x + m);
        const auto [y_low, y_high] = std::minmax_element(y, y + m);
        const double width = *x_high - *x_low, height = *y_high - *y_low;
        frame[0] = *x_low;
        frame[1] = *y_low;
        frame[2] = std::fmax(std::sqrt(3.0 * width / m * height), 3.0 * std::fmax(width, height) / m);
        cells[0] = static_cast<Integer>(width / frame[2]) + 1;
        cells[1] = static_cast<Integer>(height / frame[2]) + 1;

        const CellGrid grid{frame, cells};
        const Integer count = grid.columns() * grid.rows();
        Integer *const starts = cells + kHeader, *const points = starts + count + 1;
        const auto cell_of = [&](Integer i) {
            return grid.index(y[i] - frame[1], grid.rows()) * grid.columns() +
                   grid.index(x[i] - frame[0], grid.columns());
        };
        std::fill_n(starts, count + 1, 0);
        for (Integer i = 0; i < m; ++i) ++starts[cell_of(i)];
        for (Integer c = 1; c <= count; ++c) starts[c] += starts[c - 1];
        for (Integer i = m - 1; i >= 0; --i) points[--starts[cell_of(i)]] = i;
    }
};

} // namespace kor::approx
