// Elementary functions, gamma and error functions, integrals and elliptic integrals: time of a value and largest error, beside
// libm, Boost.Math and GSL.
//
// Boost.Math runs without promotion to long double; in long double it is the reference for the errors. Where it has no such
// function the reference values of the tests are.
#include <algorithm>
#include <cmath>
#include <cstring>
#include <random>
#include <string>
#include <vector>

#include <kor/s01.h>
#include <kor/s07.h>
#include <kor/s10.h>
#include <kor/s11.h>
#include <kor/s13.h>
#include <kor/s14.h>
#include <kor/s15.h>
#include <kor/s20.h>
#include <kor/s21.h>

#include "support/ratio_table.hpp"

#ifdef KOR_HAVE_GSL
#include <gsl/gsl_cdf.h>
#include <gsl/gsl_errno.h>
#include <gsl/gsl_math.h>
#include <gsl/gsl_sf.h>
#endif
#ifdef KOR_HAVE_BOOST
#include <boost/math/special_functions.hpp>
#endif

namespace {

const kor::bench::Heading heading{"Special functions but the Bessel family, ns a value", "largest error in ulps"};

constexpr int kArguments = 1000;

using Function = double (*)(double);
using Reference = long double (*)(long double);

#ifdef KOR_HAVE_BOOST
using DoublePolicy = boost::math::policies::policy<boost::math::policies::promote_double<false>>;
constexpr DoublePolicy kDouble;
#endif

struct Peer {
    const char *name;
    Function f;
};

std::vector<double> arguments(double from, double to, bool logarithmic = false)
{
    std::mt19937_64 random{42};
    std::uniform_real_distribution<double> uniform{0.0, 1.0};
    std::vector<double> xs(kArguments);
    for (double &x : xs) {
        const double t = uniform(random);
        x = logarithmic ? std::exp(std::lerp(std::log(from), std::log(to), t)) : std::lerp(from, to, t);
    }
    return xs;
}

double ulps(double computed, long double exact)
{
    const double ulp = std::ldexp(1.0, std::max(std::ilogb(static_cast<double>(exact)), -1022) - 52);
    return static_cast<double>(std::fabs(computed - exact) / ulp);
}

// Of the reference values of the tests, those in [from, to].
double error_on_reference_values(const char *routine, Function f, double from, double to)
{
    double worst = -1.0;
    const auto check = [&](const char *name, double x, double nearest, double missing) {
        if (std::strcmp(name, routine) == 0 && x >= from && x <= to)
            worst = std::max(worst, ulps(f(x), static_cast<long double>(nearest) + missing));
    };
#define FUNCTION_VALUE(name, x, nearest, missing) check(#name, x, nearest, missing);
#define CARLSON_VALUE(...)
#define INCOMPLETE_GAMMA(...)
#define POLYGAMMA(...)
#define THETA(...)
#define JACOBI(...)
#define ELLIPTIC(...)
#define LEGENDRE(...)
#include "../../tests/special/elementary_data.inc"
    return worst;
}

// One function on one range: ours and its peers.
void compare(const char *routine, const char *what, double from, double to, std::vector<Peer> functions,
             Reference exact = nullptr)
{
    const std::vector<double> xs = arguments(from, to);
    char title[80];
    std::snprintf(title, sizeof title, "%s %s [%g, %g]/", routine, what, from, to);
    for (const Peer &peer : functions) {
        double worst = -1.0;
        if (exact != nullptr)
            for (const double x : xs) worst = std::max(worst, ulps(peer.f(x), exact(x)));
        else
            worst = error_on_reference_values(routine, peer.f, from, to);
        kor::bench::add(title + std::string{peer.name},
                        [f = peer.f, xs] {
                            double sum = 0.0;
                            for (const double x : xs) sum += f(x);
                            kor::bench::keep(sum);
                        },
                        {.error = worst, .items = kArguments});
    }
}

// The calls of KOR pass no record, as those of the peers have none.
#define KOR_OF(name)                                                                                                   \
    {                                                                                                                  \
        "KOR", [](double x) { return name(x, nullptr); }                                                               \
    }
#define KOR_PLAIN(name)                                                                                                \
    {                                                                                                                  \
        "KOR", [](double x) { return name(x); }                                                                        \
    }
#define LIBM(call)                                                                                                     \
    {                                                                                                                  \
        "libm", [](double x) { return std::call; }                                                                     \
    }
#ifdef KOR_HAVE_GSL
#define GSL(call)                                                                                                      \
    ,                                                                                                                  \
    {                                                                                                                  \
        "GSL", [](double x) { return call; }                                                                           \
    }
#else
#define GSL(call)
#endif
#ifdef KOR_HAVE_BOOST
#define BOOST(name)                                                                                                    \
    ,                                                                                                                  \
    {                                                                                                                  \
        "Boost.Math", [](double x) { return boost::math::name(x, kDouble); }                                           \
    }
#define BOOST_E1                                                                                                       \
    ,                                                                                                                  \
    {                                                                                                                  \
        "Boost.Math", [](double x) { return boost::math::expint(1, x, kDouble); }                                      \
    }
#define EXACT(call) [](long double x) -> long double { return boost::math::call; }
#else
#define BOOST(name)
#define BOOST_E1
#define EXACT(call) nullptr
#endif

void functions_of_one_variable()
{
    compare("s01bac", "ln(1+x)", -0.9, 3, {KOR_OF(s01bac), LIBM(log1p(x)) GSL(gsl_log1p(x)) BOOST(log1p)},
            EXACT(log1p(x)));
    compare("s07aac", "tan", -10, 10, {KOR_OF(s07aac), LIBM(tan(x))});
    compare("s10aac", "tanh", -5, 5, {KOR_PLAIN(s10aac), LIBM(tanh(x))});
    compare("s10abc", "sinh", -20, 20, {KOR_OF(s10abc), LIBM(sinh(x))});
    compare("s10acc", "cosh", -20, 20, {KOR_OF(s10acc), LIBM(cosh(x))});
    compare("s11aac", "arctanh", -1, 1, {KOR_OF(s11aac), LIBM(atanh(x)) BOOST(atanh)}, EXACT(atanh(x)));
    compare("s11abc", "arcsinh", -10, 10, {KOR_PLAIN(s11abc), LIBM(asinh(x)) BOOST(asinh)}, EXACT(asinh(x)));
    compare("s11acc", "arccosh", 1, 10, {KOR_OF(s11acc), LIBM(acosh(x)) BOOST(acosh)}, EXACT(acosh(x)));
    for (const auto &[from, to] : {std::pair{0.01, 1.0}, {1.0, 16.0}, {16.0, 600.0}})
        compare("s13aac", "E1", from, to, {KOR_OF(s13aac) GSL(gsl_sf_expint_E1(x)) BOOST_E1}, EXACT(expint(1, x)));
    for (const auto &[from, to] : {std::pair{0.01, 16.0}, {16.0, 1000.0}}) {
        compare("s13acc", "Ci", from, to, {KOR_OF(s13acc) GSL(gsl_sf_Ci(x))});
        compare("s13adc", "Si", from, to, {KOR_PLAIN(s13adc) GSL(gsl_sf_Si(x))});
    }
    for (const auto &[from, to] : {std::pair{0.01, 1.0}, {1.0, 12.0}, {12.0, 170.0}, {-12.0, 0.0}, {-170.0, -12.0}})
        compare("s14aac", "gamma", from, to, {KOR_OF(s14aac), LIBM(tgamma(x)) GSL(gsl_sf_gamma(x)) BOOST(tgamma)},
                EXACT(tgamma(x)));
    for (const auto &[from, to] : {std::pair{0.01, 0.5}, {0.5, 3.0}, {3.0, 16.0}, {16.0, 1e5}})
        compare("s14abc", "ln gamma", from, to, {KOR_OF(s14abc), LIBM(lgamma(x)) GSL(gsl_sf_lngamma(x)) BOOST(lgamma)},
                EXACT(lgamma(x)));
    for (const auto &[from, to] : {std::pair{0.01, 16.0}, {16.0, 1e5}})
        compare("s14aec", "digamma", from, to,
                {{"KOR", [](double x) { return s14aec(x, 0, nullptr); }} GSL(gsl_sf_psi(x)) BOOST(digamma)},
                EXACT(digamma(x)));
    compare("s14aec", "trigamma", 0.01, 30,
            {{"KOR", [](double x) { return s14aec(x, 1, nullptr); }} GSL(gsl_sf_psi_1(x)) BOOST(trigamma)},
            EXACT(trigamma(x)));
    for (const auto &[from, to] : {std::pair{-38.0, -3.0}, {-3.0, 3.0}})
        compare("s15abc", "normal", from, to, {KOR_PLAIN(s15abc) GSL(gsl_cdf_ugaussian_P(x))});
    for (const auto &[from, to] : {std::pair{-6.0, 0.5}, {0.5, 26.0}})
        compare("s15adc", "erfc", from, to, {KOR_PLAIN(s15adc), LIBM(erfc(x)) GSL(gsl_sf_erfc(x)) BOOST(erfc)},
                EXACT(erfc(x)));
    for (const auto &[from, to] : {std::pair{-0.5, 0.5}, {0.5, 6.0}})
        compare("s15aec", "erf", from, to, {KOR_PLAIN(s15aec), LIBM(erf(x)) GSL(gsl_sf_erf(x)) BOOST(erf)},
                EXACT(erf(x)));
    for (const auto &[from, to] : {std::pair{0.01, 4.0}, {4.0, 100.0}}) {
        compare("s20acc", "Fresnel S", from, to, {KOR_PLAIN(s20acc)});
        compare("s20adc", "Fresnel C", from, to, {KOR_PLAIN(s20adc)});
    }
}

// Functions of several variables: arguments in rows of four.
struct SeveralPeer {
    const char *name;
    double (*f)(const double *w);
};

void compare_rows(const char *title, const std::vector<double> &rows, const std::vector<SeveralPeer> &functions,
                  long double (*exact)(const double *w))
{
    const int count = static_cast<int>(rows.size()) / 4;
    for (const SeveralPeer &peer : functions) {
        double worst = -1.0;
        for (int k = 0; exact != nullptr && k < count; ++k)
            worst = std::max(worst, ulps(peer.f(&rows[4 * k]), exact(&rows[4 * k])));
        kor::bench::add(std::string{title} + "/" + peer.name,
                        [f = peer.f, rows, count] {
                            double sum = 0.0;
                            for (int k = 0; k < count; ++k) sum += f(&rows[4 * k]);
                            kor::bench::keep(sum);
                        },
                        {.error = worst, .items = static_cast<double>(count)});
    }
}

#ifdef KOR_HAVE_GSL
#define GSL_ROW(call)                                                                                                  \
    ,                                                                                                                  \
    {                                                                                                                  \
        "GSL", [](const double *w) { return call; }                                                                    \
    }
#else
#define GSL_ROW(call)
#endif
#ifdef KOR_HAVE_BOOST
#define BOOST_ROW(call)                                                                                                \
    ,                                                                                                                  \
    {                                                                                                                  \
        "Boost.Math", [](const double *w) { return boost::math::call; }                                                \
    }
#define EXACT_ROW(call)                                                                                                \
    [](const double *w) -> long double {                                                                               \
        using L = long double;                                                                                         \
        return boost::math::call;                                                                                      \
    }
#else
#define BOOST_ROW(call)
#define EXACT_ROW(call) nullptr
#endif

void elliptic_integrals()
{
    for (const double spread : {0.2, 2.0, 10.0}) {
        std::mt19937_64 random{7};
        std::uniform_real_distribution<double> uniform{-spread / 2, spread / 2};
        std::vector<double> rows(4 * kArguments);
        for (double &w : rows) w = std::exp(uniform(random));
        char title[4][60];
        const char *names[] = {"s21bac RC", "s21bbc RF", "s21bcc RD", "s21bdc RJ"};
        for (int i = 0; i < 4; ++i)
            std::snprintf(title[i], sizeof title[i], "%s, arguments within e^%g", names[i], spread);
        compare_rows(title[0], rows,
                     {{"KOR", [](const double *w) { return s21bac(w[0], w[1], nullptr); }} GSL_ROW(
                         gsl_sf_ellint_RC(w[0], w[1], GSL_PREC_DOUBLE)) BOOST_ROW(ellint_rc(w[0], w[1], kDouble))},
                     EXACT_ROW(ellint_rc(L{w[0]}, L{w[1]})));
        compare_rows(
            title[1], rows,
            {{"KOR", [](const double *w) { return s21bbc(w[0], w[1], w[2], nullptr); }} GSL_ROW(
                gsl_sf_ellint_RF(w[0], w[1], w[2], GSL_PREC_DOUBLE)) BOOST_ROW(ellint_rf(w[0], w[1], w[2], kDouble))},
            EXACT_ROW(ellint_rf(L{w[0]}, L{w[1]}, L{w[2]})));
        compare_rows(
            title[2], rows,
            {{"KOR", [](const double *w) { return s21bcc(w[0], w[1], w[2], nullptr); }} GSL_ROW(
                gsl_sf_ellint_RD(w[0], w[1], w[2], GSL_PREC_DOUBLE)) BOOST_ROW(ellint_rd(w[0], w[1], w[2], kDouble))},
            EXACT_ROW(ellint_rd(L{w[0]}, L{w[1]}, L{w[2]})));
        compare_rows(title[3], rows,
                     {{"KOR", [](const double *w) { return s21bdc(w[0], w[1], w[2], w[3], nullptr); }} GSL_ROW(
                         gsl_sf_ellint_RJ(w[0], w[1], w[2], w[3], GSL_PREC_DOUBLE))
                          BOOST_ROW(ellint_rj(w[0], w[1], w[2], w[3], kDouble))},
                     EXACT_ROW(ellint_rj(L{w[0]}, L{w[1]}, L{w[2]}, L{w[3]})));
    }
}

double kor_q(const double *w)
{
    double p, q;
    s14bac(w[0], w[1], 0.0, &p, &q, nullptr);
    return q;
}

void incomplete_gamma()
{
    for (const auto &[from, to] : {std::pair{0.1, 16.0}, {16.0, 1000.0}, {1e3, 1e6}}) {
        std::mt19937_64 random{8};
        std::uniform_real_distribution<double> uniform{0.0, 1.0};
        std::vector<double> rows(4 * kArguments);
        for (int k = 0; k < kArguments; ++k) {
            const double a = std::exp(std::lerp(std::log(from), std::log(to), uniform(random)));
            rows[4 * k] = a;
            rows[4 * k + 1] = std::max(a * 1e-3, a + std::sqrt(a) * 6.0 * (2.0 * uniform(random) - 1.0));
        }
        char title[60];
        std::snprintf(title, sizeof title, "s14bac Q(a, x), a in [%g, %g]", from, to);
        compare_rows(title, rows,
                     {{"KOR", kor_q} GSL_ROW(gsl_sf_gamma_inc_Q(w[0], w[1])) BOOST_ROW(gamma_q(w[0], w[1], kDouble))},
                     EXACT_ROW(gamma_q(L{w[0]}, L{w[1]})));
    }
}

const bool registered = [] {
#ifdef KOR_HAVE_GSL
    gsl_set_error_handler_off();
#endif
    functions_of_one_variable();
    elliptic_integrals();
    incomplete_gamma();
    return true;
}();

} // namespace
