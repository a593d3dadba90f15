// Smoothing splines in one and two variables: the smoothing condition, optimality, warm starts, limits on the knots.
#include <algorithm>
#include <cmath>
#include <limits>
#include <random>
#include <vector>

#include <gtest/gtest.h>

#include <kor/e02.h>
#include <kor/x04.h>

#include "support/expect_report.hpp"

using namespace kor::testing;

namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

template <class Array>
void release(Array *&array)
{
    x04bdc(reinterpret_cast<void **>(&array));
}

// A cold start does not look at what it overwrites.
template <class Spline, class Memory>
void prepare(Integer start, Spline &spline, Memory &memory)
{
    if (start != Kor_Cold) return;
    spline.clear();
    memory.clear();
}

struct Memory : KorSplineWarm {
    Memory() : KorSplineWarm{} {}
    ~Memory() { clear(); }
    void clear()
    {
        release(wrk);
        release(iwrk);
    }
};

struct Curve : KorSpline {
    Curve() : KorSpline{} {}
    ~Curve() { clear(); }
    void clear()
    {
        release(lamda);
        release(c);
    }
    std::vector<double> knots() const { return {lamda, lamda + n}; }
    std::vector<double> coefficients() const { return {c, c + n - 4}; }
};

struct Surface : KorSpline2D {
    Surface() : KorSpline2D{} {}
    ~Surface() { clear(); }
    void clear()
    {
        release(lamda);
        release(mu);
        release(c);
    }
    double at(double x, double y) const
    {
        double value = kNaN;
        KorError fail{};
        e02dec(1, &x, &y, &value, this, &fail);
        return value;
    }
};

struct Noisy {
    std::vector<double> x, y, w;
    explicit Noisy(int m)
    {
        std::mt19937_64 random{21};
        std::normal_distribution<double> normal;
        for (int i = 0; i < m; ++i) {
            x.push_back(10.0 * i / m + 0.02 * std::sin(i));
            y.push_back(std::sin(x[i]) + 0.1 * normal(random));
            w.push_back(8.0 + i % 3);
        }
    }
    Integer m() const { return static_cast<Integer>(x.size()); }
    double sum_of_squares(const KorSpline &spline) const
    {
        double sum = 0.0;
        for (Integer i = 0; i < m(); ++i) {
            double s;
            KorError fail{};
            e02bbc(x[i], &s, &spline, &fail);
            sum += std::pow(w[i] * (y[i] - s), 2);
        }
        return sum;
    }
};

TEST(SmoothingCurve, ConditionIsMet)
{
    const Noisy data{200};
    for (const double s : {1e4, 400.0, 200.0, 120.0, 60.0, 10.0, 0.5}) {
        Curve spline;
        Record fail;
        double fp;
        e02bec(Kor_Cold, data.m(), data.x.data(), data.y.data(), data.w.data(), s, data.m() + 4, &fp, nullptr, &spline,
               &fail);
        EXPECT_SUCCESS(fail);
        EXPECT_NEAR(fp, data.sum_of_squares(spline), 1e-10 * fp);
        if (spline.n > 8) {
            EXPECT_LT(std::fabs(fp - s), 0.001 * s);
        }
        if (s == 1e4) {
            EXPECT_EQ(spline.n, 8); // one cubic
        }
        EXPECT_EQ(spline.c[spline.n - 4], 0.0);
    }
}

TEST(SmoothingCurve, ZeroInterpolates)
{
    const Noisy data{50};
    Curve spline;
    Record fail;
    double fp = 99.0;
    e02bec(Kor_Cold, 50, data.x.data(), data.y.data(), data.w.data(), 0.0, 54, &fp, nullptr, &spline, &fail);
    EXPECT_SUCCESS(fail);
    EXPECT_EQ(spline.n, 54);
    EXPECT_EQ(fp, 0.0);
    EXPECT_LT(data.sum_of_squares(spline), 1e-24);
}

// A warm start with the same s changes nothing; one with a smaller s goes on from the knots, and never loses one.
TEST(SmoothingCurve, WarmStartsContinue)
{
    const Noisy data{300};
    Curve spline;
    Memory memory;
    Record fail;
    double fp;
    const auto fit = [&](Integer start, double s, Integer nest) {
        prepare(start, spline, memory);
        e02bec(start, 300, data.x.data(), data.y.data(), data.w.data(), s, nest, &fp, &memory, &spline, &fail);
    };
    fit(Kor_Cold, 300.0, 304);
    EXPECT_SUCCESS(fail);
    const auto knots = spline.knots();
    const auto coefficients = spline.coefficients();
    fit(Kor_Warm, 300.0, 304);
    EXPECT_SUCCESS(fail);
    EXPECT_EQ(spline.knots(), knots);
    EXPECT_EQ(spline.coefficients(), coefficients);
    fit(Kor_Warm, 30.0, 304);
    EXPECT_SUCCESS(fail);
    EXPECT_LT(std::fabs(fp - 30.0), 0.03);
    const auto more = spline.knots();
    EXPECT_TRUE(std::includes(more.begin(), more.end(), knots.begin() + 4, knots.end() - 4));
    // Stopped by nest, and taken up with a larger one: the same as in one go.
    Curve straight;
    double straight_fp;
    e02bec(Kor_Cold, 300, data.x.data(), data.y.data(), data.w.data(), 20.0, 304, &straight_fp, nullptr, &straight,
           &fail);
    fit(Kor_Cold, 20.0, 151);
    const bool limited = fail.code == NE_NUM_KNOTS_1D_GT;
    if (limited) {
        EXPECT_REPORT(fail, NE_NUM_KNOTS_1D_GT, "nest", "m/2", 151, 20.0);
        EXPECT_EQ(spline.n, 151);
        EXPECT_GT(fp, 20.0);
        fit(Kor_Warm, 20.0, 304);
    }
    EXPECT_SUCCESS(fail);
    EXPECT_LT(std::fabs(fp - 20.0), 0.02);
}

TEST(SmoothingCurve, WarmStartsOfNothing)
{
    const Noisy data{30};
    Curve spline;
    Memory memory;
    Record fail;
    double fp = 99.0;
    const auto warm = [&](Integer m) {
        e02bec(Kor_Warm, m, data.x.data(), data.y.data(), data.w.data(), 20.0, 40, &fp, &memory, &spline, &fail);
    };
    warm(30);
    EXPECT_REPORT(fail, NE_ENUMTYPE_WARM, "start");
    e02bec(Kor_Warm, 30, data.x.data(), data.y.data(), data.w.data(), 20.0, 40, &fp, nullptr, &spline, &fail);
    EXPECT_REPORT(fail, NE_ENUMTYPE_WARM, "start");
    EXPECT_EQ(fp, 99.0);
    e02bec(Kor_Cold, 30, data.x.data(), data.y.data(), data.w.data(), 20.0, 40, &fp, &memory, &spline, &fail);
    EXPECT_SUCCESS(fail);
    warm(29); // other points
    EXPECT_REPORT(fail, NE_ENUMTYPE_WARM, "start");
    memory.iwrk[2] = 1000000000;
    warm(30);
    EXPECT_REPORT(fail, NE_ENUMTYPE_WARM, "start");
}

TEST(SmoothingCurve, RefusedArguments)
{
    Noisy data{20};
    Curve spline;
    Record fail;
    double fp = 99.0;
    const auto fit = [&](Integer start, Integer m, double s, Integer nest) {
        e02bec(start, m, data.x.data(), data.y.data(), data.w.data(), s, nest, &fp, nullptr, &spline, &fail);
        EXPECT_EQ(fp, 99.0);
        return fail.code;
    };
    EXPECT_EQ(fit(Kor_RC, 20, 1.0, 24), NE_BAD_PARAM);
    EXPECT_EQ(fit(Kor_Cold, 3, 1.0, 24), NE_INT_ARG_LT);
    EXPECT_EQ(fit(Kor_Cold, 20, -1.0, 24), NE_REAL_ARG_LT);
    EXPECT_EQ(fit(Kor_Cold, 20, kNaN, 24), NE_REAL_ARG_LT);
    EXPECT_EQ(fit(Kor_Cold, 20, 0.0, 23), NE_SF_D_K_CONS);
    EXPECT_REPORT(fail, NE_SF_D_K_CONS, "nest >= m+4", "s = 0.0", 23, 20, 0.0);
    EXPECT_EQ(fit(Kor_Cold, 20, 1.0, 10), NE_SF_D_K_CONS);
    EXPECT_REPORT(fail, NE_SF_D_K_CONS, "nest > m/2", "s > 0.0", 10, 20, 1.0);
    EXPECT_EQ(fit(Kor_Cold, 10, 1.0, 7), NE_SF_D_K_CONS);
    data.w[3] = 0.0;
    EXPECT_EQ(fit(Kor_Cold, 20, 1.0, 24), NE_WEIGHTS_NOT_POSITIVE);
    data.y[7] = kNaN;
    EXPECT_EQ(fit(Kor_Cold, 20, 1.0, 24), NE_REAL_ARRAY_CONS);
    data.x[5] = data.x[4];
    EXPECT_EQ(fit(Kor_Cold, 20, 1.0, 24), NE_NOT_STRICTLY_INCREASING);
    // A limit beyond all bounds asks for no memory.
    const Noisy good{20};
    e02bec(Kor_Cold, 20, good.x.data(), good.y.data(), good.w.data(), 10.0, std::numeric_limits<Integer>::max(), &fp,
           nullptr, &spline, &fail);
    EXPECT_SUCCESS(fail);
}

double wave(double x, double y) { return std::cos(3.0 * x) * std::exp(-y) + std::tanh(4.0 * (x + 1.5 - y)); }

struct Grid {
    std::vector<double> x, y, f;
    Grid(int mx, int my)
    {
        std::mt19937_64 random{22};
        std::normal_distribution<double> normal;
        for (int i = 0; i < mx; ++i) x.push_back(-1.0 + 2.0 * i / (mx - 1));
        for (int j = 0; j < my; ++j) y.push_back(3.0 * j / (my - 1));
        for (const double px : x)
            for (const double py : y) f.push_back(wave(px, py) + 0.05 * normal(random));
    }
    Integer mx() const { return static_cast<Integer>(x.size()); }
    Integer my() const { return static_cast<Integer>(y.size()); }
    double sum_of_squares(const KorSpline2D &spline) const
    {
        std::vector<double> ff(f.size());
        KorError fail{};
        e02dfc(mx(), my(), x.data(), y.data(), ff.data(), &spline, &fail);
        double sum = 0.0;
        for (std::size_t k = 0; k < f.size(); ++k) sum += std::pow(f[k] - ff[k], 2);
        return sum;
    }
};

TEST(SmoothingGrid, ConditionIsMet)
{
    const Grid grid{40, 30};
    for (const double s : {1e5, 10.0, 3.0, 2.5, 0.5, 0.0}) {
        Surface spline;
        Record fail;
        double fp;
        e02dcc(Kor_Cold, 40, grid.x.data(), 30, grid.y.data(), grid.f.data(), s, 44, 1000000, &fp, nullptr, &spline,
               &fail);
        EXPECT_SUCCESS(fail);
        EXPECT_NEAR(fp, grid.sum_of_squares(spline), 1e-10 * fp + 1e-20);
        if (spline.nx + spline.ny > 16) {
            EXPECT_LE(std::fabs(fp - s), 0.001 * s);
        }
        if (s == 1e5) {
            EXPECT_EQ(spline.nx + spline.ny, 16);
        }
        if (s == 0.0) {
            EXPECT_EQ(spline.nx + spline.ny, 78);
        }
    }
}

TEST(SmoothingGrid, WarmStartsContinue)
{
    const Grid grid{25, 35};
    Surface spline;
    Memory memory;
    Record fail;
    double fp;
    const auto fit = [&](Integer start, double s, Integer nxest, Integer nyest) {
        prepare(start, spline, memory);
        e02dcc(start, 25, grid.x.data(), 35, grid.y.data(), grid.f.data(), s, nxest, nyest, &fp, &memory, &spline,
               &fail);
    };
    fit(Kor_Warm, 2.0, 29, 39);
    EXPECT_REPORT(fail, NE_ENUMTYPE_WARM, "start");
    fit(Kor_Cold, 2.0, 29, 39);
    EXPECT_SUCCESS(fail);
    const double value = spline.at(0.3, 1.1);
    fit(Kor_Warm, 2.0, 29, 39);
    EXPECT_SUCCESS(fail);
    EXPECT_EQ(spline.at(0.3, 1.1), value);
    fit(Kor_Cold, 0.7, 10, 10);
    EXPECT_REPORT(fail, NE_NUM_KNOTS_2D_GT_RECT, "nxest", "nyest", "mx/2, my/2", 10, 10, 0.7);
    EXPECT_EQ(spline.nx, 10);
    EXPECT_EQ(spline.ny, 10);
    EXPECT_NEAR(fp, grid.sum_of_squares(spline), 1e-10 * fp);
    fit(Kor_Warm, 0.7, 29, 39);
    EXPECT_SUCCESS(fail);
    EXPECT_LT(std::fabs(fp - 0.7), 0.0007);
    fit(Kor_Cold, 1.0, 7, 39);
    EXPECT_REPORT(fail, NE_NUM_KNOTS_2D_LT, "nxest", "nyest", 7, 39);
    fit(Kor_Cold, 0.0, 28, 39);
    EXPECT_REPORT(fail, NE_SF_D_K_CONS, "nxest >= mx+4", "s = 0.0", 28, 25, 0.0);
    fit(Kor_Cold, 0.0, 29, 38);
    EXPECT_REPORT(fail, NE_SF_D_K_CONS, "nyest >= my+4", "s = 0.0", 38, 35, 0.0);
}

struct Scattered {
    std::vector<double> x, y, f, w;
    explicit Scattered(int m)
    {
        std::mt19937_64 random{23};
        std::uniform_real_distribution<double> uniform;
        std::normal_distribution<double> normal;
        for (int r = 0; r < m; ++r) {
            x.push_back(2.0 * uniform(random) - 1.0);
            y.push_back(3.0 * uniform(random));
            f.push_back(wave(x[r], y[r]) + 0.05 * normal(random));
            w.push_back(r % 9 == 0 ? 0.0 : r % 2 == 0 ? 2.0 : -2.0);
        }
    }
    Integer m() const { return static_cast<Integer>(x.size()); }
    double sum_of_squares(const KorSpline2D &spline) const
    {
        std::vector<double> ff(f.size());
        KorError fail{};
        e02dec(m(), x.data(), y.data(), ff.data(), &spline, &fail);
        double sum = 0.0;
        for (std::size_t k = 0; k < f.size(); ++k) sum += std::pow(w[k] * (f[k] - ff[k]), 2);
        return sum;
    }
};

TEST(SmoothingScattered, ConditionIsMet)
{
    const Scattered data{400};
    for (const double s : {1e5, 20.0, 8.0, 4.0}) {
        Surface spline;
        Memory memory;
        Record fail;
        double fp;
        Integer rank;
        const auto fit = [&](Integer start, Integer limit) {
            e02ddc(start, 400, data.x.data(), data.y.data(), data.f.data(), data.w.data(), s, limit, limit, &fp, &rank,
                   &memory, &spline, &fail);
        };
        fit(Kor_Cold, 25);
        EXPECT_SUCCESS(fail);
        EXPECT_NEAR(fp, data.sum_of_squares(spline), 1e-9 * fp);
        EXPECT_EQ(rank, (spline.nx - 4) * (spline.ny - 4));
        if (spline.nx + spline.ny > 16) {
            EXPECT_LE(std::fabs(fp - s), 0.001 * s);
        }
        const double value = spline.at(0.1, 1.0);
        fit(Kor_Warm, 25);
        EXPECT_SUCCESS(fail);
        EXPECT_NEAR(spline.at(0.1, 1.0), value, 1e-12);
    }
}

// Points in two opposite corners alone: some products of B-splines vanish at all points, and their coefficients are free. Least norm makes
// them 0; the others solve the least squares, whose residuals are orthogonal to all products.
TEST(SmoothingScattered, GapsLeaveLeastNorm)
{
    Scattered data{160};
    for (Integer r = 0; r < 160; ++r) {
        data.x[r] += r % 2 == 0 ? -20.0 : 20.0;
        data.y[r] += r % 2 == 0 ? -20.0 : 20.0;
        data.w[r] = 1.0;
        data.f[r] = std::sin(5.0 * data.y[r]) * data.x[r] + std::cos(9.0 * data.x[r]);
    }
    Surface spline;
    Record fail;
    double fp;
    Integer rank = -1;
    e02ddc(Kor_Cold, 160, data.x.data(), data.y.data(), data.f.data(), data.w.data(), 1e-2, 16, 12, &fp, &rank, nullptr,
           &spline, &fail);
    // Stopped before smoothing, at the least-squares spline.
    ASSERT_TRUE(fail.code == NE_NUM_KNOTS_2D_GT_SCAT || fail.code == NE_NO_ADDITIONAL_KNOTS) << fail.message;
    EXPECT_NEAR(fp, data.sum_of_squares(spline), 1e-8 * fp);
    const Integer rows = spline.nx - 4, columns = spline.ny - 4, count = rows * columns;
    const auto product = [&](Integer k, Integer r) {
        std::vector<double> unit(count);
        unit[k] = 1.0;
        const KorSpline2D one{spline.nx, spline.ny, spline.lamda, spline.mu, unit.data()};
        double value;
        KorError quiet{};
        e02dec(1, &data.x[r], &data.y[r], &value, &one, &quiet);
        return value;
    };
    Integer empty = 0;
    double size = 0.0;
    for (Integer k = 0; k < count; ++k) size = std::max(size, std::fabs(spline.c[k]));
    for (Integer k = 0; k < count; ++k) {
        double sum = 0.0, largest = 0.0;
        for (Integer r = 0; r < 160; ++r) {
            const double value = product(k, r);
            largest = std::max(largest, value);
            sum += value * (data.f[r] - spline.at(data.x[r], data.y[r]));
        }
        EXPECT_NEAR(sum, 0.0, 1e-9 * size);
        if (largest > 0.0) continue;
        ++empty;
        EXPECT_NEAR(spline.c[k], 0.0, 1e-9 * size);
    }
    EXPECT_GT(empty, 0);
    EXPECT_LE(rank, count - empty);
}

TEST(SmoothingScattered, RefusedData)
{
    Scattered data{60};
    Surface spline;
    Record fail;
    double fp = 99.0;
    Integer rank = -1;
    const auto fit = [&](Integer start, Integer m, double s, Integer nxest) {
        e02ddc(start, m, data.x.data(), data.y.data(), data.f.data(), data.w.data(), s, nxest, 14, &fp, &rank, nullptr,
               &spline, &fail);
        return fail.code;
    };
    EXPECT_EQ(fit(Kor_Shep, 60, 1.0, 14), NE_BAD_PARAM);
    EXPECT_EQ(fit(Kor_Cold, 15, 1.0, 14), NE_INT_ARG_LT);
    EXPECT_EQ(fit(Kor_Cold, 17, 1.0, 14), NE_NON_ZERO_WEIGHTS);
    EXPECT_EQ(fit(Kor_Cold, 60, 0.0, 14), NE_REAL_ARG_LE);
    EXPECT_EQ(fit(Kor_Cold, 60, 1.0, 7), NE_NUM_KNOTS_2D_LT);
    EXPECT_EQ(fit(Kor_Warm, 60, 1.0, 14), NE_ENUMTYPE_WARM);
    EXPECT_EQ(fp, 99.0);
    EXPECT_EQ(spline.c, nullptr);
    {
        Surface limited;
        e02ddc(Kor_Cold, 60, data.x.data(), data.y.data(), data.f.data(), data.w.data(), 1e-4, 9, 8, &fp, &rank,
               nullptr, &limited, &fail);
        EXPECT_REPORT(fail, NE_NUM_KNOTS_2D_GT_SCAT, "nxest", "nyest", "5+sqrt(m)", 9, 8, 1e-4);
        Surface crowded;
        e02ddc(Kor_Cold, 60, data.x.data(), data.y.data(), data.f.data(), data.w.data(), 1e-40, 900000000, 900000000,
               &fp, &rank, nullptr, &crowded, &fail);
        EXPECT_TRUE(fail.code == NE_NUM_COEFF_GT || fail.code == NE_NO_ADDITIONAL_KNOTS ||
                    fail.code == NE_SPLINE_COEFF_CONV)
            << fail.message;
    }
    data.y[30] = kNaN;
    EXPECT_EQ(fit(Kor_Cold, 60, 1.0, 14), NE_REAL_ARRAY_CONS);
    data.y.assign(60, 2.0);
    EXPECT_EQ(fit(Kor_Cold, 60, 1.0, 14), NE_ALL_ELEMENTS_EQUAL);
}

} // namespace
