// Cubic splines through given points: the knots, and the linear equations for the coefficients.
#include "approx/collocation.hpp"

#include <algorithm>

#include "approx/cubic_bspline.hpp"
#include "frame/dispatch.hpp"

namespace kor::approx {

void interpolation_knots(Integer m, const double *x, double *t)
{
    std::fill_n(t, kOrder, x[0]);
    std::copy_n(x + 2, m - kOrder, t + kOrder);
    std::fill_n(t + m, kOrder, x[m - 1]);
}

namespace {

// Elimination in the matrix B_j(x_i), a row at a time: forward(i, l(i, i-1), l(i, i), l(i, i-2)) for each inner row as soon as
// it is known. U, whose diagonal is 1, has u(i, i+1) = above[i], and u(1, 3), which is returned.
template <class Forward>
[[gnu::always_inline]] inline double eliminate(std::ptrdiff_t m, const double *x, const double *t, double *above,
                                               Forward forward)
{
    const auto next = [&](std::ptrdiff_t i, double left, double middle, double right, double far) {
        const double pivot = middle - left * above[i - 1];
        above[i] = right / pivot;
        forward(i, left, pivot, far);
        return pivot;
    };
    // The first equation gives the first coefficient. The second point is no knot: four B-splines live there.
    double b[kOrder];
    above[0] = 0.0;
    basis_values(t, kDegree, x[1], b);
    const double far_above = b[3] / next(1, b[0], b[1], b[2], 0.0);

    // The points up to the last but one are knots, with three B-splines.
    for (std::ptrdiff_t i = 2; i < m - 2; ++i) {
        const double *const knot = t + i + 2;
        const Pair distances = {knot[1] - knot[0], knot[0] - knot[-1]};
        const Pair shares = distances / (knot[1] - knot[-1]) / Pair{knot[1] - knot[-2], knot[2] - knot[-1]};
        const Pair ends = shares * distances;
        const double middle = shares[0] * (knot[0] - knot[-2]) + shares[1] * (knot[2] - knot[0]);
        next(i, ends[0], middle, i == 2 ? ends[1] - ends[0] * far_above : ends[1], 0.0);
    }

    const std::ptrdiff_t i = m - 2; // no knot either
    basis_values(t, m - 1, x[i], b);
    b[1] -= b[0] * above[i - 2];
    if (i - 2 == 1) b[2] -= b[0] * far_above;
    if (i - 1 == 1) b[3] -= b[1] * far_above;
    next(i, b[1], b[2], b[3], b[0]);
    return far_above;
}

} // namespace

void collocate(Integer m, const double *x, const double *t, double *above, double *y)
{
    double solved = y[0];
    const double far_above =
        eliminate(m, x, t, above, [y, &solved](std::ptrdiff_t i, double below, double pivot, double far) {
            if (far != 0.0) y[i] -= far * y[i - 2];
            y[i] = solved = (y[i] - below * solved) / pivot;
        });
    solved = y[m - 1];
    for (std::ptrdiff_t i = m - 2; i > 0; --i) {
        if (i == 1) y[i] -= far_above * y[3];
        y[i] = solved = y[i] - above[i] * solved;
    }
}

KOR_CLONES
void collocate(Integer m, const double *x, const double *t, double *above, double *y, std::ptrdiff_t count)
{
    const auto subtract = [y, count](std::ptrdiff_t i, double factor, std::ptrdiff_t j) {
        for (std::ptrdiff_t k = 0; k < count; ++k) y[i * count + k] -= factor * y[j * count + k];
    };
    const double far_above = eliminate(m, x, t, above, [=](std::ptrdiff_t i, double below, double pivot, double far) {
        if (far != 0.0) subtract(i, far, i - 2);
        double *const row = y + i * count;
        for (std::ptrdiff_t k = 0; k < count; ++k) row[k] = (row[k] - below * row[k - count]) / pivot;
    });
    for (std::ptrdiff_t i = m - 2; i > 0; --i) {
        if (i == 1) subtract(i, far_above, 3);
        subtract(i, above[i], i + 1);
    }
}

} // namespace kor::approx
