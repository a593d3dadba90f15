// Scattered data: the triangulation on degenerate input, properties of both surfaces, spoilt records.
#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <random>
#include <set>

#include <gtest/gtest.h>

#include <kor/e01.h>

#include "approx/point_sets.hpp"
#include "support/expect_report.hpp"

using namespace kor::testing;

namespace {

struct Surface : KorScatterRecord {
    Record fail;
    Surface(Integer method, const PointSet &points, const std::vector<double> &f, KorScatterOptions *options = nullptr)
        : KorScatterRecord{}
    {
        e01sac(method, points.size(), points.x.data(), points.y.data(), f.data(), this, options, &fail);
    }
    ~Surface() { e01szc(this); }
    Surface(const Surface &) = delete;
    Surface &operator=(const Surface &) = delete;

    double at(double px, double py)
    {
        double pf = 99.0;
        e01sbc(this, 1, &px, &py, &pf, &fail);
        return pf;
    }
};

template <class Function>
std::vector<double> values(const PointSet &points, Function function)
{
    std::vector<double> f;
    for (int i = 0; i < points.size(); ++i) f.push_back(function(points.x[i], points.y[i]));
    return f;
}

// Neighbours of each node, counted from 0, without the mark of the boundary.
struct Lists {
    std::vector<std::vector<int>> of;
    std::vector<bool> boundary;

    explicit Lists(const KorScatterRecord &comm) : of(comm.m), boundary(comm.m)
    {
        const Integer *ends = comm.mesh + 6 * comm.m + 1;
        int k = 0;
        for (int i = 0; i < comm.m; ++i) {
            for (; k < ends[i]; ++k) {
                if (comm.mesh[k] == 0)
                    boundary[i] = true;
                else
                    of[i].push_back(comm.mesh[k] - 1);
            }
        }
    }

    std::set<std::array<int, 3>> triangles() const
    {
        std::set<std::array<int, 3>> found;
        for (int i = 0; i < static_cast<int>(of.size()); ++i) {
            const int n = static_cast<int>(of[i].size());
            for (int k = 0; k < (boundary[i] ? n - 1 : n); ++k) {
                std::array<int, 3> t{i, of[i][k], of[i][(k + 1) % n]};
                std::rotate(t.begin(), std::min_element(t.begin(), t.end()), t.end());
                found.insert(t);
            }
        }
        return found;
    }
};

long double turn(const PointSet &p, int a, int b, int c)
{
    const auto x = [&p](int i) { return static_cast<long double>(p.x[i]); };
    const auto y = [&p](int i) { return static_cast<long double>(p.y[i]); };
    return (x(b) - x(a)) * (y(c) - y(a)) - (y(b) - y(a)) * (x(c) - x(a));
}

TEST(Scattered, TriangulationIsDelaunay)
{
    for (const PointSet &points : point_sets()) {
        SCOPED_TRACE(points.name);
        const int m = points.size();
        Surface surface{Kor_RC, points, std::vector<double>(m, 1.0)};
        ASSERT_EQ(surface.fail.code, NE_NOERROR) << surface.fail.message;
        const Lists lists{surface};
        const auto triangles = lists.triangles();
        const auto hull = std::count(lists.boundary.begin(), lists.boundary.end(), true);
        // Euler: every region is a triangle, and none is missing.
        ASSERT_EQ(static_cast<long>(triangles.size()), 2L * m - 2 - hull);
        for (const auto &[a, b, c] : triangles) {
            EXPECT_GT(turn(points, a, b, c), 0.0L);
            // No point inside the circle, as far as the wide type tells.
            const long double ax = points.x[a], ay = points.y[a];
            const long double bx = points.x[b] - ax, by = points.y[b] - ay, cx = points.x[c] - ax,
                              cy = points.y[c] - ay;
            const long double bb = bx * bx + by * by, cc = cx * cx + cy * cy;
            for (int d = 0; d < m; ++d) {
                const long double dx = points.x[d] - ax, dy = points.y[d] - ay, dd = dx * dx + dy * dy;
                const long double terms[6] = {bx * cy * dd,  -by * cx * dd, by * cc * dx,
                                              -bx * cc * dy, bb * cx * dy,  -bb * cy * dx};
                long double sum = 0.0L, size = 0.0L;
                for (const long double term : terms) {
                    sum += term;
                    size += std::fabs(term);
                }
                ASSERT_GE(sum, -1e-17L * size) << a << " " << b << " " << c << " holds " << d;
            }
        }
    }
}

TEST(Scattered, LinearFunctionsAreReproduced)
{
    std::mt19937_64 random{3};
    std::uniform_real_distribution<double> uniform;
    const auto sets = point_sets();
    for (const Integer method : {Kor_RC, Kor_Shep}) {
        for (const PointSet &points : sets) {
            // On lines quadratics are not determined, and the one of least norm is not linear.
            if (method == Kor_Shep && &points - sets.data() >= 5) continue;
            SCOPED_TRACE(points.name);
            const auto [x_low, x_high] = std::minmax_element(points.x.begin(), points.x.end());
            const auto [y_low, y_high] = std::minmax_element(points.y.begin(), points.y.end());
            const double unit = std::max(std::fabs(*x_low), std::fabs(*x_high));
            const double unit_y = std::max(std::fabs(*y_low), std::fabs(*y_high));
            const auto plane = [&](double x, double y) { return 2.0 * (x / unit) - (y / unit_y); };
            KorScatterOptions options{};
            const double diameter = std::hypot(unit, unit_y);
            options.rnw = options.rnq = 4.0 * diameter;
            Surface surface{method, points, values(points, plane), &options};
            ASSERT_EQ(surface.fail.code == NE_NOERROR || surface.fail.code == NW_SPARSE_DATA_FIT, true)
                << surface.fail.message;
            for (int k = 0; k < 200; ++k) {
                // Points inside the hull: means of three nodes.
                const int i = static_cast<int>(uniform(random) * points.size()), j = (i * 7 + 3) % points.size(),
                          l = (i + j) % points.size();
                const double u = uniform(random), v = (1.0 - u) * uniform(random), w = 1.0 - u - v;
                const double x = u * points.x[i] + v * points.x[j] + w * points.x[l];
                const double y = u * points.y[i] + v * points.y[j] + w * points.y[l];
                EXPECT_NEAR(surface.at(x, y), plane(x, y), 1e-11);
            }
        }
    }
}

double hilly(double x, double y) { return std::sin(5.0 * x) * std::cos(4.0 * y) + x * y; }

// One-sided derivatives across each edge agree: from both sides, at points of the edges.
TEST(Scattered, TriangleSurfaceIsSmoothAcrossEdges)
{
    const PointSet points = point_sets()[0];
    Surface surface{Kor_RC, points, values(points, hilly)};
    const Lists lists{surface};
    constexpr double h = 1e-6;
    int edges = 0;
    for (int i = 0; i < points.size(); ++i) {
        for (const int j : lists.of[i]) {
            if (lists.boundary[i] || lists.boundary[j] || j < i) continue;
            const double ex = points.x[j] - points.x[i], ey = points.y[j] - points.y[i], length = std::hypot(ex, ey);
            if (length < 1e-3) continue;
            const double nx = -ey / length, ny = ex / length, t = 0.37;
            const double x = points.x[i] + t * ex, y = points.y[i] + t * ey;
            const auto slope = [&](double sign) {
                // Exact for a cubic.
                const auto f = [&](int k) { return surface.at(x + sign * k * h * nx, y + sign * k * h * ny); };
                return sign * (-11.0 * f(0) + 18.0 * f(1) - 9.0 * f(2) + 2.0 * f(3)) / (6.0 * h);
            };
            EXPECT_NEAR(slope(1.0), slope(-1.0), 1e-8 * (1.0 + std::fabs(slope(1.0)))) << i << " " << j;
            ++edges;
        }
    }
    EXPECT_GT(edges, 500);
}

TEST(Scattered, NodesAndTheirNeighbourhood)
{
    for (const Integer method : {Kor_RC, Kor_Shep}) {
        for (const int set : {0, 2, 3, 4}) {
            const PointSet points = point_sets()[set];
            const auto f = values(points, hilly);
            Surface surface{method, points, f};
            ASSERT_EQ(surface.setup_ok, -11111) << surface.fail.message;
            std::vector<double> pf(points.size());
            e01sbc(&surface, points.size(), points.x.data(), points.y.data(), pf.data(), &surface.fail);
            EXPECT_SUCCESS(surface.fail);
            for (int i = 0; i < points.size(); ++i) EXPECT_EQ(pf[i], f[i]) << points.name << " " << i;
            for (int i = 0; i < points.size(); ++i)
                EXPECT_NEAR(surface.at(points.x[i] + 1e-9, points.y[i] - 1e-9), f[i], 2e-6) << points.name << " " << i;
        }
    }
}

// The shape of the published test: Franke's function, errors that fall with the distance of the points.
TEST(Scattered, ErrorsFallWithTheDistance)
{
    const auto error = [](Integer method, int m) {
        std::mt19937_64 random{5};
        std::uniform_real_distribution<double> uniform;
        PointSet points;
        for (int i = 0; i < m; ++i) points.add(uniform(random), uniform(random));
        Surface surface{method, points, values(points, hilly)};
        double sum = 0.0;
        for (int k = 0; k < 400; ++k) {
            const double x = 0.1 + 0.8 * uniform(random), y = 0.1 + 0.8 * uniform(random);
            const double e = surface.at(x, y) - hilly(x, y);
            sum += e * e;
        }
        return std::sqrt(sum / 400);
    };
    for (const Integer method : {Kor_RC, Kor_Shep}) {
        EXPECT_LT(error(method, 400), 2e-2);
        EXPECT_LT(error(method, 6400), 1.5e-3);
    }
}

TEST(Scattered, ShepardReproducesQuadratics)
{
    const PointSet points = point_sets()[0];
    const auto bowl = [](double x, double y) { return 1.0 + x - 2.0 * y + 3.0 * x * x - x * y + 0.5 * y * y; };
    Surface surface{Kor_Shep, points, values(points, bowl)};
    for (double t = 0.05; t < 1.0; t += 0.05) EXPECT_NEAR(surface.at(t, 1.0 - t), bowl(t, 1.0 - t), 1e-12);
}

// Straight from the definition, with all nodes in every sum.
TEST(Scattered, ShepardIsItsDefinition)
{
    const PointSet points = point_sets()[0];
    const auto f = values(points, hilly);
    KorScatterOptions options{};
    options.nq = 13;
    options.nw = 7;
    Surface surface{Kor_Shep, points, f, &options};
    double square = 0.0;
    for (int i = 0; i < points.size(); ++i)
        for (int j = 0; j < i; ++j)
            square = std::max(square, std::pow(points.x[i] - points.x[j], 2) + std::pow(points.y[i] - points.y[j], 2));
    EXPECT_DOUBLE_EQ(options.rnw, std::sqrt(square * 7 / (4.0 * points.size())));
    EXPECT_DOUBLE_EQ(options.rnq, options.rnw * std::sqrt(13.0 / 7.0));
    EXPECT_EQ(surface.radius, options.rnw);
    for (double t = 0.1; t < 0.9; t += 0.07) {
        double weights = 0.0, sum = 0.0;
        for (int k = 0; k < points.size(); ++k) {
            const double dx = t - points.x[k], dy = 0.5 - points.y[k], d = std::hypot(dx, dy);
            if (d >= options.rnw) continue;
            const double w = std::pow((d - options.rnw) / (d * options.rnw), 2);
            const double *c = surface.quad + 5 * k;
            weights += w;
            sum += w * (f[k] + (c[3] * dy + c[2] * dx + c[0]) * dx + (c[4] * dy + c[1]) * dy);
        }
        EXPECT_NEAR(surface.at(t, 0.5), sum / weights, 1e-13);
    }
}

TEST(Scattered, ExtrapolationIsLinearAndWarns)
{
    const PointSet points = point_sets()[0];
    Surface surface{Kor_RC, points, values(points, hilly)};
    const double px[3] = {0.5, 1.5, -3.0}, py[3] = {0.5, 0.5, 7.0};
    double pf[3];
    e01sbc(&surface, 3, px, py, pf, &surface.fail);
    EXPECT_REPORT(surface.fail, NW_VALUE_EXTRAPOLATED, px[2], py[2], pf[2]); // the last one stands
    // Straight outwards from an edge the surface is linear, and joins on.
    const PointSet grid = point_sets()[2];
    Surface over_grid{Kor_RC, grid, values(grid, hilly)};
    const double slope = over_grid.at(16.0, 7.3) - over_grid.at(15.0, 7.3);
    EXPECT_NEAR(over_grid.at(40.0, 7.3), over_grid.at(14.0, 7.3) + 26.0 * slope, 1e-10);
    EXPECT_NEAR(over_grid.at(14.0 + 1e-7, 7.3) - over_grid.at(14.0 - 1e-7, 7.3), 2e-7 * slope, 1e-11);
    for (const double nan : {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity()}) {
        EXPECT_TRUE(std::isnan(surface.at(nan, 0.5)));
        EXPECT_EQ(surface.fail.code, NW_VALUE_EXTRAPOLATED);
    }
    EXPECT_NEAR(surface.at(0.5, 0.5), pf[0], 0.0);
    EXPECT_SUCCESS(surface.fail);
}

TEST(Scattered, ShepardHasNoValueFarAway)
{
    const PointSet points = point_sets()[0];
    Surface surface{Kor_Shep, points, values(points, hilly)};
    const double px[3] = {0.5, 50.0, 0.25}, py[3] = {0.5, 50.0, 0.25};
    double pf[3] = {99.0, 99.0, 99.0};
    e01sbc(&surface, 3, px, py, pf, &surface.fail);
    EXPECT_REPORT(surface.fail, NE_BAD_INTERPOLANT, 50.0, 50.0, surface.radius);
    EXPECT_NE(pf[0], 99.0);
    EXPECT_EQ(pf[1], 99.0);
    EXPECT_EQ(pf[2], 99.0);
}

TEST(Scattered, RefusedData)
{
    const double x[4] = {0.0, 1.0, 2.0, 0.0}, y[4] = {0.0, 1.0, 2.0, 1.0}, f[4] = {1.0, 2.0, 3.0, 4.0};
    KorScatterRecord comm{};
    Record fail;
    e01sac(Kor_Cold, 3, x, y, f, &comm, nullptr, &fail);
    EXPECT_REPORT(fail, NE_BAD_PARAM, "method");
    EXPECT_EQ(comm.stamp1, -11111);
    EXPECT_EQ(comm.stamp2, -23456);
    EXPECT_EQ(comm.setup_ok, 0);
    e01sac(Kor_RC, 2, x, y, f, &comm, nullptr, &fail);
    EXPECT_REPORT(fail, NE_INT_ARG_LT, "m", "3", "m", 2);
    e01sac(Kor_RC, 3, x, y, f, &comm, nullptr, &fail);
    EXPECT_REPORT(fail, NE_ALL_DATA_COLLINEAR);
    double pf;
    e01sbc(&comm, 1, x, y, &pf, &fail);
    EXPECT_REPORT(fail, NE_SETUP_ERROR, "kor_2d_scat_interpolant(e01sac)");
    e01sac(Kor_Shep, 3, x, y, f, &comm, nullptr, &fail);
    EXPECT_EQ(fail.code, NW_SPARSE_DATA_FIT); // and stands as set up
    EXPECT_EQ(comm.setup_ok, -11111);
    e01szc(&comm);
    e01szc(&comm);
    EXPECT_EQ(comm.has_memory, 0);

    const double twice_x[5] = {0.0, 1.0, 0.0, 0.5, 1.0}, twice_y[5] = {0.0, 0.0, 1.0, 0.25, 0.0}, g[5] = {};
    for (const Integer method : {Kor_RC, Kor_Shep}) {
        e01sac(method, 5, twice_x, twice_y, g, &comm, nullptr, &fail);
        EXPECT_REPORT(fail, NE_DATA_NOT_UNIQUE, 1, 4, 1.0, 0.0);
        EXPECT_EQ(comm.has_memory, 0);
    }
    const double bad[4] = {0.0, 1.0, std::numeric_limits<double>::quiet_NaN(), 0.0};
    e01sac(Kor_RC, 4, bad, y, f, &comm, nullptr, &fail);
    EXPECT_EQ(fail.code, NE_REAL_ARRAY_CONS);
    e01sac(Kor_Shep, 4, x, bad, f, &comm, nullptr, &fail);
    EXPECT_EQ(fail.code, NE_REAL_ARRAY_CONS);

    KorScatterOptions options{2.0, 1.0, 0, 0, 0};
    e01sac(Kor_Shep, 4, x, y, f, &comm, &options, &fail);
    EXPECT_REPORT(fail, NE_RAD_PARAM_INVALID, "options.rnw", 2.0, "options.rnq", 1.0);
    options = {0.0, 0.0, 9, 5, 0};
    e01sac(Kor_Shep, 4, x, y, f, &comm, &options, &fail);
    EXPECT_REPORT(fail, NE_NUM_PARAM_INVALID, "options.nw", 9, "options.nq", 5);
    EXPECT_EQ(options.nw, 9);
}

TEST(Scattered, SpoiltRecords)
{
    const PointSet points = point_sets()[0];
    const auto f = values(points, hilly);
    KorScatterRecord never{};
    Record fail;
    double px[2] = {0.5, 0.9}, py[2] = {0.5, 0.1}, pf[2];
    e01sbc(&never, 1, px, py, pf, &fail);
    EXPECT_REPORT(fail, NE_NO_SETUP, "kor_2d_scat_interpolant(e01sac)");
    Surface surface{Kor_RC, points, f};
    e01sbc(&surface, 0, px, py, pf, &fail);
    EXPECT_REPORT(fail, NE_INT_ARG_LT, "n", "1", "n", 0);
    KorScatterRecord copy = surface;
    copy.grads = nullptr;
    e01sbc(&copy, 1, px, py, pf, &fail);
    EXPECT_REPORT(fail, NE_STRUCT_CORRUPT, "comm", "kor_2d_scat_interpolant(e01sac)");
    // Whatever stands in the lists, the walk ends and stays within the arrays.
    std::mt19937_64 random{9};
    std::vector<Integer> mesh(surface.mesh, surface.mesh + 9 * points.size() + 5);
    for (int trial = 0; trial < 300; ++trial) {
        auto spoilt = mesh;
        for (int k = 0; k < 1 + trial % 40; ++k)
            spoilt[random() % spoilt.size()] = static_cast<Integer>(random() % 2000) - 500;
        copy = surface;
        copy.mesh = spoilt.data();
        e01sbc(&copy, 2, px, py, pf, &fail);
        EXPECT_TRUE(fail.code == NE_NOERROR || fail.code == NE_TRIANG_INVALID || fail.code == NW_VALUE_EXTRAPOLATED);
    }
}

} // namespace
