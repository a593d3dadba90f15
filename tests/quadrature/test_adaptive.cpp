// The adaptive integrals: families of integrals with known values, failures that deserve their names, records and refusals.
#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <numbers>
#include <vector>

#include <gtest/gtest.h>

#include <kor/d01.h>
#include <kor/x04.h>

#include "support/expect_report.hpp"

namespace kor::testing {
namespace {

constexpr double kPi = std::numbers::pi;
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr Integer kLimit = 500;

// A record that frees its arrays.
struct Quad : KorQuadRecord {
    Quad() : KorQuadRecord{} {}
    ~Quad() { clear(); }
    void clear()
    {
        for (double **array : {&left_ends, &right_ends, &subint_results, &subint_errors})
            x04bdc(reinterpret_cast<void **>(array));
    }
};
struct Intervals : KorQuadIntervalRecord {
    Intervals() : KorQuadIntervalRecord{} {}
    ~Intervals() { clear(); }
    void clear()
    {
        x04bdc(reinterpret_cast<void **>(&interval_results));
        x04bdc(reinterpret_cast<void **>(&interval_errors));
        x04bdc(reinterpret_cast<void **>(&interval_flags));
    }
};

// An integrand of a family, with its parameter; counts its calls.
struct Member {
    double (*f)(double x, double parameter);
    double parameter = 0.0;
    long calls = 0;
    static double call(double x, void *self)
    {
        auto *member = static_cast<Member *>(self);
        ++member->calls;
        return member->f(x, member->parameter);
    }
};

// How often the true error was within the estimate, and the estimate within the request.
class Honesty {
  public:
    void note(const char *name, double parameter, double result, double abserr, double exact, Integer code,
              double bound)
    {
        // Next to the precision of the arithmetic a routine may say that it cannot.
        if (code == NE_NOERROR || bound > 2e-13 * std::fabs(exact)) ++all_;
        if (code != NE_NOERROR) return;
        ++successes_;
        const double error = std::fabs(result - exact);
        // The exact value itself is rounded.
        const bool honest = error <= abserr + 4e-16 * std::fabs(exact);
        if (honest) ++honest_;
        EXPECT_LE(error, bound + 4e-16 * std::fabs(exact)) << name << ", parameter " << parameter;
        EXPECT_LE(abserr, bound) << name << ", parameter " << parameter;
    }
    ~Honesty()
    {
        EXPECT_LE(successes_ - honest_, std::ceil(0.01 * successes_)) << successes_ << " successes";
        EXPECT_GE(successes_, 0.9 * all_) << "of " << all_;
    }

  private:
    int all_ = 0, successes_ = 0, honest_ = 0;
};

constexpr double kTolerances[] = {1e-3, 1e-6, 1e-9, 1e-12, 1e-14};

TEST(AdaptiveIntegrals, FiniteRanges)
{
    struct Family {
        const char *name;
        double (*f)(double x, double p);
        double a, b;
        double (*exact)(double p);
        std::vector<double> parameters;
    };
    const Family families[] = {
        {"power",
         [](double x, double p) { return std::pow(x, p); },
         0.0,
         1.0,
         [](double p) { return 1.0 / (p + 1.0); },
         {-0.9, -0.5, -0.25, 0.1, 0.5, 1.3, 2.6}},
        {"power times logarithm",
         [](double x, double p) { return std::pow(x, p) * std::log(1.0 / x); },
         0.0,
         1.0,
         [](double p) { return 1.0 / ((p + 1.0) * (p + 1.0)); },
         {-0.5, 0.0, 0.5, 1.0, 2.6}},
        {"peak",
         [](double x, double p) { return std::exp2(-p) / ((x - kPi / 4.0) * (x - kPi / 4.0) + std::exp2(-2.0 * p)); },
         0.0,
         1.0,
         [](double p) { return std::atan((4.0 - kPi) * std::exp2(p - 2.0)) + std::atan(kPi * std::exp2(p - 2.0)); },
         {0, 2, 4, 6, 8, 10}}, // beyond, the rounding of x - pi/4 shows
        {"Bessel",
         [](double x, double p) { return std::cos(std::exp2(p) * std::sin(x)); },
         0.0,
         kPi,
         [](double p) { return kPi * std::cyl_bessel_j(0.0, std::exp2(p)); },
         {0, 2, 4, 6}},
        {"exponential",
         [](double x, double p) { return std::exp(p * x); },
         0.0,
         1.0,
         [](double p) { return std::expm1(p) / p; },
         {-100, -10, -1, 1, 10, 100}},
        {"damped oscillation",
         [](double x, double p) { return std::exp(-x) * std::cos(p * x); },
         0.0,
         4.0,
         [](double p) { return (1.0 + std::exp(-4.0) * (p * std::sin(4.0 * p) - std::cos(4.0 * p))) / (1.0 + p * p); },
         {0.5, 2, 8, 25, 50}},
        {"end of an arc",
         [](double x, double p) { return std::pow(1.0 - x * x, p); },
         -1.0,
         1.0,
         [](double p) { return std::sqrt(kPi) * std::exp(std::lgamma(p + 1.0) - std::lgamma(p + 1.5)); },
         {-0.5, 0.5, 1.5, 2.0, 3.25}},
        {"backwards",
         [](double x, double p) { return std::cos(p * x); },
         2.0,
         -1.0,
         [](double p) { return -(std::sin(2.0 * p) + std::sin(p)) / p; },
         {0.3, 1, 7, 40}},
    };
    Honesty honesty;
    for (const Family &family : families)
        for (const double p : family.parameters)
            for (const double epsrel : kTolerances) {
                Member member{family.f, p};
                const double exact = family.exact(p);
                Record fail;
                Quad qp;
                double result, abserr;
                d01sjc(Member::call, family.a, family.b, 0.0, epsrel, kLimit, &result, &abserr, &qp, &member, &fail);
                honesty.note(family.name, p, result, abserr, exact, fail.code, epsrel * std::fabs(result));
                EXPECT_EQ(qp.eval_count, member.calls) << family.name;
                qp.clear();
                if (epsrel < 1e-8 && family.name[0] == 'p' && p < 0.0) continue; // not what the next routine is for
                d01skc(Member::call, family.a, family.b, 0.0, epsrel, kLimit, &result, &abserr, &qp, &member, &fail);
                honesty.note(family.name, p, result, abserr, exact, fail.code, epsrel * std::fabs(result));
            }
}

TEST(AdaptiveIntegrals, BreakPoints)
{
    // |x - 1/3|^p |x - 2|^q and a jump: the points are given in any order.
    Honesty honesty;
    for (const double p : {-0.8, -0.5, -0.2, 0.3, 1.0})
        for (const double epsrel : kTolerances) {
            Member member{
                [](double x, double power) { return std::pow(std::fabs(x - 0.75), power) + (x > 2.0 ? 3.0 : 0.0); }, p};
            const double breaks[] = {2.0, 0.75};
            const double exact = (std::pow(0.75, p + 1.0) + std::pow(2.25, p + 1.0)) / (p + 1.0) + 3.0;
            Record fail;
            Quad qp;
            double result, abserr;
            d01slc(Member::call, 0.0, 3.0, 2, breaks, 0.0, epsrel, kLimit, &result, &abserr, &qp, &member, &fail);
            honesty.note("breaks", p, result, abserr, exact, fail.code, epsrel * std::fabs(result));
            double back;
            qp.clear();
            d01slc(Member::call, 3.0, 0.0, 2, breaks, 0.0, epsrel, kLimit, &back, &abserr, &qp, &member, &fail);
            EXPECT_NEAR(back, -result, epsrel * exact);
        }
}

TEST(AdaptiveIntegrals, InfiniteRanges)
{
    struct Case {
        const char *name;
        double (*f)(double x, double p);
        Integer boundinf;
        double bound;
        double exact;
        double p;
    };
    const Case cases[] = {
        {"Gauss", [](double x, double) { return std::exp(-x * x); }, Kor_Infinite, 99.0, std::sqrt(kPi), 0},
        {"Cauchy", [](double x, double) { return 1.0 / (1.0 + x * x); }, Kor_Infinite, 0.0, kPi, 0},
        {"gamma", [](double x, double p) { return x > 0.0 ? std::pow(x, p - 1.0) * std::exp(-x) : 0.0; },
         Kor_UpperSemiInfinite, 0.0, std::tgamma(2.5), 2.5},
        {"gamma", [](double x, double p) { return x > 0.0 ? std::pow(x, p - 1.0) * std::exp(-x) : 0.0; },
         Kor_UpperSemiInfinite, 0.0, std::tgamma(0.5), 0.5},
        {"inverse square", [](double x, double) { return 1.0 / (x * x); }, Kor_UpperSemiInfinite, 3.0, 1.0 / 3.0, 0},
        {"below", [](double x, double) { return std::exp(x); }, Kor_LowerSemiInfinite, 1.0, std::exp(1.0), 0},
        {"logarithm", [](double x, double) { return std::log(x) / (1.0 + 100.0 * x * x); }, Kor_UpperSemiInfinite, 0.0,
         -kPi * std::log(10.0) / 20.0, 0},
        {"Planck", [](double x, double) { return x > 0.0 ? x * x * x / std::expm1(x) : 0.0; }, Kor_UpperSemiInfinite,
         0.0, std::pow(kPi, 4.0) / 15.0, 0},
    };
    Honesty honesty;
    for (const Case &c : cases)
        for (const double epsrel : kTolerances) {
            Member member{c.f, c.p};
            Record fail;
            Quad qp;
            double result, abserr;
            d01smc(Member::call, c.boundinf, c.bound, 0.0, epsrel, kLimit, &result, &abserr, &qp, &member, &fail);
            honesty.note(c.name, c.p, result, abserr, c.exact, fail.code, epsrel * std::fabs(result));
            EXPECT_EQ(qp.eval_count, member.calls);
        }
}

TEST(AdaptiveIntegrals, TrigonometricWeights)
{
    // exp(k (x - 1)) sin(omega x) and cos over (0, 1), by the closed form; omega to a million, both signs.
    Honesty honesty;
    for (const double omega : {-3.0, 0.5, 4.0, 20.0, 333.3, 1e4, 1e6})
        for (const double k : {0.5, 20.0})
            for (const double epsabs : {1e-3, 1e-8, 1e-13}) {
                Member member{[](double x, double p) { return std::exp(p * (x - 1.0)); }, k};
                const double norm = k * k + omega * omega, end = std::exp(-k);
                const double cosine = (k * std::cos(omega) + omega * std::sin(omega) - end * k) / norm;
                const double sine = (k * std::sin(omega) - omega * std::cos(omega) + end * omega) / norm;
                for (const Integer weight : {Kor_Cosine, Kor_Sine}) {
                    Record fail;
                    Quad qp;
                    double result, abserr;
                    d01snc(Member::call, 0.0, 1.0, omega, weight, epsabs, 0.0, kLimit, &result, &abserr, &qp, &member,
                           &fail);
                    honesty.note("trigonometric", omega, result, abserr, weight == Kor_Cosine ? cosine : sine,
                                 fail.code, epsabs);
                }
            }
    // A singularity besides: the cosine of a logarithm's Fourier coefficients is Si(omega).
    Record fail;
    Quad qp;
    double result, abserr;
    d01anc([](double x) { return x > 0.0 ? std::log(x) : 0.0; }, 0.0, 1.0, 10.0 * kPi, Kor_Sine, 0.0, 1e-11, kLimit,
           &result, &abserr, &qp, &fail);
    EXPECT_SUCCESS(fail);
    EXPECT_NEAR(result, -0.12813684839916733, 1e-12); // (Ci(10 pi) - gamma - log(10 pi)) / (10 pi)
}

TEST(AdaptiveIntegrals, EndPointWeights)
{
    // With f = 1 the integrals are beta functions and their derivatives; f = x adds 1 to the power at the lower end.
    const auto log_beta = [](double p, double q) { return std::lgamma(p) + std::lgamma(q) - std::lgamma(p + q); };
    const auto digamma_gap = [](double p, double r) { // psi(p) - psi(p + r), r an integer
        double sum = 0.0;
        for (int i = 0; i < static_cast<int>(r); ++i) sum -= 1.0 / (p + i);
        return sum;
    };
    Honesty honesty;
    for (const double alfa : {-0.95, -0.5, 0.0, 0.7, 3.0})
        for (const double beta : {0.0, 1.0, 4.0})
            for (const double epsrel : {1e-4, 1e-8, 1e-12}) {
                const double p = alfa + 1.0, q = beta + 1.0;
                const double plain = std::exp(log_beta(p, q));
                const double with_log = plain * digamma_gap(p, q);
                for (const bool logarithm : {false, true}) {
                    Record fail;
                    Quad qp;
                    double result, abserr;
                    d01apc([](double) { return 1.0; }, 0.0, 1.0, alfa, beta, logarithm ? Kor_Alg_loga : Kor_Alg, 0.0,
                           epsrel, kLimit, &result, &abserr, &qp, &fail);
                    honesty.note("end points", alfa, result, abserr, logarithm ? with_log : plain, fail.code,
                                 std::max(epsrel, 1e-13) * std::fabs(result));
                    double mirrored;
                    qp.clear();
                    d01apc([](double) { return 1.0; }, 0.0, 1.0, beta, alfa, logarithm ? Kor_Alg_logb : Kor_Alg, 0.0,
                           epsrel, kLimit, &mirrored, &abserr, &qp, &fail);
                    EXPECT_NEAR(mirrored, result, 1e-13 * std::fabs(result)) << alfa << " " << beta;
                }
            }
    // Both logarithms, (0, 1): 2 - pi^2/6.
    Record fail;
    Quad qp;
    double result, abserr;
    d01apc([](double) { return 1.0; }, 0.0, 1.0, 0.0, 0.0, Kor_Alg_loga_logb, 0.0, 1e-12, kLimit, &result, &abserr, &qp,
           &fail);
    EXPECT_NEAR(result, 2.0 - kPi * kPi / 6.0, 1e-14);
}

TEST(AdaptiveIntegrals, PrincipalValues)
{
    // 1/(x^2 + w^2) over (-1, 1): partial fractions.
    Honesty honesty;
    for (const double w : {1.0, 0.1, 0.01})
        for (const double c : {0.5, -0.7, 0.999, 0.05, 1.7, -4.0})
            for (const double epsrel : kTolerances) {
                const double exact =
                    (std::log(std::fabs((1.0 - c) / (1.0 + c))) - c / w * 2.0 * std::atan(1.0 / w)) / (c * c + w * w);
                Member member{[](double x, double p) { return 1.0 / (x * x + p * p); }, w};
                Record fail;
                Quad qp;
                double result, abserr;
                d01sqc(Member::call, -1.0, 1.0, c, 0.0, epsrel, kLimit, &result, &abserr, &qp, &member, &fail);
                honesty.note("principal value", c, result, abserr, exact, fail.code, epsrel * std::fabs(result));
                EXPECT_EQ(qp.eval_count, member.calls);
                double back;
                qp.clear();
                d01sqc(Member::call, 1.0, -1.0, c, 0.0, epsrel, kLimit, &back, &abserr, &qp, &member, &fail);
                EXPECT_EQ(back, -result);
            }
}

TEST(AdaptiveIntegrals, FourierIntegrals)
{
    Honesty honesty;
    for (const double omega : {0.3, 1.0, kPi / 2.0, 7.0, 100.0})
        for (const double epsabs : {1e-3, 1e-6, 1e-9}) {
            struct Case {
                double (*f)(double x);
                Integer weight;
                double exact;
            };
            const Case cases[] = {
                {[](double x) { return x > 0.0 ? 1.0 / std::sqrt(x) : 0.0; }, Kor_Cosine, std::sqrt(kPi / 2.0 / omega)},
                {[](double x) { return std::exp(-x / 2.0); }, Kor_Sine, omega / (0.25 + omega * omega)},
                {[](double x) { return 1.0 / (1.0 + x * x); }, Kor_Cosine, kPi / 2.0 * std::exp(-omega)},
                {[](double x) { return x / (1.0 + x * x); }, Kor_Sine, kPi / 2.0 * std::exp(-omega)},
            };
            for (const Case &c : cases) {
                Record fail;
                Intervals qp;
                double result, abserr;
                d01asc(c.f, 0.0, omega, c.weight, 100, kLimit, epsabs, &result, &abserr, &qp, &fail);
                honesty.note("Fourier", omega, result, abserr, c.exact, fail.code, epsabs);
                EXPECT_GE(qp.interval_count, 3);
            }
        }
    Record fail;
    Intervals qp;
    double result = 7.0, abserr = 7.0;
    Member never{[](double, double) { return kNan; }};
    d01ssc(Member::call, 0.0, 0.0, Kor_Sine, 3, 1, 1e-3, &result, &abserr, &qp, &never, &fail);
    EXPECT_SUCCESS(fail);
    EXPECT_EQ(never.calls, 0);
    EXPECT_EQ(result, 0.0);
    EXPECT_EQ(qp.interval_count, 1);
    qp.clear();
    d01asc([](double x) { return std::exp(-x); }, 0.0, 0.0, Kor_Cosine, 3, 50, 1e-9, &result, &abserr, &qp, &fail);
    EXPECT_SUCCESS(fail);
    EXPECT_NEAR(result, 1.0, 1e-10);
}

TEST(AdaptiveIntegrals, RecordStandsInTheOrderOfTheAxis)
{
    Record fail;
    Quad qp;
    double result, abserr;
    d01akc([](double x) { return 1.0 / (1e-4 + x * x); }, -1.0, 2.0, 0.0, 1e-11, 100, &result, &abserr, &qp, &fail);
    EXPECT_SUCCESS(fail);
    ASSERT_GT(qp.subint_count, 3);
    EXPECT_EQ(qp.left_ends[0], -1.0);
    EXPECT_EQ(qp.right_ends[qp.subint_count - 1], 2.0);
    double sum = 0.0, errors = 0.0;
    for (Integer i = 0; i < qp.subint_count; ++i) {
        if (i > 0) {
            EXPECT_EQ(qp.left_ends[i], qp.right_ends[i - 1]);
        }
        sum += qp.subint_results[i];
        errors += qp.subint_errors[i];
    }
    EXPECT_NEAR(sum, result, 1e-12 * result);
    EXPECT_NEAR(errors, abserr, 1e-2 * abserr); // one is summed, the other updated
    for (Integer i = qp.subint_count; i < 100; ++i) {
        EXPECT_EQ(qp.left_ends[i], 0.0);
        EXPECT_EQ(qp.subint_errors[i], 0.0);
    }
}

// ---- Statuses ----

// The seven integrals over (0, 1) of a function, or of the same function mapped to another range.
using Solver = void (*)(Member &, double epsrel, Integer limit, double *result, double *abserr, KorQuadRecord *,
                        KorError *);
const Solver kExtrapolating[] = {
    [](Member &f, double eps, Integer limit, double *result, double *abserr, KorQuadRecord *qp, KorError *fail) {
        d01sjc(Member::call, 0.0, 1.0, 0.0, eps, limit, result, abserr, qp, &f, fail);
    },
    [](Member &f, double eps, Integer limit, double *result, double *abserr, KorQuadRecord *qp, KorError *fail) {
        const double breaks[] = {0.45};
        d01slc(Member::call, 0.0, 1.0, 1, breaks, 0.0, eps, limit, result, abserr, qp, &f, fail);
    },
    [](Member &f, double eps, Integer limit, double *result, double *abserr, KorQuadRecord *qp, KorError *fail) {
        const auto mapped = [](double x, void *member) {
            return Member::call(1.0 / (1.0 + x), member) / ((1.0 + x) * (1.0 + x));
        };
        d01smc(mapped, Kor_UpperSemiInfinite, 0.0, 0.0, eps, limit, result, abserr, qp, &f, fail);
    },
    [](Member &f, double eps, Integer limit, double *result, double *abserr, KorQuadRecord *qp, KorError *fail) {
        d01snc(Member::call, 0.0, 1.0, 3.0, Kor_Cosine, 0.0, eps, limit, result, abserr, qp, &f, fail);
    },
};
const Solver kPlain[] = {
    [](Member &f, double eps, Integer limit, double *result, double *abserr, KorQuadRecord *qp, KorError *fail) {
        d01skc(Member::call, 0.0, 1.0, 0.0, eps, limit, result, abserr, qp, &f, fail);
    },
    [](Member &f, double eps, Integer limit, double *result, double *abserr, KorQuadRecord *qp, KorError *fail) {
        d01spc(Member::call, 0.0, 1.0, -0.3, 0.2, Kor_Alg, 0.0, eps, limit, result, abserr, qp, &f, fail);
    },
    [](Member &f, double eps, Integer limit, double *result, double *abserr, KorQuadRecord *qp, KorError *fail) {
        d01sqc(Member::call, 0.0, 1.0, 0.55, 0.0, eps, limit, result, abserr, qp, &f, fail);
    },
};

double power_from_inside(double x, double p) { return std::pow(std::fabs(x - 0.3), p); }
double one_over_distance_from_1(double x, double) { return 1.0 / (1.0 - x); }
// The same at the same x, and nothing that bisection could resolve.
double noise(double x)
{
    std::uint64_t bits = std::bit_cast<std::uint64_t>(x) * 0x9E3779B97F4A7C15;
    bits = (bits ^ (bits >> 29)) * 0xBF58476D1CE4E5B9;
    return std::ldexp(static_cast<double>(bits >> 11), -53) - 0.5;
}
double noisy(double x, double amplitude) { return std::cos(x) + amplitude * noise(x); }

template <std::size_t count>
void expect_status(Integer code, const Solver (&solvers)[count], double (*f)(double, double), double parameter,
                   double eps, Integer limit)
{
    for (std::size_t i = 0; i < count; ++i) {
        Member member{f, parameter};
        Record fail;
        Quad qp;
        double result, abserr;
        solvers[i](member, eps, limit, &result, &abserr, &qp, &fail);
        EXPECT_EQ(fail.code, code) << "routine " << i << ": " << fail.message;
        EXPECT_LE(qp.subint_count, limit);
        EXPECT_EQ(qp.eval_count, member.calls);
    }
}

TEST(AdaptiveIntegrals, EveryStatusIsReachedByACaseThatDeservesIt)
{
    const double hard = 1e-13;
    expect_status(
        NE_QUAD_MAX_SUBDIV, kExtrapolating, [](double x, double) { return 1.0 / x; }, 0.0, hard, 30);
    expect_status(NE_QUAD_MAX_SUBDIV, kPlain, power_from_inside, -0.5, hard, 30);
    expect_status(NE_QUAD_ROUNDOFF_TOL, kExtrapolating, noisy, 1e-8, hard, 1000);
    expect_status(NE_QUAD_ROUNDOFF_TOL, kPlain, noisy, 1e-8, hard, 1000);
    // Not integrable next to an end where numbers lie far apart: they run out.
    expect_status(NE_QUAD_BAD_SUBDIV, kExtrapolating, one_over_distance_from_1, 0.0, 1e-6, 1000);
    expect_status(NE_QUAD_BAD_SUBDIV, kPlain, power_from_inside, -0.99, hard, 1000);
    // Integrable, but the distance from 0.3 is spoilt by rounding long before the tolerance is reached.
    expect_status(NE_QUAD_ROUNDOFF_EXTRAPL, kExtrapolating, power_from_inside, -0.99, hard, 1000);
    expect_status(
        NE_QUAD_NO_CONV, kExtrapolating, [](double x, double) { return 1.0 / (x - 0.3); }, 0.0, 1e-6, 1000);

    // The values are the best that could be had, within their errors.
    Record fail;
    Quad qp;
    double result, abserr;
    Member member{power_from_inside, -0.99};
    d01sjc(Member::call, 0.0, 1.0, 0.0, hard, 1000, &result, &abserr, &qp, &member, &fail);
    EXPECT_NEAR(result, (std::pow(0.3, 0.01) + std::pow(0.7, 0.01)) / 0.01, 1e-8);
    qp.clear();
    Member with_noise{noisy, 1e-8};
    d01sjc(Member::call, 0.0, 1.0, 0.0, hard, 1000, &result, &abserr, &qp, &with_noise, &fail);
    EXPECT_NEAR(result, std::sin(1.0), 1e-8);
}

TEST(AdaptiveIntegrals, WhereTheIntegrandIsNotANumber)
{
    // A hole at a point where every rule looks first: bisection gets past it.
    const auto sinc = [](double x, double) { return std::sin(x - 0.5) / (x - 0.5); };
    const auto spike = [](double x, double) { return x == 0.5 ? HUGE_VAL : std::exp(x); };
    for (const auto solver : {kExtrapolating[0], kExtrapolating[2], kPlain[0]}) {
        for (const bool infinite : {false, true}) {
            Member member{infinite ? spike : sinc};
            Record fail;
            Quad qp;
            double result, abserr;
            solver(member, 1e-12, 50, &result, &abserr, &qp, &fail);
            EXPECT_SUCCESS(fail);
            const double exact = infinite ? std::expm1(1.0) : 2.0 * 0.4931074180430667; // 2 Si(1/2)
            EXPECT_NEAR(result, exact, 1e-12);
        }
    }
    // No value on a part of the range, or anywhere: a status after a bounded number of evaluations.
    for (const double value : {kNan, HUGE_VAL, -HUGE_VAL})
        for (const double from : {0.7, -1.0})
            for (const Integer limit : {1, 2, 40, 1000}) {
                static double nowhere, start;
                nowhere = value;
                start = from;
                const auto check = [&](const Solver solver) {
                    Member member{[](double x, double) { return x > start ? nowhere : 1.0; }};
                    Record fail;
                    Quad qp;
                    double result = 0.0, abserr = 0.0;
                    solver(member, 1e-6, limit, &result, &abserr, &qp, &fail);
                    if (qp.left_ends == nullptr) return; // refused: some want room for two
                    EXPECT_NE(fail.code, NE_NOERROR);
                    EXPECT_FALSE(std::isfinite(result));
                    EXPECT_LE(member.calls, 122L * limit);
                };
                for (const Solver solver : kExtrapolating) check(solver);
                for (const Solver solver : kPlain) check(solver);
                Member member{[](double x, double) { return x > start ? nowhere : 1.0; }};
                Record fail;
                Intervals qp;
                double result, abserr;
                d01ssc(Member::call, 0.0, 1.0, Kor_Sine, 20, limit, 1e-6, &result, &abserr, &qp, &member, &fail);
                EXPECT_NE(fail.code, NE_NOERROR);
                EXPECT_LE(member.calls, 20L * 50 * limit);
            }
}

TEST(AdaptiveIntegrals, StatusesOfFourierIntegrals)
{
    Record fail;
    Intervals qp;
    double result, abserr;
    const auto run = [&](double (*f)(double, double), double parameter, double omega, Integer maxintervals,
                         Integer limit, double epsabs) {
        qp.clear();
        Member member{f, parameter};
        d01ssc(Member::call, 0.0, omega, Kor_Cosine, maxintervals, limit, epsabs, &result, &abserr, &qp, &member,
               &fail);
    };
    // omega = 0: the statuses of an infinite range, with an absolute tolerance alone.
    const auto decaying = [](double x, double p) {
        return power_from_inside(1.0 / (1.0 + x), p) / ((1.0 + x) * (1.0 + x));
    };
    run(decaying, -0.99, 0.0, 3, 5, 1e-11);
    EXPECT_REPORT(fail, NE_QUAD_MAX_SUBDIV, "max_num_subint", 5);
    run(decaying, -0.99, 0.0, 3, 1000, 1e-11);
    EXPECT_REPORT(fail, NE_QUAD_ROUNDOFF_EXTRAPL);
    run([](double x, double p) { return noisy(1.0 / (1.0 + x), p) / ((1.0 + x) * (1.0 + x)); }, 1e-8, 0.0, 3, 1000,
        1e-13);
    EXPECT_REPORT(fail, NE_QUAD_ROUNDOFF_ABS_TOL, 1e-13);
    run([](double x, double) { return (1.0 + x) / ((1.0 + x) * (1.0 + x) * x); }, 0.0, 0.0, 3, 1000, 1e-6);
    EXPECT_EQ(fail.code, NE_QUAD_BAD_SUBDIV) << fail.message;
    run(
        [](double x, double) {
            const double t = 1.0 / (1.0 + x);
            return t * t / (t - 0.3);
        },
        0.0, 0.0, 3, 1000, 1e-6);
    EXPECT_REPORT(fail, NE_QUAD_NO_CONV);

    // Each status of a single interval, here the first.
    const auto first_flag = [&] { return qp.interval_flags[0]; };
    const auto half_bounded = [](double x, double p) { return power_from_inside(x / (1.0 + x), p) / (1.0 + x); };
    run(half_bounded, -0.5, 1.0, 10, 3, 1e-6);
    EXPECT_REPORT(fail, NE_QUAD_BAD_SUBDIV_INT, qp.interval_count);
    EXPECT_EQ(first_flag(), 1);
    run([](double x, double p) { return noisy(x / (1.0 + x), p) / (1.0 + x); }, 1e-8, 1.0, 10, 300, 1e-10);
    EXPECT_EQ(first_flag(), 2);
    run([](double x, double) { return x < 7.0 ? 1.0 : kNan; }, 0.0, 1.0, 10, 300, 1e-3);
    EXPECT_EQ(first_flag(), 3);
    run([](double x, double) { return std::pow(x / (1.0 + x), -0.999) / (1.0 + x); }, 0.0, 1.0, 10, 300, 1e-10);
    EXPECT_EQ(first_flag(), 4);
    run(half_bounded, -0.99, 1.0, 10, 300, 1e-3);
    EXPECT_EQ(first_flag(), 5);

    run([](double x, double) { return 1.0 / std::sqrt(x); }, 0.0, 1.0, 4, 300, 1e-9);
    EXPECT_REPORT(fail, NE_QUAD_MAX_INT, "maxintervals", 4);
    // The amplitude changes at random from cycle to cycle: no law that extrapolation could find.
    run([](double x, double p) { return (1.0 + p * noise(std::floor(x / (3.0 * kPi)))) / std::sqrt(1.0 + x); }, 0.01,
        1.0, 200, 300, 1e-8);
    EXPECT_REPORT(fail, NE_QUAD_EXTRAPL_INT);
    EXPECT_LT(qp.interval_count, 200);
}

TEST(AdaptiveIntegrals, FailuresThatDeserveTheirNames)
{
    Record fail;
    Quad qp;
    double result, abserr;
    const auto spiky = [](double x) { return 1.0 / std::sqrt(std::fabs(x - 0.3)); };

    d01ajc(spiky, 0.0, 1.0, 0.0, 1e-12, 3, &result, &abserr, &qp, &fail);
    EXPECT_REPORT(fail, NE_QUAD_MAX_SUBDIV, "max_num_subint", 3);
    EXPECT_EQ(qp.subint_count, 3);
    qp.clear();
    d01ajc(spiky, 0.0, 1.0, 0.0, 1e-12, 1, &result, &abserr, &qp, &fail);
    EXPECT_REPORT(fail, NE_QUAD_MAX_SUBDIV, "max_num_subint", 1);
    EXPECT_EQ(qp.eval_count, 21);
    qp.clear();

    // No tolerance at all: rounding errors stop it, or the exact result.
    d01ajc([](double x) { return std::sin(x); }, 0.0, 2.0, 0.0, 0.0, kLimit, &result, &abserr, &qp, &fail);
    EXPECT_REPORT(fail, NE_QUAD_ROUNDOFF_TOL, 0.0, 0.0);
    EXPECT_NEAR(result, 1.0 - std::cos(2.0), 1e-15);
    // A Fourier integral that does not tend to zero, and the reports on its way.
    static int reports = 0;
    static std::string last;
    reports = 0;
    fail.handler = [](const char *text, Integer, const char *) {
        ++reports;
        last = text;
    };
    Intervals intervals;
    d01asc([](double x) { return 1.0 / std::sqrt(std::fabs(x - 1.0)); }, 0.0, 1.0, Kor_Cosine, 12, 2, 1e-10, &result,
           &abserr, &intervals, &fail);
    EXPECT_TRUE(fail.code == NE_QUAD_BAD_SUBDIV_INT || fail.code == NE_QUAD_MAX_INT) << fail.message;
    EXPECT_GE(reports, 2);
    EXPECT_EQ(intervals.interval_flags[0], 1);
}

// The ordinal of an interval in its report.
TEST(AdaptiveIntegrals, EachBadIntervalOfAFourierIntegralMakesAReport)
{
    static std::vector<std::string> texts;
    texts.clear();
    Record fail;
    fail.handler = [](const char *text, Integer code, const char *) {
        if (code == NE_QUAD_MAX_SUBDIV_SPEC_INT) texts.emplace_back(text);
    };
    Intervals qp;
    double result, abserr;
    // A kink in each interval, and no room to bisect.
    d01asc([](double x) { return std::fabs(std::sin(0.7 * x)) / (1.0 + 0.01 * x); }, 0.0, 1.0, Kor_Cosine, 23, 1, 1e-12,
           &result, &abserr, &qp, &fail);
    std::vector<std::string> expected;
    for (Integer n = 1; n <= qp.interval_count; ++n) {
        if (qp.interval_flags[n - 1] == 0) continue;
        ASSERT_EQ(qp.interval_flags[n - 1], 1);
        const char *suffix = n % 100 / 10 == 1 ? "th"
                             : n % 10 == 1     ? "st"
                             : n % 10 == 2     ? "nd"
                             : n % 10 == 3     ? "rd"
                                               : "th";
        double left = 0.0;
        for (Integer i = 1; i < n; ++i) left += 3.0 * kPi;
        expected.push_back(
            message_of(NE_QUAD_MAX_SUBDIV_SPEC_INT, n, suffix, 1, left, left + 3.0 * kPi, "max_num_subint", 1));
    }
    EXPECT_EQ(texts, expected);
    EXPECT_GE(texts.size(), 12u); // with 11th, 12th or 13th among them
}

TEST(AdaptiveIntegrals, Refusals)
{
    const auto f = [](double x) { return x; };
    Record fail;
    Quad qp;
    Intervals intervals;
    double result = 7.0, abserr = 7.0;
    const double breaks[] = {0.5, 1.5};
    for (const Integer none : {0, -3}) {
        d01ajc(f, 0.0, 1.0, 0.0, 1e-3, none, &result, &abserr, &qp, &fail);
        EXPECT_REPORT(fail, NE_INT_ARG_LT, "max_num_subint", "1", "max_num_subint", none);
        d01akc(f, 0.0, 1.0, 0.0, 1e-3, none, &result, &abserr, &qp, &fail);
        EXPECT_REPORT(fail, NE_INT_ARG_LT, "max_num_subint", "1", "max_num_subint", none);
        d01alc(f, 0.0, 1.0, -1, breaks, 0.0, 1e-3, none, &result, &abserr, &qp, &fail);
        EXPECT_REPORT(fail, NE_INT_ARG_LT, "max_num_subint", "1", "max_num_subint", none);
        d01amc(f, 0, 0.0, 0.0, 1e-3, none, &result, &abserr, &qp, &fail);
        EXPECT_REPORT(fail, NE_INT_ARG_LT, "max_num_subint", "1", "max_num_subint", none);
        d01anc(f, 0.0, 1.0, 1.0, 0, 0.0, 1e-3, none, &result, &abserr, &qp, &fail);
        EXPECT_REPORT(fail, NE_INT_ARG_LT, "max_num_subint", "1", "max_num_subint", none);
        d01aqc(f, 0.0, 1.0, 0.0, 0.0, 1e-3, none, &result, &abserr, &qp, &fail);
        EXPECT_REPORT(fail, NE_INT_ARG_LT, "max_num_subint", "1", "max_num_subint", none);
        d01asc(f, 0.0, 1.0, 0, 0, none, 1e-3, &result, &abserr, &intervals, &fail);
        EXPECT_REPORT(fail, NE_INT_ARG_LT, "max_num_subint", "1", "max_num_subint", none);
    }
    d01alc(f, 0.0, 1.0, -1, breaks, 0.0, 1e-3, 5, &result, &abserr, &qp, &fail);
    EXPECT_REPORT(fail, NE_INT_ARG_LT, "nbrkpts", "0", "nbrkpts", -1);
    d01alc(f, 0.0, 1.0, 2, breaks, 0.0, 1e-3, 2, &result, &abserr, &qp, &fail);
    EXPECT_REPORT(fail, NE_2_INT_ARG_LE, "max_num_subint", 2, "nbrkpts", 2, "max_num_subint", "nbrkpts");
    d01alc(f, 0.0, 1.0, 2, breaks, 0.0, 1e-3, 5, &result, &abserr, &qp, &fail);
    EXPECT_REPORT(fail, NE_QUAD_BRKPTS_INVAL, 0.0, 1.0);
    d01amc(f, Kor_Cosine, 0.0, 0.0, 1e-3, 5, &result, &abserr, &qp, &fail);
    EXPECT_REPORT(fail, NE_BAD_PARAM, "boundinf");
    d01anc(f, 0.0, 1.0, 1.0, Kor_Alg, 0.0, 1e-3, 5, &result, &abserr, &qp, &fail);
    EXPECT_REPORT(fail, NE_BAD_PARAM, "wt_func");
    d01apc(f, 1.0, 0.0, -1.0, -2.0, 0, 0.0, 1e-3, 1, &result, &abserr, &qp, &fail);
    EXPECT_REPORT(fail, NE_INT_ARG_LT, "max_num_subint", "2", "max_num_subint", 1);
    d01apc(f, 1.0, 0.0, -1.0, -2.0, 0, 0.0, 1e-3, 2, &result, &abserr, &qp, &fail);
    EXPECT_REPORT(fail, NE_REAL_ARG_LE, "alfa", "-1.0", "alfa", -1.0);
    d01apc(f, 1.0, 0.0, 0.0, -2.0, 0, 0.0, 1e-3, 2, &result, &abserr, &qp, &fail);
    EXPECT_REPORT(fail, NE_REAL_ARG_LE, "beta", "-1.0", "beta", -2.0);
    d01apc(f, 1.0, 1.0, 0.0, 0.0, 0, 0.0, 1e-3, 2, &result, &abserr, &qp, &fail);
    EXPECT_REPORT(fail, NE_2_REAL_ARG_LE, "b", 1.0, "a", 1.0, "b", "a");
    d01apc(f, 0.0, 1.0, 0.0, 0.0, Kor_Cosine, 0.0, 1e-3, 2, &result, &abserr, &qp, &fail);
    EXPECT_REPORT(fail, NE_BAD_PARAM, "wt_func");
    d01aqc(f, 0.0, 1.0, 0.0, 0.0, 1e-3, 5, &result, &abserr, &qp, &fail);
    EXPECT_REPORT(fail, NE_2_REAL_ARG_EQ, "c", 0.0, "a", 0.0, "c", "a");
    d01aqc(f, 0.0, 1.0, 1.0, 0.0, 1e-3, 5, &result, &abserr, &qp, &fail);
    EXPECT_REPORT(fail, NE_2_REAL_ARG_EQ, "c", 1.0, "b", 1.0, "c", "b");
    d01asc(f, 0.0, 1.0, 0, 2, 5, 1e-3, &result, &abserr, &intervals, &fail);
    EXPECT_REPORT(fail, NE_INT_ARG_LT, "maxintervals", "3", "maxintervals", 2);
    d01asc(f, 0.0, 1.0, 0, 3, 5, 1e-3, &result, &abserr, &intervals, &fail);
    EXPECT_REPORT(fail, NE_BAD_PARAM, "wt_func");
    EXPECT_EQ(result, 7.0);
    EXPECT_EQ(abserr, 7.0);
    EXPECT_EQ(qp.left_ends, nullptr);
    EXPECT_EQ(intervals.interval_results, nullptr);
}

TEST(AdaptiveIntegrals, Oddities)
{
    Record fail;
    Quad qp;
    double result, abserr;
    // Tolerances count by their modulus.
    d01ajc([](double x) { return std::sqrt(x); }, 0.0, 1.0, -1e-6, -0.0, kLimit, &result, &abserr, &qp, &fail);
    EXPECT_SUCCESS(fail);
    EXPECT_LE(abserr, 1e-6);
    qp.clear();
    // An empty range costs one application of the rule.
    d01ajc([](double x) { return x; }, 1.0, 1.0, 0.0, 0.0, kLimit, &result, &abserr, &qp, &fail);
    EXPECT_SUCCESS(fail);
    EXPECT_EQ(qp.eval_count, 21);
    EXPECT_EQ(result, 0.0);
    qp.clear();
    // An integral within an integrand: exp(-x y) over the unit square is 0.79659959929705...
    const auto inner = [](double x, void *) {
        KorError quiet{};
        Quad record;
        double value, error;
        d01sjc([](double y, void *px) { return std::exp(-y * *static_cast<double *>(px)); }, 0.0, 1.0, 0.0, 1e-12, 50,
               &value, &error, &record, &x, &quiet);
        return value;
    };
    d01sjc(inner, 0.0, 1.0, 0.0, 1e-12, 50, &result, &abserr, &qp, nullptr, &fail);
    EXPECT_SUCCESS(fail);
    EXPECT_NEAR(result, 0.7965995992970531, 1e-14);
}

} // namespace
} // namespace kor::testing
