// The adaptive integrals beside GSL: overhead, counts and true errors on classical families.
#include <cmath>
#include <numbers>
#include <string>
#include <tuple>
#include <vector>

#include <kor/d01.h>
#include <kor/x04.h>

#include "support/ratio_table.hpp"

#ifdef KOR_HAVE_GSL
#include <gsl/gsl_errno.h>
#include <gsl/gsl_integration.h>
#endif

namespace {

const kor::bench::Heading heading{"Adaptive integrals, ns an evaluation of a family at relative tolerance 1e-10",
                                  "largest true relative error"};

constexpr double kTolerance = 1e-10;
constexpr int kLimit = 500;

struct Problem {
    double (*f)(double x, double p);
    double a, b, parameter, exact;
    double omega = 0.0, c = 0.0;
};

struct Outcome {
    double value;
    long calls;
};

double call(double x, void *problem)
{
    const auto *p = static_cast<const Problem *>(problem);
    return p->f(x, p->parameter);
}

using Solver = Outcome (*)(const Problem &);

void release(KorQuadRecord &record)
{
    for (double **array : {&record.left_ends, &record.right_ends, &record.subint_results, &record.subint_errors})
        x04bdc(reinterpret_cast<void **>(array));
}

template <class Routine>
Outcome with_kor(const Problem &p, Routine routine)
{
    KorQuadRecord record{};
    KorError fail{};
    double result = 0.0, abserr;
    routine(const_cast<Problem *>(&p), &result, &abserr, &record, &fail);
    release(record);
    return {result, record.eval_count};
}

Outcome kor_general(const Problem &p)
{
    return with_kor(p, [&](auto... rest) {
        const auto [data, result, abserr, record, fail] = std::tuple{rest...};
        d01sjc(call, p.a, p.b, 0.0, kTolerance, kLimit, result, abserr, record, data, fail);
    });
}
Outcome kor_oscillating(const Problem &p)
{
    return with_kor(p, [&](auto... rest) {
        const auto [data, result, abserr, record, fail] = std::tuple{rest...};
        d01skc(call, p.a, p.b, 0.0, kTolerance, kLimit, result, abserr, record, data, fail);
    });
}
Outcome kor_infinite(const Problem &p)
{
    return with_kor(p, [&](auto... rest) {
        const auto [data, result, abserr, record, fail] = std::tuple{rest...};
        d01smc(call, Kor_UpperSemiInfinite, p.a, 0.0, kTolerance, kLimit, result, abserr, record, data, fail);
    });
}
Outcome kor_trigonometric(const Problem &p)
{
    return with_kor(p, [&](auto... rest) {
        const auto [data, result, abserr, record, fail] = std::tuple{rest...};
        d01snc(call, p.a, p.b, p.omega, Kor_Sine, 0.0, kTolerance, kLimit, result, abserr, record, data, fail);
    });
}
Outcome kor_principal(const Problem &p)
{
    return with_kor(p, [&](auto... rest) {
        const auto [data, result, abserr, record, fail] = std::tuple{rest...};
        d01sqc(call, p.a, p.b, p.c, 0.0, kTolerance, kLimit, result, abserr, record, data, fail);
    });
}

#ifdef KOR_HAVE_GSL
struct Counted {
    const Problem *problem;
    long calls = 0;
};
double call_counted(double x, void *counted)
{
    auto *c = static_cast<Counted *>(counted);
    ++c->calls;
    return c->problem->f(x, c->problem->parameter);
}
template <class Routine>
Outcome with_gsl(const Problem &p, Routine routine)
{
    static gsl_integration_workspace *workspace =
        (gsl_set_error_handler_off(), gsl_integration_workspace_alloc(kLimit));
    Counted counted{&p};
    gsl_function f{call_counted, &counted};
    double result, abserr;
    routine(&f, workspace, &result, &abserr);
    return {result, counted.calls};
}
Outcome gsl_general(const Problem &p)
{
    return with_gsl(p, [&](gsl_function *f, gsl_integration_workspace *w, double *result, double *abserr) {
        gsl_integration_qags(f, p.a, p.b, 0.0, kTolerance, kLimit, w, result, abserr);
    });
}
Outcome gsl_oscillating(const Problem &p)
{
    return with_gsl(p, [&](gsl_function *f, gsl_integration_workspace *w, double *result, double *abserr) {
        gsl_integration_qag(f, p.a, p.b, 0.0, kTolerance, kLimit, GSL_INTEG_GAUSS61, w, result, abserr);
    });
}
Outcome gsl_infinite(const Problem &p)
{
    return with_gsl(p, [&](gsl_function *f, gsl_integration_workspace *w, double *result, double *abserr) {
        gsl_integration_qagiu(f, p.a, 0.0, kTolerance, kLimit, w, result, abserr);
    });
}
Outcome gsl_trigonometric(const Problem &p)
{
    return with_gsl(p, [&](gsl_function *f, gsl_integration_workspace *w, double *result, double *abserr) {
        gsl_integration_qawo_table *table = gsl_integration_qawo_table_alloc(p.omega, p.b - p.a, GSL_INTEG_SINE, 21);
        gsl_integration_qawo(f, p.a, 0.0, kTolerance, kLimit, w, table, result, abserr);
        gsl_integration_qawo_table_free(table);
    });
}
Outcome gsl_principal(const Problem &p)
{
    return with_gsl(p, [&](gsl_function *f, gsl_integration_workspace *w, double *result, double *abserr) {
        gsl_integration_qawc(f, p.a, p.b, p.c, 0.0, kTolerance, kLimit, w, result, abserr);
    });
}
#endif

void add(const std::string &name, const std::vector<Problem> &problems, Solver solver)
{
    double worst = 0.0;
    long calls = 0;
    for (const Problem &p : problems) {
        const Outcome outcome = solver(p);
        worst = std::max(worst, std::fabs(outcome.value / p.exact - 1.0));
        calls += outcome.calls;
    }
    kor::bench::add(name,
                    [=] {
                        for (const Problem &p : problems) kor::bench::keep(solver(p));
                    },
                    {.error = worst, .calls = static_cast<double>(calls), .items = static_cast<double>(calls)});
}

void add_both(const std::string &name, const std::vector<Problem> &problems, Solver ours,
              [[maybe_unused]] Solver theirs)
{
    add(name + "/KOR", problems, ours);
#ifdef KOR_HAVE_GSL
    add(name + "/GSL", problems, theirs);
#endif
}

const bool registered = [] {
    constexpr double pi = std::numbers::pi;
    std::vector<Problem> powers, peaks, bessel, tails, waves, poles;
    for (const double p : {-0.9, -0.5, -0.1, 0.1, 0.5, 1.3}) {
        powers.push_back({[](double x, double q) { return std::pow(x, q); }, 0.0, 1.0, p, 1.0 / (p + 1.0)});
        powers.push_back({[](double x, double q) { return std::pow(x, q) * std::log(1.0 / x); }, 0.0, 1.0, p,
                          1.0 / ((p + 1.0) * (p + 1.0))});
    }
    for (int p = 0; p <= 12; p += 2)
        peaks.push_back(
            {[](double x, double q) { return std::exp2(-q) / ((x - pi / 4.0) * (x - pi / 4.0) + std::exp2(-2.0 * q)); },
             0.0, 1.0, static_cast<double>(p),
             std::atan((4.0 - pi) * std::exp2(p - 2.0)) + std::atan(pi * std::exp2(p - 2.0))});
    for (int p = 0; p <= 7; ++p)
        bessel.push_back({[](double x, double q) { return std::cos(std::exp2(q) * std::sin(x)); }, 0.0, pi,
                          static_cast<double>(p), pi * std::cyl_bessel_j(0.0, std::exp2(p))});
    for (const double p : {0.5, 1.0, 2.5, 7.0})
        tails.push_back({[](double x, double q) { return x > 0.0 ? std::pow(x, q - 1.0) * std::exp(-x) : 0.0; }, 0.0,
                         0.0, p, std::tgamma(p)});
    for (const double omega : {1.0, 30.0, 1000.0, 1e5}) {
        const double k = 20.0, end = std::exp(-k);
        waves.push_back({[](double x, double q) { return std::exp(q * (x - 1.0)); }, 0.0, 1.0, k,
                         (k * std::sin(omega) - omega * std::cos(omega) + end * omega) / (k * k + omega * omega),
                         omega});
    }
    for (const double c : {0.5, -0.7, 0.9, 1.7}) {
        const double w = 0.1;
        poles.push_back(
            {[](double x, double q) { return 1.0 / (x * x + q * q); }, -1.0, 1.0, w,
             (std::log(std::fabs((1.0 - c) / (1.0 + c))) - c / w * 2.0 * std::atan(1.0 / w)) / (c * c + w * w), 0.0,
             c});
    }
#ifndef KOR_HAVE_GSL
    constexpr Solver gsl_general = nullptr, gsl_oscillating = nullptr, gsl_infinite = nullptr,
                     gsl_trigonometric = nullptr, gsl_principal = nullptr;
#endif
    add_both("end point powers", powers, kor_general, gsl_general);
    add_both("peaks", peaks, kor_general, gsl_general);
    add_both("oscillation", bessel, kor_oscillating, gsl_oscillating);
    add_both("infinite range", tails, kor_infinite, gsl_infinite);
    add_both("sine weight", waves, kor_trigonometric, gsl_trigonometric);
    add_both("principal values", poles, kor_principal, gsl_principal);
    const std::vector<Problem> trivial{{[](double x, double) { return std::fabs(x - 0.3); }, 0.0, 1.0, 0.0, 0.29}};
    add_both("trivial integrand", trivial, kor_general, gsl_general);
    return true;
}();

} // namespace
