// The local quadratics of the modified Shepard method: weighted least squares at each node.
//
// Source: R. Franke and G. Nielson, Int. J. Numer. Meth. Engng 15 (1980) 1691-1704. Offsets are measured in radii, so that
// the solution of least norm, where the points do not determine a quadratic, does not depend on the unit of length.
#include "approx/nodal_quadratics.hpp"

#include <algorithm>
#include <cmath>

#include "approx/banded_triangle.hpp"
#include "frame/constants.hpp"

namespace kor::approx {

namespace {

constexpr Integer kLinear = 2, kQuadratic = 5; // coefficients

// The solution of least norm of R c = z, R upper triangular of order n stored as in BandedTriangle, where singular values
// below `tolerance` times the largest count as 0. One-sided Jacobi rotations.
void solve_least_norm(const BandedTriangle &triangle, double tolerance, double *c)
{
    const Integer n = triangle.n;
    double a[kQuadratic][kQuadratic] = {}, v[kQuadratic][kQuadratic] = {}; // a[j] and v[j] are columns
    for (Integer i = 0; i < n; ++i) {
        for (Integer j = i; j < n; ++j) a[j][i] = triangle.row(i)[j - i];
        v[i][i] = 1.0;
    }
    const auto dot = [n](const double *p, const double *q) {
        double sum = 0.0;
        for (Integer i = 0; i < n; ++i) sum += p[i] * q[i];
        return sum;
    };
    constexpr int most_sweeps = 30; // they converge quadratically after a few
    bool rotated = true;
    for (int sweep = 0; rotated && sweep < most_sweeps; ++sweep) {
        rotated = false;
        for (Integer p = 0; p < n; ++p) {
            for (Integer q = p + 1; q < n; ++q) {
                const double pp = dot(a[p], a[p]), qq = dot(a[q], a[q]), pq = dot(a[p], a[q]);
                if (!(std::fabs(pq) > kPrecision * std::sqrt(pp * qq))) continue;
                rotated = true;
                const double cotangent = (qq - pp) / (2.0 * pq);
                const double tangent =
                    std::copysign(1.0, cotangent) / (std::fabs(cotangent) + std::hypot(1.0, cotangent));
                const double cosine = 1.0 / std::hypot(1.0, tangent), sine = cosine * tangent;
                for (auto *const columns : {a, v}) {
                    for (Integer i = 0; i < n; ++i) {
                        const double left = columns[p][i], right = columns[q][i];
                        columns[p][i] = cosine * left - sine * right;
                        columns[q][i] = sine * left + cosine * right;
                    }
                }
            }
        }
    }
    double largest = 0.0;
    for (Integer j = 0; j < n; ++j) largest = std::fmax(largest, std::sqrt(dot(a[j], a[j])));
    std::fill_n(c, n, 0.0);
    for (Integer j = 0; j < n; ++j) {
        const double square = dot(a[j], a[j]);
        if (!(std::sqrt(square) > tolerance * largest)) continue;
        const double share = dot(a[j], triangle.z) / square;
        for (Integer i = 0; i < n; ++i) c[i] += share * v[j][i];
    }
}

// A bound on the condition number: the product of the Frobenius norms of R and of its inverse.
double condition_bound(const BandedTriangle &triangle)
{
    const Integer n = triangle.n;
    double norm = 0.0, inverse_norm = 0.0;
    for (Integer j = 0; j < n; ++j) {
        double column[kQuadratic] = {};
        for (Integer i = j; i >= 0; --i) {
            double sum = i == j ? 1.0 : 0.0;
            for (Integer k = i + 1; k <= j; ++k) sum -= triangle.row(i)[k - i] * column[k];
            column[i] = sum / triangle.row(i)[0];
            inverse_norm += column[i] * column[i];
            norm += triangle.row(i)[j - i] * triangle.row(i)[j - i];
        }
    }
    return std::sqrt(norm * inverse_norm);
}

} // namespace

Integer nodal_quadratics(const CellGrid &grid, Integer m, const double *x, const double *y, const double *f,
                         double radius, double *c)
{
    const double tolerance = std::sqrt(kPrecision);
    Integer least = m;
    for (Integer i = 0; i < m; ++i) {
        const auto for_each_near = [&](auto use) {
            grid.near(x[i], y[i], radius, [&](Integer j) {
                const double dx = x[j] - x[i], dy = y[j] - y[i], d = std::sqrt(dx * dx + dy * dy);
                if (j != i && d < radius) use(j, dx, dy, d);
            });
        };
        Integer count = 0;
        for_each_near([&](Integer, double, double, double) { ++count; });
        least = std::min(least, count);
        double *const own = c + kQuadratic * static_cast<std::ptrdiff_t>(i);
        std::fill_n(own, kQuadratic, 0.0);
        if (count == 1) {
            for_each_near([&](Integer j, double dx, double dy, double d) {
                own[0] = (f[j] - f[i]) / d * (dx / d);
                own[1] = (f[j] - f[i]) / d * (dy / d);
            });
        }
        if (count <= 1) continue;

        double r[kQuadratic * kQuadratic], z[kQuadratic];
        const Integer n = count >= kQuadratic ? kQuadratic : kLinear;
        const BandedTriangle triangle{r, z, n, n};
        triangle.clear();
        for_each_near([&](Integer j, double dx, double dy, double d) {
            const double w = (radius - d) / d, u = dx / radius, v = dy / radius;
            double row[kQuadratic] = {w * u, w * v, w * u * u, w * u * v, w * v * v};
            triangle.add_row(0, row, n, w * (f[j] - f[i]));
        });
        if (condition_bound(triangle) < 1.0 / tolerance)
            triangle.solve(own);
        else
            solve_least_norm(triangle, tolerance, own);
        for (Integer k = 0; k < n; ++k) own[k] /= k < kLinear ? radius : radius * radius;
    }
    return least;
}

} // namespace kor::approx
