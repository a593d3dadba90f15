// The vectorised elementary functions of the samplers beside the mathematics library: time, and error against MPFR.
// The library's arithmetic: no contraction.
#pragma GCC optimize("fp-contract=off", "no-math-errno", "no-trapping-math")

#include <algorithm>
#include <cmath>
#include <functional>
#include <random>
#include <vector>

#include <kor/g05.h>

#include "frame/dispatch.hpp"
#include "random/elementary.hpp"
#include "support/ratio_table.hpp"

#ifdef KOR_HAVE_MPFR
#include <mpfr.h>
#endif

namespace {

using namespace kor::random;
using Values = std::vector<double>;

const kor::bench::Heading heading{"Elementary functions on vectors, time for one argument",
                                  "largest error in ulps, of 300,000 arguments"};

constexpr int kItems = 1024;
constexpr int kAccuracySample = 300000;

KOR_CLONES void log_of(std::size_t n, const double *__restrict x, double *__restrict y)
{
    for (std::size_t i = 0; i < n; ++i) y[i] = lane_log(x[i]);
}
KOR_CLONES void exp_of(std::size_t n, const double *__restrict x, double *__restrict y)
{
    for (std::size_t i = 0; i < n; ++i) y[i] = lane_exp(x[i]).value;
}
// Cosines of even elements, sines of odd ones, so that both have the same form.
KOR_CLONES void turn_of(std::size_t n, const double *__restrict x, double *__restrict y)
{
    for (std::size_t i = 0; i + 1 < n; i += 2) {
        y[i] = lane_turn(x[i]).cosine;
        y[i + 1] = lane_turn(x[i + 1]).sine;
    }
}

#ifdef KOR_HAVE_MPFR
constexpr mpfr_prec_t kBits = 120;
using Function = std::function<void(mpfr_t result, const double *x, std::size_t i)>;

double worst_error(const Function &exact, const Values &x, const Values &y)
{
    mpfr_t truth, difference;
    mpfr_inits2(kBits, truth, difference, nullptr);
    double worst = 0.0;
    for (std::size_t i = 0; i < y.size(); ++i) {
        exact(truth, x.data(), i);
        if (mpfr_zero_p(truth)) continue;
        mpfr_d_sub(difference, y[i], truth, MPFR_RNDN);
        const long exponent = std::max<long>(mpfr_get_exp(truth), -1021);
        worst =
            std::max(worst, std::fabs(std::ldexp(mpfr_get_d(difference, MPFR_RNDN), static_cast<int>(53 - exponent))));
    }
    mpfr_clears(truth, difference, nullptr);
    return worst;
}

void exact_turn(mpfr_t result, double u, bool sine)
{
    mpfr_const_pi(result, MPFR_RNDN);
    mpfr_mul_d(result, result, 2.0 * u, MPFR_RNDN);
    if (sine)
        mpfr_sin(result, result, MPFR_RNDN);
    else
        mpfr_cos(result, result, MPFR_RNDN);
}
void exact_log(mpfr_t result, double x)
{
    mpfr_set_d(result, x, MPFR_RNDN);
    mpfr_log(result, result, MPFR_RNDN);
}
#define KOR_ERROR_OF(exact, x, y) worst_error(exact, x, y)
#else
#define KOR_ERROR_OF(exact, x, y) -1.0
#endif

using Loop = std::function<void(std::size_t n, const double *x, double *y)>;

template <class Exact>
void add(const char *name, const Loop &loop, const Values &x, [[maybe_unused]] Exact exact)
{
    Values y(x.size());
    loop(x.size(), x.data(), y.data());
    const double error = KOR_ERROR_OF(exact, x, y);
    static Values result(kItems);
    kor::bench::add(name,
                    [loop, first = Values(x.begin(), x.begin() + kItems)] {
                        loop(kItems, first.data(), result.data());
                        kor::bench::keep(result[kItems - 1]);
                    },
                    {.error = error, .items = kItems});
}

Loop one_by_one(double (*f)(double))
{
    return [f](std::size_t n, const double *x, double *y) {
        for (std::size_t i = 0; i < n; ++i) y[i] = f(x[i]);
    };
}

const bool registered = [] {
    std::mt19937_64 random{7};
    std::uniform_real_distribution<double> uniform;
    Values u(kAccuracySample), wide(kAccuracySample);
    for (double &x : u) x = uniform(random);
    // Near the ends of the range, too.
    for (std::size_t i = 0; i < u.size(); i += 5) u[i] = i % 2 == 0 ? 1.0 - u[i] * 0x1p-20 : std::ldexp(u[i], -30);
    for (double &x : wide) x = -700.0 * uniform(random) * uniform(random);

    constexpr double kTwoPi = 2.0 * 3.14159265358979324;
    const Loop libm_turn = [](std::size_t n, const double *x, double *y) {
        for (std::size_t i = 0; i + 1 < n; i += 2) {
            y[i] = std::cos(kTwoPi * x[i]);
            y[i + 1] = std::sin(kTwoPi * x[i + 1]);
        }
    };
    const Loop normal = [](std::size_t n, const double *, double *z) {
        g05cbc(77);
        g05fdc(0.0, 1.0, static_cast<Integer>(n), z);
    };
    const Loop libm_normal = [](std::size_t n, const double *, double *z) {
        g05cbc(77);
        for (std::size_t i = 0; i + 1 < n; i += 2) {
            const double r = std::sqrt(-2.0 * std::log(g05cac())), t = kTwoPi * g05cac();
            z[i] = r * std::cos(t);
            z[i + 1] = r * std::sin(t);
        }
    };
    Values pairs(kAccuracySample);
    g05cbc(77);
    g05fac(0.0, 1.0, kAccuracySample, pairs.data());
#ifdef KOR_HAVE_MPFR
    const Function log_exact = [](mpfr_t y, const double *x, std::size_t i) { exact_log(y, x[i]); };
    const Function exp_exact = [](mpfr_t y, const double *x, std::size_t i) {
        mpfr_set_d(y, x[i], MPFR_RNDN);
        mpfr_exp(y, y, MPFR_RNDN);
    };
    const Function turn_exact = [](mpfr_t y, const double *x, std::size_t i) { exact_turn(y, x[i], i % 2 == 1); };
    const Function normal_exact = [](mpfr_t y, const double *x, std::size_t i) {
        mpfr_t radius;
        mpfr_init2(radius, kBits);
        exact_log(radius, x[i - i % 2]);
        mpfr_mul_d(radius, radius, -2.0, MPFR_RNDN);
        mpfr_sqrt(radius, radius, MPFR_RNDN);
        exact_turn(y, x[i - i % 2 + 1], i % 2 == 1);
        mpfr_mul(y, y, radius, MPFR_RNDN);
        mpfr_clear(radius);
    };
#else
    const int log_exact = 0, exp_exact = 0, turn_exact = 0, normal_exact = 0;
#endif
    add("log on (0, 1)/KOR", log_of, u, log_exact);
    add("log on (0, 1)/libm", one_by_one(std::log), u, log_exact);
    add("exp on (-700, 0)/KOR", exp_of, wide, exp_exact);
    add("exp on (-700, 0)/libm", one_by_one(std::exp), wide, exp_exact);
    add("cos, sin of 2 pi u/KOR", turn_of, u, turn_exact);
    add("cos, sin of 2 pi u/libm", libm_turn, u, turn_exact);
    add("Box and Muller with the stream/KOR", normal, pairs, normal_exact);
    add("Box and Muller with the stream/libm", libm_normal, pairs, normal_exact);
    return true;
}();

} // namespace
