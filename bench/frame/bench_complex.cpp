// Complex scalars beside those of the C++ library and of GSL, and the accumulated inner product beside long double.
#include <cmath>
#include <complex>
#include <random>
#include <string>
#include <vector>

#include <kor/a02.h>
#include <kor/x03.h>

#include "support/ratio_table.hpp"

#ifdef KOR_HAVE_GSL
#include <gsl/gsl_complex.h>
#include <gsl/gsl_complex_math.h>
#endif

namespace {

using kor::bench::add;
using kor::bench::keep;
using Wide = std::complex<long double>;

constexpr int kPoints = 1000;

struct Points {
    std::vector<Complex> kor;
    std::vector<std::complex<double>> standard;
    std::vector<Wide> wide;
#ifdef KOR_HAVE_GSL
    std::vector<gsl_complex> gsl;
#endif
};

// Points of the square |x|, |y| < 4, where all functions stay inside the range.
Points points(unsigned seed)
{
    std::mt19937_64 random{seed};
    std::uniform_real_distribution<double> uniform{-4.0, 4.0};
    Points all;
    for (int i = 0; i < kPoints; ++i) {
        const double x = uniform(random), y = uniform(random);
        all.kor.push_back({x, y});
        all.standard.emplace_back(x, y);
        all.wide.emplace_back(x, y);
#ifdef KOR_HAVE_GSL
        all.gsl.push_back(gsl_complex_rect(x, y));
#endif
    }
    return all;
}

const Points z = points(1), w = points(2);

std::complex<double> plain(Complex c) { return {c.re, c.im}; }
std::complex<double> plain(std::complex<double> c) { return c; }
std::complex<double> plain(double x) { return x; }
#ifdef KOR_HAVE_GSL
std::complex<double> plain(gsl_complex c) { return {GSL_REAL(c), GSL_IMAG(c)}; }
#endif

// The largest error of a part, in ulps of that part, over all points.
template <class Function, class Reference>
double worst_ulps(Function function, Reference reference)
{
    double worst = 0.0;
    for (int i = 0; i < kPoints; ++i) {
        const Wide exact = reference(i);
        const auto computed = plain(function(i));
        for (const auto &[c, e] : {std::pair{computed.real(), exact.real()}, {computed.imag(), exact.imag()}}) {
            if (e == 0.0L) continue;
            const long double ulp = std::ldexp(1.0L, std::ilogb(e) - 52);
            worst = std::max(worst, static_cast<double>(std::fabs(c - e) / ulp));
        }
    }
    return worst;
}

template <class Function, class Reference>
void entry(const std::string &work, const char *implementation, Function function, Reference reference)
{
    add(work + "/" + implementation,
        [=] {
            for (int i = 0; i < kPoints; ++i) keep(function(i));
        },
        {.error = worst_ulps(function, reference), .items = kPoints});
}

// One row: the three implementations, each a function of the number of the point, and the reference.
#ifdef KOR_HAVE_GSL
#define GSL_ENTRY(work, ...)                                                                                           \
    entry(                                                                                                             \
        work, "GSL", [](int i) { return __VA_ARGS__; }, reference);
#else
#define GSL_ENTRY(work, ...)
#endif
#define ROW(work, kor_value, std_value, wide_value, gsl_value)                                                         \
    {                                                                                                                  \
        const auto reference = [](int i) -> Wide { return wide_value; };                                               \
        entry(                                                                                                         \
            work, "KOR", [](int i) { return kor_value; }, reference);                                                  \
        entry(                                                                                                         \
            work, "std", [](int i) { return std_value; }, reference);                                                  \
        GSL_ENTRY(work, gsl_value)                                                                                     \
    }

// Terms that cancel down to their last digits: what the second double is for.
struct Vectors {
    std::vector<double> a, b;
    long double sum = 0.0L;
};

Vectors cancelling()
{
    std::mt19937_64 random{3};
    std::uniform_int_distribution<long> digits{-(1L << 30), 1L << 30};
    Vectors v;
    for (int i = 0; i < kPoints; ++i) {
        v.a.push_back(std::ldexp(static_cast<double>(digits(random)), 40));
        v.b.push_back(static_cast<double>(digits(random)));
        v.a.push_back(-v.a.back());
        v.b.push_back(v.b.back() + 0x1p-20);
        v.sum += static_cast<long double>(v.a.back()) * 0x1p-20L;
    }
    return v;
}

const kor::bench::Heading heading{"Complex scalars, ns a call; inner products, ns a term",
                                  "largest error of a part in ulps (inner product: relative, in 2^-53)"};

const bool registered = [] {
    ROW("product", a02ccc(z.kor[i], w.kor[i]), z.standard[i] * w.standard[i], z.wide[i] * w.wide[i],
        gsl_complex_mul(z.gsl[i], w.gsl[i]))
    ROW("quotient", a02cdc(z.kor[i], w.kor[i]), z.standard[i] / w.standard[i], z.wide[i] / w.wide[i],
        gsl_complex_div(z.gsl[i], w.gsl[i]))
    ROW("modulus", a02dbc(z.kor[i]), std::abs(z.standard[i]), std::abs(z.wide[i]), gsl_complex_abs(z.gsl[i]))
    ROW("square root", a02dcc(z.kor[i]), std::sqrt(z.standard[i]), std::sqrt(z.wide[i]), gsl_complex_sqrt(z.gsl[i]))
    ROW("logarithm", a02dgc(z.kor[i]), std::log(z.standard[i]), std::log(z.wide[i]), gsl_complex_log(z.gsl[i]))
    ROW("exponential", a02dhc(z.kor[i]), std::exp(z.standard[i]), std::exp(z.wide[i]), gsl_complex_exp(z.gsl[i]))
    ROW("sine", a02djc(z.kor[i]), std::sin(z.standard[i]), std::sin(z.wide[i]), gsl_complex_sin(z.gsl[i]))
    ROW("cosine", a02dkc(z.kor[i]), std::cos(z.standard[i]), std::cos(z.wide[i]), gsl_complex_cos(z.gsl[i]))
    ROW("tangent", a02dlc(z.kor[i]), std::tan(z.standard[i]), std::tan(z.wide[i]), gsl_complex_tan(z.gsl[i]))
    ROW("integer power, n = 7", a02ddc(z.kor[i], 7), std::pow(z.standard[i], 7), std::pow(z.wide[i], 7),
        gsl_complex_pow_real(z.gsl[i], 7.0))
    ROW("real power", a02dec(z.kor[i], 3.7), std::pow(z.standard[i], 3.7), std::pow(z.wide[i], Wide{3.7}),
        gsl_complex_pow_real(z.gsl[i], 3.7))
    ROW("complex power", a02dfc(z.kor[i], w.kor[i]), std::pow(z.standard[i], w.standard[i]),
        std::pow(z.wide[i], w.wide[i]), gsl_complex_pow(z.gsl[i], w.gsl[i]))

    static const Vectors v = cancelling();
    const auto n = static_cast<Integer>(v.a.size());
    double d1 = 0.0, d2 = 0.0;
    x03aac(v.a.data(), n, v.b.data(), n, n, 1, 1, 0.0, 0.0, &d1, &d2, 1, nullptr);
    const auto error_of = [](long double sum) {
        return static_cast<double>(std::fabs((sum - v.sum) / v.sum) * 0x1p53L);
    };
    add("inner product in doubled precision/KOR",
        [=] {
            double high, low;
            x03aac(v.a.data(), n, v.b.data(), n, n, 1, 1, 0.0, 0.0, &high, &low, 1, nullptr);
            keep(high);
        },
        {.error = error_of(static_cast<long double>(d1) + d2), .items = double(n)});
    const auto in_long_double = [=] {
        long double sum = 0.0L;
        for (Integer i = 0; i < n; ++i) sum += static_cast<long double>(v.a[i]) * v.b[i];
        return sum;
    };
    add("inner product in doubled precision/long double", [=] { keep(static_cast<double>(in_long_double())); },
        {.error = error_of(in_long_double()), .items = double(n)});
    return true;
}();

} // namespace
