// Accuracy of the Bessel functions of complex argument against Arb: all sectors and both sides of the cut, moduli from 1e-8 to
// 1e6, orders up to 300. Errors are relative to the modulus, next to a zero to that of the neighbours in order.
#include <acb_hypgeom.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <random>
#include <vector>

#include "special/bessel_complex.hpp"

using namespace kor::special;

namespace {

using Kernel = Integer (*)(double, Complex, Integer, Scaling, Complex[], Integer *);
using Truth = void (*)(acb_t, const acb_t, const acb_t, slong);

struct Function {
    const char *name;
    Kernel kernel;
    Truth truth;
};

void set(acb_t z, Complex value)
{
    arb_set_d(acb_realref(z), value.re);
    arb_set_d(acb_imagref(z), value.im);
}

// The exact value to 100 bits, as modulus-exponent free Arb number; below the cut by the conjugate.
void exact(acb_t y, Truth truth, double nu, Complex z)
{
    acb_t order, at;
    acb_init(order);
    acb_init(at);
    const bool below = z.im == 0.0 && std::signbit(z.im);
    arb_set_d(acb_realref(order), nu);
    set(at, z);
    for (slong precision = 160; precision < 40000; precision *= 2) {
        truth(y, order, at, precision);
        if (acb_rel_accuracy_bits(y) > 90) break;
    }
    if (below) acb_conj(y, y);
    acb_clear(order);
    acb_clear(at);
}

double log2_modulus(acb_t y)
{
    arf_t m;
    arf_init(m);
    acb_get_abs_ubound_arf(m, y, 60);
    if (arf_is_zero(m)) {
        arf_clear(m);
        return -1e9;
    }
    fmpz_t e;
    fmpz_init(e);
    arf_t f;
    arf_init(f);
    arf_frexp(f, e, m);
    const double value = std::log2(arf_get_d(f, ARF_RND_NEAR)) + fmpz_get_d(e);
    arf_clear(f);
    fmpz_clear(e);
    arf_clear(m);
    return value;
}

} // namespace

int main(int argc, char **argv)
{
    long count = argc > 1 ? std::atol(argv[1]) : 2000;
    const double list = argc > 2 ? std::atof(argv[2]) : INFINITY;
    const Function functions[] = {{"J", s17def_f, acb_hypgeom_bessel_j},
                                  {"Y", s17dcf_f, acb_hypgeom_bessel_y},
                                  {"I", s18def_f, acb_hypgeom_bessel_i},
                                  {"K", s18dcf_f, acb_hypgeom_bessel_k}};
    for (const Function &f : functions) {
        std::mt19937_64 random{4};
        std::uniform_real_distribution<double> uniform{0.0, 1.0};
        double worst = 0.0, sum = 0.0;
        long compared = 0, other = 0;
        char at[200] = "";
        acb_t y, neighbour, computed;
        acb_init(y);
        acb_init(neighbour);
        acb_init(computed);
        for (long k = 0; k < count; ++k) {
            const double modulus = std::exp2(-26.0 + 46.0 * uniform(random));
            const int sector = static_cast<int>(random() % 12);
            Complex z{};
            if (sector < 8) {
                const double angle = (sector + uniform(random)) * 0.78539816339744831;
                z = {modulus * std::cos(angle), modulus * std::sin(angle)};
            } else {
                const Complex axes[] = {{modulus, 0.0}, {-modulus, 0.0}, {-modulus, -0.0}, {0.0, modulus}};
                z = axes[sector - 8];
            }
            if (random() % 3 == 0) z = {std::fmod(z.re, 40.0), std::fmod(z.im, 40.0)};
            const double orders[] = {0.0,
                                     0.25,
                                     0.5,
                                     1.0,
                                     uniform(random),
                                     3.0 * uniform(random),
                                     100.0 * uniform(random),
                                     300.0 * uniform(random)};
            const double fnu = orders[random() % 8];
            const Integer n = 1 + static_cast<Integer>(random() % 20);
            Complex cy[128];
            Integer nz = 0;
            // Unscaled values must fit a double: the tests look at the scaled ones, too.
            const Integer status = f.kernel(fnu, z, n, Scaling::none, cy, &nz);
            if (status != kBesselDone) {
                ++other;
                continue;
            }
            const Integer j = static_cast<Integer>(random() % n);
            if (cy[j].re == 0.0 && cy[j].im == 0.0) continue;
            const double nu = fnu + j;
            if (nu - j != fnu) continue;
            exact(y, f.truth, nu, z);
            double size = log2_modulus(y);
            if (size < -1020.0) continue;
            double lower = 1e9;
            for (const int step : {-1, 1}) {
                if (nu + step < 0) continue;
                exact(neighbour, f.truth, nu + step, z);
                lower = std::min(lower, log2_modulus(neighbour));
            }
            if (lower < 1e9) size = std::max(size, lower);
            set(computed, cy[j]);
            acb_sub(y, y, computed, 200);
            const double error = std::exp2(log2_modulus(y) - size + 53.0);
            sum += error;
            ++compared;
            if (error > list) std::printf("  %s %.17g at (%.17g, %.17g): %.3g\n", f.name, nu, z.re, z.im, error);
            if (error > worst) {
                worst = error;
                std::snprintf(at, sizeof at, "order %.17g at (%.17g, %.17g)", nu, z.re, z.im);
            }
        }
        std::printf("%s: %ld values, %ld overflows: worst %.3g * 2^-53, mean %.3g, %s\n", f.name, compared, other,
                    worst, sum / compared, at);
        std::fflush(stdout);
    }
    flint_cleanup();
}
