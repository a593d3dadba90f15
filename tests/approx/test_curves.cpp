// Curves: splines, polynomials and monotone cubics against references at 60 digits, properties, refused arguments.
#include <algorithm>
#include <cmath>
#include <cstring>
#include <iterator>
#include <limits>
#include <numbers>
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

#include "approx/reference_data.inc"

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
const double kEps = x02ajc();

struct Curve : KorSpline {
    Curve() : KorSpline{} {}
    Curve(const Curve &) = delete;
    Curve &operator=(const Curve &) = delete;
    ~Curve()
    {
        x04bdc(reinterpret_cast<void **>(&lamda));
        x04bdc(reinterpret_cast<void **>(&c));
    }
    double at(double x) const
    {
        double s = kNaN;
        KorError fail{};
        e02bbc(x, &s, this, &fail);
        return s;
    }
};

const KorSpline kSpline{12, const_cast<double *>(kKnots), const_cast<double *>(kCoefficients)};

TEST(Spline, ValuesAndDerivatives)
{
    Record fail;
    for (const SplinePoint &point : kSplinePoints) {
        double value, s[4];
        e02bbc(point.x, &value, &kSpline, &fail);
        EXPECT_NEAR(value, point.s[0], 6 * kEps);
        e02bcc(Kor_RightDerivs, point.x, s, &kSpline, &fail);
        EXPECT_SUCCESS(fail);
        // Each order divides by the distances of the knots, 0.3 at least.
        for (int d = 0; d < 4; ++d) EXPECT_NEAR(s[d], point.s[d], 20 * kEps * std::pow(10.0, d)) << point.x << " " << d;
    }
    double integral;
    e02bdc(&integral, &kSpline, &fail);
    EXPECT_NEAR(integral, kSplineIntegral, 8 * kEps);
}

TEST(Spline, SidesOfAKnot)
{
    Record fail;
    double left[4], right[4], at_end[4], inside[4];
    e02bcc(Kor_LeftDerivs, 1.1, left, &kSpline, &fail);
    e02bcc(Kor_RightDerivs, 1.1, right, &kSpline, &fail);
    EXPECT_NEAR(left[0], right[0], 1e-14); // a double knot: the slope goes on, the second derivative jumps
    EXPECT_NEAR(left[1], right[1], 1e-13);
    EXPECT_GT(std::fabs(left[2] - right[2]), 1.0);
    // Derivatives at the very ends come from inside, whichever is asked for.
    for (const Integer side : {Kor_LeftDerivs, Kor_RightDerivs}) {
        for (const double end : {0.0, 3.0}) {
            e02bcc(side, end, at_end, &kSpline, &fail);
            e02bcc(side, end == 0.0 ? 1e-9 : 3.0 - 1e-9, inside, &kSpline, &fail);
            for (int d = 0; d < 4; ++d) EXPECT_NEAR(at_end[d], inside[d], 1e-6) << end << " " << d;
        }
    }
}

TEST(Spline, IntegralOfACubic)
{
    double t[8] = {-1.0, -1.0, -1.0, -1.0, 2.5, 2.5, 2.5, 2.5}, c[4] = {1.0, 0.3, -2.0, 1.7}, integral;
    const KorSpline spline{8, t, c};
    Record fail;
    e02bdc(&integral, &spline, &fail);
    EXPECT_DOUBLE_EQ(integral, 3.5 * (1.0 + 0.3 - 2.0 + 1.7) / 4.0);
    // Ends that do not coincide take another way: both agree in the limit.
    double other;
    t[0] = std::nextafter(-1.0, -2.0);
    e02bdc(&other, &spline, &fail);
    EXPECT_NEAR(other, integral, 1e-14);
}

TEST(Spline, RefusedArguments)
{
    Record fail;
    double s[4] = {99.0, 99.0, 99.0, 99.0};
    for (const double x : {-1e-300, 3.0000001, kNaN}) {
        e02bbc(x, s, &kSpline, &fail);
        EXPECT_REPORT(fail, NE_ABSCI_OUTSIDE_KNOT_INTVL, "x", "spline.lamda[3]", "spline.lamda[spline.n-4]", x, 0.0,
                      3.0);
    }
    e02bcc(Kor_Cold, 1.0, s, &kSpline, &fail);
    EXPECT_REPORT(fail, NE_BAD_PARAM, "derivs");
    KorSpline bad = kSpline;
    bad.n = 7;
    e02bbc(1.0, s, &bad, &fail);
    EXPECT_REPORT(fail, NE_INT_ARG_LT, "spline.n", "8", "spline.n", 7);
    double knots[8] = {1.0, 1.0, 1.0, 1.0, 1.0, 1.0, 1.0, 1.0};
    bad = {8, knots, bad.c};
    e02bcc(Kor_LeftDerivs, 1.0, s, &bad, &fail);
    EXPECT_REPORT(fail, NE_SPLINE_RANGE_INVALID, "spline.lamda[3]", "spline.lamda[spline.n-4]", 1.0, 1.0);
    knots[7] = 2.0;
    knots[4] = knots[5] = knots[6] = 3.0;
    e02bdc(s, &bad, &fail);
    EXPECT_REPORT(fail, NE_KNOTS_CONS, "spline.lamda[6]", "spline.lamda[7]", 3.0, 2.0);
    for (const double value : s) EXPECT_EQ(value, 99.0);
}

TEST(Spline, ThroughPoints)
{
    std::mt19937_64 random{1};
    std::uniform_real_distribution<double> uniform;
    for (const int m : {4, 5, 6, 7, 50, 1000}) {
        std::vector<double> x(m), y(m);
        double position = -3.0;
        for (int i = 0; i < m; ++i) {
            x[i] = position += std::pow(10.0, -3.0 * uniform(random));
            y[i] = uniform(random);
        }
        Curve spline;
        Record fail;
        e01bac(m, x.data(), y.data(), &spline, &fail);
        ASSERT_EQ(fail.code, NE_NOERROR);
        ASSERT_EQ(spline.n, m + 4);
        const double size = std::fabs(
            *std::max_element(spline.c, spline.c + m, [](double a, double b) { return std::fabs(a) < std::fabs(b); }));
        for (int i = 0; i < m; ++i) EXPECT_NEAR(spline.at(x[i]), y[i], 8 * kEps * size);
        for (int j = 4; j < m; ++j) EXPECT_EQ(spline.lamda[j], x[j - 2]); // not the second, not the next to last
        EXPECT_EQ(spline.c[m], 0.0);
        // Cubics come back as they are.
        Curve cubic;
        const auto f = [](double u) { return ((0.5 * u - 1.0) * u + 2.0) * u - 3.0; };
        std::transform(x.begin(), x.end(), y.begin(), f);
        e01bac(m, x.data(), y.data(), &cubic, &fail);
        const double u = 0.37 * x[0] + 0.63 * x[m - 1], largest = std::fabs(f(x[0])) + std::fabs(f(x[m - 1]));
        EXPECT_NEAR(cubic.at(u), f(u), 100 * kEps * largest);
    }
    Curve spline;
    Record fail;
    const double x[4] = {0.0, 1.0, 1.0, 2.0}, bad[4] = {0.0, kNaN, 1.0, 2.0};
    e01bac(3, x, x, &spline, &fail);
    EXPECT_REPORT(fail, NE_INT_ARG_LT, "m", "4", "m", 3);
    e01bac(4, x, x, &spline, &fail);
    EXPECT_REPORT(fail, NE_NOT_STRICTLY_INCREASING, "x", "x", 1, 1.0, "x", 2, 1.0);
    e01bac(4, bad, x, &spline, &fail);
    EXPECT_EQ(fail.code, NE_NOT_STRICTLY_INCREASING);
    EXPECT_EQ(spline.lamda, nullptr);
}

TEST(Spline, LeastSquares)
{
    constexpr Integer m = std::size(kFitX), interior = std::size(kFitInterior), n = interior + 8;
    std::vector<double> knots(n, 99.0);
    std::copy_n(kFitInterior, interior, knots.begin() + 4);
    KorSpline spline{n, knots.data(), nullptr};
    double ss;
    Record fail;
    e02bac(m, kFitX, kFitY, kFitWeights, &ss, &spline, &fail);
    EXPECT_SUCCESS(fail);
    EXPECT_NEAR(ss, kFitResidual, 20 * kEps * kFitResidual);
    for (int i = 0; i < n - 4; ++i) EXPECT_NEAR(spline.c[i], kFitC[i], 100 * kEps);
    EXPECT_EQ(knots[3], kFitX[0]);
    EXPECT_EQ(knots[n - 1], kFitX[m - 1]);
    x04bdc(reinterpret_cast<void **>(&spline.c));
}

TEST(Spline, ConditionsOfLeastSquares)
{
    const double x[8] = {0.0, 1.0, 2.0, 3.0, 4.0, 5.0, 6.0, 7.0}, w[8] = {1, 1, 1, 1, 1, 1, 1, 1};
    Record fail;
    double ss = 99.0;
    const auto fit = [&](std::vector<double> interior, const double *weights, const double *abscissae) {
        std::vector<double> knots(interior.size() + 8, -5.0);
        std::copy(interior.begin(), interior.end(), knots.begin() + 4);
        const auto before = knots;
        KorSpline spline{static_cast<Integer>(knots.size()), knots.data(), nullptr};
        e02bac(8, abscissae, x, weights, &ss, &spline, &fail);
        const Integer code = fail.code;
        if (code != NE_NOERROR) {
            EXPECT_EQ(std::memcmp(knots.data(), before.data(), knots.size() * sizeof(double)), 0);
        }
        x04bdc(reinterpret_cast<void **>(&spline.c));
        return code;
    };
    EXPECT_EQ(fit({2.5, 3.5, 4.5, 5.5}, w, x), NE_NOERROR);
    EXPECT_EQ(fit({1.5, 1.6, 1.7, 1.8}, w, x), NE_SW_COND_FAIL); // too many knots between two points
    EXPECT_EQ(fit({1.5, 2.5, 3.5, 4.5, 5.5}, w, x), NE_KNOTS_DISTINCT_ABSCI_CONS);
    EXPECT_EQ(fit({3.5, 3.5, 3.5, 3.5}, w, x), NE_NOERROR); // in two halves
    EXPECT_EQ(fit({3.0, 2.0}, w, x), NE_NOT_INCREASING);
    EXPECT_EQ(fit({0.0}, w, x), NE_KNOTS_OUTSIDE_DATA_INTVL);
    EXPECT_REPORT(fail, NE_KNOTS_OUTSIDE_DATA_INTVL, "spline.lamda[4]", "x[0]", "x[m-1]", 0.0, 0.0, 7.0);
    EXPECT_EQ(fit({2.0, 7.5}, w, x), NE_KNOTS_OUTSIDE_DATA_INTVL);
    EXPECT_REPORT(fail, NE_KNOTS_OUTSIDE_DATA_INTVL, "spline.lamda[spline.n-5]", "x[0]", "x[m-1]", 7.5, 0.0, 7.0);
    EXPECT_EQ(fit({2.0, kNaN, 3.0}, w, x), NE_NOT_INCREASING);
    const double zero[8] = {1, 1, 0, 1, 1, 1, 1, 1}, unordered[8] = {0, 1, 2, 1, 4, 5, 6, 7};
    EXPECT_EQ(fit({2.5}, zero, x), NE_WEIGHTS_NOT_POSITIVE);
    EXPECT_EQ(fit({2.5}, w, unordered), NE_NOT_NON_DECREASING);
}

TEST(Chebyshev, SeriesAtAllPoints)
{
    double a[60], size = 0.0;
    for (int j = 0; j < 60; ++j) {
        a[j] = (j % 2 == 0 ? 1.0 : -1.0) * (1 + j % 3) / (1 + j);
        size += std::fabs(a[j]);
    }
    Record fail;
    for (const SeriesPoint &point : kSeriesPoints) {
        double p;
        e02aec(60, a, point.x, &p, &fail);
        EXPECT_SUCCESS(fail);
        EXPECT_NEAR(p, point.p, 4 * kEps * size) << point.x;
    }
    double p = 99.0, q;
    e02aec(1, a, -0.3, &p, &fail);
    EXPECT_EQ(p, a[0] / 2);
    e02aec(60, a, 1.0 + 4.0 * kEps, &p, &fail); // an excess of rounding errors counts as the end
    EXPECT_SUCCESS(fail);
    e02aec(60, a, 1.0, &q, &fail);
    EXPECT_EQ(p, q);
    for (const double x : {1.0 + 8.0 * kEps, -1.1, kNaN}) {
        e02aec(60, a, x, &p, &fail);
        EXPECT_REPORT(fail, NE_INVALID_XCAP, x);
        EXPECT_EQ(p, q);
    }
    e02aec(0, a, 0.0, &p, &fail);
    EXPECT_REPORT(fail, NE_INT_ARG_LT, "nplus1", "1", "nplus1", 0);
}

TEST(Chebyshev, InterpolationAtTheExtrema)
{
    Record fail;
    for (const int n : {1, 2, 3, 16, 37, 1000}) {
        std::vector<double> f(n + 1), a(n + 1);
        for (int r = 0; r <= n; ++r) f[r] = std::exp(std::cos(std::numbers::pi * r / n));
        e02afc(n + 1, f.data(), a.data(), &fail);
        ASSERT_EQ(fail.code, NE_NOERROR);
        for (int r = 0; r <= n; r += 1 + n / 7) {
            double p;
            e02aec(n + 1, a.data(), std::cos(std::numbers::pi * r / n), &p, &fail);
            EXPECT_NEAR(p, f[r], 20 * kEps) << n << " " << r;
        }
        // The series of exp has the modified Bessel functions as coefficients.
        if (n >= 16) {
            EXPECT_NEAR(a[3], 2.0 * 0.022168424924331902, 4 * kEps);
        }
    }
    double value = 1.0;
    e02afc(1, &value, &value, &fail);
    EXPECT_REPORT(fail, NE_INT_ARG_LT, "nplus1", "2", "nplus1", 1);
}

TEST(Chebyshev, LeastSquaresOfAllDegrees)
{
    constexpr Integer m = std::size(kFitX), k = 7, tda = 9;
    double a[k * tda], s[k];
    std::fill_n(a, k * tda, 99.0);
    Record fail;
    e02adc(m, k, tda, kFitX, kFitY, kFitWeights, a, s, &fail);
    EXPECT_SUCCESS(fail);
    for (int i = 0; i < k; ++i) {
        for (int j = 0; j <= i; ++j) EXPECT_NEAR(a[i * tda + j], kPolynomials[i][j], 40 * kEps) << i << " " << j;
        for (int j = i + 1; j < tda; ++j) EXPECT_EQ(a[i * tda + j], 99.0);
        EXPECT_NEAR(s[i], kPolynomialResiduals[i], 40 * kEps * kPolynomialResiduals[i]);
    }
}

TEST(Chebyshev, ManyPointsAndExactPolynomials)
{
    constexpr int m = 20001, k = 24;
    std::vector<double> x(m), y(m), w(m, 2.0), a(k * k), s(k);
    double wanted[k];
    for (int j = 0; j < k; ++j) wanted[j] = 1.0 / (1 + j);
    Record fail;
    for (int r = 0; r < m; ++r) {
        x[r] = r;
        e02aec(k, wanted, (2.0 * r - (m - 1)) / (m - 1), &y[r], &fail);
    }
    e02adc(m, k, k, x.data(), y.data(), w.data(), a.data(), s.data(), &fail);
    EXPECT_SUCCESS(fail);
    for (int j = 0; j < k; ++j) EXPECT_NEAR(a[(k - 1) * k + j], wanted[j], 50 * kEps);
    EXPECT_LT(s[k - 1], 1e-22);
}

TEST(Chebyshev, RefusedData)
{
    const double x[4] = {0, 1, 1, 3}, down[4] = {0, 2, 1, 3}, same[4] = {1, 1, 1, 1}, zero[4] = {1, 1, 0, 1};
    double a[16] = {99.0}, s[4] = {99.0};
    Record fail;
    const char *const sequence = "x[r],r=0,1,...m-1";
    e02adc(0, 1, 1, x, x, same, a, s, &fail);
    EXPECT_REPORT(fail, NE_INT_ARG_LT, "m", "1", "m", 0);
    e02adc(4, 1, 1, x, x, zero, a, s, &fail);
    EXPECT_REPORT(fail, NE_WEIGHTS_NOT_POSITIVE, 2);
    e02adc(4, 1, 1, down, x, same, a, s, &fail);
    EXPECT_REPORT(fail, NE_NOT_NON_DECREASING, sequence);
    e02adc(4, 1, 1, same, x, same, a, s, &fail);
    EXPECT_REPORT(fail, NE_NO_NORMALISATION, "values", sequence);
    e02adc(4, 4, 4, x, x, same, a, s, &fail);
    EXPECT_REPORT(fail, NE_2_INT_ARG_GT, "kplus1", 4, "mdist", 3, "kplus1", "mdist");
    e02adc(4, 3, 2, x, x, same, a, s, &fail);
    EXPECT_REPORT(fail, NE_2_INT_ARG_LT, "tda", 2, "kplus1", 3, "tda", "kplus1");
    EXPECT_EQ(a[0] + s[0], 198.0);
}

// Monotone data in every shape: steps, plateaus, intervals and slopes of very different size.
TEST(Monotone, DataGiveMonotoneCurves)
{
    std::mt19937_64 random{4};
    std::uniform_real_distribution<double> uniform;
    for (int trial = 0; trial < 200; ++trial) {
        const int n = 3 + trial % 20;
        std::vector<double> x(n), f(n), d(n), px, pf;
        for (int i = 0; i < n; ++i) {
            x[i] = (i > 0 ? x[i - 1] : 0.0) + std::pow(10.0, -6.0 * uniform(random));
            f[i] =
                (i > 0 ? f[i - 1] : 0.0) + (uniform(random) < 0.3 ? 0.0 : std::pow(10.0, 12.0 * uniform(random) - 8.0));
        }
        Record fail;
        e01bec(n, x.data(), f.data(), d.data(), &fail);
        ASSERT_EQ(fail.code, NE_NOERROR);
        for (int i = 0; i + 1 < n; ++i)
            for (int k = 0; k < 40; ++k) px.push_back(x[i] + (x[i + 1] - x[i]) * k / 40.0);
        px.push_back(x[n - 1]);
        pf.resize(px.size());
        e01bfc(n, x.data(), f.data(), d.data(), static_cast<Integer>(px.size()), px.data(), pf.data(), &fail);
        for (std::size_t k = 1; k < px.size(); ++k)
            ASSERT_GE(pf[k], pf[k - 1] - 4 * kEps * std::fabs(pf[k])) << trial << " at " << px[k];
        for (int i = 0; i + 1 < n; ++i) EXPECT_EQ(pf[40 * i], f[i]);
        EXPECT_EQ(pf.back(), f[n - 1]);
    }
}

TEST(Monotone, DerivativesByHand)
{
    Record fail;
    double d[5];
    const double x[5] = {0.0, 1.0, 3.0, 4.0, 6.0}, f[5] = {0.0, 2.0, 3.0, 3.0, 1.0};
    e01bec(5, x, f, d, &fail);
    EXPECT_SUCCESS(fail);
    // Slopes 2, 1/2, 0, -1. First: (4/3) 2 - (1/3)(1/2); second: weights (3+1)/9 and (3+2)/9.
    EXPECT_NEAR(d[0], 2.5, 4 * kEps);
    EXPECT_NEAR(d[1], 0.5 / (4.0 / 9.0 + 0.25 * 5.0 / 9.0), 4 * kEps);
    EXPECT_EQ(d[2], 0.0);
    EXPECT_EQ(d[3], 0.0);
    EXPECT_NEAR(d[4], -(5.0 / 3.0), 4 * kEps);
    // An end where the three-point formula overshoots is held at three slopes; one of the wrong sign at 0.
    const double peak[3] = {0.0, 0.1, -5.0}, uniform[3] = {0.0, 1.0, 2.0}, bend[3] = {0.0, 0.1, 5.0};
    e01bec(3, uniform, peak, d, &fail);
    EXPECT_DOUBLE_EQ(d[0], 0.3);
    e01bec(3, uniform, bend, d, &fail);
    EXPECT_EQ(d[0], 0.0);
    e01bec(2, x, f, d, &fail);
    EXPECT_EQ(d[0], 2.0);
    EXPECT_EQ(d[1], 2.0);
    // Slopes near both ends of the range of doubles.
    const double steep[3] = {0.0, 1e300, 1.7e300};
    e01bec(3, uniform, steep, d, &fail);
    EXPECT_GT(d[1], 7e299);
    EXPECT_LT(d[1], 1e300);
}

TEST(Monotone, ValuesDerivativesIntegral)
{
    // Any cubic is its own Hermite form: nodes of a cubic, and its values, slopes, integral anywhere.
    const double x[4] = {-1.0, 0.5, 0.75, 3.0};
    const auto cubic = [](double u) { return ((2.0 * u - 1.0) * u + 0.5) * u - 4.0; };
    const auto slope = [](double u) { return (6.0 * u - 2.0) * u + 0.5; };
    const auto primitive = [](double u) { return (((0.5 * u - 1.0 / 3.0) * u + 0.25) * u - 4.0) * u; };
    double f[4], d[4];
    std::transform(x, x + 4, f, cubic);
    std::transform(x, x + 4, d, slope);
    const double px[7] = {2.9, -0.3, 0.6, 0.5, 3.0, -1.0, 1.875};
    double pf[7], pd[7], only[7];
    Record fail;
    e01bgc(4, x, f, d, 7, px, pf, pd, &fail);
    EXPECT_SUCCESS(fail);
    e01bfc(4, x, f, d, 7, px, only, &fail);
    for (int k = 0; k < 7; ++k) {
        EXPECT_NEAR(pf[k], cubic(px[k]), 50 * kEps * 10) << px[k];
        EXPECT_NEAR(pd[k], slope(px[k]), 50 * kEps * 50) << px[k];
        EXPECT_EQ(pf[k], only[k]);
    }
    double integral;
    for (const auto &[a, b] : {std::pair{-0.5, 2.5}, {2.5, -0.5}, {0.55, 0.7}, {-1.0, 3.0}, {1.0, 1.0}}) {
        e01bhc(4, x, f, d, a, b, &integral, &fail);
        EXPECT_SUCCESS(fail);
        EXPECT_NEAR(integral, primitive(b) - primitive(a), 400 * kEps) << a << " " << b;
    }
    e01bhc(4, x, f, d, -2.0, 3.5, &integral, &fail);
    EXPECT_REPORT(fail, NW_INTERVAL_EXTRAPOLATE, 3.5);
    EXPECT_NEAR(integral, primitive(3.5) - primitive(-2.0), 1000 * kEps);
    const double outside[3] = {4.0, -2.0, 0.0};
    e01bfc(4, x, f, d, 3, outside, pf, &fail);
    EXPECT_REPORT(fail, NW_EXTRAPOLATE, -2.0); // the last one
    EXPECT_NEAR(pf[0], cubic(4.0), 1e-12);
    EXPECT_NEAR(pf[1], cubic(-2.0), 1e-12);
    e01bgc(4, x, f, d, 1, &kNaN, pf, pd, &fail);
    EXPECT_EQ(fail.code, NW_EXTRAPOLATE);
    EXPECT_TRUE(std::isnan(pf[0]));
}

TEST(Monotone, RefusedData)
{
    const double x[3] = {0.0, 1.0, 1.0}, nan[3] = {0.0, kNaN, 1.0}, infinite[3] = {0.0, 1.0, HUGE_VAL};
    double d[3] = {99.0}, value = 99.0;
    Record fail;
    e01bec(1, x, x, d, &fail);
    EXPECT_REPORT(fail, NE_INT_ARG_LT, "n", "2", "n", 1);
    for (const double *bad : {x, nan, infinite}) {
        e01bec(3, bad, x, d, &fail);
        EXPECT_REPORT(fail, NE_NOT_MONOTONIC);
        e01bfc(3, bad, x, x, 1, x, &value, &fail);
        EXPECT_REPORT(fail, NE_NOT_MONOTONIC);
        e01bhc(3, bad, x, x, 0.0, 1.0, &value, &fail);
        EXPECT_REPORT(fail, NE_NOT_MONOTONIC);
    }
    e01bfc(2, x, x, x, 0, x, &value, &fail);
    EXPECT_REPORT(fail, NE_INT_ARG_LT, "m", "1", "m", 0);
    EXPECT_EQ(d[0] + value, 198.0);
}

} // namespace
