// The interval of a point by guess and by bisection, against the search of the standard library.
#include <algorithm>
#include <cmath>
#include <limits>
#include <random>
#include <vector>

#include <gtest/gtest.h>

#include "approx/cubic_bspline.hpp"
#include "approx/interval_search.hpp"

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

std::vector<double> points_about(const std::vector<double> &x, std::mt19937_64 &random)
{
    std::uniform_real_distribution<double> inside{x.front(), x.back()};
    std::vector<double> points{-kInfinity, kInfinity, std::numeric_limits<double>::quiet_NaN(), x.front() - 1.0,
                               x.back() + 1.0};
    for (const double node : x)
        for (const double p : {node, std::nextafter(node, -kInfinity), std::nextafter(node, kInfinity)})
            points.push_back(p);
    for (int k = 0; k < 50; ++k) points.push_back(inside(random));
    return points;
}

// Even, uneven, graded and partly coincident nodes; so few that there is no guess, and so many that there is one.
TEST(IntervalSearch, AgreesWithUpperBound)
{
    std::mt19937_64 random{11};
    std::uniform_real_distribution<double> uniform;
    for (const int n : {2, 3, 17, 18, 40, 333}) {
        for (int kind = 0; kind < 5; ++kind) {
            std::vector<double> x{-2.7};
            while (static_cast<int>(x.size()) < n) {
                const double u = uniform(random);
                const double steps[] = {0.25, u, std::pow(1e-9, u), u < 0.4 ? 0.0 : u, u * 1e306};
                x.push_back(x.back() + steps[kind]);
            }
            std::ptrdiff_t before = n / 2;
            for (const double p : points_about(x, random)) {
                const auto inner = std::upper_bound(x.begin() + 1, x.end() - 1, p);
                const std::ptrdiff_t expected = inner - x.begin() - 1, found = kor::approx::interval_of(x.data(), n, p);
                if (std::isnan(p)) { // anywhere, but among the intervals
                    ASSERT_TRUE(found >= 0 && found <= n - 2);
                    continue;
                }
                ASSERT_EQ(found, expected) << "n = " << n << ", kind " << kind << ", p = " << p;
                before = kor::approx::interval_near(x.data(), n, p, before);
                ASSERT_EQ(before, expected) << "n = " << n << ", kind " << kind << ", p = " << p;
            }
        }
    }
}

// Nodes so far apart that their distance is not finite.
TEST(IntervalSearch, BeyondTheRange)
{
    std::vector<double> x;
    for (int i = 0; i < 40; ++i) x.push_back((i - 19.5) * 9e306);
    EXPECT_EQ(x.back() - x.front(), kInfinity);
    for (int i = 0; i < 39; ++i) EXPECT_EQ(kor::approx::interval_of(x.data(), 40, x[i] + 1e306), i);
}

// Wherever knots coincide, the span that is found is not empty.
TEST(IntervalSearch, SpansAreNotEmpty)
{
    const double t[] = {0, 0, 0, 0, 1, 1, 1, 2, 3, 3, 3, 3};
    const kor::approx::Knots knots{t, 12};
    for (const double x : {0.0, 0.5, 1.0, 1.5, 2.0, 2.5, 3.0}) {
        const Integer l = knots.span(x);
        EXPECT_LT(t[l], t[l + 1]);
        EXPECT_LE(t[l], x);
        EXPECT_TRUE(x < t[l + 1] || x == 3.0);
        for (const Integer before : {3, 4, 6, 7}) EXPECT_EQ(knots.span_near(x, before), l);
    }
}

} // namespace
