// Bessel functions of complex argument: values in all sectors, scaling, the cut, and the statuses.
#include "special/bessel_complex.hpp"

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include "special/extended_precision.hpp"

namespace kor::special {
namespace {

using kor::testing::ulps_of_extended_kernels;
using Kernel = Integer (*)(double, Complex, Integer, Scaling, Complex[], Integer *);

const struct {
    Kernel kernel;
    const char *name;
    double order;
    Complex z, value;
    double size; // against which errors count
} kValues[] = {
#define COMPLEX_VALUE(kernel, order, x, y, re, im, size) {kernel, #kernel, order, {x, y}, {re, im}, size},
#include "special/bessel_complex_data.inc"
#undef COMPLEX_VALUE
};

double modulus(Complex z) { return std::hypot(z.re, z.im); }
double distance(Complex a, Complex b) { return std::hypot(a.re - b.re, a.im - b.im); }

TEST(BesselComplex, Values)
{
    for (const auto &v : kValues) {
        Complex cy[3];
        Integer nz = -1;
        ASSERT_EQ(v.kernel(v.order, v.z, 1, Scaling::none, cy, &nz), kBesselDone) << v.name;
        EXPECT_EQ(nz, 0);
        // Two roundings, of the real and of the imaginary part.
        EXPECT_LE(distance(cy[0], v.value), ulps_of_extended_kernels() * 0x1p-52 * v.size)
            << v.name << " " << v.order << " (" << v.z.re << ", " << v.z.im << ")";
    }
}

// In a sequence, and scaled, the same values.
TEST(BesselComplex, SequencesAndScaling)
{
    const double bound = 4.0 * ulps_of_extended_kernels() * 0x1p-52;
    for (const auto &v : kValues) {
        const bool of_argument = v.kernel == s17def_f || v.kernel == s17dcf_f; // scaled by the imaginary part
        Complex single, sequence[40];
        Integer nz = 0;
        if (v.kernel(v.order + 3.0, v.z, 1, Scaling::exponential, &single, &nz) != kBesselDone) continue;
        const Integer status = v.kernel(v.order, v.z, 4, Scaling::exponential, sequence, &nz);
        ASSERT_EQ(status, kBesselDone) << v.name;
        EXPECT_LE(distance(sequence[3], single), bound * modulus(single)) << v.name << " " << v.z.re << " " << v.z.im;

        const double exponent = of_argument ? -std::fabs(v.z.im) : v.kernel == s18def_f ? -std::fabs(v.z.re) : v.z.re;
        const double turn = v.kernel == s18dcf_f ? v.z.im : 0.0, size = std::exp(exponent);
        const Complex factor{size * std::cos(turn), size * std::sin(turn)};
        const Complex scaled{v.value.re * factor.re - v.value.im * factor.im,
                             v.value.re * factor.im + v.value.im * factor.re};
        EXPECT_LE(distance(sequence[0], scaled), bound * modulus(scaled) * (2.0 + std::fabs(exponent)))
            << v.name << " " << v.z.re << " " << v.z.im;
    }
}

// Across the cut the values are conjugate, and the function is continuous from each side.
TEST(BesselComplex, BothSidesOfTheCut)
{
    for (const Kernel kernel : {s17def_f, s17dcf_f, s18def_f, s18dcf_f})
        for (const double x : {1e-3, 0.7, 4.1, 14.0, 90.0}) { // away from the zeros of J
            Complex above, below, near;
            Integer nz = 0;
            kernel(0.3, {-x, 0.0}, 1, Scaling::none, &above, &nz);
            kernel(0.3, {-x, -0.0}, 1, Scaling::none, &below, &nz);
            EXPECT_EQ(above.re, below.re);
            EXPECT_EQ(above.im, -below.im);
            EXPECT_NE(above.im, 0.0);
            kernel(0.3, {-x, -1e-13 * x}, 1, Scaling::none, &near, &nz);
            EXPECT_LE(distance(near, below), 1e-12 * (2.0 + x) * modulus(below)) << x;
        }
}

TEST(BesselComplex, Statuses)
{
    Complex cy[2] = {{99.0, 99.0}, {99.0, 99.0}};
    Integer nz = 0;
    const double infinity = std::numeric_limits<double>::infinity();
    for (const Kernel kernel : {s17def_f, s17dcf_f, s18def_f, s18dcf_f}) {
        EXPECT_EQ(kernel(-0.5, {1.0, 1.0}, 2, Scaling::none, cy, &nz), kBesselArgument);
        EXPECT_EQ(kernel(2e5, {1.0, 1.0}, 2, Scaling::none, cy, &nz), kBesselArgument);
        EXPECT_EQ(kernel(0.5, {1.0, 1.0}, 0, Scaling::none, cy, &nz), kBesselArgument);
        EXPECT_EQ(kernel(0.5, {1.0, 1.0}, 129, Scaling::none, cy, &nz), kBesselArgument);
        EXPECT_EQ(kernel(0.5, {1.0, infinity}, 1, Scaling::none, cy, &nz), kBesselArgument);
        EXPECT_EQ(kernel(std::nan(""), {1.0, 1.0}, 1, Scaling::none, cy, &nz), kBesselArgument);
        EXPECT_EQ(cy[0].re, 99.0);
        const bool phase_is_real = kernel == s17def_f || kernel == s17dcf_f;
        const auto along = [=](double size) { return phase_is_real ? Complex{size, 1.0} : Complex{1.0, size}; };
        EXPECT_EQ(kernel(0.5, along(9.4e7), 2, Scaling::none, cy, &nz), kBesselDone);
        EXPECT_EQ(kernel(0.5, along(-9.6e7), 2, Scaling::none, cy, &nz), kBesselSomeLoss);
        EXPECT_GT(modulus(cy[1]), 1e-6);
        EXPECT_EQ(kernel(0.5, along(1.1e16), 2, Scaling::none, cy, &nz), kBesselTotalLoss);
        EXPECT_EQ(modulus(cy[1]), 0.0);
        cy[0].re = 99.0;
    }
    EXPECT_EQ(s18def_f(0.5, {800.0, 3.0}, 1, Scaling::none, cy, &nz), kBesselOverflow);
    EXPECT_EQ(s18def_f(0.5, {800.0, 3.0}, 1, Scaling::exponential, cy, &nz), kBesselDone);
    EXPECT_EQ(s18dcf_f(0.5, {800.0, 3.0}, 2, Scaling::none, cy, &nz), kBesselDone);
    EXPECT_EQ(nz, 2);
    EXPECT_EQ(s18dcf_f(0.0, {0.0, 0.0}, 1, Scaling::none, cy, &nz), kBesselOverflow);
    EXPECT_EQ(s18def_f(0.0, {0.0, 0.0}, 2, Scaling::none, cy, &nz), kBesselDone);
    EXPECT_EQ(cy[0].re, 1.0);
    EXPECT_EQ(nz, 1);
}

} // namespace
} // namespace kor::special
