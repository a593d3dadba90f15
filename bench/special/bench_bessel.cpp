// Bessel, modified Bessel, Airy and Kelvin functions: time of a value and largest error, beside GSL, Boost.Math and libm.
//
// Boost.Math runs without promotion to long double; in long double it is the reference for the errors. Errors count in
// ulps of the value, or of the amplitude where the arguments lie beyond the tabulated zeros of an oscillating function.
#include <cmath>
#include <random>
#include <vector>

#include <kor/s17.h>
#include <kor/s18.h>
#include <kor/s19.h>

#include "support/ratio_table.hpp"

#ifdef KOR_HAVE_GSL
#include <gsl/gsl_sf_airy.h>
#include <gsl/gsl_sf_bessel.h>
#endif
#ifdef KOR_HAVE_BOOST
#include <boost/math/special_functions/airy.hpp>
#include <boost/math/special_functions/bessel.hpp>
#include <boost/math/special_functions/bessel_prime.hpp>
#endif

namespace {

const kor::bench::Heading heading{"Bessel, Airy and Kelvin functions, ns a value", "largest error in ulps"};

using Function = double (*)(double);
using Reference = long double (*)(long double);

constexpr int kArguments = 2000;

struct Range {
    const char *name;
    double from, to;
    bool logarithmic, oscillating;
};

std::vector<double> arguments(const Range &range)
{
    std::mt19937_64 random{42};
    std::uniform_real_distribution<double> uniform{0.0, 1.0};
    std::vector<double> xs(kArguments);
    for (double &x : xs) {
        const double t = uniform(random);
        x = range.logarithmic
                ? std::copysign(std::exp(std::lerp(std::log(std::fabs(range.from)), std::log(std::fabs(range.to)), t)),
                                range.from)
                : std::lerp(range.from, range.to, t);
    }
    return xs;
}

double largest_error(Function f, Reference exact, const std::vector<double> &xs, bool oscillating)
{
    if (exact == nullptr) return -1.0;
    double worst = 0.0;
    for (std::size_t k = 0; k < xs.size(); ++k) {
        const long double truth = exact(xs[k]);
        // The amplitude, as the largest value among a few neighbours within a period.
        long double size = std::fabs(truth);
        if (oscillating) {
            const double period = xs[k] < 0 ? 6.28 / std::sqrt(-xs[k]) : 6.28;
            for (int j = 1; j < 8; ++j) size = std::max(size, std::fabs(exact(xs[k] + j * period / 8)));
        }
        const double ulp = std::ldexp(1.0, std::max(std::ilogb(static_cast<double>(size)), -1022) - 52);
        worst = std::max(worst, static_cast<double>(std::fabs(f(xs[k]) - truth) / ulp));
    }
    return worst;
}

struct Contender {
    const char *name;
    Function f;
};

void compare(const char *function, const Range &range, Reference exact, std::initializer_list<Contender> contenders)
{
    const std::vector<double> xs = arguments(range);
    for (const Contender &c : contenders)
        kor::bench::add(std::string{function} + " " + range.name + "/" + c.name,
                        [f = c.f, xs] {
                            for (const double x : xs) kor::bench::keep(f(x));
                        },
                        {.error = largest_error(c.f, exact, xs, range.oscillating), .items = kArguments});
}

#define OURS(routine)                                                                                                  \
    {                                                                                                                  \
        "KOR", [](double x) { return routine(x, nullptr); }                                                            \
    }
#define PEER(name, expression)                                                                                         \
    {                                                                                                                  \
        name, [](double x) -> double { return expression; }                                                            \
    }
#ifdef KOR_HAVE_GSL
#define GSL(f) , PEER("GSL", f)
#else
#define GSL(f)
#endif
#ifdef KOR_HAVE_BOOST
namespace bm = boost::math;
using Plain = bm::policies::policy<bm::policies::promote_double<false>>;
#define BOOST_PEER(expression) , PEER("Boost", expression)
#define TRUTH(expression) [](long double x) -> long double { return expression; }
#else
#define BOOST_PEER(expression)
#define TRUTH(expression) nullptr
#endif
#define LIBM(expression) , PEER("libm", expression)

const bool registered = [] {
    for (const Range &r : {Range{"(0, 8)", 0.0, 8.0, false, false}, Range{"(8, 60)", 8.0, 60.0, false, false},
                           Range{"(100, 1e4)", 100.0, 1e4, true, true}}) {
        compare("J0", r, TRUTH(bm::cyl_bessel_j(0, x)),
                {OURS(s17aec) GSL(gsl_sf_bessel_J0(x)) BOOST_PEER(bm::cyl_bessel_j(0, x, Plain())) LIBM(::j0(x))});
        compare("J1", r, TRUTH(bm::cyl_bessel_j(1, x)),
                {OURS(s17afc) GSL(gsl_sf_bessel_J1(x)) BOOST_PEER(bm::cyl_bessel_j(1, x, Plain())) LIBM(::j1(x))});
        compare("Y0", r, TRUTH(bm::cyl_neumann(0, x)),
                {OURS(s17acc) GSL(gsl_sf_bessel_Y0(x)) BOOST_PEER(bm::cyl_neumann(0, x, Plain())) LIBM(::y0(x))});
        compare("Y1", r, TRUTH(bm::cyl_neumann(1, x)),
                {OURS(s17adc) GSL(gsl_sf_bessel_Y1(x)) BOOST_PEER(bm::cyl_neumann(1, x, Plain())) LIBM(::y1(x))});
    }
    for (const Range &r : {Range{"(1e-9, 0.2)", 1e-9, 0.2, true, false}, Range{"(0.2, 16)", 0.2, 16.0, false, false},
                           Range{"(16, 700)", 16.0, 700.0, false, false}}) {
        compare("I0", r, TRUTH(bm::cyl_bessel_i(0, x)),
                {OURS(s18aec) GSL(gsl_sf_bessel_I0(x)) BOOST_PEER(bm::cyl_bessel_i(0, x, Plain()))});
        compare("I1", r, TRUTH(bm::cyl_bessel_i(1, x)),
                {OURS(s18afc) GSL(gsl_sf_bessel_I1(x)) BOOST_PEER(bm::cyl_bessel_i(1, x, Plain()))});
        compare("K0", r, TRUTH(bm::cyl_bessel_k(0, x)),
                {OURS(s18acc) GSL(gsl_sf_bessel_K0(x)) BOOST_PEER(bm::cyl_bessel_k(0, x, Plain()))});
        compare("K1", r, TRUTH(bm::cyl_bessel_k(1, x)),
                {OURS(s18adc) GSL(gsl_sf_bessel_K1(x)) BOOST_PEER(bm::cyl_bessel_k(1, x, Plain()))});
        compare("exp(-x) I0", r, TRUTH(std::exp(-x) * bm::cyl_bessel_i(0, x)),
                {OURS(s18cec) GSL(gsl_sf_bessel_I0_scaled(x))});
        compare("exp(x) K0", r, TRUTH(std::exp(x) * bm::cyl_bessel_k(0, x)),
                {OURS(s18ccc) GSL(gsl_sf_bessel_K0_scaled(x))});
    }
    for (const Range &r :
         {Range{"(-20, 0)", -20.0, 0.0, false, false}, Range{"(0, 8)", 0.0, 8.0, false, false},
          Range{"(8, 100)", 8.0, 100.0, false, false}, Range{"(-1e4, -21)", -21.0, -1e4, true, true}}) {
        compare("Ai", r, TRUTH(bm::airy_ai(x)),
                {OURS(s17agc) GSL(gsl_sf_airy_Ai(x, GSL_PREC_DOUBLE)) BOOST_PEER(bm::airy_ai(x, Plain()))});
        compare("Bi", r, TRUTH(bm::airy_bi(x)),
                {OURS(s17ahc) GSL(gsl_sf_airy_Bi(x, GSL_PREC_DOUBLE)) BOOST_PEER(bm::airy_bi(x, Plain()))});
        compare("Ai'", r, TRUTH(bm::airy_ai_prime(x)),
                {OURS(s17ajc) GSL(gsl_sf_airy_Ai_deriv(x, GSL_PREC_DOUBLE)) BOOST_PEER(bm::airy_ai_prime(x, Plain()))});
        compare("Bi'", r, TRUTH(bm::airy_bi_prime(x)),
                {OURS(s17akc) GSL(gsl_sf_airy_Bi_deriv(x, GSL_PREC_DOUBLE)) BOOST_PEER(bm::airy_bi_prime(x, Plain()))});
    }
    for (const Range &r : {Range{"(0.2, 16)", 0.2, 16.0, false, false}, Range{"(16, 44)", 16.0, 44.0, false, true}}) {
        compare("ber", r, nullptr, {OURS(s19aac)});
        compare("bei", r, nullptr, {OURS(s19abc)});
        compare("ker", r, nullptr, {OURS(s19acc)});
        compare("kei", r, nullptr, {OURS(s19adc)});
    }
    return true;
}();

} // namespace
