// The zero stepper with an integer status.
#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include "roots/c05azf_f.hpp"
#include "roots/zero_stepper.hpp"

namespace kor::testing {
namespace {

using roots::c05azf_f;

constexpr Integer kQuiet = 1; // a fault comes back in ifail, without a message

// Goes on until a result, with f at each x wanted; the status.
template <class F>
Integer search(F f, double &x, double &y, double xtol, Integer ir = 0, Integer first_ind = 1)
{
    double c[roots::kZeroStateSize], fx = f(x);
    Integer ind = first_ind, ifail = kQuiet;
    if (ind == -1) c[0] = f(y);
    for (int calls = 0; calls < 2000; ++calls) {
        ifail = kQuiet;
        c05azf_f(x, y, fx, xtol, ir, c, ind, ifail);
        if (ind == 0 || ifail != 0) return ifail;
        fx = f(x);
    }
    ADD_FAILURE() << "it does not end";
    return -1;
}

TEST(ZeroStepperWithStatus, FindsZeros)
{
    for (const Integer start : {1, -1}) {
        double x = 0.0, y = 2.0;
        EXPECT_EQ(search([](double t) { return std::cos(t); }, x, y, 1e-15, 0, start), 0);
        EXPECT_NEAR(x, std::acos(0.0), 4e-16);
    }
}

TEST(ZeroStepperWithStatus, TellsItsFaults)
{
    const auto parabola = [](double t) { return t * t - 2.0; };
    const auto pole = [](double t) { return 1.0 / (t - 0.3); };
    double x = 2.0, y = 3.0;
    EXPECT_EQ(search(parabola, x, y, 1e-10), 1);
    EXPECT_EQ(search(parabola, x = 0.0, y = 2.0, 1e-10, 0, 7), 2);
    EXPECT_EQ(search(parabola, x = 0.0, y = 2.0, 0.0), 3);
    EXPECT_EQ(search(parabola, x = 0.0, y = 2.0, 1e-10, 3), 3);
    EXPECT_EQ(search(pole, x = 0.0, y = 1.0, 1e-10), 4);
    EXPECT_EQ(search(parabola, x = 0.0, y = 2.0, std::numeric_limits<double>::min()), 5);
}

} // namespace
} // namespace kor::testing
