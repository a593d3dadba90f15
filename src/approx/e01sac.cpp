// e01sac: an interpolant of scattered data in two variables.
#include <kor/e01.h>

#include <algorithm>
#include <cmath>

#include "approx/arguments.hpp"
#include "approx/cell_grid.hpp"
#include "approx/convex_hull.hpp"
#include "approx/delaunay.hpp"
#include "approx/nodal_quadratics.hpp"
#include "approx/node_gradients.hpp"
#include "approx/scatter_record.hpp"
#include "frame/workspace.hpp"

namespace {

using namespace kor::approx;

// The arrays of a record while they are made: handed over in the end, or freed.
struct Arrays {
    kor::Workspace<double> x, y, f, quad, grads;
    kor::Workspace<Integer> mesh;

    bool copy_data(Integer m, const double px[], const double py[], const double pf[])
    {
        const kor::Count size{m};
        if (!x.allocate(size) || !y.allocate(size) || !f.allocate(size)) return false;
        std::copy_n(px, m, x.data());
        std::copy_n(py, m, y.data());
        std::copy_n(pf, m, f.data());
        return true;
    }

    void hand_over(KorScatterRecord *comm)
    {
        comm->x = x.release();
        comm->y = y.release();
        comm->f = f.release();
        comm->quad = quad.release();
        comm->mesh = mesh.release();
        comm->grads = grads.release();
        comm->has_memory = 1;
        comm->setup_ok = kSetupDone;
    }
};

bool set_up_triangles(const kor::Report &report, Integer m, Arrays &data, const Integer *order)
{
    const kor::Count lists = kor::Count{6} * kor::Count{m} + kor::Count{1};
    const DelaunayWorkspace work{m};
    const kor::Workspace<double> lengths{lists};
    if (!work || !lengths || !data.mesh.allocate(lists + kor::Count{m} + CellGrid::size(m)) ||
        !data.grads.allocate(kor::Count{2} * kor::Count{m} + kor::Count{CellGrid::kFrameSize})) {
        report.error<NE_ALLOC_FAIL>();
        return false;
    }
    if (all_collinear(m, data.x.data(), data.y.data(), order)) {
        report.error<NE_ALL_DATA_COLLINEAR>();
        return false;
    }
    Integer first, second;
    if (find_repeated(m, data.x.data(), data.y.data(), order, first, second)) {
        report.error<NE_DATA_NOT_UNIQUE>(first, second, data.x[first], data.y[first]);
        return false;
    }
    Integer *const ends = data.mesh.data() + lists.value();
    triangulate(m, data.x.data(), data.y.data(), order, work, data.mesh.data(), ends);
    node_gradients({m, data.mesh.data(), ends}, data.x.data(), data.y.data(), data.f.data(), lengths.data(),
                   data.grads.data());
    // Behind these, the cells in which evaluations start their walks.
    CellGrid::build(m, data.x.data(), data.y.data(), data.grads.data() + 2 * static_cast<std::ptrdiff_t>(m), ends + m);
    return true;
}

constexpr double kUsualWeightNodes = 9.0, kUsualFitNodes = 18.0; // nw, nq
constexpr Integer kEnoughNodes = 6;                              // for a quadratic to be more than determined

// The radii of the weights and of the fits, from `optional` where it tells them. False after a report.
bool choose_radii(const kor::Report &report, Integer m, double squared_diameter, KorScatterOptions &options)
{
    if (options.rnq > 0.0) {
        if (!(options.rnw > 0.0 && options.rnw <= options.rnq && std::isfinite(options.rnq))) {
            report.error<NE_RAD_PARAM_INVALID>("options.rnw", options.rnw, "options.rnq", options.rnq);
            return false;
        }
        options.nw = options.nq = 0;
        return true;
    }
    if (options.nq <= 0) {
        options.nw = static_cast<Integer>(kUsualWeightNodes);
        options.nq = static_cast<Integer>(kUsualFitNodes);
    } else if (options.nw <= 0 || options.nw > options.nq) {
        report.error<NE_NUM_PARAM_INVALID>("options.nw", options.nw, "options.nq", options.nq);
        return false;
    }
    // A disc of this radius holds so many points on average, if the points fill a disc.
    options.rnw = std::sqrt(squared_diameter * options.nw / (4.0 * m));
    options.rnq = options.rnw * std::sqrt(static_cast<double>(options.nq) / options.nw);
    return true;
}

bool set_up_shepard(const kor::Report &report, Integer m, Arrays &data, Integer *order, KorScatterOptions &options)
{
    const double *const x = data.x.data(), *const y = data.y.data();
    const kor::Workspace<Integer> hull(kor::Count{m} + kor::Count{1});
    if (!hull || !data.quad.allocate(kor::Count{5} * kor::Count{m}) ||
        !data.grads.allocate(kor::Count{CellGrid::kFrameSize}) || !data.mesh.allocate(CellGrid::size(m))) {
        report.error<NE_ALLOC_FAIL>();
        return false;
    }
    Integer first, second;
    if (find_repeated(m, x, y, order, first, second)) {
        report.error<NE_DATA_NOT_UNIQUE>(first, second, x[first], y[first]);
        return false;
    }
    const double square = squared_diameter(m, x, y, order, hull.data());
    if (!(square >= 0x1p-900 && square <= 0x1p900)) {
        report.error<NE_REAL_ARRAY_CONS>("x", order[m - 1], x[order[m - 1]],
                                         "the squares of distances keep within the range of doubles");
        return false;
    }
    if (!choose_radii(report, m, square, options)) return false;
    CellGrid::build(m, x, y, data.grads.data(), data.mesh.data());
    options.minnq =
        nodal_quadratics({data.grads.data(), data.mesh.data()}, m, x, y, data.f.data(), options.rnq, data.quad.data());
    return true;
}

} // namespace

void e01sac(Integer method, Integer m, const double x[], const double y[], const double f[], KorScatterRecord *comm,
            KorScatterOptions *optional, KorError *fail)
{
    const kor::Report report{"e01sac", fail};
    *comm = KorScatterRecord{};
    comm->stamp1 = kStamp1;
    comm->stamp2 = kStamp2;
    comm->method = method;
    comm->m = m;
    if (method != Kor_RC && method != Kor_Shep) return report.error<NE_BAD_PARAM>("method");
    if (m < 3) return report.error<NE_INT_ARG_LT>("m", "3", "m", m);
    if (!all_finite(report, "x", m, x) || !all_finite(report, "y", m, y) || !all_finite(report, "f", m, f)) return;

    Arrays data;
    const kor::Workspace<Integer> order{kor::Count{m}};
    if (!data.copy_data(m, x, y, f) || !order) return report.error<NE_ALLOC_FAIL>();
    sort_points(m, data.x.data(), data.y.data(), order.data());

    if (method == Kor_RC) {
        if (!set_up_triangles(report, m, data, order.data())) return;
        data.hand_over(comm);
        return report.success();
    }

    KorScatterOptions options{};
    if (optional != nullptr) options = *optional;
    if (!set_up_shepard(report, m, data, order.data(), options)) return;
    comm->radius = options.rnw;
    data.hand_over(comm);
    if (optional != nullptr) *optional = options;
    if (options.minnq < kEnoughNodes)
        return report.error<NW_SPARSE_DATA_FIT>(options.rnq, options.rnw, options.nq, options.nw);
    report.success();
}
