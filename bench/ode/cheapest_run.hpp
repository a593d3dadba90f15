// How the benchmarks of initial value problems count evaluations, and find the cheapest run that is accurate enough.
#pragma once

#include <cmath>

namespace kor::bench {

// The right-hand side that a solver is given.
template <class Problem>
struct CountedRate {
    const Problem *problem = nullptr;
    long calls = 0;

    void operator()(double t, const double *y, double *yp)
    {
        ++calls;
        problem->f(t, y, yp);
    }
};

struct Run {
    double error = HUGE_VAL;
    long calls = 0;
};

struct Cheapest {
    double tolerance = 0.0; // zero: no run was accurate enough
    Run run;
};

// A ladder of tolerances from 1e-3 down.
struct Ladder {
    int rungs_in_a_decade, lowest_decade;
    double wanted; // error
    long patience; // evaluations; a solver that needs more has lost
};

// The fewest evaluations with which attempt(tolerance) has got the accuracy.
template <class Attempt>
Cheapest cheapest_run(const Ladder &ladder, Attempt attempt)
{
    Cheapest best;
    const int rungs = ladder.rungs_in_a_decade;
    for (int i = 3 * rungs; i <= ladder.lowest_decade * rungs; ++i) {
        const double tolerance = std::pow(10.0, -static_cast<double>(i) / rungs);
        const Run now = attempt(tolerance);
        const bool found = best.tolerance != 0.0;
        if (now.error <= ladder.wanted && (!found || now.calls < best.run.calls)) best = {tolerance, now};
        if (now.calls > ladder.patience || (best.tolerance != 0.0 && now.calls > 2 * best.run.calls)) break;
    }
    return best;
}

} // namespace kor::bench
