// Gradients at the nodes of a triangulation, by Gauss-Seidel iteration on the equations of least curvature.
//
// Source: R. J. Renka and A. K. Cline, Rocky Mountain J. Math. 14 (1984) 223-237. At node i, with u the unit vector and d the
// distance to neighbour j, the equations are sum u u' (g_i + g_j/2)/d = 3/2 sum u (f_j - f_i)/d^2.
#include "approx/node_gradients.hpp"

#include <algorithm>
#include <cmath>

#include "frame/constants.hpp"

namespace kor::approx {

namespace {

// A change below so many units of the last place is noise.
constexpr double kNoise = 4.0 * kPrecision;
// The error shrinks to a quarter or less in each sweep: this is far more than full precision takes.
constexpr int kMostSweeps = 200;

} // namespace

void node_gradients(const NeighbourLists &mesh, const double *x, const double *y, const double *f, double *lengths,
                    double *g)
{
    std::fill_n(g, 2 * static_cast<std::ptrdiff_t>(mesh.m), 0.0);
    for (Integer i = 0; i < mesh.m; ++i) {
        for (Integer k = mesh.begin(i); k < mesh.end(i); ++k) {
            const Integer j = mesh.lists[k] - 1;
            lengths[k] = j >= 0 ? std::hypot(x[j] - x[i], y[j] - y[i]) : 0.0;
        }
    }
    for (int sweep = 0; sweep < kMostSweeps; ++sweep) {
        double largest_change = 0.0, largest = 0.0;
        for (Integer i = 0; i < mesh.m; ++i) {
            double a11 = 0.0, a12 = 0.0, a22 = 0.0, b1 = 0.0, b2 = 0.0;
            double *const own = g + 2 * static_cast<std::ptrdiff_t>(i);
            // The weights 1/d count among each other only: those of the first neighbour's distance need no scaling.
            const double unit = lengths[mesh.begin(i)];
            for (Integer k = mesh.begin(i); k < mesh.end(i); ++k) {
                const Integer j = mesh.lists[k] - 1;
                if (j < 0) continue;
                const double d = lengths[k], ux = (x[j] - x[i]) / d, uy = (y[j] - y[i]) / d, weight = unit / d;
                const double *const other = g + 2 * static_cast<std::ptrdiff_t>(j);
                const double r = weight * (1.5 * ((f[j] - f[i]) / d) -
                                           ((0.5 * other[0] + own[0]) * ux + (0.5 * other[1] + own[1]) * uy));
                a11 += weight * ux * ux;
                a12 += weight * ux * uy;
                a22 += weight * uy * uy;
                b1 += r * ux;
                b2 += r * uy;
            }
            const double determinant = a11 * a22 - a12 * a12;
            // All neighbours in one direction: they tell nothing about the other.
            if (!(std::fabs(determinant) > 16.0 * kPrecision * (a11 * a22))) continue;
            const double dx = (b1 * a22 - b2 * a12) / determinant, dy = (b2 * a11 - b1 * a12) / determinant;
            own[0] += dx;
            own[1] += dy;
            largest_change = std::fmax(largest_change, std::fmax(std::fabs(dx), std::fabs(dy)));
            largest = std::fmax(largest, std::fmax(std::fabs(own[0]), std::fabs(own[1])));
        }
        if (!(largest_change > kNoise * largest)) return;
    }
}

} // namespace kor::approx
