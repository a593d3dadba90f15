// Accuracy of the special functions but the Bessel family, over their whole domains, against Arb.
#include "sweep.hpp"

#include <acb_elliptic.h>
#include <acb_modular.h>
#include <arb_hypgeom.h>

#include <boost/math/distributions/normal.hpp>
#include <boost/math/special_functions.hpp>
#include <boost/math/special_functions/gamma.hpp>
#include <gsl/gsl_cdf.h>
#include <gsl/gsl_errno.h>
#include <gsl/gsl_sf.h>

#include <kor/g01.h>
#include <kor/s01.h>
#include <kor/s07.h>
#include <kor/s10.h>
#include <kor/s11.h>
#include <kor/s13.h>
#include <kor/s14.h>
#include <kor/s15.h>
#include <kor/s20.h>
#include <kor/s21.h>

#include "special/elementary.hpp"

using namespace kor::special;
using sweep::Subject;

using Policy = boost::math::policies::policy<boost::math::policies::promote_double<false>,
                                             boost::math::policies::overflow_error<boost::math::policies::ignore_error>,
                                             boost::math::policies::domain_error<boost::math::policies::ignore_error>,
                                             boost::math::policies::pole_error<boost::math::policies::ignore_error>>;

namespace {

// What is left of a DoubleDouble result, as a relative error in units of 2^-53, comes out as ulps of its low part.
void run_extended()
{
    struct Kernel {
        const char *name;
        DoubleDouble (*f)(double);
        sweep::Truth truth;
        double from, to;
        bool logarithmic;
    };
    const Kernel kernels[] = {
        {"exp",
         [](double x) {
             const auto e = extended_exp({x});
             return e.value.scaled(std::exp2(e.exponent));
         },
         arb_exp, -700, 700, false},
        {"log", [](double x) { return extended_log({x}); }, arb_log, 1e-300, 1e300, true},
        {"log", [](double x) { return extended_log({x}); }, arb_log, 0.5, 2, false},
        {"open log", [](double x) -> DoubleDouble { return open_log(x); }, arb_log, 1e-300, 1e300, true},
        {"open log", [](double x) -> DoubleDouble { return open_log(x); }, arb_log, 0.5, 2, false},
        {"sin", [](double x) { return extended_sine_cosine_of({x}).sine; }, arb_sin, 1e-5, 1e3, true},
        {"sin", [](double x) { return extended_sine_cosine_of({x}).sine; }, arb_sin, 1e3, 1e16, true},
        {"cos", [](double x) { return extended_sine_cosine_of({x}).cosine; }, arb_cos, 1e-5, 1e3, true},
        {"cos", [](double x) { return extended_sine_cosine_of({x}).cosine; }, arb_cos, 1e3, 1e16, true},
        {"sinpi", [](double x) { return extended_sine_pi(x); }, arb_sin_pi, 1e-5, 1e3, true},
    };
    arb_t x, y, d;
    arb_init(x), arb_init(y), arb_init(d);
    std::mt19937_64 random{7};
    for (const Kernel &k : kernels) {
        double worst = 0, at = 0, sum = 0;
        const int n = 100000;
        for (int i = 0; i < n; ++i) {
            const double u = (i + 0.5) / n + random() * 0x1p-84;
            const double t = k.logarithmic ? std::exp(std::log(k.from) * (1 - u) + std::log(k.to) * u)
                                           : k.from + (k.to - k.from) * u;
            arb_set_d(x, t);
            k.truth(y, x, 300);
            const DoubleDouble z = k.f(t);
            arb_set_d(d, z.hi);
            arb_sub(d, y, d, 300);
            arb_t low;
            arb_init(low);
            arb_set_d(low, z.lo);
            arb_sub(d, d, low, 300);
            arb_div(d, d, y, 300);
            const double e = std::fabs(arf_get_d(arb_midref(d), ARF_RND_NEAR));
            arb_clear(low);
            sum += e;
            if (e > worst) worst = e, at = t;
        }
        std::printf("extended %-6s [%g, %g]: worst 2^%.1f at %.17g, mean 2^%.1f\n", k.name, k.from, k.to,
                    std::log2(worst), at, std::log2(sum / n));
    }
    arb_clear(x), arb_clear(y), arb_clear(d);
}

arb_srcptr one()
{
    static arb_t value;
    arb_set_ui(value, 1);
    return value;
}

// Phi(x) = erfc(-x / sqrt 2) / 2.
void normal(arb_t y, const arb_t x, slong precision)
{
    arb_t root;
    arb_init(root);
    arb_set_ui(root, 2);
    arb_sqrt(root, root, precision);
    arb_div(root, x, root, precision);
    arb_neg(root, root);
    arb_hypgeom_erfc(y, root, precision);
    arb_mul_2exp_si(y, y, -1);
    arb_clear(root);
}

void normal_complement(arb_t y, const arb_t x, slong precision)
{
    arb_t minus;
    arb_init(minus);
    arb_neg(minus, x);
    normal(y, minus, precision);
    arb_clear(minus);
}

// P(|X| <= x) of the normal law.
void normal_confidence(arb_t y, const arb_t x, slong precision)
{
    arb_set_ui(y, 2);
    arb_sqrt(y, y, precision);
    arb_div(y, x, y, precision);
    arb_hypgeom_erf(y, y, precision);
}

// The x with law(x) = p by Newton's method from a double value, the slope being `multiple` times the normal density.
template <sweep::Truth law, int multiple>
void normal_deviate(arb_t x, double start, const arb_t p, slong precision)
{
    precision += 60;
    arb_t step, density;
    arb_init(step), arb_init(density);
    arb_set_d(x, start);
    for (int k = 0; k < 4; ++k) {
        arb_mul(density, x, x, precision);
        arb_mul_2exp_si(density, density, -1);
        arb_neg(density, density);
        arb_exp(density, density, precision);
        arb_const_sqrt_pi(step, precision);
        arb_div(density, density, step, precision);
        arb_set_ui(step, 2);
        arb_sqrt(step, step, precision);
        arb_div(density, density, step, precision);
        arb_mul_si(density, density, multiple, precision);
        law(step, x, precision);
        arb_sub(step, p, step, precision);
        arb_div(step, step, density, precision);
        arb_add(x, x, step, precision);
        mag_zero(arb_radref(x));
    }
    arb_clear(step), arb_clear(density);
}

const boost::math::normal_distribution<double, Policy> normal_of_boost;

void deviate_of_upper_tail(arb_t x, const arb_t q, slong precision)
{
    const double start = quantile(complement(normal_of_boost, arf_get_d(arb_midref(q), ARF_RND_NEAR)));
    normal_deviate<normal_complement, -1>(x, start, q, precision);
}

void deviate_of_confidence(arb_t x, const arb_t p, slong precision)
{
    const double middle = arf_get_d(arb_midref(p), ARF_RND_NEAR);
    const double start = middle < 0.1 ? 1.25 * middle : quantile(complement(normal_of_boost, 0.5 - 0.5 * middle));
    normal_deviate<normal_confidence, 2>(x, start, p, precision);
}

void e1(arb_t y, const arb_t x, slong precision) { arb_hypgeom_expint(y, one(), x, precision); }

template <int k>
void polygamma(arb_t y, const arb_t x, slong precision)
{
    arb_t order;
    arb_init(order);
    acb_t z;
    acb_init(z);
    acb_set_arb(z, x);
    acb_t s;
    acb_init(s);
    acb_set_ui(s, k);
    acb_polygamma(z, s, z, precision);
    arb_set(y, acb_realref(z));
    acb_clear(s);
    acb_clear(z);
    arb_clear(order);
}

void fresnel_sine(arb_t y, const arb_t x, slong precision) { arb_hypgeom_fresnel(y, nullptr, x, 1, precision); }
void fresnel_cosine(arb_t y, const arb_t x, slong precision) { arb_hypgeom_fresnel(nullptr, y, x, 1, precision); }

constexpr slong kBits = 200;

// Q(a, x) for x > a, P(a, x) otherwise: P by its power series, all terms positive.
void smaller_incomplete_gamma(arb_t y, const arb_t a, const arb_t x, bool upper)
{
    if (upper) {
        arb_hypgeom_gamma_upper(y, a, x, 1, kBits);
        return;
    }
    arb_t term, sum, n;
    arb_init(term), arb_init(sum), arb_init(n);
    arb_one(term), arb_one(sum), arb_set(n, a);
    do {
        arb_add_ui(n, n, 1, kBits);
        arb_mul(term, term, x, kBits);
        arb_div(term, term, n, kBits);
        arb_add(sum, sum, term, kBits);
    } while (arf_get_d(arb_midref(term), ARF_RND_NEAR) > 1e-40);
    arb_log(term, x, kBits);
    arb_mul(term, term, a, kBits);
    arb_sub(term, term, x, kBits);
    arb_add_ui(n, a, 1, kBits);
    arb_lgamma(n, n, kBits);
    arb_sub(term, term, n, kBits);
    arb_exp(term, term, kBits);
    arb_mul(y, sum, term, kBits);
    arb_clear(term), arb_clear(sum), arb_clear(n);
}

// The incomplete gamma functions at random points of several regions of the quarter plane.
void run_incomplete_gamma(long count)
{
    struct Region {
        const char *name;
        double a_from, a_to;
        bool near; // x near a, or anywhere from 1e-3 to 1e3 times max(a, 1)
    };
    const Region regions[] = {{"a < 1", 1e-3, 1, false},       {"a tiny", 1e-300, 1e-3, false},
                              {"1..16", 1, 16, false},         {"16..1e3 far", 16, 1e3, false},
                              {"1..16 near", 1, 16, true},     {"16..1e3 near", 16, 1e3, true},
                              {"to 1e6 near", 1e3, 1e6, true}, {"to 1e8 near", 1e6, 1e8, true}};
    std::mt19937_64 random{99};
    std::uniform_real_distribution<double> uniform{0, 1};
    std::normal_distribution<double> normal;
    arb_t a, x, y;
    arb_init(a), arb_init(x), arb_init(y);
    for (const Region &r : regions) {
        sweep::Worst kor_small, kor_large, boost_small;
        double at_a = 0;
        long points = 0;
        for (long k = 0; k < count; ++k) {
            const double ad = std::exp(std::log(r.a_from) + (std::log(r.a_to) - std::log(r.a_from)) * uniform(random));
            const double xd = r.near ? ad + std::sqrt(ad) * normal(random) * 8
                                     : std::max(ad, 1.0) * std::exp((uniform(random) - 0.5) * 13);
            if (xd <= 0) continue;
            arb_set_d(a, ad);
            arb_set_d(x, xd);
            double p, q;
            KorError fail{};
            s14bac(ad, xd, 0, &p, &q, &fail);
            for (const bool upper : {false, true}) {
                if (upper != (xd > ad)) { // the larger one, from the smaller one
                    smaller_incomplete_gamma(y, a, x, !upper);
                    arb_sub_ui(y, y, 1, kBits);
                    arb_neg(y, y);
                } else {
                    smaller_incomplete_gamma(y, a, x, upper);
                }
                const double exact = arf_get_d(arb_midref(y), ARF_RND_NEAR);
                if (exact < 1e-300) continue;
                const double e = std::fabs((upper ? q : p) - exact) / sweep::ulp_of(exact);
                const double b =
                    upper ? boost::math::gamma_q(ad, xd, Policy{}) : boost::math::gamma_p(ad, xd, Policy{});
                ++points;
                sweep::Worst &w = exact < 0.5 ? kor_small : kor_large;
                if (e > w.error && exact < 0.5) at_a = ad;
                w.add(e, xd);
                if (exact < 0.5) boost_small.add(std::fabs(b - exact) / sweep::ulp_of(exact), xd);
            }
        }
        std::printf("s14bac %-14s %ld values: smaller %.2f ulp at a=%.17g x=%.17g mean %.2f; larger %.2f; boost "
                    "smaller %.3g mean %.3g\n",
                    r.name, points, kor_small.error, at_a, kor_small.at, 2 * kor_small.sum / points, kor_large.error,
                    boost_small.error, 2 * boost_small.sum / points);
        std::fflush(stdout);
    }
    arb_clear(a), arb_clear(x), arb_clear(y);
}

// Carlson's integrals at random arguments: three spreads, from one binade to thirty, some with a zero.
void run_carlson(long count)
{
    struct Integral {
        const char *name;
        double (*f)(const double *);
        double (*peer)(const double *);
        void (*truth)(acb_t, acb_srcptr);
    };
    static KorError fail{};
    const Integral integrals[] = {
        {"s21bac", [](const double *w) { return s21bac(w[0], w[1], &fail); },
         [](const double *w) { return boost::math::ellint_rc(w[0], w[1], Policy{}); },
         [](acb_t y, acb_srcptr w) { acb_elliptic_rf(y, w, w + 1, w + 1, 0, kBits); }},
        {"s21bac<0", [](const double *w) { return s21bac(w[0], -w[1], &fail); },
         [](const double *w) { return boost::math::ellint_rc(w[0], -w[1], Policy{}); },
         [](acb_t y, acb_srcptr w) {
             acb_t a, b;
             acb_init(a), acb_init(b);
             acb_add(a, w, w + 1, kBits);
             acb_elliptic_rf(y, a, w + 1, w + 1, 0, kBits);
             acb_div(b, w, a, kBits);
             acb_sqrt(b, b, kBits);
             acb_mul(y, y, b, kBits);
             acb_clear(a), acb_clear(b);
         }},
        {"s21bbc", [](const double *w) { return s21bbc(w[0], w[1], w[2], &fail); },
         [](const double *w) { return boost::math::ellint_rf(w[0], w[1], w[2], Policy{}); },
         [](acb_t y, acb_srcptr w) { acb_elliptic_rf(y, w, w + 1, w + 2, 0, kBits); }},
        {"s21bcc", [](const double *w) { return s21bcc(w[0], w[1], w[2], &fail); },
         [](const double *w) { return boost::math::ellint_rd(w[0], w[1], w[2], Policy{}); },
         [](acb_t y, acb_srcptr w) { acb_elliptic_rj(y, w, w + 1, w + 2, w + 2, 0, kBits); }},
        {"s21bdc", [](const double *w) { return s21bdc(w[0], w[1], w[2], w[3], &fail); },
         [](const double *w) { return boost::math::ellint_rj(w[0], w[1], w[2], w[3], Policy{}); },
         [](acb_t y, acb_srcptr w) { acb_elliptic_rj(y, w, w + 1, w + 2, w + 3, 0, kBits); }},
    };
    acb_ptr w = _acb_vec_init(4);
    acb_t y;
    acb_init(y);
    for (const Integral &integral : integrals)
        for (const double spread : {0.5, 3.0, 20.0, 200.0}) {
            std::mt19937_64 random{5};
            std::uniform_real_distribution<double> uniform{-spread / 2, spread / 2};
            sweep::Worst ours, peers;
            for (long k = 0; k < count; ++k) {
                double x[4];
                for (double &v : x) v = std::exp(uniform(random));
                if (k % 7 == 0) x[0] = 0.0;
                for (int i = 0; i < 4; ++i) acb_set_d(w + i, x[i]);
                integral.truth(y, w);
                const double exact = arf_get_d(arb_midref(acb_realref(y)), ARF_RND_NEAR);
                arf_t difference;
                arf_init(difference);
                const auto error = [&](double computed) {
                    arf_set_d(difference, computed);
                    arf_sub(difference, difference, arb_midref(acb_realref(y)), kBits, ARF_RND_NEAR);
                    return std::fabs(arf_get_d(difference, ARF_RND_NEAR)) / sweep::ulp_of(exact);
                };
                ours.add(error(integral.f(x)), x[0]);
                peers.add(error(integral.peer(x)), x[0]);
                arf_clear(difference);
            }
            std::printf("%-9s spread %5g: worst %6.3f ulp mean %.3f over 2: %ld; boost %.3g mean %.3g\n", integral.name,
                        spread, ours.error, ours.sum / count, ours.over, peers.error, peers.sum / count);
            std::fflush(stdout);
        }
    _acb_vec_clear(w, 4);
    acb_clear(y);
}

void run_theta(long count)
{
    static KorError fail{};
    acb_t z, tau, t[4];
    acb_init(z), acb_init(tau);
    for (auto &v : t) acb_init(v);
    arb_t l;
    arb_init(l);
    for (int k = 0; k < 4; ++k)
        for (const double top : {1e-3, 0.0432, 0.1, 0.9, 0.9999}) {
            std::mt19937_64 random{5};
            std::uniform_real_distribution<double> uniform{0, 1};
            sweep::Worst ours, conditioned;
            for (long n = 0; n < count; ++n) {
                const double q = n % 3 ? top * std::exp(-3 * uniform(random)) : top * uniform(random);
                double x = 3 * uniform(random) - 1.5;
                if (n % 10 == 0) x = std::rint(2 * x) / 2 + (uniform(random) - 0.5) * std::exp(-30 * uniform(random));
                arb_set_d(l, q);
                arb_log(l, l, kBits);
                arb_const_pi(acb_imagref(tau), kBits);
                arb_div(acb_imagref(tau), l, acb_imagref(tau), kBits);
                arb_neg(acb_imagref(tau), acb_imagref(tau));
                arb_zero(acb_realref(tau));
                acb_set_d(z, x);
                acb_modular_theta(t[0], t[1], t[2], t[3], z, tau, 2 * kBits);
                arb_srcptr y = acb_realref(t[k]); // theta_1, ..., theta_4
                const double exact = arf_get_d(arb_midref(y), ARF_RND_NEAR);
                arf_t d;
                arf_init(d);
                arf_set_d(d, s21ccc(k + 1, x, q, &fail));
                arf_sub(d, d, arb_midref(y), kBits, ARF_RND_NEAR);
                const double e = std::fabs(arf_get_d(d, ARF_RND_NEAR)) / sweep::ulp_of(exact);
                arf_clear(d);
                if (std::fabs(exact) > 1e-300) ours.add(e, x);
            }
            std::printf("theta_%d q to %g: worst %.3f at x=%.17g mean %.3f\n", k + 1, top, ours.error, ours.at,
                        ours.sum / count);
            std::fflush(stdout);
        }
    acb_clear(z), acb_clear(tau);
    for (auto &v : t) acb_clear(v);
    arb_clear(l);
}

// |computed - exact| / |exact| in units of 2^-53 for complex values.
double complex_error(Complex computed, const acb_t exact)
{
    acb_t d;
    acb_init(d);
    acb_set_d_d(d, computed.re, computed.im);
    acb_sub(d, d, exact, kBits);
    arb_t a, b;
    arb_init(a), arb_init(b);
    acb_abs(a, d, kBits);
    acb_abs(b, exact, kBits);
    arb_div(a, a, b, kBits);
    const double e = arf_get_d(arb_midref(a), ARF_RND_NEAR) * 0x1p53;
    acb_clear(d);
    arb_clear(a), arb_clear(b);
    return e;
}

void run_complex(long count)
{
    static KorError fail{};
    acb_t z, s, y;
    acb_init(z), acb_init(s), acb_init(y);
    std::mt19937_64 random{17};
    std::uniform_real_distribution<double> uniform{-1, 1};
    for (int k = 0; k <= 4; ++k)
        for (const double size : {0.1, 1.0, 10.0, 30.0, 300.0}) {
            sweep::Worst w;
            Complex at{};
            for (long n = 0; n < count; ++n) {
                const Complex x{size * uniform(random), size * uniform(random) * (n % 4 == 0 ? 1e-3 : 1.0)};
                acb_set_d_d(z, x.re, x.im);
                acb_set_si(s, k);
                for (slong bits = kBits; bits < 3000; bits *= 2) {
                    acb_polygamma(y, s, z, bits);
                    if (acb_rel_accuracy_bits(y) > 80) break;
                }
                const double e = complex_error(s14afc(x, k, &fail), y);
                if (e > w.error) at = x;
                w.add(e, x.re);
            }
            std::printf("s14afc k=%d |z| to %g: worst %.2f (2^-53) at (%.17g, %.17g) mean %.2f\n", k, size, w.error,
                        at.re, at.im, w.sum / count);
        }
    acb_t kk, kp, tau, t0[4], t[4];
    acb_init(kk), acb_init(kp), acb_init(tau);
    for (auto &v : t0) acb_init(v);
    for (auto &v : t) acb_init(v);
    for (const double m : {1e-20, 1e-6, 0.1, 0.5, 0.9, 0.999999, 1 - 1e-12})
        for (const double size : {1e-3, 1.0, 5.0, 50.0}) {
            sweep::Worst w[3];
            for (long n = 0; n < count; ++n) {
                const Complex x{size * uniform(random), n % 5 == 0 ? 0.0 : size * uniform(random)};
                acb_set_d(s, m);
                acb_elliptic_k(kk, s, kBits);
                acb_sub_ui(s, s, 1, kBits);
                acb_neg(s, s);
                acb_elliptic_k(kp, s, kBits);
                acb_div(tau, kp, kk, kBits);
                acb_mul_onei(tau, tau);
                acb_set_d_d(z, x.re, x.im);
                acb_div(z, z, kk, kBits);
                acb_mul_2exp_si(z, z, -1);
                acb_modular_theta(t[0], t[1], t[2], t[3], z, tau, 2 * kBits);
                acb_zero(z);
                acb_modular_theta(t0[0], t0[1], t0[2], t0[3], z, tau, 2 * kBits);
                Complex v[3];
                s21cbc(x, m, &v[0], &v[1], &v[2], &fail);
                // sn = t3 t1(z) / (t2 t4(z)), cn = t4 t2(z) / (t2 t4(z)), dn = t4 t3(z) / (t3 t4(z))
                const int num0[] = {2, 3, 3}, num[] = {0, 1, 2}, den0[] = {1, 1, 2};
                for (int f = 0; f < 3; ++f) {
                    acb_mul(y, t0[num0[f]], t[num[f]], kBits);
                    acb_div(y, y, t0[den0[f]], kBits);
                    acb_div(y, y, t[3], kBits);
                    w[f].add(complex_error(v[f], y), x.re);
                }
            }
            std::printf("s21cbc m=%g |z| to %g: worst sn %.3g cn %.3g dn %.3g mean %.2f %.2f %.2f (2^-53)\n", m, size,
                        w[0].error, w[1].error, w[2].error, w[0].sum / count, w[1].sum / count, w[2].sum / count);
        }
    acb_clear(z), acb_clear(s), acb_clear(y);
}

} // namespace

int main(int argc, char **argv)
{
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    if (argc > 1 && !std::strcmp(argv[1], "extended")) {
        run_extended();
        return 0;
    }
    if (argc > 1 && !std::strcmp(argv[1], "incomplete")) {
        run_incomplete_gamma(argc > 2 ? std::atol(argv[2]) : 5000);
        return 0;
    }
    if (argc > 1 && !std::strcmp(argv[1], "carlson")) {
        run_carlson(argc > 2 ? std::atol(argv[2]) : 20000);
        return 0;
    }
    if (argc > 1 && !std::strcmp(argv[1], "theta")) {
        run_theta(argc > 2 ? std::atol(argv[2]) : 10000);
        return 0;
    }
    if (argc > 1 && !std::strcmp(argv[1], "complex")) {
        run_complex(argc > 2 ? std::atol(argv[2]) : 2000);
        return 0;
    }
    gsl_set_error_handler_off();
    KorError fail{};
    const Policy p;
    const std::vector<Subject> subjects = {
        {"s01bac",
         [&](double x) { return s01bac(x, &fail); },
         arb_log1p,
         {{-0.99999999999999, 1}, {1, 1e300, true}, {1e-300, 1, true}, {-1e-300, -0.5, true}},
         {0, 0.41421356, -0.296875, 0.40625, -1, 0x1p36},
         {{"libm", [](double x) { return std::log1p(x); }}}},
        {"s07aac",
         [&](double x) { return s07aac(x, &fail); },
         arb_tan,
         {{-4, 4}, {1e-300, 1, true}, {1, 1e10, true}, {-1e6, 1e6}},
         {0, 0.785398, 1.5707963, 3.1415926, 1048576},
         {{"libm", [](double x) { return std::tan(x); }}}},
        {"s10aac",
         s10aac,
         arb_tanh,
         {{-5, 5}, {1e-300, 1, true}, {4, 18.5}},
         {0.5, 4},
         {{"libm", [](double x) { return std::tanh(x); }}}},
        {"s10abc",
         [&](double x) { return s10abc(x, &fail); },
         arb_sinh,
         {{-5, 5}, {1e-300, 1, true}, {-708, 708}},
         {1, 20},
         {{"libm", [](double x) { return std::sinh(x); }}}},
        {"s10acc",
         [&](double x) { return s10acc(x, &fail); },
         arb_cosh,
         {{-5, 5}, {1e-300, 1, true}, {-708, 708}},
         {0.5, 20},
         {{"libm", [](double x) { return std::cosh(x); }}}},
        {"s11aac",
         [&](double x) { return s11aac(x, &fail); },
         arb_atanh,
         {{-0.999, 0.999}, {0.999, 0.99999999999999}, {1e-300, 0.5, true}},
         {0.25, 0.5, 1},
         {{"libm", [](double x) { return std::atanh(x); }}}},
        {"s11abc",
         s11abc,
         arb_asinh,
         {{-3, 3}, {1e-300, 1, true}, {1, 1.7e308, true}},
         {0.25, 1e9},
         {{"libm", [](double x) { return std::asinh(x); }}}},
        {"s11acc",
         [&](double x) { return s11acc(x, &fail); },
         arb_acosh,
         {{1, 3}, {1, 1.7e308, true}},
         {1, 2, 1e9},
         {{"libm", [](double x) { return std::acosh(x); }}}},
        {"s13aac",
         [&](double x) { return s13aac(x, &fail); },
         e1,
         {{1e-300, 0.25, true}, {0.1, 20}, {16, 708.3}},
         {0.0625, 1, 2, 4, 16, 701, 708.3},
         {{"gsl", gsl_sf_expint_E1}, {"boost", [&](double x) { return boost::math::expint(1, x, p); }}}},
        {"s13acc",
         [&](double x) { return s13acc(x, &fail); },
         arb_hypgeom_ci,
         {{1e-300, 0.5, true}, {0.1, 20}, {16, 1000}, {16, 1e16, true}, {1e16, 1e300, true}},
         {0.5, 0.61650548562, 3.38418042255, 2, 5, 8, 11, 14, 16, 1e16},
         {{"gsl", gsl_sf_Ci}},
         [](double x) { return x > 16 ? 1 / x : 0.0; }},
        {"s13adc",
         s13adc,
         arb_hypgeom_si,
         {{-1e-300, -0.5, true}, {0.1, 20}, {16, 1000}, {16, 1e16, true}, {1e16, 1e300, true}},
         {1, 16, 1e16},
         {{"gsl", gsl_sf_Si}}},
        {"s14aac",
         [&](double x) { return s14aac(x, &fail); },
         arb_gamma,
         {{0.5, 12}, {12, 170}, {1e-15, 0.5, true}, {-1e-15, -0.5, true}, {-0.5, -12}, {-12, -170}},
         {0, 1, 2, 12, 170, -0.5, -1, -2, -3, -12},
         {{"libm", [](double x) { return std::tgamma(x); }},
          {"gsl", gsl_sf_gamma},
          {"boost", [&](double x) { return boost::math::tgamma(x, p); }}}},
        {"s14abc",
         [&](double x) { return s14abc(x, &fail); },
         arb_lgamma,
         {{0.5, 3}, {3, 16}, {16, 1e7, true}, {1e7, 2.55e305, true}, {1e-15, 0.5, true}, {1e-308, 1e-15, true}},
         {1e-15, 0.5, 1, 2, 3, 12, 16, 6.8e6, 1e17},
         {{"libm", [](double x) { return std::lgamma(x); }},
          {"gsl", gsl_sf_lngamma},
          {"boost", [&](double x) { return boost::math::lgamma(x, p); }}}},
        {"s14aec0",
         [&](double x) { return s14aec(x, 0, &fail); },
         arb_digamma,
         {{0, 20}, {1e-300, 1, true}, {16, 1e300, true}, {-20, 0}},
         {1.4616321449683622, 0.5, 1, 2, 16, 64, -0.5},
         {{"gsl", gsl_sf_psi}, {"boost", [&](double x) { return boost::math::digamma(x, p); }}},
         [](double x) { return x < 0 ? 1.0 : 0.0; }},
        {"s14aec1",
         [&](double x) { return s14aec(x, 1, &fail); },
         polygamma<1>,
         {{0, 20}, {1e-100, 1, true}, {16, 1e100, true}, {-20, 0}},
         {0.5, 1, 16, 64, -0.5},
         {{"gsl", gsl_sf_psi_1}, {"boost", [&](double x) { return boost::math::trigamma(x, p); }}}},
        {"s14aec2",
         [&](double x) { return s14aec(x, 2, &fail); },
         polygamma<2>,
         {{0, 20}, {1e-100, 1, true}, {16, 1e100, true}, {-20, 0}},
         {1, 16},
         {{"gsl", [](double x) { return gsl_sf_psi_n(2, x); }}},
         [](double x) { return x < 0 ? 10.0 : 0.0; }},
        {"s14aec5",
         [&](double x) { return s14aec(x, 5, &fail); },
         polygamma<5>,
         {{0, 20}, {1e-40, 1, true}, {16, 1e40, true}, {-20, 0}},
         {1, 16},
         {{"gsl", [](double x) { return gsl_sf_psi_n(5, x); }}}},
        {"s14aec6",
         [&](double x) { return s14aec(x, 6, &fail); },
         polygamma<6>,
         {{0, 20}, {1e-40, 1, true}, {16, 1e40, true}, {-20, 0}},
         {1, 16},
         {{"gsl", [](double x) { return gsl_sf_psi_n(6, x); }}},
         [](double x) { return x < 0 ? 10000.0 : 0.0; }},
        {"s15abc",
         s15abc,
         normal,
         {{-38.5, -0.5}, {-1, 1}, {0, 9}, {-1e-300, -0.1, true}},
         {-0.707, 0.707, -38, 8.8},
         {{"gsl", gsl_cdf_ugaussian_P},
          {"boost",
           [&](double x) { return boost::math::cdf(boost::math::normal_distribution<double, Policy>{}, x); }}}},
        {"s15acc",
         s15acc,
         normal_complement,
         {{0.5, 38.5}, {-1, 1}, {-9, 0}},
         {-0.707, 0.707, 38, -8.8},
         {{"gsl", gsl_cdf_ugaussian_Q}}},
        {"s15adc",
         s15adc,
         arb_hypgeom_erfc,
         {{0.5, 26.599999}, {-6.249999, 0.5}, {1e-300, 0.1, true}},
         {0.5, -0.5, 26.6, 0.477},
         {{"libm", [](double x) { return std::erfc(x); }},
          {"gsl", gsl_sf_erfc},
          {"boost", [&](double x) { return boost::math::erfc(x, p); }}}},
        {"s15aec",
         s15aec,
         arb_hypgeom_erf,
         {{0.5, 6.249999}, {-6.249999, 0.5}, {1e-300, 0.5, true}},
         {0.5, -0.5, 6.25},
         {{"libm", [](double x) { return std::erf(x); }},
          {"gsl", gsl_sf_erf},
          {"boost", [&](double x) { return boost::math::erf(x, p); }}}},
        {"g01fac",
         [&](double q) { return g01fac(Kor_UpperTail, q, &fail); },
         deviate_of_upper_tail,
         {{1e-322, 0.25, true}, {1e-3, 0.25}, {0.25, 0.75}, {0.75, 0.99999999999999}},
         {0.25, 0.5, 0.75},
         {{"gsl", gsl_cdf_ugaussian_Qinv},
          {"boost", [](double q) { return quantile(complement(normal_of_boost, q)); }}}},
        {"g01fac C",
         [&](double p) { return g01fac(Kor_TwoTailConfid, p, &fail); },
         deviate_of_confidence,
         {{1e-300, 0.5, true}, {0.4, 0.99999999999999}},
         {0.5}},
        {"s20acc", s20acc, fresnel_sine, {{1e-100, 0.5, true}, {-8, 8}, {4, 1000}, {4, 1e16, true}}, {0.5, 4, 1e16}},
        {"s20adc", s20adc, fresnel_cosine, {{1e-300, 0.5, true}, {-8, 8}, {4, 1000}, {4, 1e16, true}}, {0.5, 4, 1e16}},
    };
    return sweep::main_of(subjects, argc, argv);
}
