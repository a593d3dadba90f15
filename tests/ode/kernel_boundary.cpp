// The linear systems of boundary value problems against a dense solution, with conditions of all kinds.
#include <cmath>
#include <random>
#include <vector>

#include <gtest/gtest.h>

#include "linalg/lapack.hpp"
#include "ode/block_system.hpp"

namespace kor::ode {
namespace {

TEST(BlockSystem, AgreesWithADenseSolution)
{
    std::mt19937 random{20};
    std::uniform_real_distribution<double> uniform{-1.0, 1.0};
    const auto fill = [&](std::vector<double> &v) {
        for (double &e : v) e = uniform(random);
    };
    struct Shape {
        Integer n, left, mixed, intervals;
    };
    for (const Shape &s : {Shape{1, 0, 1, 1}, {2, 1, 0, 5}, {3, 2, 1, 7}, {4, 0, 4, 6}, {5, 1, 2, 9}, {3, 2, 0, 1}}) {
        const Integer size = s.n * (s.intervals + 1);
        std::vector<double> dense(size * size), right(size), at_left(s.n * s.n), at_right(s.n * s.n), a(s.n * s.n),
            b(s.n * s.n);
        fill(at_left);
        fill(at_right);
        fill(right);
        BlockSystem system;
        ASSERT_TRUE(system.allocate(s.n, s.left, s.mixed, s.intervals));
        // Conditions of one end only have nothing to do with the other one: what stands there must not count.
        system.begin(s.intervals, at_left.data(), at_right.data());
        for (Integer r = 0; r < s.n; ++r)
            for (Integer c = 0; c < s.n; ++c) {
                if (r < s.left + s.mixed) dense[c * size + r] = at_left[r * s.n + c];
                if (r >= s.left) dense[(size - s.n + c) * size + r] = at_right[r * s.n + c];
            }
        for (Integer i = 0; i < s.intervals; ++i) {
            fill(a);
            fill(b);
            system.add(a.data(), b.data());
            for (Integer r = 0; r < s.n; ++r)
                for (Integer c = 0; c < s.n; ++c) {
                    dense[(i * s.n + c) * size + (i + 1) * s.n + r] = a[r * s.n + c];
                    dense[((i + 1) * s.n + c) * size + (i + 1) * s.n + r] = b[r * s.n + c];
                }
        }
        ASSERT_TRUE(system.finish());
        std::vector<double> u(size), expected = right;
        std::vector<Integer> pivots(size);
        ASSERT_EQ(lapack::getrf(size, size, dense.data(), size, pivots.data()), 0);
        lapack::getrs('N', size, 1, dense.data(), size, pivots.data(), expected.data(), size);
        system.solve(right.data(), right.data() + s.n, u.data());
        for (Integer i = 0; i < size; ++i)
            EXPECT_NEAR(u[i], expected[i], 1e-11 * (1.0 + std::fabs(expected[i]))) << s.n << ' ' << i;
    }
}

TEST(BlockSystem, SeesWhatIsSingularOrNotFinite)
{
    for (const double spoiled : {0.0, HUGE_VAL, std::nan("")}) {
        const double at_left[4] = {1, 0, 0, 0}, at_right[4] = {0, 0, 1, 0}, a[4] = {-1, 0, 0, spoiled},
                     b[4] = {1, 0, 0, spoiled};
        BlockSystem system;
        ASSERT_TRUE(system.allocate(2, 1, 0, 1));
        system.begin(1, at_left, at_right);
        system.add(a, b);
        EXPECT_FALSE(system.finish()) << spoiled;
    }
    double work[12];
    const double one[4] = {1, 2, 0, 0}, two[4] = {0, 0, 1, 1}, three[4] = {0, 0, 2, 4};
    EXPECT_TRUE(rows_are_independent(2, one, two, work));
    const double first[4] = {1, 2, 2, 4}, none[4] = {};
    EXPECT_FALSE(rows_are_independent(2, first, none, work));
    EXPECT_TRUE(rows_are_independent(2, first, three, work));
}

} // namespace
} // namespace kor::ode
