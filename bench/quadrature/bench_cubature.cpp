// Integrals over boxes beside other cubatures and Monte Carlo methods, on the six families of A. C. Genz (1984), with random
// parameters and the difficulties of his test package: calls, true errors, and how often the error estimate covers them.
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <numbers>
#include <random>
#include <string>
#include <vector>

#include <kor/d01.h>
#include <kor/g05.h>

#include "support/ratio_table.hpp"

#ifdef KOR_HAVE_GSL
#include <gsl/gsl_monte_miser.h>
#include <gsl/gsl_monte_vegas.h>
#endif
#ifdef KOR_HAVE_CUBATURE
#include <cubature.h>
#endif

namespace {

constexpr double kTolerance = 1e-4;
constexpr int kMostCalls = 200000;
constexpr int kSamples = 3;
constexpr int kDimensions[] = {2, 5, 8, 10, 12, 15};

const kor::bench::Heading heading{
    "Integrals over boxes, ns a call of the integrand; relative tolerance 1e-4 or 200000 calls",
    "largest true relative error"};

// Slopes c and places w, one of each for every variable.
struct Problem {
    std::vector<double> c, w;
    double (*f)(int n, const double *x, const Problem &);
    double exact;
    mutable long calls = 0;
};

struct Family {
    const char *name;
    double difficulty, exponent; // the slopes add up to difficulty / n^exponent
    double (*f)(int n, const double *x, const Problem &);
    double (*exact)(int n, const Problem &);
};

template <class Factor>
double product(int n, Factor factor)
{
    double result = 1.0;
    for (int i = 0; i < n; ++i) result *= factor(i);
    return result;
}
template <class Term>
double sum(int n, Term term)
{
    double result = 0.0;
    for (int i = 0; i < n; ++i) result += term(i);
    return result;
}

const Family kFamilies[] = {
    {"oscillatory", 110.0, 1.5,
     [](int n, const double *x, const Problem &p) {
         return std::cos(2.0 * std::numbers::pi * p.w[0] + sum(n, [&](int i) { return p.c[i] * x[i]; }));
     },
     [](int n, const Problem &p) {
         return product(n, [&](int i) { return 2.0 * std::sin(0.5 * p.c[i]) / p.c[i]; }) *
                std::cos(2.0 * std::numbers::pi * p.w[0] + 0.5 * sum(n, [&](int i) { return p.c[i]; }));
     }},
    {"product peak", 600.0, 2.0,
     [](int n, const double *x, const Problem &p) {
         return 1.0 / product(n, [&](int i) { return 1.0 / (p.c[i] * p.c[i]) + (x[i] - p.w[i]) * (x[i] - p.w[i]); });
     },
     [](int n, const Problem &p) {
         return product(
             n, [&](int i) { return p.c[i] * (std::atan(p.c[i] * (1.0 - p.w[i])) + std::atan(p.c[i] * p.w[i])); });
     }},
    // With equal slopes the integral has a simple form that does not cancel.
    {"corner peak", 600.0, 2.0,
     [](int n, const double *x, const Problem &p) {
         return std::pow(1.0 + p.c[0] * sum(n, [&](int i) { return x[i]; }), -(n + 1));
     },
     [](int n, const Problem &p) { return product(n, [&](int i) { return 1.0 / (1.0 + (i + 1) * p.c[0]); }); }},
    {"Gaussian", 100.0, 1.0,
     [](int n, const double *x, const Problem &p) {
         return std::exp(-sum(n, [&](int i) { return p.c[i] * p.c[i] * (x[i] - p.w[i]) * (x[i] - p.w[i]); }));
     },
     [](int n, const Problem &p) {
         return product(n, [&](int i) {
             return std::sqrt(std::numbers::pi) / (2.0 * p.c[i]) *
                    (std::erf(p.c[i] * (1.0 - p.w[i])) + std::erf(p.c[i] * p.w[i]));
         });
     }},
    {"continuous", 150.0, 2.0,
     [](int n, const double *x, const Problem &p) {
         return std::exp(-sum(n, [&](int i) { return p.c[i] * std::fabs(x[i] - p.w[i]); }));
     },
     [](int n, const Problem &p) {
         return product(n, [&](int i) {
             return (2.0 - std::exp(-p.c[i] * p.w[i]) - std::exp(-p.c[i] * (1.0 - p.w[i]))) / p.c[i];
         });
     }},
    {"discontinuous", 100.0, 2.0,
     [](int n, const double *x, const Problem &p) {
         return x[0] > p.w[0] || x[1] > p.w[1] ? 0.0 : std::exp(sum(n, [&](int i) { return p.c[i] * x[i]; }));
     },
     [](int n, const Problem &p) {
         return product(n, [&](int i) { return std::expm1(p.c[i] * (i < 2 ? p.w[i] : 1.0)) / p.c[i]; });
     }},
};

std::vector<Problem> make_problems(const Family &family, int n)
{
    std::mt19937_64 random{static_cast<unsigned>(n)};
    std::uniform_real_distribution<double> uniform{0.05, 0.95};
    std::vector<Problem> problems(kSamples);
    for (Problem &p : problems) {
        p.f = family.f;
        for (int i = 0; i < n; ++i) {
            p.c.push_back(uniform(random));
            p.w.push_back(uniform(random));
        }
        const double scale = family.difficulty / std::pow(n, family.exponent) / sum(n, [&](int i) { return p.c[i]; });
        for (double &c : p.c) c *= scale;
        p.exact = family.exact(n, p);
    }
    return problems;
}

struct Outcome {
    double value, error; // error: the estimate
};
using Solver = Outcome (*)(const Problem &, int n);

const double kZeros[15] = {}, kOnes[15] = {1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1};

double call(Integer n, const double *x, void *problem)
{
    const auto &p = *static_cast<const Problem *>(problem);
    ++p.calls;
    return p.f(n, x, p);
}

Outcome kor_cubature(const Problem &p, int n)
{
    KorError fail{};
    double acc, value;
    d01wcc(n, call, kZeros, kOnes, 0, kMostCalls, kTolerance, &acc, &value, const_cast<Problem *>(&p), &fail);
    return {value, acc * std::fabs(value)};
}
Outcome kor_monte_carlo(const Problem &p, int n)
{
    KorError fail{};
    double error, value;
    d01xbc(n, call, Kor_ManyIterations, Kor_Cold, kZeros, kOnes, 1, kMostCalls, kTolerance, 2000, &value, &error,
           const_cast<Problem *>(&p), &fail);
    return {value, error};
}

#ifdef KOR_HAVE_CUBATURE
Outcome hcubature_(const Problem &p, int n)
{
    double value, error;
    const auto f = [](unsigned m, const double *x, void *problem, unsigned, double *y) {
        *y = call(static_cast<Integer>(m), x, problem);
        return 0;
    };
    hcubature(1, f, const_cast<Problem *>(&p), static_cast<unsigned>(n), kZeros, kOnes, kMostCalls, 0.0, kTolerance,
              ERROR_INDIVIDUAL, &value, &error);
    return {value, error};
}
#endif

#ifdef KOR_HAVE_GSL
gsl_monte_function monte_function(const Problem &p, int n)
{
    return {[](double *x, std::size_t m, void *problem) { return call(static_cast<Integer>(m), x, problem); },
            static_cast<std::size_t>(n), const_cast<Problem *>(&p)};
}
Outcome vegas(const Problem &p, int n)
{
    gsl_monte_function f = monte_function(p, n);
    gsl_monte_vegas_state *state = gsl_monte_vegas_alloc(static_cast<std::size_t>(n));
    gsl_rng *random = gsl_rng_alloc(gsl_rng_mt19937);
    double value, error;
    // Five iterations, as many calls in all; a first tenth to find the grid.
    gsl_monte_vegas_integrate(&f, const_cast<double *>(kZeros), const_cast<double *>(kOnes),
                              static_cast<std::size_t>(n), kMostCalls / 50, random, state, &value, &error);
    gsl_monte_vegas_integrate(&f, const_cast<double *>(kZeros), const_cast<double *>(kOnes),
                              static_cast<std::size_t>(n), kMostCalls / 50 * 9, random, state, &value, &error);
    gsl_rng_free(random);
    gsl_monte_vegas_free(state);
    return {value, error};
}
Outcome miser(const Problem &p, int n)
{
    gsl_monte_function f = monte_function(p, n);
    gsl_monte_miser_state *state = gsl_monte_miser_alloc(static_cast<std::size_t>(n));
    gsl_rng *random = gsl_rng_alloc(gsl_rng_mt19937);
    double value, error;
    gsl_monte_miser_integrate(&f, const_cast<double *>(kZeros), const_cast<double *>(kOnes),
                              static_cast<std::size_t>(n), kMostCalls, random, state, &value, &error);
    gsl_rng_free(random);
    gsl_monte_miser_free(state);
    return {value, error};
}
#endif

// How often the true error is within the estimate, over all families and dimensions.
struct Honesty {
    int all = 0, within = 0, within_three = 0;
};

void add(const std::string &work, const char *implementation, const std::vector<Problem> &problems, int n,
         Solver solver, Honesty &honesty)
{
    double worst = 0.0;
    long calls = 0;
    for (const Problem &p : problems) {
        p.calls = 0;
        const Outcome outcome = solver(p, n);
        calls += p.calls;
        const double error = std::fabs(outcome.value - p.exact);
        worst = std::max(worst, error / std::fabs(p.exact));
        ++honesty.all;
        honesty.within += error <= outcome.error;
        honesty.within_three += error <= 3.0 * outcome.error;
    }
    kor::bench::add(work + "/" + implementation,
                    [=] {
                        for (const Problem &p : problems) kor::bench::keep(solver(p, n));
                    },
                    {.error = worst, .calls = static_cast<double>(calls), .items = static_cast<double>(calls)});
}

void tell(const char *implementation, const Honesty &honesty)
{
    char line[160];
    std::snprintf(line, sizeof line,
                  "%-14s true error within the estimate in %d of %d integrals, within three times that in %d",
                  implementation, honesty.within, honesty.all, honesty.within_three);
    kor::bench::note(line);
}

const bool registered = [] {
    g05cbc(1);
    Honesty kor, monte;
    [[maybe_unused]] Honesty genz_malik, gsl_vegas, gsl_miser;
    for (const Family &family : kFamilies)
        for (const int n : kDimensions) {
            const std::vector<Problem> problems = make_problems(family, n);
            const std::string work = std::string(family.name) + ", " + std::to_string(n);
            add(work, "KOR", problems, n, kor_cubature, kor);
            add(work, "KOR Monte Carlo", problems, n, kor_monte_carlo, monte);
#ifdef KOR_HAVE_CUBATURE
            add(work, "hcubature", problems, n, hcubature_, genz_malik);
#endif
#ifdef KOR_HAVE_GSL
            add(work, "VEGAS", problems, n, vegas, gsl_vegas);
            add(work, "MISER", problems, n, miser, gsl_miser);
#endif
        }
    tell("KOR", kor);
    tell("KOR MC", monte);
#ifdef KOR_HAVE_CUBATURE
    tell("hcubature", genz_malik);
#endif
#ifdef KOR_HAVE_GSL
    tell("VEGAS", gsl_vegas);
    tell("MISER", gsl_miser);
#endif
    return true;
}();

} // namespace
