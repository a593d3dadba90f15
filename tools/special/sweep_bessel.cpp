// Accuracy of the Bessel family over its whole domain, against Arb.
#include "sweep.hpp"

#include <acb_hypgeom.h>
#include <arb_hypgeom.h>

#include "special/airy.hpp"
#include "special/bessel_ik.hpp"
#include "special/bessel_jy.hpp"
#include "special/kelvin.hpp"

using namespace kor::special;
using sweep::Segment;
using sweep::Subject;

namespace {

constexpr double kTwoOverPi = 0.63661977236758134;

template <int order, void (*f)(arb_t, const arb_t, const arb_t, slong)>
void of_order(arb_t y, const arb_t x, slong precision)
{
    arb_t nu;
    arb_init(nu);
    arb_set_si(nu, order);
    f(y, nu, x, precision);
    arb_clear(nu);
}

// exp(sign x) f(x).
template <int sign, void (*f)(arb_t, const arb_t, slong)>
void scaled(arb_t y, const arb_t x, slong precision)
{
    arb_t e;
    arb_init(e);
    f(y, x, precision);
    if (sign > 0)
        arb_set(e, x);
    else {
        arb_abs(e, x);
        arb_neg(e, e);
    }
    arb_exp(e, e, precision);
    arb_mul(y, y, e, precision);
    arb_clear(e);
}

enum AiryKind { ai, ai_slope, bi, bi_slope };
template <AiryKind kind>
void airy_truth(arb_t y, const arb_t x, slong precision)
{
    arb_hypgeom_airy(kind == ai ? y : nullptr, kind == ai_slope ? y : nullptr, kind == bi ? y : nullptr,
                     kind == bi_slope ? y : nullptr, x, precision);
}

// ber + i bei = J0(x exp(3 pi i / 4)), ker + i kei = K0(x exp(pi i / 4)).
template <bool second, bool imaginary>
void kelvin_truth(arb_t y, const arb_t x, slong precision)
{
    acb_t z, order;
    acb_init(z);
    acb_init(order);
    arb_t root;
    arb_init(root);
    arb_set_ui(root, 2);
    arb_rsqrt(root, root, precision);
    arb_mul(acb_imagref(z), root, x, precision);
    if (second)
        arb_set(acb_realref(z), acb_imagref(z));
    else
        arb_neg(acb_realref(z), acb_imagref(z));
    if (second)
        acb_hypgeom_bessel_k(z, order, z, precision);
    else
        acb_hypgeom_bessel_j(z, order, z, precision);
    arb_set(y, imaginary ? acb_imagref(z) : acb_realref(z));
    acb_clear(z);
    acb_clear(order);
    arb_clear(root);
}

// Errors count against the value where tables hold the zeros, beyond against the amplitude.
double jy_amplitude(double x) { return std::fabs(x) < 66 ? 0.0 : std::sqrt(kTwoOverPi / std::fabs(x)); }
double airy_amplitude(double x) { return x > -20.6 ? 0.0 : 0.5641895835 / std::pow(-x, 0.25); }
double slope_amplitude(double x) { return x > -20.6 ? 0.0 : 0.5641895835 * std::pow(-x, 0.25); }
double k_amplitude(double x) { return x < 16 ? 0.0 : std::sqrt(1.57079 / x) * std::exp(-x * 0.70710678); }

std::vector<double> zeros_of(double (*f)(double), double from, double to)
{
    std::vector<double> zeros;
    const double step = 0.05;
    for (double x = from; x < to; x += step) {
        double a = x, b = x + step;
        if (!(f(a) * f(b) < 0)) continue;
        for (int k = 0; k < 60; ++k) {
            const double m = 0.5 * (a + b);
            (f(a) * f(m) <= 0 ? b : a) = m;
        }
        zeros.push_back(a);
    }
    return zeros;
}

std::vector<double> with(std::vector<double> points, std::initializer_list<double> more)
{
    points.insert(points.end(), more);
    return points;
}

} // namespace

int main(int argc, char **argv)
{
    constexpr auto j0 = of_order<0, arb_hypgeom_bessel_j>;
    constexpr auto j1 = of_order<1, arb_hypgeom_bessel_j>;
    constexpr auto y0 = of_order<0, arb_hypgeom_bessel_y>;
    constexpr auto y1 = of_order<1, arb_hypgeom_bessel_y>;
    constexpr auto i0 = of_order<0, arb_hypgeom_bessel_i>;
    constexpr auto i1 = of_order<1, arb_hypgeom_bessel_i>;
    constexpr auto k0 = of_order<0, arb_hypgeom_bessel_k>;
    constexpr auto k1 = of_order<1, arb_hypgeom_bessel_k>;

    const std::vector<Segment> jy = {{0.26, 66}, {0.26, 66}, {1e-8, 1, true}, {66, 1e3, true}, {1e3, 1e16, true}};
    const std::vector<Segment> whole_jy = {{-66, 66}, {0, 66}, {1e-300, 1, true}, {66, 1e3, true}, {1e3, 1e16, true}};
    const std::vector<Segment> growing = {{-16, 16}, {0, 16}, {1e-300, 1, true}, {16, 711.6}};
    const std::vector<Segment> decaying = {{0.25, 16}, {0.25, 16}, {1e-300, 1, true}, {16, 705}};
    const std::vector<Segment> growing_scaled = {{-16, 16}, {0, 16}, {1e-300, 1, true}, {16, 1e3}, {1e3, 1e100, true}};
    const std::vector<Segment> decaying_scaled = {
        {0.25, 16}, {0.25, 16}, {1e-300, 1, true}, {16, 1e3}, {1e3, 1e100, true}};
    const std::vector<Segment> ai_range = {{-20.7, 8}, {-20.7, 8}, {8, 103}, {-1e3, -20, true}, {-5.6e10, -1e3, true}};
    const std::vector<Segment> bi_range = {
        {-20.7, 8}, {-20.7, 8}, {8, 104.1}, {-1e3, -20, true}, {-5.6e10, -1e3, true}};
    const std::vector<Segment> slope_range = {
        {-20.7, 8}, {-20.7, 8}, {8, 103}, {-1e3, -20, true}, {-1.8e9, -1e3, true}};
    const std::vector<Segment> ber_range = {{-44.6, 44.6}, {0, 44.6}, {1e-100, 1, true}};
    const std::vector<Segment> ker_range = {{0.25, 16}, {0.25, 16}, {1e-300, 1, true}, {16, 997}};

    return sweep::main_of(
        {
            {"s17aec", bessel_j0, j0, whole_jy, with(zeros_of(bessel_j0, 0.1, 66), {66}), {}, jy_amplitude},
            {"s17afc", bessel_j1, j1, whole_jy, with(zeros_of(bessel_j1, 0.1, 66), {66}), {}, jy_amplitude},
            {"s17acc", bessel_y0, y0, jy, with(zeros_of(bessel_y0, 0.1, 66), {0.25, 66}), {}, jy_amplitude},
            {"s17adc", bessel_y1, y1, jy, with(zeros_of(bessel_y1, 0.1, 66), {0.25, 66}), {}, jy_amplitude},
            {"s17agc",
             airy_ai,
             airy_truth<ai>,
             ai_range,
             with(zeros_of(airy_ai, -20.65, 1), {8, -20.6875}),
             {},
             airy_amplitude},
            {"s17ahc",
             airy_bi,
             airy_truth<bi>,
             bi_range,
             with(zeros_of(airy_bi, -20.65, 1), {8, -20.6875}),
             {},
             airy_amplitude},
            {"s17ajc",
             airy_ai_slope,
             airy_truth<ai_slope>,
             slope_range,
             with(zeros_of(airy_ai_slope, -20.65, 1), {8, -20.6875}),
             {},
             slope_amplitude},
            {"s17akc",
             airy_bi_slope,
             airy_truth<bi_slope>,
             slope_range,
             with(zeros_of(airy_bi_slope, -20.65, 1), {8, -20.6875}),
             {},
             slope_amplitude},
            {"s18acc", bessel_k0, k0, decaying, {0.25, 16}},
            {"s18adc", bessel_k1, k1, decaying, {0.25, 16}},
            {"s18aec", bessel_i0, i0, growing, {16}},
            {"s18afc", bessel_i1, i1, growing, {16}},
            {"s18ccc", scaled_bessel_k0, scaled<1, k0>, decaying_scaled, {0.25, 16}},
            {"s18cdc", scaled_bessel_k1, scaled<1, k1>, decaying_scaled, {0.25, 16}},
            {"s18cec", scaled_bessel_i0, scaled<-1, i0>, growing_scaled, {16}},
            {"s18cfc", scaled_bessel_i1, scaled<-1, i1>, growing_scaled, {16}},
            {"s19aac", kelvin_ber, kelvin_truth<false, false>, ber_range, zeros_of(kelvin_ber, 0.1, 44.5)},
            {"s19abc", kelvin_bei, kelvin_truth<false, true>, ber_range, zeros_of(kelvin_bei, 0.1, 44.5)},
            {"s19acc",
             kelvin_ker,
             kelvin_truth<true, false>,
             ker_range,
             with(zeros_of(kelvin_ker, 0.1, 16), {0.25, 16}),
             {},
             k_amplitude},
            {"s19adc",
             kelvin_kei,
             kelvin_truth<true, true>,
             ker_range,
             with(zeros_of(kelvin_kei, 0.1, 16), {0.25, 16}),
             {},
             k_amplitude},
        },
        argc, argv);
}
