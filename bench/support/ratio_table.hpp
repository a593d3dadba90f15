// What every benchmark shares: the same work done by us and by peers in one run, shown as one table of ratios.
//
//     // bench/special/bench_gamma.cpp                     makes the program bench_special_gamma
//     const kor::bench::Heading heading{"Gamma function, ns an argument", "largest error in ulps"};
//
//     const bool registered = [] {
//         using kor::bench::add;
//         add("gamma (0, 30)/KOR", [&] { for (double x : xs) keep(s14aac(x, &fail)); }, {.error = worst, .items = 1000});
//     #ifdef KOR_HAVE_GSL
//         add("gamma (0, 30)/GSL", [&] { for (double x : xs) keep(gsl_sf_gamma(x)); }, {.error = ..., .items = 1000});
//     #endif
//         return true;
//     }();
//
// A name is "work/implementation"; the implementation "KOR" is the one that the others are divided into. Accuracy and
// counts are measured by the benchmark itself, once, outside the timing. All entries of a program run in random order,
// several times each, and the least time counts, so that load on the machine hits all alike. Flags of Google Benchmark
// work as usual (--benchmark_filter=..., --benchmark_out=...); benchmarks that are registered with it directly join the
// table when their names have the same form, with counters "error", "calls" and "items" as they like.
#pragma once

#include <functional>
#include <string>
#include <utility>

#include <benchmark/benchmark.h>

namespace kor::bench {

// Title of the program's table, and the unit of its accuracy columns.
struct Heading {
    Heading(const char *title, const char *error_unit);
};

// A line below the table, such as a bar and whether it was met.
void note(std::string line);

struct Figures {
    double error = -1.0; // accuracy in the unit of the heading; negative: not measured
    double calls = -1.0; // calls of the user's function; negative: not counted
    double items = 1.0;  // the time is shown for one of so many
};

// Registers one entry: `once` does the work once. It must not remember anything that makes its second run easier.
void add(const std::string &name, std::function<void()> once, Figures figures = {});

// The same with a state to be restored before each run, outside the clock: for work that destroys its input. Stopping the
// clock costs some 100 ns: the work should last microseconds.
void add_with_setup(const std::string &name, std::function<void()> setup, std::function<void()> once,
                    Figures figures = {});

// Keeps the compiler from dropping a result that nobody uses.
template <class T>
void keep(T &&value)
{
    benchmark::DoNotOptimize(std::forward<T>(value));
}

} // namespace kor::bench
