// Bicubic splines: interpolation on a grid, three ways of evaluation, panels.
#include <cmath>
#include <limits>
#include <random>
#include <vector>

#include <gtest/gtest.h>

#include <kor/e01.h>
#include <kor/e02.h>
#include <kor/x02.h>
#include <kor/x04.h>

#include "support/expect_report.hpp"

using namespace kor::testing;

namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

// Untidy knots, some of them double, and coefficients that grow.
struct Sample {
    std::vector<double> lamda{-1, 0, 0.25, 0.5, 0.75, 1.5, 1.5, 2, 2.5, 3, 3, 3}, mu{0, 0, 0, 0, 0.4, 0.5, 2, 2, 2, 2},
        c;
    KorSpline2D spline;
    Sample()
    {
        for (int k = 0; k < 8 * 6; ++k) c.push_back(std::sin(k) * (1 + k / 10.0));
        spline = {12, 10, lamda.data(), mu.data(), c.data()};
    }
    // One spline in y for each coefficient in x, each by the routine of one variable.
    double by_curves(double x, double y)
    {
        KorError fail{};
        std::vector<double> row(8);
        for (int i = 0; i < 8; ++i) {
            const KorSpline curve{10, mu.data(), c.data() + 6 * i};
            e02bbc(y, &row[i], &curve, &fail);
        }
        const KorSpline across{12, lamda.data(), row.data()};
        double value;
        e02bbc(x, &value, &across, &fail);
        return value;
    }
};

TEST(Bicubic, ThreeWaysAgree)
{
    Sample sample;
    std::mt19937_64 random{6};
    std::uniform_real_distribution<double> uniform;
    std::vector<double> x{0.5, 2.5, 0.5, 2.5, 1.5}, y{0.0, 2.0, 2.0, 0.0, 0.5};
    for (int k = 0; k < 200; ++k) {
        x.push_back(0.5 + 2.0 * uniform(random));
        y.push_back(2.0 * uniform(random));
    }
    const auto m = static_cast<Integer>(x.size());
    std::vector<double> list(m), chained(m), mesh(m * m);
    std::vector<Integer> point(m + 5 * 3);
    Record fail;
    e02dec(m, x.data(), y.data(), list.data(), &sample.spline, &fail);
    EXPECT_SUCCESS(fail);
    e02zac(12, 10, sample.lamda.data(), sample.mu.data(), m, x.data(), y.data(), point.data(), m + 15, &fail);
    EXPECT_SUCCESS(fail);
    e02dbc(m, x.data(), y.data(), chained.data(), point.data(), &sample.spline, &fail);
    EXPECT_SUCCESS(fail);
    e02dfc(m, m, x.data(), y.data(), mesh.data(), &sample.spline, &fail);
    EXPECT_SUCCESS(fail);
    for (Integer r = 0; r < m; ++r) {
        const double wanted = sample.by_curves(x[r], y[r]);
        EXPECT_NEAR(list[r], wanted, 20 * x02ajc() * 6.0);
        EXPECT_NEAR(mesh[m * r + r], wanted, 20 * x02ajc() * 6.0);
        EXPECT_EQ(chained[r], list[r]);
        EXPECT_NEAR(mesh[m * r + (r + 7) % m], sample.by_curves(x[r], y[(r + 7) % m]), 20 * x02ajc() * 6.0);
    }
}

TEST(Bicubic, PanelsHoldTheirPoints)
{
    Sample sample;
    const double x[6] = {0.6, 2.0, -50.0, 1.5, 2.5, 0.6}, y[6] = {0.45, 1.0, 50.0, 0.5, 2.0, 0.41};
    Integer point[6 + 15];
    Record fail;
    e02zac(12, 10, sample.lamda.data(), sample.mu.data(), 6, x, y, point, 21, &fail);
    EXPECT_SUCCESS(fail);
    // Panels in x: [0.5, 0.75), [0.75, 1.5), empty, [1.5, 2), [2, 2.5]; in y: [0, 0.4), [0.4, 0.5), [0.5, 2].
    const Integer heads[15] = {0, 1, 3, 0, 0, 0, 0, 0, 0, 0, 0, 4, 0, 0, 2};
    for (int q = 0; q < 15; ++q) EXPECT_EQ(point[6 + q], heads[q]) << q;
    EXPECT_EQ(point[0], 6); // in the order of their numbers
    EXPECT_EQ(point[5], 0);
    EXPECT_EQ(point[1], 5);
    EXPECT_EQ(point[4], 0);
}

TEST(Bicubic, RefusedArguments)
{
    Sample sample;
    double x = 1.0, y = 1.0, ff = 99.0;
    Record fail;
    for (const auto &[px, py] : {std::pair{0.49, 1.0}, {1.0, 2.01}, {kNaN, 1.0}, {1.0, kNaN}}) {
        e02dec(1, &px, &py, &ff, &sample.spline, &fail);
        EXPECT_REPORT(fail, NE_POINT_OUTSIDE_RECT, "x[0]", "y[0]", px, py, 0.5, 2.5, 0.0, 2.0);
        e02dfc(1, 1, &px, &py, &ff, &sample.spline, &fail);
        EXPECT_REPORT(fail, NE_POINT_OUTSIDE_RECT, "x[0]", "y[0]", px, py, 0.5, 2.5, 0.0, 2.0);
    }
    e02dec(0, &x, &y, &ff, &sample.spline, &fail);
    EXPECT_REPORT(fail, NE_INT_ARG_LT, "m", "1", "m", 0);
    e02dfc(1, 0, &x, &y, &ff, &sample.spline, &fail);
    EXPECT_REPORT(fail, NE_INT_ARG_LT, "my", "1", "my", 0);
    KorSpline2D few = sample.spline;
    few.ny = 7;
    e02dec(1, &x, &y, &ff, &few, &fail);
    EXPECT_REPORT(fail, NE_NUM_KNOTS_2D_LT, "spline.nx", "spline.ny", 12, 7);
    const Integer point[16] = {};
    e02dbc(1, &x, &y, &ff, point, &few, &fail);
    EXPECT_REPORT(fail, NE_INT_ARG_LT, "spline.py", "8", "spline.py", 7);
    sample.mu[4] = 0.0;
    e02dbc(1, &x, &y, &ff, point, &sample.spline, &fail);
    EXPECT_REPORT(fail, NE_END_KNOTS_CONS, "spline.mu[3] < spline.mu[4]", 0.0, 0.0);
    sample.mu.assign(10, 1.0);
    e02dec(1, &x, &y, &ff, &sample.spline, &fail);
    EXPECT_REPORT(fail, NE_SPLINE_RANGE_INVALID, "spline.mu[3]", "spline.mu[spline.ny-4]", 1.0, 1.0);
    EXPECT_EQ(ff, 99.0);

    Integer chains[16] = {-7};
    e02zac(12, 10, sample.lamda.data(), sample.mu.data(), 1, &x, &y, chains, 16, &fail);
    EXPECT_REPORT(fail, NE_KNOTS_COINCIDE, "mu[3]", "mu[6]", 1.0);
    e02zac(12, 12, sample.lamda.data(), sample.lamda.data(), 1, &x, &y, chains, 25, &fail);
    EXPECT_REPORT(fail, NE_INT_ARG_LT, "npoint", "m+(px-7)*(py-7)", "npoint", 25);
    e02zac(12, 12, sample.lamda.data(), sample.lamda.data(), 1, &x, &kNaN, chains, 26, &fail);
    EXPECT_EQ(fail.code, NE_REAL_ARRAY_CONS);
    EXPECT_EQ(chains[0], -7);
}

// Whatever stands in the chains, the walk ends and stays within the arrays.
TEST(Bicubic, SpoiltChains)
{
    Sample sample;
    std::mt19937_64 random{8};
    std::uniform_real_distribution<double> uniform;
    constexpr Integer m = 12;
    double x[m], y[m], ff[m];
    for (int r = 0; r < m; ++r) {
        x[r] = 0.5 + 2.0 * uniform(random);
        y[r] = 2.0 * uniform(random);
    }
    Record fail;
    std::vector<Integer> right(m + 15);
    e02zac(12, 10, sample.lamda.data(), sample.mu.data(), m, x, y, right.data(), m + 15, &fail);
    for (int trial = 0; trial < 500; ++trial) {
        auto point = right;
        auto &link = point[random() % point.size()];
        const Integer was = link;
        link = static_cast<Integer>(random() % 20) - 3;
        ff[0] = 99.0;
        e02dbc(m, x, y, ff, point.data(), &sample.spline, &fail);
        EXPECT_EQ(fail.code, link == was ? NE_NOERROR : NE_PANEL_ORDER);
        if (link != was) {
            EXPECT_EQ(ff[0], 99.0);
        }
    }
}

TEST(Bicubic, ThroughAGrid)
{
    std::mt19937_64 random{7};
    std::uniform_real_distribution<double> uniform;
    for (const auto &[mx, my] : {std::pair{4, 4}, {5, 9}, {40, 17}}) {
        std::vector<double> x(mx), y(my), f(mx * my), back(mx * my);
        for (int i = 0; i < mx; ++i) x[i] = i + 0.8 * uniform(random);
        for (int j = 0; j < my; ++j) y[j] = -2.0 * my + 2.0 * j + uniform(random);
        for (double &value : f) value = uniform(random);
        KorSpline2D spline{};
        Record fail;
        e01dac(mx, my, x.data(), y.data(), f.data(), &spline, &fail);
        ASSERT_EQ(fail.code, NE_NOERROR);
        EXPECT_EQ(spline.nx, mx + 4);
        EXPECT_EQ(spline.ny, my + 4);
        e02dfc(mx, my, x.data(), y.data(), back.data(), &spline, &fail);
        double size = 0.0;
        for (int k = 0; k < mx * my; ++k) size = std::max(size, std::fabs(spline.c[k]));
        for (int k = 0; k < mx * my; ++k) EXPECT_NEAR(back[k], f[k], 20 * x02ajc() * size);
        for (void *array :
             {static_cast<void *>(spline.lamda), static_cast<void *>(spline.mu), static_cast<void *>(spline.c)})
            x04bdc(&array);
    }
    KorSpline2D spline{};
    Record fail;
    const double x[4] = {0, 1, 2, 3}, bad[4] = {0, 1, 1, 3}, f[16] = {};
    e01dac(3, 4, x, x, f, &spline, &fail);
    EXPECT_REPORT(fail, NE_INT_ARG_LT, "mx", "4", "mx", 3);
    e01dac(4, 3, x, x, f, &spline, &fail);
    EXPECT_REPORT(fail, NE_INT_ARG_LT, "my", "4", "my", 3);
    e01dac(4, 4, x, bad, f, &spline, &fail);
    EXPECT_REPORT(fail, NE_NOT_STRICTLY_INCREASING, "y", "y", 1, 1.0, "y", 2, 1.0);
    EXPECT_EQ(spline.c, nullptr);
}

} // namespace
