// Gaussian rules, tabulated data, cubature and Monte Carlo.
#include <cmath>
#include <limits>
#include <numbers>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <kor/d01.h>
#include <kor/g05.h>

#include "support/expect_report.hpp"

namespace kor::testing {
namespace {

constexpr Integer kOrders[] = {1, 2, 3, 4, 5, 6, 8, 10, 12, 14, 16, 20, 24, 32, 48, 64};
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

double power(double x, int k) { return std::pow(x, k); }

TEST(GaussRules, AreExactToTheirDegree)
{
    for (const Integer n : kOrders) {
        Record fail;
        std::vector<double> w(n), x(n);
        const double tolerance = 4e-16 * (n + 4);

        d01bbc(Kor_Legendre, -1.0, 1.0, n, w.data(), x.data(), &fail);
        EXPECT_SUCCESS(fail);
        for (int k = 0; k < 2 * n; ++k) {
            double sum = 0.0;
            for (Integer i = 0; i < n; ++i) sum += w[i] * power(x[i], k);
            EXPECT_NEAR(sum, k % 2 == 0 ? 2.0 / (k + 1.0) : 0.0, tolerance) << n << " " << k;
        }
        // exp(-t) t^k/k!: each moment is 1. Its peak must lie among the nodes, so that low powers are left out at high orders.
        d01bbc(Kor_Laguerre, 0.0, 1.0, n, w.data(), x.data(), &fail);
        for (int k = 0; k < std::min(2 * n, 60); ++k) {
            double sum = 0.0;
            for (Integer i = 0; i < n; ++i) sum += w[i] * std::exp(k * std::log(x[i]) - x[i] - std::lgamma(k + 1.0));
            EXPECT_NEAR(sum, 1.0, 1e-13) << n << " " << k;
        }
        d01bbc(Kor_Hermite, 0.5, 2.0, n, w.data(), x.data(), &fail);
        for (int k = 0; k < std::min(n, Integer{30}); ++k) {
            double sum = 0.0;
            for (Integer i = 0; i < n; ++i)
                sum += w[i] * std::exp(-2.0 * (x[i] - 0.5) * (x[i] - 0.5)) * power(x[i] - 0.5, 2 * k);
            EXPECT_NEAR(sum / std::exp(std::lgamma(k + 0.5) - (k + 0.5) * std::log(2.0)), 1.0, 1e-13) << n << " " << k;
        }
        // Sums of 1/(x + b)^i over (a, infinity).
        d01bbc(Kor_Rational, 1.0, 2.0, n, w.data(), x.data(), &fail);
        for (int i = 2; i <= 2 * n + 1; ++i) {
            double sum = 0.0;
            for (Integer j = 0; j < n; ++j) sum += w[j] * std::pow((x[j] + 2.0) / 3.0, -i);
            EXPECT_NEAR(sum * (i - 1.0) / 3.0, 1.0, 1e-14 * (n + i)) << n << " " << i;
        }
    }
}

TEST(GaussRules, OrdersThatAreNotStored)
{
    const auto f = [](double x) { return x * x * x * x; };
    Record fail;
    for (Integer npts = 1; npts <= 70; ++npts) {
        Integer used = 1;
        for (const Integer order : kOrders)
            if (order <= npts) used = order;
        const double value = d01bac(Kor_Legendre, f, 0.0, 1.0, npts, &fail);
        if (npts >= 3) {
            EXPECT_NEAR(value, 0.2, 1e-15);
        }
        if (used == npts)
            EXPECT_SUCCESS(fail);
        else
            EXPECT_REPORT(fail, NE_QUAD_GAUSS_NPTS_RULE, used, npts);
        std::vector<double> w(npts, kNan), x(npts, kNan);
        d01bbc(Kor_Legendre, 0.0, 1.0, npts, w.data(), x.data(), &fail);
        EXPECT_EQ(fail.code, used == npts ? NE_NOERROR : NE_QUAD_GAUSS_NPTS_RULE);
        for (Integer i = used; i < npts; ++i) EXPECT_EQ(w[i], 0.0);
    }
}

TEST(GaussRules, FamiliesAndRefusals)
{
    Record fail;
    const auto decay = [](double x, void *) { return std::exp(-x) * std::cos(x); };
    EXPECT_NEAR(d01tac(Kor_Laguerre, decay, 0.0, 1.0, 32, nullptr, &fail), 0.5, 1e-9);
    const auto growth = [](double x) { return std::exp(2.0 * x); };
    EXPECT_NEAR(d01bac(Kor_Laguerre, growth, 1.0, -2.0, 8, &fail), 0.5 * std::exp(2.0), 1e-13);
    EXPECT_NEAR(d01bac(
                    Kor_Rational, [](double x) { return 1.0 / (x * x); }, -2.0, 0.0, 8, &fail),
                0.5, 1e-14);
    EXPECT_NEAR(d01bac(
                    Kor_Legendre, [](double x) { return x * x; }, 2.0, -1.0, 4, &fail),
                -3.0, 1e-14);

    const auto one = [](double) { return 1.0; };
    EXPECT_EQ(d01bac(Kor_Cosine, one, 0.0, 1.0, 4, &fail), 0.0);
    EXPECT_REPORT(fail, NE_BAD_PARAM, "quadrule");
    d01bac(Kor_Legendre, one, 0.0, 1.0, 0, &fail);
    EXPECT_REPORT(fail, NE_INT_ARG_LT, "npts", "1", "npts", 0);
    d01bac(Kor_Rational, one, 1.0, -1.0, 4, &fail);
    EXPECT_REPORT(fail, NE_QUAD_GAUSS_CONS, "Rational", "a+b != 0", "a+b = ", 0.0);
    d01bac(Kor_Laguerre, one, 1.0, 0.0, 4, &fail);
    EXPECT_REPORT(fail, NE_QUAD_GAUSS_CONS, "Laguerre", "b != 0", "b = ", 0.0);
    double w[4] = {7.0}, x[4] = {7.0};
    d01bbc(Kor_Hermite, 1.0, -2.0, 4, w, x, &fail);
    EXPECT_REPORT(fail, NE_QUAD_GAUSS_CONS, "Hermite", "b > 0", "b = ", -2.0);
    EXPECT_EQ(w[0], 7.0);
    d01bbc(Kor_Laguerre, 0.0, 1e308 * 1.7, 4, w, x, &fail);
    EXPECT_SUCCESS(fail);
}

TEST(TabulatedData, CubicsAreExactAndTheEstimateIsHonest)
{
    std::mt19937_64 random{3};
    std::uniform_real_distribution<double> step{0.05, 1.0};
    for (const int n : {4, 5, 6, 9, 40}) {
        std::vector<double> x(n), y(n);
        x[0] = -1.3;
        for (int i = 1; i < n; ++i) x[i] = x[i - 1] + step(random);
        for (const int degree : {0, 1, 2, 3, 4}) {
            for (int i = 0; i < n; ++i) y[i] = power(x[i], degree);
            const double exact = (power(x[n - 1], degree + 1) - power(x[0], degree + 1)) / (degree + 1);
            Record fail;
            double ans, er;
            d01gac(n, x.data(), y.data(), &ans, &er, &fail);
            EXPECT_SUCCESS(fail);
            if (degree < 4 || n > 4) { // the correction makes quartics exact, too
                EXPECT_NEAR(ans, exact, 1e-13 * std::max(1.0, std::fabs(exact)) * n) << n << " " << degree;
            }
            if (degree < 4) {
                EXPECT_NEAR(er, 0.0, 1e-12 * std::max(1.0, std::fabs(exact))) << n << " " << degree;
            }
            std::vector<double> backward_x(x.rbegin(), x.rend()), backward_y(y.rbegin(), y.rend());
            double backward;
            d01gac(n, backward_x.data(), backward_y.data(), &backward, &er, &fail);
            EXPECT_NEAR(backward, -ans, 1e-12 * std::max(1.0, std::fabs(exact)));
        }
    }
    // Smooth functions on uneven grids: the true error is within the estimate.
    for (const int n : {8, 20, 60}) {
        std::vector<double> x(n), y(n);
        for (int i = 0; i < n; ++i) {
            x[i] = 3.0 * std::pow(i / (n - 1.0), 1.4);
            y[i] = std::exp(-x[i]) * std::cos(2.0 * x[i]);
        }
        const auto primitive = [](double t) {
            return std::exp(-t) * (2.0 * std::sin(2.0 * t) - std::cos(2.0 * t)) / 5.0;
        };
        Record fail;
        double ans, er;
        d01gac(n, x.data(), y.data(), &ans, &er, &fail);
        EXPECT_LE(std::fabs(ans - (primitive(3.0) - primitive(0.0))), er) << n;
    }
}

TEST(TabulatedData, TheEstimateCoversNoiseAndUnevenGrids)
{
    std::mt19937_64 random{11};
    std::uniform_real_distribution<double> step{0.02, 1.0};
    std::normal_distribution<double> normal;
    const auto primitive = [](double t) { return std::exp(-t) * (2.0 * std::sin(2.0 * t) - std::cos(2.0 * t)) / 5.0; };
    for (const bool even : {true, false})
        for (const double noise : {0.0, 1e-8, 1e-4, 1e-2})
            for (const int n : {10, 30, 200}) {
                constexpr int kTrials = 200;
                int within = 0;
                for (int trial = 0; trial < kTrials; ++trial) {
                    std::vector<double> x(n), y(n);
                    for (int i = 1; i < n; ++i) x[i] = x[i - 1] + (even ? 1.0 : step(random));
                    for (double &t : x) t *= 3.0 / x.back();
                    x.back() = 3.0;
                    for (int i = 0; i < n; ++i) y[i] = std::exp(-x[i]) * std::cos(2.0 * x[i]) + noise * normal(random);
                    Record fail;
                    double ans, er;
                    d01gac(n, x.data(), y.data(), &ans, &er, &fail);
                    within += std::fabs(ans - (primitive(3.0) - primitive(0.0))) <= er;
                }
                EXPECT_GE(within, 0.92 * kTrials) << n << " points, noise " << noise; // 0.954 expected of pure noise
            }
}

TEST(TabulatedData, Refusals)
{
    Record fail;
    double ans = 7.0, er = 7.0;
    const double x[] = {0.0, 1.0, 1.0, 2.0}, y[] = {1.0, 1.0, 1.0, 1.0}, down[] = {3.0, 2.0, 2.5, 0.0},
                 equal[] = {1.0, 1.0, 2.0, 3.0};
    d01gac(3, x, y, &ans, &er, &fail);
    EXPECT_REPORT(fail, NE_INT_ARG_LT, "n", "4", "n", 3);
    d01gac(4, equal, y, &ans, &er, &fail);
    EXPECT_REPORT(fail, NE_QUAD_FIRST_TWO_PTS_EQL, 1.0, 1.0);
    d01gac(4, x, y, &ans, &er, &fail);
    EXPECT_REPORT(fail, NE_NOT_STRICTLY_INCREASING, "x", "x", 1, 1.0, "x", 2, 1.0);
    d01gac(4, down, y, &ans, &er, &fail);
    EXPECT_REPORT(fail, NE_NOT_STRICTLY_DECREASING, "x", "x", 1, 2.0, "x", 2, 2.5);
    EXPECT_EQ(ans, 7.0);
}

// The six families of A. C. Genz (1984), with difficulties shared by the variables.
struct Genz {
    const char *name;
    double (*f)(Integer n, const double x[]);
    double (*exact)(Integer n);
};
constexpr double kShift = 0.3;
double slope(Integer n) { return n <= 5 ? 1.2 : 6.0 / n; } // as hard in all, however many share it
const Genz kGenz[] = {
    {"oscillatory",
     [](Integer n, const double x[]) {
         const double c = slope(n);
         double sum = 0.7;
         for (Integer i = 0; i < n; ++i) sum += c * x[i];
         return std::cos(sum);
     },
     [](Integer n) {
         const double c = slope(n);
         const double factor = 2.0 * std::sin(0.5 * c) / c;
         return std::pow(factor, n) * std::cos(0.7 + 0.5 * c * n);
     }},
    {"product peak",
     [](Integer n, const double x[]) {
         const double c = slope(n);
         double product = 1.0;
         for (Integer i = 0; i < n; ++i) product /= 1.0 / (c * c) + (x[i] - kShift) * (x[i] - kShift);
         return product;
     },
     [](Integer n) {
         const double c = slope(n);
         return std::pow(c * (std::atan(c * (1.0 - kShift)) + std::atan(c * kShift)), n);
     }},
    {"corner peak",
     [](Integer n, const double x[]) {
         double sum = 1.0;
         for (Integer i = 0; i < n; ++i) sum += slope(n) * x[i];
         return std::pow(sum, -(n + 1));
     },
     [](Integer n) {
         double product = 1.0;
         for (Integer k = 0; k <= n; ++k) product *= 1.0 + k * slope(n);
         return 1.0 / product;
     }},
    {"Gaussian",
     [](Integer n, const double x[]) {
         const double c = slope(n);
         double sum = 0.0;
         for (Integer i = 0; i < n; ++i) sum += c * c * (x[i] - kShift) * (x[i] - kShift);
         return std::exp(-sum);
     },
     [](Integer n) {
         const double c = slope(n);
         return std::pow(
             std::sqrt(std::numbers::pi) / (2.0 * c) * (std::erf(c * (1.0 - kShift)) + std::erf(c * kShift)), n);
     }},
    {"continuous",
     [](Integer n, const double x[]) {
         const double c = slope(n);
         double sum = 0.0;
         for (Integer i = 0; i < n; ++i) sum += c * std::fabs(x[i] - kShift);
         return std::exp(-sum);
     },
     [](Integer n) {
         const double c = slope(n);
         return std::pow((2.0 - std::exp(-c * kShift) - std::exp(-c * (1.0 - kShift))) / c, n);
     }},
    {"discontinuous",
     [](Integer n, const double x[]) {
         const double c = slope(n);
         if (x[0] > kShift || x[1] > kShift) return 0.0;
         double sum = 0.0;
         for (Integer i = 0; i < n; ++i) sum += c * x[i];
         return std::exp(sum);
     },
     [](Integer n) {
         const double c = slope(n);
         return std::pow(std::expm1(c * kShift) / c, 2) * std::pow(std::expm1(c) / c, n - 2);
     }},
};

TEST(Cubature, GenzFamilies)
{
    int all = 0, honest = 0;
    for (const Genz &family : kGenz)
        for (const Integer n : {2, 3, 5, 8, 10, 12, 15}) {
            const std::vector<double> a(n, 0.0), b(n, 1.0);
            const bool smooth = family.name != std::string{"continuous"} && family.name != std::string{"discontinuous"};
            const double eps = !smooth || n >= 8 ? 1e-2 : n == 5 ? 1e-4 : 1e-6;
            Record fail;
            double acc, value;
            d01fcc(n, family.f, a.data(), b.data(), 0, 300000, eps, &acc, &value, &fail);
            const double error = std::fabs(value - family.exact(n));
            ++all;
            honest += error <= std::max(acc, 1e-14) * std::fabs(value);
            if (fail.code == NE_NOERROR) {
                EXPECT_LE(error, eps * std::fabs(value)) << family.name << " " << n;
            }
            if (smooth && n <= 8) {
                EXPECT_SUCCESS(fail) << family.name << " " << n;
            }
        }
    EXPECT_GE(honest, 0.95 * all) << all;
}

TEST(Cubature, IsExactToDegreeSeven)
{
    for (const Integer n : {2, 3, 6, 10, 15}) {
        const std::vector<double> a(n, -0.5), b(n, 1.5);
        Record fail;
        double acc, value;
        // x0^4 x1^2 (x_last + 1), one application of the rule.
        const auto monomial = [](Integer m, const double x[]) {
            return power(x[0], 4) * power(x[1], 2) * (x[m - 1] + (m > 2));
        };
        const Integer points = (1 << n) + 2 * n * n + 2 * n + 1;
        d01fcc(n, monomial, a.data(), b.data(), 0, points, 1e-3, &acc, &value, &fail);
        const auto moment = [](int k) { return (power(1.5, k + 1) - power(-0.5, k + 1)) / (k + 1); };
        const double exact =
            n == 2 ? moment(4) * moment(3) : moment(4) * moment(2) * (moment(1) + 2.0) * std::pow(2.0, n - 3);
        EXPECT_NEAR(value / exact, 1.0, 1e-11) << n;
        EXPECT_REPORT(fail, NE_QUAD_MAX_INTEGRAND_EVAL, "maxpts", points);
        std::vector<double> turned_a = a, turned_b = b;
        std::swap(turned_a[1], turned_b[1]);
        double turned;
        d01fcc(n, monomial, turned_a.data(), turned_b.data(), 0, points, 1e-3, &acc, &turned, &fail);
        EXPECT_EQ(turned, -value);
    }
}

TEST(Cubature, CountsAndRefusals)
{
    static long calls;
    const auto f = [](Integer, const double x[], void *) {
        ++calls;
        return x[0] + x[1];
    };
    const double a[] = {0.0, 0.0}, b[] = {1.0, 1.0};
    Record fail;
    double acc = 7.0, value = 7.0;
    calls = 0;
    d01wcc(2, f, a, b, 500, 1000, 1e-6, &acc, &value, nullptr, &fail);
    EXPECT_SUCCESS(fail);
    EXPECT_GE(calls, 500);
    EXPECT_LE(calls, 1000);
    EXPECT_NEAR(value, 1.0, 1e-14);
    acc = value = 7.0;
    for (const Integer n : {1, 16, -2}) {
        d01wcc(n, f, a, b, 0, 1000, 1e-6, &acc, &value, nullptr, &fail);
        EXPECT_REPORT(fail, NE_INVALID_INT_RANGE_2, n, "ndim", 2, "<= ndim <=", 15);
    }
    d01wcc(2, f, a, b, 10, 5, -1.0, &acc, &value, nullptr, &fail);
    EXPECT_REPORT(fail, NE_2_INT_ARG_LT, "maxpts", 5, "minpts", 10, "maxpts", "minpts");
    d01wcc(2, f, a, b, 1, 5, 0.0, &acc, &value, nullptr, &fail);
    EXPECT_REPORT(fail, NE_REAL_ARG_LE, "eps", "0.0", "eps", 0.0);
    d01wcc(2, f, a, b, 1, 16, 1e-3, &acc, &value, nullptr, &fail);
    EXPECT_REPORT(fail, NE_QUAD_MAX_INTEGRAND_CONS, "maxpts", 16, 17);
    EXPECT_EQ(value, 7.0);
    calls = 0;
    const auto nan = [](Integer, const double[], void *) {
        ++calls;
        return kNan;
    };
    d01wcc(2, nan, a, b, 1, 1000, 1e-3, &acc, &value, nullptr, &fail);
    EXPECT_EQ(fail.code, NE_QUAD_MAX_INTEGRAND_EVAL);
    EXPECT_LE(calls, 1000);
}

TEST(MonteCarlo, ErrorsAreWithinThreeStandardErrorsAtTheProperRate)
{
    int all = 0, within_one = 0, within_three = 0;
    for (const Genz &family : kGenz)
        for (const Integer method : {Kor_OneIteration, Kor_ManyIterations})
            for (const Integer cont : {Kor_Cold, Kor_Hot})
                for (Integer seed = 1; seed <= 20; ++seed) {
                    const Integer n = 4;
                    const std::vector<double> a(n, 0.0), b(n, 1.0);
                    g05cbc(seed);
                    Record fail;
                    double value = 0.0, error = 0.0;
                    d01gbc(n, family.f, method, cont, a.data(), b.data(), 100, 8000, 0.0, 128, &value, &error, &fail);
                    EXPECT_REPORT(fail, NE_QUAD_MAX_INTEGRAND_EVAL, "maxcls", 8000);
                    const double gap = std::fabs(value - family.exact(n)) / error;
                    ++all;
                    within_one += gap <= 1.0;
                    within_three += gap <= 3.0;
                }
    EXPECT_GE(within_three, 0.985 * all) << all; // 0.997 expected
    EXPECT_NEAR(within_one, 0.683 * all, 0.07 * all);
}

TEST(MonteCarlo, TheErrorFallsWithTheRootOfTheWork)
{
    const auto smooth = [](Integer, const double x[]) { return std::exp(x[0] * x[1] - x[2]); };
    const double a[] = {0.0, 0.0, 0.0}, b[] = {1.0, 1.0, 1.0};
    g05cbc(5);
    Record fail;
    double value, error[2];
    for (const Integer method : {Kor_OneIteration, Kor_ManyIterations}) {
        for (int i = 0; i < 2; ++i)
            d01gbc(3, smooth, method, Kor_Cold, a, b, 1, i == 0 ? 5000 : 500000, 0.0, 1, &value, &error[i], &fail);
        EXPECT_NEAR(error[0] / error[1], 10.0, 1.0);
    }
}

TEST(MonteCarlo, StrataReduceTheError)
{
    const auto peak = [](Integer, const double x[]) {
        return std::exp(-50.0 * ((x[0] - 0.2) * (x[0] - 0.2) + (x[1] - 0.7) * (x[1] - 0.7)));
    };
    const double a[] = {0.0, 0.0}, b[] = {1.0, 1.0};
    Record fail;
    g05cbc(9);
    double value, plain, stratified;
    d01gbc(2, peak, Kor_ManyIterations, Kor_Cold, a, b, 1, 20000, 0.0, 1, &value, &plain, &fail);
    d01gbc(2, peak, Kor_ManyIterations, Kor_Cold, a, b, 1, 20000, 0.0, 1000, &value, &stratified, &fail);
    EXPECT_LT(stratified, 0.3 * plain);
}

TEST(MonteCarlo, ContinuesAnEarlierEstimate)
{
    static long calls;
    const auto f = [](Integer n, const double x[], void *) {
        ++calls;
        double sum = 0.0;
        for (Integer i = 0; i < n; ++i) sum += x[i] * x[i];
        return sum;
    };
    const std::vector<double> a(5, 0.0), b(5, 1.0);
    Record fail;
    g05cbc(4);
    double value = 0.0, error = 0.0;
    calls = 0;
    d01xbc(5, f, Kor_ManyIterations, Kor_Cold, a.data(), b.data(), 500, 50000, 0.005, 64, &value, &error, nullptr,
           &fail);
    EXPECT_SUCCESS(fail);
    EXPECT_GE(calls, 500);
    EXPECT_LE(error, 0.005 * value);
    const double first = error;
    for (int i = 0; i < 3; ++i)
        d01xbc(5, f, Kor_ManyIterations, Kor_Warm, a.data(), b.data(), 500, 5000, 0.0, 64, &value, &error, nullptr,
               &fail);
    EXPECT_LT(error, first);
    EXPECT_NEAR(value, 5.0 / 3.0, 4.0 * error);
    // A perfect earlier estimate outweighs everything.
    value = 1.0;
    error = 1e-12;
    d01xbc(5, f, Kor_OneIteration, Kor_Warm, a.data(), b.data(), 500, 5000, 0.5, 64, &value, &error, nullptr, &fail);
    EXPECT_NEAR(value, 1.0, 1e-9);
}

TEST(MonteCarlo, Refusals)
{
    const auto f = [](Integer, const double[]) { return 1.0; };
    const double a[] = {0.0}, b[] = {1.0};
    Record fail;
    double value = 7.0, error = 8.0;
    d01gbc(0, f, 0, 0, a, b, 10, 5, -1.0, 0, &value, &error, &fail);
    EXPECT_REPORT(fail, NE_INT_ARG_LT, "ndim", "1", "ndim", 0);
    d01gbc(1, f, 0, 0, a, b, 10, 5, -1.0, 0, &value, &error, &fail);
    EXPECT_REPORT(fail, NE_REAL_ARG_LT, "eps", "0.0", "eps", -1.0);
    d01gbc(1, f, 0, 0, a, b, 10, 5, 0.1, 0, &value, &error, &fail);
    EXPECT_REPORT(fail, NE_BAD_PARAM, "method");
    d01gbc(1, f, Kor_OneIteration, 0, a, b, 10, 5, 0.1, 0, &value, &error, &fail);
    EXPECT_REPORT(fail, NE_BAD_PARAM, "cont");
    d01gbc(1, f, Kor_OneIteration, Kor_Cold, a, b, 10, 5, 0.1, 0, &value, &error, &fail);
    EXPECT_REPORT(fail, NE_2_INT_ARG_LT, "maxcls", 5, "4*(ndim+1)", 8, "maxcls", "4*(ndim+1)");
    d01gbc(1, f, Kor_OneIteration, Kor_Cold, a, b, 10, 10, 0.1, 0, &value, &error, &fail);
    EXPECT_REPORT(fail, NE_2_INT_ARG_GE, "mincls", 10, "maxcls", 10, "mincls", "maxcls");
    d01gbc(1, f, Kor_OneIteration, Kor_Cold, a, b, 9, 10, 0.1, 0, &value, &error, &fail);
    EXPECT_REPORT(fail, NE_QUAD_MAX_INTEGRAND_EVAL, "maxlcs", 0);
    EXPECT_EQ(value, 7.0);
    EXPECT_EQ(error, 8.0);
    for (const Integer method : {Kor_OneIteration, Kor_ManyIterations})
        for (Integer most = 8; most < 400; most += 7) {
            static Integer calls;
            calls = 0;
            const auto counted = [](Integer, const double[]) { return ++calls, 1.0; };
            d01gbc(1, counted, method, Kor_Cold, a, b, 1, most, 0.0, 50, &value, &error, &fail);
            EXPECT_SUCCESS(fail); // a constant is integrated without error
            EXPECT_LE(calls, most);
            EXPECT_NEAR(value, 1.0, 1e-12);
        }
}

} // namespace
} // namespace kor::testing
