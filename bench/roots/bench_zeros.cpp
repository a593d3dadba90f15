// Zeros of functions of one variable: function evaluations and overhead beside Brent's method and TOMS 748.
//
// Two batteries. The first is that of Alefeld, Potra and Shi (ACM Trans. Math. Softw. 21 (1995) 327-344): 15 families, 154
// problems, among them poles at the ends, flat functions, and zeros of high order. The second holds 30 single functions
// from Brent (1973), Bus and Dekker (1975), Le (1985), Galdino (2011) and from textbooks. Every method gets the same
// tolerance: the bracket must become as short as `xtol`, or an exact zero be met.
#include <cmath>
#include <functional>
#include <vector>

#include <kor/c05.h>

#include "support/ratio_table.hpp"

#ifdef KOR_HAVE_GSL
#include <gsl/gsl_errno.h>
#include <gsl/gsl_roots.h>
#endif
#ifdef KOR_HAVE_BOOST
#include <boost/math/tools/toms748_solve.hpp>
#endif

namespace {

constexpr double kPi = 3.141592653589793;
constexpr double kE = 2.718281828459045;
constexpr int kMaxSteps = 2000;

struct Problem {
    std::function<double(double)> f;
    double a, b;
};

std::vector<Problem> alefeld_potra_shi()
{
    std::vector<Problem> all;
    const auto problem = [&all](double a, double b, std::function<double(double)> f) {
        all.push_back({std::move(f), a, b});
    };

    problem(kPi / 2, kPi, [](double x) { return std::sin(x) - x / 2; });
    for (int n = 1; n <= 10; ++n)
        problem(n * n + 1e-9, (n + 1) * (n + 1) - 1e-9, [](double x) {
            double sum = 0;
            for (int i = 1; i <= 20; ++i) sum += (2 * i - 5) * (2 * i - 5) / std::pow(x - i * i, 3);
            return -2 * sum;
        });
    for (const auto &[a, b] : {std::pair{-40.0, -1.0}, {-100.0, -2.0}, {-200.0, -3.0}})
        problem(-9, 31, [a = a, b = b](double x) { return a * x * std::exp(b * x); });
    for (const double a : {0.2, 1.0})
        for (int n = 4; n <= 12; n += 2) problem(0, 5, [=](double x) { return std::pow(x, n) - a; });
    for (int n = 8; n <= 14; n += 2) problem(-0.95, 4.05, [=](double x) { return std::pow(x, n) - 1; });
    problem(0, 1.5, [](double x) { return std::sin(x) - 0.5; });
    for (const int n : {1, 2, 3, 4, 5, 20, 40, 60, 80, 100})
        problem(0, 1, [=](double x) { return 2 * x * std::exp(-n) - 2 * std::exp(-n * x) + 1; });
    for (const int n : {5, 10, 20})
        problem(0, 1, [=](double x) { return (1 + std::pow(1 - n, 2)) * x - std::pow(1 - n * x, 2); });
    for (const int n : {2, 5, 10, 15, 20}) problem(0, 1, [=](double x) { return x * x - std::pow(1 - x, n); });
    for (const int n : {1, 2, 4, 5, 8, 15, 20})
        problem(0, 1, [=](double x) { return (1 + std::pow(1 - n, 4)) * x - std::pow(1 - n * x, 4); });
    for (const int n : {1, 5, 10, 15, 20})
        problem(0, 1, [=](double x) { return std::exp(-n * x) * (x - 1) + std::pow(x, n); });
    for (const int n : {2, 5, 15, 20}) problem(0.01, 1, [=](double x) { return (n * x - 1) / ((n - 1) * x); });
    const auto root_problem = [&](int n) {
        problem(1, 100, [=](double x) { return std::pow(x, 1.0 / n) - std::pow(n, 1.0 / n); });
    };
    for (int n = 2; n <= 6; ++n) root_problem(n);
    for (int n = 7; n <= 33; n += 2) root_problem(n);
    problem(-1, 4, [](double x) { return x == 0 ? 0 : x * std::exp(-1 / (x * x)); });
    for (int n = 1; n <= 40; ++n)
        problem(-1e4, kPi / 2, [=](double x) { return n / 20.0 * (x >= 0 ? x / 1.5 + std::sin(x) - 1 : -1); });
    const auto step_problem = [&](int n) {
        problem(-1e4, 1e-4, [=](double x) {
            if (x < 0) return -0.859;
            if (x > 2e-3 / (1 + n)) return kE - 1.859;
            return std::exp((n + 1) * x / 2 * 1e3) - 1.859;
        });
    };
    for (int n = 20; n <= 40; ++n) step_problem(n);
    for (int n = 100; n <= 1000; n += 100) step_problem(n);
    return all;
}

std::vector<Problem> single_functions()
{
    return {
        {[](double x) { return x * x * x - 2 * x - 5; }, 2, 3},
        {[](double x) { return std::cos(x) - x; }, 0, 1},
        {[](double x) { return x * std::exp(x) - 1; }, -1, 1},
        {[](double x) { return std::exp(-x) - x; }, 0, 1},
        {[](double x) { return std::log(x); }, 0.5, 5},
        {[](double x) { return std::log(x) + x * x - 3; }, 0.1, 3},
        {[](double x) { return std::pow(x, 3); }, -0.5, 1.0 / 3},
        {[](double x) { return std::pow(x, 5); }, -0.5, 1.0 / 3},
        {[](double x) { return std::pow(x, 9); }, -1, 4},
        {[](double x) { return std::pow(x, 19); }, -1, 4},
        {[](double x) { return (x - 1) * (1 + (x - 1) * (x - 1)); }, 0, 3},
        {[](double x) { return x * x - 1 / (x + 1); }, 0, 3},
        {[](double x) { return x == 0 ? 0 : x * std::exp(-1 / (x * x)); }, -1, 4},
        {[](double x) { return std::tan(x) - 1 / x; }, 0.2, 1.4},
        {[](double x) { return std::tan(x) - x; }, 4.2, 4.6},
        {[](double x) { return std::cosh(x) * std::cos(x) + 1; }, 1, 3},
        {[](double x) { return std::exp(x * x + 7 * x - 30) - 1; }, 2.6, 3.5},
        {[](double x) { return std::pow(x, 10) - 1; }, 0, 1.3},
        {[](double x) { return std::atan(x); }, -1.7, 10},
        {[](double x) { return std::cbrt(x); }, -1, 8},
        {[](double x) { return std::copysign(std::sqrt(std::fabs(x)), x); }, -1, 3},
        {[](double x) { return x - 0.967 * std::sin(x) - 0.1; }, 0, kPi},
        {[](double x) { return x * x * x + 4 * x * x - 10; }, 1, 2},
        {[](double x) { return std::sin(x) * std::sin(x) - x * x + 1; }, 0, 2},
        {[](double x) { return 2 * x * std::exp(-20) + 1 - 2 * std::exp(-20 * x); }, 0, 1},
        {[](double x) { return (x - 1) * std::exp(-5 * x) + std::pow(x, 5); }, 0, 1},
        {[](double x) { return std::erf(x) - 0.999; }, 0, 6},
        {[](double x) { return std::exp(10 * x) - 1e-3; }, -10, 10},
        {[](double x) { return 1 / (x - 3) - 6; }, 3.01, 10},
        {[](double x) { return x < 1.0 / 3 ? -1.0 : 1.0; }, 0, 1},
    };
}

// What a method returns: the ends of its last bracket.
struct Zero {
    double x, y;
};

Zero kor_zero(const std::function<double(double)> &f, double a, double b, double xtol)
{
    const auto call = [](double x, void *comm) {
        return (*static_cast<const std::function<double(double)> *>(comm))(x);
    };
    KorError fail{};
    double x = a;
    c05sdc(a, b, &x, call, xtol, 0.0, const_cast<void *>(static_cast<const void *>(&f)), &fail);
    return fail.code == NE_NOERROR ? Zero{x, x} : Zero{NAN, NAN};
}

// Brent's method as published: R. P. Brent, Algorithms for Minimization without Derivatives (1973), chapter 4.
Zero brent_zero(const std::function<double(double)> &f, double a, double b, double xtol)
{
    double fa = f(a), fb = f(b);
    double c = a, fc = fa, last = b - a, before_last = last;
    for (int i = 0; i < kMaxSteps; ++i) {
        if ((fb > 0) == (fc > 0)) {
            c = a, fc = fa;
            last = before_last = b - a;
        }
        if (std::fabs(fc) < std::fabs(fb)) {
            a = b, b = c, c = a;
            fa = fb, fb = fc, fc = fa;
        }
        const double tolerance = 0x1p-52 * std::fabs(b) + xtol / 2;
        const double half = (c - b) / 2;
        if (std::fabs(half) <= tolerance || fb == 0) return {b, c};

        if (std::fabs(before_last) < tolerance || std::fabs(fa) <= std::fabs(fb)) {
            last = before_last = half;
        } else {
            const double s = fb / fa;
            double p, q;
            if (a == c) {
                p = 2 * half * s;
                q = 1 - s;
            } else {
                const double u = fa / fc, r = fb / fc;
                p = s * (2 * half * u * (u - r) - (b - a) * (r - 1));
                q = (u - 1) * (r - 1) * (s - 1);
            }
            if (p > 0)
                q = -q;
            else
                p = -p;
            const bool interpolate =
                2 * p < 3 * half * q - std::fabs(tolerance * q) && p < std::fabs(before_last * q / 2);
            before_last = interpolate ? last : half;
            last = interpolate ? p / q : half;
        }
        a = b, fa = fb;
        b += std::fabs(last) > tolerance ? last : std::copysign(tolerance, half);
        fb = f(b);
    }
    return {NAN, NAN};
}

#ifdef KOR_HAVE_GSL
Zero gsl_zero(const std::function<double(double)> &f, double a, double b, double xtol)
{
    gsl_function function{[](double x, void *p) { return (*static_cast<const std::function<double(double)> *>(p))(x); },
                          const_cast<void *>(static_cast<const void *>(&f))};
    thread_local gsl_root_fsolver *solver = gsl_root_fsolver_alloc(gsl_root_fsolver_brent);
    Zero zero{NAN, NAN};
    if (gsl_root_fsolver_set(solver, &function, a, b) != GSL_SUCCESS) return zero;
    for (int i = 0; i < kMaxSteps; ++i) {
        if (gsl_root_fsolver_iterate(solver) != GSL_SUCCESS) break;
        const double lower = gsl_root_fsolver_x_lower(solver), upper = gsl_root_fsolver_x_upper(solver);
        if (upper - lower <= xtol) return {lower, upper};
    }
    return zero;
}
#endif

#ifdef KOR_HAVE_BOOST
Zero boost_zero(const std::function<double(double)> &f, double a, double b, double xtol)
{
    std::uintmax_t steps = kMaxSteps;
    const auto [lower, upper] = boost::math::tools::toms748_solve(
        [&f](double x) { return f(x); }, a, b, [xtol](double x, double y) { return std::fabs(y - x) <= xtol; }, steps);
    return {lower, upper};
}
#endif

using Method = Zero (*)(const std::function<double(double)> &, double, double, double);

// A point is a zero if f vanishes there, or changes its sign within the tolerance of it.
bool is_zero(const std::function<double(double)> &f, double x, double xtol)
{
    const double width = 1.01 * xtol; // the tolerance, and the rounding of x + xtol
    return f(x) == 0 || (f(x - width) > 0) != (f(x + width) > 0) || f(x - width) == 0 || f(x + width) == 0;
}

kor::bench::Figures figures_of(const std::vector<Problem> &battery, Method method, double xtol)
{
    double unsolved = 0, calls = 0;
    for (const Problem &p : battery) {
        const std::function<double(double)> counted = [&](double x) { return ++calls, p.f(x); };
        const Zero zero = method(counted, p.a, p.b, xtol);
        if (!is_zero(p.f, zero.x, xtol) || !(std::fabs(zero.x - zero.y) <= 1.01 * xtol || p.f(zero.x) == 0)) ++unsolved;
    }
    return {.error = unsolved, .calls = calls};
}

void solve_all(const std::vector<Problem> &battery, Method method, double xtol)
{
    for (const Problem &p : battery) kor::bench::keep(method(p.f, p.a, p.b, xtol));
}

void add_battery(const std::string &name, const std::vector<Problem> &battery, double xtol)
{
    char work[80];
    std::snprintf(work, sizeof work, "%s, xtol %.0e", name.c_str(), xtol);
    double kor_calls = 0, brent_calls = 0;
    const auto entry = [&](const char *implementation, Method method) {
        const auto figures = figures_of(battery, method, xtol);
        kor::bench::add(
            std::string{work} + "/" + implementation, [=, &battery] { solve_all(battery, method, xtol); }, figures);
        return figures.calls;
    };
    kor_calls = entry("KOR", kor_zero);
    brent_calls = entry("Brent", brent_zero);
#ifdef KOR_HAVE_GSL
    entry("GSL brent", gsl_zero);
#endif
#ifdef KOR_HAVE_BOOST
    entry("Boost 748", boost_zero);
#endif
    char line[160];
    std::snprintf(line, sizeof line, "%s: %zu problems, KOR's evaluations are %.3f times Brent's (bar: at most 1.15)",
                  work, battery.size(), kor_calls / brent_calls);
    kor::bench::note(line);
}

// The methods' own time: a function that costs next to nothing, time per evaluation.
int cheap_calls = 0;
[[gnu::noinline]] double cheap(double x)
{
    ++cheap_calls;
    return (x - 3) * x * x - 1;
}
constexpr double kCheapA = 0, kCheapB = 10, kCheapTolerance = 1e-13;

void drive_c05adc()
{
    double x;
    c05adc(kCheapA, kCheapB, &x, cheap, kCheapTolerance, 0.0, nullptr);
    kor::bench::keep(x);
}

void drive_c05azc()
{
    double x = kCheapA, y = kCheapB, fx = 0, c[17];
    Integer ind = 1;
    for (c05azc(&x, &y, &fx, kCheapTolerance, 1, c, &ind, nullptr); ind != 0;
         c05azc(&x, &y, &fx, kCheapTolerance, 1, c, &ind, nullptr))
        fx = cheap(x);
    kor::bench::keep(x);
}

// Each value waits for the one before, as in a search; called through a pointer, as a solver calls it.
constexpr int kChain = 15;
double (*volatile cheap_by_pointer)(double) = cheap;
void drive_function_alone()
{
    static double x = 3.1; // the next run waits for this one, too
    double (*f)(double) = cheap_by_pointer;
    for (int i = 0; i < kChain; ++i) x = 3.1 + 1e-9 * f(x);
    kor::bench::keep(x);
}

void add_overhead(const std::string &name, void (*drive)())
{
    cheap_calls = 0;
    drive();
    kor::bench::add(name, drive, {.calls = double(cheap_calls), .items = double(cheap_calls)});
}

const kor::bench::Heading heading{"Zeros of functions of one variable: a whole battery; overhead: ns an evaluation",
                                  "problems not solved"};

const bool registered = [] {
#ifdef KOR_HAVE_GSL
    gsl_set_error_handler_off();
#endif
    static const auto published = alefeld_potra_shi();
    static const auto single = single_functions();
    for (const double xtol : {1e-7, 1e-10, 1e-13}) {
        add_battery("ALGO 748", published, xtol);
        add_battery("single", single, xtol);
    }
    kor::bench::add("the function alone/KOR", drive_function_alone, {.items = kChain});
    add_overhead("overhead, c05adc/KOR", drive_c05adc);
    add_overhead("overhead, c05azc/KOR", drive_c05azc);
    static const std::function<double(double)> function = cheap;
    const auto peer = [](const char *name, Method method) {
        cheap_calls = 0;
        method(function, kCheapA, kCheapB, kCheapTolerance);
        kor::bench::add(std::string{"overhead, c05adc/"} + name,
                        [=] { kor::bench::keep(method(function, kCheapA, kCheapB, kCheapTolerance)); },
                        {.calls = double(cheap_calls), .items = double(cheap_calls)});
    };
    peer("Brent", brent_zero);
#ifdef KOR_HAVE_GSL
    peer("GSL brent", gsl_zero);
#endif
#ifdef KOR_HAVE_BOOST
    peer("Boost 748", boost_zero);
#endif
    kor::bench::note(
        "overhead of c05adc and c05azc: the bar is 10 ns an evaluation above the time of the function alone");
    return true;
}();

} // namespace
