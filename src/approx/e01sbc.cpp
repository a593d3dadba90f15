// e01sbc: values of an interpolant of scattered data.
#include <kor/e01.h>

#include <cmath>
#include <limits>

#include "approx/cell_grid.hpp"
#include "approx/clough_tocher.hpp"
#include "approx/scatter_record.hpp"
#include "approx/triangle_walk.hpp"
#include "frame/report.hpp"

namespace {

using namespace kor::approx;

constexpr const char *kSetup = "kor_2d_scat_interpolant(e01sac)";

bool record_right(const kor::Report &report, const KorScatterRecord &comm)
{
    const bool triangles = comm.method == Kor_RC && comm.mesh != nullptr && comm.grads != nullptr;
    const bool shepard =
        comm.method == Kor_Shep && comm.quad != nullptr && comm.mesh != nullptr && comm.grads != nullptr;
    const bool data =
        comm.has_memory != 0 && comm.m >= 3 && comm.x != nullptr && comm.y != nullptr && comm.f != nullptr;
    if (comm.stamp1 != kStamp1 || comm.stamp2 != kStamp2)
        report.error<NE_NO_SETUP>(kSetup);
    else if (comm.setup_ok != kSetupDone)
        report.error<NE_SETUP_ERROR>(kSetup);
    else if (!data || (!triangles && !shepard))
        report.error<NE_STRUCT_CORRUPT>("comm", kSetup);
    else
        return true;
    return false;
}

CloughTocher patch(const KorScatterRecord &comm, const Triangle &triangle)
{
    Corner corners[3];
    for (int k = 0; k < 3; ++k) {
        const std::ptrdiff_t i = triangle.node[k];
        corners[k] = {{comm.x[i], comm.y[i]}, comm.f[i], comm.grads[2 * i], comm.grads[2 * i + 1]};
    }
    return CloughTocher{corners};
}

// Barycentric coordinates, in the wide type: thin triangles leave few digits.
void barycentric(const TriangleWalk &walk, const Point &p, double b[3])
{
    using Wide = long double;
    Wide area[3], total = 0.0L;
    for (int k = 0; k < 3; ++k) {
        const Point u = walk.point(walk.triangle().node[(k + 1) % 3]),
                    v = walk.point(walk.triangle().node[(k + 2) % 3]);
        area[k] = (Wide{u.x} - p.x) * (Wide{v.y} - p.y) - (Wide{u.y} - p.y) * (Wide{v.x} - p.x);
        if (area[k] < 0.0L) area[k] = 0.0L;
        total += area[k];
    }
    for (int k = 0; k < 3; ++k) b[k] = total > 0.0L ? static_cast<double>(area[k] / total) : 1.0 / 3.0;
}

// The patch's linear extension from the nearest point of the boundary.
double extrapolated(const KorScatterRecord &comm, const TriangleWalk &walk, const Point &p)
{
    const Point a = walk.point(walk.triangle().node[0]), b = walk.point(walk.triangle().node[1]);
    const double t = TriangleWalk::share_along(p, a, b);
    const Point foot = TriangleWalk::nearest_on_edge(p, a, b);
    const double coordinates[3] = {1.0 - t, t, 0.0};
    const ValueAndGradient at = patch(comm, walk.triangle()).value_and_gradient(coordinates);
    return at.value + (at.x * (p.x - foot.x) + at.y * (p.y - foot.y));
}

void evaluate_triangles(const kor::Report &report, const KorScatterRecord &comm, Integer n, const double px[],
                        const double py[], double pf[])
{
    const Integer *const ends = comm.mesh + 6 * static_cast<std::ptrdiff_t>(comm.m) + 1;
    TriangleWalk walk{{comm.m, comm.mesh, ends},
                      {comm.grads + 2 * static_cast<std::ptrdiff_t>(comm.m), ends + comm.m},
                      comm.x,
                      comm.y};
    bool warned = false;
    for (Integer r = 0; r < n; ++r) {
        const Point p{px[r], py[r]};
        Place place = Place::outside;
        if (std::isfinite(p.x) && std::isfinite(p.y)) {
            place = walk.find(p);
            if (place == Place::invalid) return report.error<NE_TRIANG_INVALID>();
        }
        if (place == Place::inside) {
            double b[3];
            barycentric(walk, p, b);
            pf[r] = patch(comm, walk.triangle()).value(b);
            continue;
        }
        const bool finite = std::isfinite(p.x) && std::isfinite(p.y);
        pf[r] = finite ? extrapolated(comm, walk, p) : std::numeric_limits<double>::quiet_NaN();
        report.error<NW_VALUE_EXTRAPOLATED>(p.x, p.y, pf[r]);
        warned = true;
    }
    if (!warned) report.success();
}

void evaluate_shepard(const kor::Report &report, const KorScatterRecord &comm, Integer n, const double px[],
                      const double py[], double pf[])
{
    const CellGrid grid{comm.grads, comm.mesh};
    const double radius = comm.radius;
    for (Integer r = 0; r < n; ++r) {
        double weights = 0.0, sum = 0.0;
        Integer node = -1; // one on which the point lies
        if (std::isfinite(px[r]) && std::isfinite(py[r])) {
            grid.near(px[r], py[r], radius, [&](Integer k) {
                const double dx = px[r] - comm.x[k], dy = py[r] - comm.y[k], square = dx * dx + dy * dy;
                if (!(square < radius * radius)) return;
                const double d = std::sqrt(square), root = (radius - d) / (d * radius), weight = root * root;
                if (!(weight <= std::numeric_limits<double>::max())) node = k;
                const double *const c = comm.quad + 5 * static_cast<std::ptrdiff_t>(k);
                weights += weight;
                sum += weight * (comm.f[k] + (c[3] * dy + c[2] * dx + c[0]) * dx + (c[4] * dy + c[1]) * dy);
            });
        }
        if (node < 0 && !(weights > 0.0)) return report.error<NE_BAD_INTERPOLANT>(px[r], py[r], radius);
        pf[r] = node >= 0 ? comm.f[node] : sum / weights;
    }
    report.success();
}

} // namespace

void e01sbc(const KorScatterRecord *comm, Integer n, const double px[], const double py[], double pf[], KorError *fail)
{
    const kor::Report report{"e01sbc", fail};
    if (!record_right(report, *comm)) return;
    if (n < 1) return report.error<NE_INT_ARG_LT>("n", "1", "n", n);
    if (comm->method == Kor_RC)
        evaluate_triangles(report, *comm, n, px, py, pf);
    else
        evaluate_shepard(report, *comm, n, px, py, pf);
}
