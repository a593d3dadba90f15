// The bivariate and the multivariate normal law.
#include <kor/g01.h>

#include <array>
#include <cmath>
#include <limits>
#include <vector>

#include "support/expect_report.hpp"

namespace {

using kor::testing::Record;

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kPi = 3.14159265358979323846;

struct Reference {
    double x, y, rho, p;
};

constexpr Reference kReferences[] = {
#include "bivariate_normal_data.inc"
};

TEST(BivariateNormal, AgreesWithTheReferences)
{
    Record fail;
    for (const Reference &r : kReferences) {
        EXPECT_NEAR(g01hac(r.x, r.y, r.rho, &fail), r.p, 3e-16) << r.x << " " << r.y << " " << r.rho;
        EXPECT_NEAR(g01hac(r.y, r.x, r.rho, &fail), r.p, 3e-16) << r.x << " " << r.y << " " << r.rho;
    }
    EXPECT_SUCCESS(fail);
}

TEST(BivariateNormal, ClosedForms)
{
    Record fail;
    const auto phi = [&](double x) { return g01eac(Kor_LowerTail, x, &fail); };
    for (const double rho : {-1.0, -0.93, -0.5, 0.1, 0.924, 0.926, 1.0 - 1e-12, 1.0})
        EXPECT_NEAR(g01hac(0.0, 0.0, rho, &fail), 0.25 + std::asin(rho) / (2.0 * kPi), 1e-16) << rho;
    for (const double x : {-3.0, 0.5, 2.0})
        for (const double y : {-2.0, 0.5, 1.5}) {
            EXPECT_EQ(g01hac(x, y, 0.0, &fail), phi(x) * phi(y));
            EXPECT_EQ(g01hac(x, y, 1.0, &fail), phi(std::fmin(x, y)));
            EXPECT_NEAR(g01hac(x, y, -1.0, &fail), std::fmax(0.0, phi(x) + phi(y) - 1.0), 3e-16);
            for (const double rho : {-0.99, -0.3, 0.6, 0.97}) // the rest of the half-plane
                EXPECT_NEAR(g01hac(x, y, rho, &fail) + g01hac(x, -y, -rho, &fail), phi(x), 4e-16) << x << y << rho;
        }
    EXPECT_EQ(g01hac(kInfinity, 0.5, 0.3, &fail), phi(0.5));
    EXPECT_EQ(g01hac(kInfinity, -kInfinity, 0.3, &fail), 0.0);
    EXPECT_EQ(g01hac(1e308, 1e308, 0.3, &fail), 1.0);
    EXPECT_EQ(g01hac(-1e308, 37.0, -0.3, &fail), 0.0);
    EXPECT_TRUE(std::isnan(g01hac(kNan, 0.0, 0.0, &fail)));
    EXPECT_SUCCESS(fail);
    EXPECT_EQ(g01hac(0.0, 0.0, 1.5, &fail), 0.0);
    EXPECT_REPORT(fail, NE_REAL_ARG_CONS, "rho", 1.5, "-1.0 <= rho <= 1.0");
}

using Matrix = std::vector<double>;

Matrix equicorrelated(Integer n, double rho)
{
    Matrix sig(n * n, rho);
    for (Integer i = 0; i < n; ++i) sig[i * n + i] = 1.0;
    return sig;
}

double box(Integer tail, const std::vector<double> &a, const std::vector<double> &b, const Matrix &sig, double tol,
           Integer maxpts, Record &fail)
{
    const auto n = static_cast<Integer>(a.size());
    const std::vector<double> mean(n, 0.0);
    return g01hbc(tail, n, a.data(), b.data(), mean.data(), sig.data(), n, tol, maxpts, &fail);
}

// Equal correlations rho: given what is common to all, the variables are independent. The trapezoidal rule is exact.
double conditional_product(const std::vector<double> &a, const std::vector<double> &b, double rho)
{
    Record fail;
    double sum = 0.0;
    constexpr double kStep = 1.0 / 64.0;
    for (double z = -9.0; z <= 9.0; z += kStep) {
        double product = std::exp(-0.5 * z * z) / std::sqrt(2.0 * kPi) * kStep;
        for (std::size_t i = 0; i < a.size(); ++i) {
            const auto conditional = [&](double limit) { return (limit - std::sqrt(rho) * z) / std::sqrt(1.0 - rho); };
            product *=
                g01eac(Kor_LowerTail, conditional(b[i]), &fail) - g01eac(Kor_LowerTail, conditional(a[i]), &fail);
        }
        sum += product;
    }
    return sum;
}

TEST(MultivariateNormal, EqualCorrelations)
{
    const std::vector<double> a{-1.0, -0.5, -2.0, -kInfinity, 0.25}, b{0.75, 2.0, 1.0, 0.5, kInfinity};
    const double tolerance[] = {0.0, 0.0, 1e-15, 1e-11, 1e-6, 1e-4};
    for (std::size_t n = 1; n <= 5; ++n) {
        const std::vector<double> low(a.begin(), a.begin() + n), high(b.begin(), b.begin() + n);
        for (const double rho : {0.1, 0.7}) {
            Record fail;
            const double p =
                box(Kor_Central, low, high, equicorrelated(n, rho), std::fmax(tolerance[n], 1e-12), 100000, fail);
            EXPECT_SUCCESS(fail);
            EXPECT_NEAR(p / conditional_product(low, high, rho), 1.0, tolerance[n] + 4e-15) << n << " " << rho;
        }
    }
}

TEST(MultivariateNormal, TailsMeansAndStrides)
{
    Record fail;
    // An orthant of correlation 1/2 has probability 1 / (n + 1), and the ten-dimensional cube is no longer easy.
    for (Integer n = 1; n <= 10; ++n) {
        const std::vector<double> zero(n, 0.0);
        for (const Integer tail : {Kor_LowerTail, Kor_UpperTail}) {
            const double p = box(tail, zero, zero, equicorrelated(n, 0.5), 1e-2, 30000, fail);
            EXPECT_SUCCESS(fail);
            EXPECT_NEAR(p * (n + 1.0), 1.0, n < 3 ? 4e-15 : 1e-2) << n;
        }
    }
    // Rows four apart, variances, means, and nothing read above the diagonal.
    const double sig[] = {4.0, kNan, kNan, kNan, 3.0, 9.0, kNan, kNan}, mean[] = {1.0, -2.0}, b[] = {2.0, 1.0};
    EXPECT_NEAR(g01hbc(Kor_LowerTail, 2, nullptr, b, mean, sig, 4, 1e-3, 0, &fail), g01hac(0.5, 1.0, 0.5, &fail),
                2e-16);
    const double low[] = {2.0}, high[] = {4.0};
    EXPECT_NEAR(g01hbc(Kor_Central, 1, low, high, mean, sig, 4, 0.0, 0, &fail),
                g01eac(Kor_LowerTail, 1.5, &fail) - g01eac(Kor_LowerTail, 0.5, &fail), 2e-16);
    // A box far out, whose probability is a difference of small tails.
    EXPECT_NEAR(box(Kor_Central, {10.0}, {10.5}, {1.0}, 1e-9, 0, fail) /
                    (g01eac(Kor_UpperTail, 10.0, &fail) - g01eac(Kor_UpperTail, 10.5, &fail)),
                1.0, 1e-15);
    EXPECT_TRUE(std::isnan(box(Kor_LowerTail, {0, 0, 0}, {0, kNan, 0}, equicorrelated(3, 0.5), 1e-6, 1000, fail)));
}

TEST(MultivariateNormal, BadArguments)
{
    Record fail;
    const std::vector<double> zero(11, 0.0), one(11, 1.0);
    const Matrix sig = equicorrelated(11, 0.5);
    const auto call = [&](Integer tail, Integer n, const double *a, const double *s, Integer tdsig, double tol,
                          Integer maxpts) {
        EXPECT_EQ(g01hbc(tail, n, a, one.data(), zero.data(), s, tdsig, tol, maxpts, &fail), 0.0);
    };
    call(Kor_TwoTailSignif, 3, zero.data(), sig.data(), 11, 1e-3, 100);
    EXPECT_REPORT(fail, NE_BAD_PARAM, "tail");
    call(Kor_Central, 0, zero.data(), sig.data(), 11, 1e-3, 100);
    EXPECT_REPORT(fail, NE_INT_ARG_CONS, "n", 0, "1 <= n <= 10");
    call(Kor_Central, 11, zero.data(), sig.data(), 11, 1e-3, 100);
    EXPECT_REPORT(fail, NE_INT_ARG_CONS, "n", 11, "1 <= n <= 10");
    call(Kor_Central, 3, zero.data(), sig.data(), 2, 1e-3, 100);
    EXPECT_REPORT(fail, NE_2_INT_ARG_LT, "tdsig", 2, "n", 3, "tdsig", "n");
    call(Kor_Central, 2, zero.data(), sig.data(), 11, 0.0, 100);
    EXPECT_REPORT(fail, NE_REAL_ARG_LE, "tol", "0.0", "tol", 0.0);
    call(Kor_Central, 3, zero.data(), sig.data(), 11, 1e-3, 11);
    EXPECT_REPORT(fail, NE_2_INT_ARG_CONS, "maxpts", 11, "n", 3, "maxpts >= 4*n", "n >= 3");
    call(Kor_Central, 2, one.data(), sig.data(), 11, 1e-3, 100);
    EXPECT_REPORT(fail, NE_2_REAL_ARRAYS_CONS, "a", 0, 1.0, "b", 0, 1.0,
                  "if tail = Kor_Central, a[i] < b[i], for i=0,1...,n-1");
    const double negative[] = {-1.0}, singular[] = {1.0, 0.0, 2.0, 4.0};
    call(Kor_Central, 1, zero.data(), negative, 1, 1e-3, 100);
    EXPECT_REPORT(fail, NE_NOT_POS_DEF);
    call(Kor_Central, 2, zero.data(), singular, 2, 1e-3, 100);
    EXPECT_REPORT(fail, NE_NOT_POS_DEF);
    // The accuracy asked for is out of reach: the value stands.
    const double p =
        box(Kor_LowerTail, {0, 0, 0, 0, 0, 0}, {0, 0, 0, 0, 0, 0}, equicorrelated(6, 0.5), 1e-9, 500, fail);
    EXPECT_REPORT(fail, NE_RES_NOT_ACC, "maxpts");
    EXPECT_NEAR(p, 1.0 / 7.0, 0.02);
}

} // namespace
