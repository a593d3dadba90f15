// Zeros of polynomials: the set of zeros, multiplied out again in extended precision, gives the coefficients back.
#include <algorithm>
#include <cmath>
#include <complex>
#include <functional>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <kor/c02.h>
#include <kor/x02.h>

#include "support/expect_report.hpp"

namespace kor::testing {
namespace {

using Wide = std::complex<long double>;
using Coefficients = std::vector<double>;

constexpr double kEps = 0x1p-53;
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
const double kMarker = -1.0 / (x02amc() * 1.4142135623730951);

Coefficients from_zeros(const std::vector<double> &zeros)
{
    std::vector<long double> a{1.0L};
    for (const double z : zeros) {
        a.push_back(0.0L);
        for (std::size_t k = a.size() - 1; k > 0; --k) a[k] -= z * a[k - 1];
    }
    return {a.begin(), a.end()};
}

Coefficients chebyshev(int n)
{
    std::vector<double> before{1.0}, now{1.0, 0.0};
    for (int k = 1; k < n; ++k) {
        std::vector<double> next = now;
        next.push_back(0.0);
        for (double &c : next) c *= 2.0;
        for (std::size_t i = 0; i < before.size(); ++i) next[i + 2] -= before[i];
        before = now;
        now = next;
    }
    return now;
}

std::vector<std::pair<std::string, Coefficients>> polynomials()
{
    std::mt19937_64 random{7};
    std::normal_distribution<double> normal;
    std::uniform_real_distribution<double> exponent{-300.0, 300.0};
    const auto made = [](int n, const std::function<double(int)> &coefficient) {
        Coefficients a(n + 1);
        for (int k = 0; k <= n; ++k) a[k] = coefficient(k);
        return a;
    };
    std::vector<double> wilkinson(20), cluster{3.0, 4.0};
    for (int k = 0; k < 20; ++k) wilkinson[k] = k + 1.0;
    for (int k = 0; k < 8; ++k) cluster.push_back(1.0 + 1e-4 * k);
    return {
        {"Wilkinson 20", from_zeros(wilkinson)},
        {"tenfold", from_zeros(std::vector<double>(10, 1.0))},
        {"twentyfold", from_zeros(std::vector<double>(20, -0.75))},
        {"double and simple", from_zeros({2.0, 2.0, -3.0, 0.5, 0.5, 7.0})},
        {"cluster", from_zeros(cluster)},
        {"Chebyshev 40", chebyshev(40)},
        {"truncated exponential", made(30, [](int k) { return 1.0 / std::tgamma(31.0 - k); })},
        {"roots of unity", made(60, [](int k) { return k == 0    ? 1.0
                                                       : k == 60 ? -1.0
                                                                 : 0.0; })},
        {"sparse", made(90, [](int k) { return k == 0    ? 1.0
                                               : k == 40 ? 3.0
                                               : k == 90 ? -2.0
                                                         : 0.0; })},
        {"zeros of two sizes",
         {0x1.3017c7219f4dap-2, 0x1.633b84481df1ep+22, 0x1.120c92b3ad16cp-23, 0x1.130ab7339cee6p-24,
          -0x1.082f1691c58f7p+1}},
        {"zeros at zero", {1.0, 2.0, 3.0, 4.0, 0.0, 0.0}},
        {"random", made(80, [&](int) { return normal(random); })},
        {"600 decades",
         made(30, [&](int) { return std::pow(10.0, exponent(random)) * (normal(random) > 0.0 ? 1 : -1); })},
        {"linear", {3.0, -2.0}},
        {"quadratic", {1.0, -1e8, 1.0}},
        {"quadratic, complex", {2.0, 1.0, 3.0}},
    };
}

// Largest error of the coefficients that the zeros stand for, in eps of the same product with all terms positive.
double coefficient_error(const std::vector<Wide> &a, const std::vector<Complex> &z)
{
    std::vector<Wide> product{a[0]};
    std::vector<long double> size{std::abs(a[0])};
    for (const Complex &zero : z) {
        const Wide w{zero.re, zero.im};
        product.emplace_back(0.0L);
        size.push_back(0.0L);
        for (std::size_t k = product.size() - 1; k > 0; --k) {
            product[k] -= w * product[k - 1];
            size[k] += std::abs(w) * size[k - 1];
        }
    }
    long double worst = 0.0L;
    for (std::size_t k = 0; k < a.size(); ++k)
        if (const long double error = std::abs(product[k] - a[k]); error > 0.0L)
            worst = std::max(worst, error / size[k]);
    return static_cast<double>(worst) / kEps;
}

// Largest |p(z)| in eps of the sum of its terms' moduli, evaluated inside the unit circle.
double value_error(const std::vector<Wide> &a, const std::vector<Complex> &z)
{
    long double worst = 0.0L;
    for (const Complex &zero : z) {
        const Wide w{zero.re, zero.im};
        const bool inside = std::abs(w) <= 1.0L;
        const Wide at = inside ? w : 1.0L / w;
        Wide p{};
        long double terms = 0.0L;
        for (std::size_t k = 0; k < a.size(); ++k) {
            const Wide &coefficient = inside ? a[k] : a[a.size() - 1 - k];
            p = p * at + coefficient;
            terms = terms * std::abs(at) + std::abs(coefficient);
        }
        worst = std::max(worst, std::abs(p) / terms);
    }
    return static_cast<double>(worst) / kEps;
}

void expect_conjugate_pairs(const std::vector<Complex> &z, const std::string &name)
{
    for (std::size_t i = 0; i < z.size(); ++i) {
        if (z[i].im == 0.0) continue;
        ASSERT_LT(i + 1, z.size()) << name;
        EXPECT_GT(z[i].im, 0.0) << name;
        EXPECT_EQ(z[i + 1].re, z[i].re) << name;
        EXPECT_EQ(z[i + 1].im, -z[i].im) << name;
        ++i;
    }
}

TEST(PolynomialZeros, GiveTheCoefficientsBack)
{
    for (const auto &[name, a] : polynomials()) {
        const int n = static_cast<int>(a.size()) - 1;
        for (const Boolean scale : {0, 1}) {
            Record fail;
            std::vector<Complex> z(n, Complex{99.0, 99.0});
            c02agc(n, a.data(), scale, z.data(), &fail);
            EXPECT_SUCCESS(fail) << name;
            const std::vector<Wide> wide(a.begin(), a.end());
            // The rounding of n zeros to double alone costs n/2.
            EXPECT_LE(coefficient_error(wide, z), 1.0 * n + 2.0) << name;
            EXPECT_LE(value_error(wide, z), 1.0 * n + 2.0) << name;
            expect_conjugate_pairs(z, name);

            // The same polynomial, turned and multiplied by a complex number.
            std::vector<Complex> b(n + 1);
            std::vector<Wide> wide_b(n + 1);
            for (int k = 0; k <= n; ++k) {
                b[k] = {0.6 * a[k], -0.8 * a[k]};
                wide_b[k] = {b[k].re, b[k].im};
            }
            c02afc(n, b.data(), scale, z.data(), &fail);
            EXPECT_SUCCESS(fail) << name;
            EXPECT_LE(coefficient_error(wide_b, z), 1.0 * n + 2.0) << name;
        }
    }
}

TEST(PolynomialZeros, DegreeOneThousand)
{
    std::mt19937_64 random{11};
    std::normal_distribution<double> normal;
    constexpr int n = 1000;
    Coefficients a(n + 1);
    for (double &c : a) c = normal(random);
    Record fail;
    std::vector<Complex> z(n);
    c02agc(n, a.data(), 1, z.data(), &fail);
    EXPECT_SUCCESS(fail);
    EXPECT_LE(value_error({a.begin(), a.end()}, z), n);
    expect_conjugate_pairs(z, "random 1000");
    // Each zero is found once: no two results lie together, as no two zeros do.
    std::sort(z.begin(), z.end(), [](Complex p, Complex q) { return p.re < q.re || (p.re == q.re && p.im < q.im); });
    for (int i = 0; i + 1 < n; ++i) EXPECT_GT(std::abs(Wide{z[i].re - z[i + 1].re, z[i].im - z[i + 1].im}), 1e-9L);
}

TEST(PolynomialZeros, ClosedForms)
{
    Record fail;
    Complex z[4];
    const double cube[] = {1.0, 0.0, 0.0, -8.0};
    c02agc(3, cube, 1, z, &fail);
    double real = 0.0;
    for (int i = 0; i < 3; ++i)
        if (z[i].im == 0.0) real = z[i].re;
    EXPECT_EQ(real, 2.0);
    const Complex square[] = {{1.0, 0.0}, {0.0, 0.0}, {0.0, -2.0}};
    c02afc(2, square, 1, z, &fail);
    EXPECT_NEAR(z[0].re * z[1].re, -1.0, 4e-16);
    EXPECT_NEAR(z[0].im * z[1].im, -1.0, 4e-16);
}

TEST(PolynomialZeros, Refusals)
{
    Record fail;
    Complex z[3] = {{7.0, 7.0}, {7.0, 7.0}, {7.0, 7.0}};
    double a[] = {0.0, 1.0, 2.0, 3.0};
    Complex c[] = {{0.0, -0.0}, {1.0, 0.0}, {2.0, 0.0}, {3.0, 0.0}};
    for (const Integer n : {0, -5}) {
        c02agc(n, a, 1, z, &fail);
        EXPECT_REPORT(fail, NE_INT_ARG_LT, "n", "1", "n", n);
        c02afc(n, c, 1, z, &fail);
        EXPECT_REPORT(fail, NE_INT_ARG_LT, "n", "1", "n", n);
    }
    c02agc(3, a, 1, z, &fail);
    EXPECT_REPORT(fail, NE_REAL_ARG_LE, "a[0]", "0.0", "a[0]", 0.0);
    c02afc(3, c, 1, z, &fail);
    EXPECT_REPORT(fail, NE_COMPLEX_ZERO, "a[0]");
    EXPECT_EQ(z[2].im, 7.0);

    for (const double odd : {kNan, static_cast<double>(INFINITY)})
        for (int where = 0; where < 4; ++where) {
            Coefficients b{1.0, 2.0, 3.0, 4.0};
            b[where] = odd;
            c02agc(3, b.data(), 1, z, &fail);
            EXPECT_REPORT(fail, NE_POLY_NOT_CONV);
            EXPECT_EQ(z[0].re, kMarker);
            Complex d[4] = {{1.0, 2.0}, {2.0, 2.0}, {3.0, 2.0}, {4.0, 2.0}};
            d[where].im = odd;
            c02afc(3, d, 1, z, &fail);
            EXPECT_REPORT(fail, NE_POLY_NOT_CONV);
            EXPECT_EQ(z[2].im, kMarker);
        }
}

TEST(PolynomialZeros, ZerosThatAreNoDoublesKeepTheMarker)
{
    Record fail;
    Complex z[3];
    const double huge[] = {1e-300, 1.0, 1e300}; // zeros near -1e300: both doubles
    c02agc(2, huge, 1, z, &fail);
    EXPECT_SUCCESS(fail);
    const double beyond[] = {1e-300, 1e300, 1.0, 1.0}; // one near -1e600
    c02agc(3, beyond, 1, z, &fail);
    EXPECT_REPORT(fail, NE_POLY_OVFLOW);
    EXPECT_EQ(std::count_if(z, z + 3, [](Complex w) { return w.re == kMarker && w.im == kMarker; }), 1);
    const double below[] = {1.0, 1.0, 1e300, 1e-300}; // one near -1e-600
    c02agc(3, below, 1, z, &fail);
    EXPECT_REPORT(fail, NE_POLY_UNFLOW);
    EXPECT_EQ(std::count_if(z, z + 3, [](Complex w) { return w.re == kMarker && w.im == kMarker; }), 1);
}

// Of a quartic (or, with lead 0, a cubic) with small integer zeros: known exactly.
TEST(CubicAndQuartic, ErrorsLieWithinTheEstimates)
{
    std::mt19937_64 random{3};
    std::uniform_int_distribution<int> integer{-6, 6};
    for (int trial = 0; trial < 3000; ++trial) {
        const int n = 3 + trial % 2;
        std::vector<double> zeros(n);
        for (double &z : zeros) z = integer(random);
        const Coefficients a = from_zeros(zeros);
        Record fail;
        double re[4], im[4], estimate[4];
        if (n == 3)
            c02akc(a[0], a[1], a[2], a[3], re, im, estimate, &fail);
        else
            c02alc(a[0], a[1], a[2], a[3], a[4], re, im, estimate, &fail);
        EXPECT_SUCCESS(fail);
        // Each exact zero is matched with the nearest result that is left.
        std::vector<int> left(n);
        for (int i = 0; i < n; ++i) left[i] = i;
        for (const double zero : zeros) {
            const auto nearest = std::min_element(left.begin(), left.end(), [&](int i, int j) {
                return std::hypot(re[i] - zero, im[i]) < std::hypot(re[j] - zero, im[j]);
            });
            EXPECT_LE(std::hypot(re[*nearest] - zero, im[*nearest]), estimate[*nearest]) << trial;
            left.erase(nearest);
        }
        std::vector<Complex> z(n);
        for (int i = 0; i < n; ++i) z[i] = {re[i], im[i]};
        EXPECT_LE(coefficient_error({a.begin(), a.end()}, z), n + 2.0);
        expect_conjugate_pairs(z, "quartic");
    }
}

TEST(CubicAndQuartic, Refusals)
{
    Record fail;
    double re[4] = {7.0}, im[4] = {7.0}, estimate[4] = {7.0};
    c02akc(0.0, 1.0, 2.0, 3.0, re, im, estimate, &fail);
    EXPECT_REPORT(fail, NE_REAL, "u", 0.0, "u != 0.0");
    EXPECT_EQ(fail.errnum, 1);
    c02alc(0.0, 1.0, 2.0, 3.0, 4.0, re, im, estimate, &fail);
    EXPECT_REPORT(fail, NE_REAL, "e", 0.0, "e != 0.0");
    c02akc(1e-300, 1e300, 2.0, 3.0, re, im, estimate, &fail);
    EXPECT_REPORT(fail, NE_C02_OVERFLOW);
    EXPECT_EQ(fail.errnum, 2);
    c02alc(1.0, 1.0, kNan, 3.0, 4.0, re, im, estimate, &fail);
    EXPECT_REPORT(fail, NE_C02_NOT_CONV);
    EXPECT_EQ(re[0], 7.0);
    EXPECT_EQ(estimate[0], 7.0);

    // All zeros together: the condition number is nothing, and the estimate the largest there is.
    c02alc(1.0, 0.0, 0.0, 0.0, 0.0, re, im, estimate, &fail);
    EXPECT_SUCCESS(fail);
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(re[i], 0.0);
        EXPECT_EQ(estimate[i], 1.0 / x02amc());
    }
}

} // namespace
} // namespace kor::testing
