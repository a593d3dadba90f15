// Tails and deviates of the continuous laws: time of a value and largest error, beside Boost.Math, GSL and R's library.
//
// Times are for typical arguments: shapes from 1 to 1000 and points within four standard deviations, deviates from 1e-20 up.
// Errors are those of the smaller tail over all shapes (1e-3 to 1e10) and tails down to 1e-300, against references of mpmath
// (tools/stats_reference.py); those of deviates are in the tail, in units of what the last place of the deviate moves it. Boost.Math
// runs without promotion to long double. A tail or a deviate counts as failed if it is not a number, or wrong in its sixth digit.
#include <cmath>
#include <exception>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include <kor/g01.h>

#include "support/ratio_table.hpp"

#ifdef KOR_HAVE_BOOST
#include <boost/math/distributions.hpp>
#endif
#ifdef KOR_HAVE_GSL
#include <gsl/gsl_cdf.h>
#include <gsl/gsl_errno.h>
#endif
#ifdef KOR_HAVE_RMATH
#define MATHLIB_STANDALONE
#include <Rmath.h>
#endif

namespace {

const kor::bench::Heading heading{"Distributions, ns a value", "largest error in eps"};

enum Law { kNormal, kStudent, kF, kBeta, kGamma };

struct Reference {
    Law law;
    double p1, p2, x, lower, upper;
};

// Student's tails are two-sided there.
constexpr Reference kReferences[] = {
#include "distributions_data.inc"
};

constexpr double kEps = 0x1p-52;
constexpr int kCount = 1000;

// The tail beyond x, and the point with that tail, for the parameters p1, p2.
using Tail = double (*)(double x, double p1, double p2, bool upper);
using Deviate = double (*)(double p, double p1, double p2);

KorError fail;

constexpr Integer side(bool upper) { return upper ? Kor_UpperTail : Kor_LowerTail; }

double kor_beta(double x, double a, double b, bool upper)
{
    double p, q, pdf;
    g01eec(x, a, b, 0.0, &p, &q, &pdf, &fail);
    return upper ? q : p;
}

struct Implementation {
    const char *name;
    Tail tail[5];
    Deviate deviate[5]; // of lower tails, but of upper ones for the normal law and Student's
};

std::vector<Implementation> implementations()
{
    std::vector<Implementation> all = {
        {"KOR",
         {[](double x, double, double, bool upper) { return g01eac(side(upper), x, &fail); },
          [](double x, double df, double, bool upper) { return g01ebc(side(upper), x, df, &fail); },
          [](double x, double df1, double df2, bool upper) { return g01edc(side(upper), x, df1, df2, &fail); },
          kor_beta, [](double x, double a, double, bool upper) { return g01efc(side(upper), x, a, 1.0, &fail); }},
         {[](double p, double, double) { return g01fac(Kor_UpperTail, p, &fail); },
          [](double p, double df, double) { return g01fbc(Kor_UpperTail, p, df, &fail); },
          [](double p, double df1, double df2) { return g01fdc(p, df1, df2, &fail); },
          [](double p, double a, double b) { return g01fec(p, a, b, 0.0, &fail); },
          [](double p, double a, double) { return g01ffc(p, a, 1.0, 0.0, &fail); }}}};
#ifdef KOR_HAVE_BOOST
    namespace policies = boost::math::policies;
    using Policy =
        policies::policy<policies::promote_double<false>, policies::domain_error<policies::ignore_error>,
                         policies::pole_error<policies::ignore_error>, policies::overflow_error<policies::ignore_error>,
                         policies::evaluation_error<policies::ignore_error>,
                         policies::rounding_error<policies::ignore_error>>;
    static const auto tail = [](const auto &law, double x, bool upper) {
        return upper ? cdf(complement(law, x)) : cdf(law, x);
    };
    // Some failures are thrown whatever the policy.
    static const auto point = [](const auto &...law_and_probability) {
        try {
            return quantile(law_and_probability...);
        } catch (const std::exception &) {
            return double{NAN};
        }
    };
    using Normal = boost::math::normal_distribution<double, Policy>;
    using T = boost::math::students_t_distribution<double, Policy>;
    using F = boost::math::fisher_f_distribution<double, Policy>;
    using Beta = boost::math::beta_distribution<double, Policy>;
    using Gamma = boost::math::gamma_distribution<double, Policy>;
    all.push_back({"Boost",
                   {[](double x, double, double, bool upper) { return tail(Normal{}, x, upper); },
                    [](double x, double df, double, bool upper) { return tail(T{df}, x, upper); },
                    [](double x, double a, double b, bool upper) {
                        return tail(F{a, b}, x, upper);
                    },
                    [](double x, double a, double b, bool upper) {
                        return tail(Beta{a, b}, x, upper);
                    },
                    [](double x, double a, double, bool upper) {
                        return tail(Gamma{a, 1.0}, x, upper);
                    }},
                   {[](double p, double, double) { return point(complement(Normal{}, p)); },
                    [](double p, double df, double) { return point(complement(T{df}, p)); },
                    [](double p, double a, double b) {
                        return point(F{a, b}, p);
                    },
                    [](double p, double a, double b) {
                        return point(Beta{a, b}, p);
                    },
                    [](double p, double a, double) {
                        return point(Gamma{a, 1.0}, p);
                    }}});
#endif
#ifdef KOR_HAVE_GSL
    gsl_set_error_handler_off();
    all.push_back(
        {"GSL",
         {[](double x, double, double, bool upper) { return upper ? gsl_cdf_ugaussian_Q(x) : gsl_cdf_ugaussian_P(x); },
          [](double x, double df, double, bool upper) {
              return upper ? gsl_cdf_tdist_Q(x, df) : gsl_cdf_tdist_P(x, df);
          },
          [](double x, double a, double b, bool upper) {
              return upper ? gsl_cdf_fdist_Q(x, a, b) : gsl_cdf_fdist_P(x, a, b);
          },
          [](double x, double a, double b, bool upper) {
              return upper ? gsl_cdf_beta_Q(x, a, b) : gsl_cdf_beta_P(x, a, b);
          },
          [](double x, double a, double, bool upper) {
              return upper ? gsl_cdf_gamma_Q(x, a, 1.0) : gsl_cdf_gamma_P(x, a, 1.0);
          }},
         {[](double p, double, double) { return gsl_cdf_ugaussian_Qinv(p); },
          [](double p, double df, double) { return gsl_cdf_tdist_Qinv(p, df); },
          [](double p, double a, double b) { return gsl_cdf_fdist_Pinv(p, a, b); },
          [](double p, double a, double b) { return gsl_cdf_beta_Pinv(p, a, b); },
          [](double p, double a, double) { return gsl_cdf_gamma_Pinv(p, a, 1.0); }}});
#endif
#ifdef KOR_HAVE_RMATH
    all.push_back({"R",
                   {[](double x, double, double, bool upper) { return pnorm(x, 0.0, 1.0, !upper, 0); },
                    [](double x, double df, double, bool upper) { return pt(x, df, !upper, 0); },
                    [](double x, double a, double b, bool upper) { return pf(x, a, b, !upper, 0); },
                    [](double x, double a, double b, bool upper) { return pbeta(x, a, b, !upper, 0); },
                    [](double x, double a, double, bool upper) { return pgamma(x, a, 1.0, !upper, 0); }},
                   {[](double p, double, double) { return qnorm(p, 0.0, 1.0, 0, 0); },
                    [](double p, double df, double) { return qt(p, df, 0, 0); },
                    [](double p, double a, double b) { return qf(p, a, b, 1, 0); },
                    [](double p, double a, double b) { return qbeta(p, a, b, 1, 0); },
                    [](double p, double a, double) { return qgamma(p, a, 1.0, 1, 0); }}});
#endif
    return all;
}

// Largest error in eps of what did not fail, how many failed, and of how many.
struct Accuracy {
    double worst = 0.0;
    int failed = 0, count = 0;

    void add(double relative_error, double unit)
    {
        constexpr double kSixDigits = 1e-6;
        ++count;
        if (!(relative_error < kSixDigits * std::fmax(1.0, unit / kEps)))
            ++failed;
        else
            worst = std::fmax(worst, relative_error / unit);
    }
};

Accuracy of_tails(Law law, Tail tail)
{
    Accuracy accuracy;
    for (const Reference &r : kReferences) {
        if (r.law != law) continue;
        // Outside of (-x, x) is twice beyond x.
        const bool upper = law == kStudent || r.upper < r.lower;
        const double exact = law == kStudent ? 0.5 * r.upper : upper ? r.upper : r.lower;
        accuracy.add(std::fabs(tail(r.x, r.p1, r.p2, upper) / exact - 1.0), kEps);
    }
    return accuracy;
}

Accuracy of_deviates(Law law, Deviate deviate, Tail exact)
{
    Accuracy accuracy;
    const bool upper = law == kNormal || law == kStudent;
    for (const Reference &r : kReferences) {
        const double p = law == kStudent ? 0.5 * r.upper : upper ? r.upper : r.lower;
        if (r.law != law || p > 0.5) continue;
        const double x = deviate(p, r.p1, r.p2);
        if (!(x > 0.0) || !(x < 1e300) || (law == kBeta && x >= 1.0)) {
            accuracy.add(INFINITY, 1.0);
            continue;
        }
        // How far the tail moves with the last place of x.
        const double there = exact(x, r.p1, r.p2, upper);
        const double place = std::fabs(exact(std::nextafter(x, 0.0), r.p1, r.p2, upper) / there - 1.0);
        accuracy.add(std::fabs(there / p - 1.0), std::fmax(kEps, place));
    }
    return accuracy;
}

// Typical arguments, the same for all.
struct Arguments {
    std::vector<double> p1, p2, x, p;
    std::vector<char> upper;
};

Arguments typical(Law law)
{
    std::mt19937_64 random{1};
    const auto uniform = [&](double low, double high) {
        return low + (high - low) * std::ldexp(static_cast<double>(random() >> 11), -53);
    };
    Arguments all;
    for (int i = 0; i < kCount; ++i) {
        const double a = std::pow(10.0, uniform(0.0, 3.0)), b = std::pow(10.0, uniform(0.0, 3.0)),
                     z = uniform(-4.0, 4.0);
        const double odds = a / b * std::exp(z * std::fmin(1.0, std::sqrt(1.0 / a + 1.0 / b)));
        all.p1.push_back(law == kF ? 2.0 * a : a);
        all.p2.push_back(law == kF ? 2.0 * b : b);
        all.x.push_back(law == kF       ? odds * b / a
                        : law == kBeta  ? odds / (1.0 + odds)
                        : law == kGamma ? a * std::exp(z / std::sqrt(a))
                                        : z);
        all.upper.push_back(z > 0.0);
        all.p.push_back(i % 2 == 0 ? uniform(0.001, 0.999) : std::pow(10.0, uniform(-20.0, -1.0)));
    }
    return all;
}

const bool registered = [] {
    const char *const laws[] = {"normal", "t", "F", "beta", "gamma"};
    const std::vector<Implementation> all = implementations();
    for (const Law law : {kNormal, kStudent, kF, kBeta, kGamma}) {
        const auto arguments = std::make_shared<Arguments>(typical(law));
        std::string failed_tails = std::string{"failed tails, "} + laws[law] + ":";
        std::string failed_deviates = std::string{"failed deviates, "} + laws[law] + ":";
        for (const Implementation &one : all) {
            const Tail tail = one.tail[law];
            const Deviate deviate = one.deviate[law];
            const Accuracy tails = of_tails(law, tail), deviates = of_deviates(law, deviate, all[0].tail[law]);
            const auto text = [&](const Accuracy &a) {
                return std::string{" "} + one.name + " " + std::to_string(a.failed) + " of " + std::to_string(a.count);
            };
            failed_tails += text(tails);
            failed_deviates += text(deviates);
            kor::bench::add(std::string{laws[law]} + " tail/" + one.name,
                            [arguments, tail] {
                                const Arguments &a = *arguments;
                                for (int i = 0; i < kCount; ++i)
                                    kor::bench::keep(tail(a.x[i], a.p1[i], a.p2[i], a.upper[i]));
                            },
                            {.error = tails.worst, .items = kCount});
            kor::bench::add(std::string{laws[law]} + " deviate/" + one.name,
                            [arguments, deviate] {
                                const Arguments &a = *arguments;
                                for (int i = 0; i < kCount; ++i) kor::bench::keep(deviate(a.p[i], a.p1[i], a.p2[i]));
                            },
                            {.error = deviates.worst, .items = kCount});
        }
        kor::bench::note(failed_tails);
        kor::bench::note(failed_deviates);
    }
    return true;
}();

} // namespace
