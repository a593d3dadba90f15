// f01acc: inverse of a real symmetric positive-definite matrix, refined to full accuracy.
#include <kor/f01.h>

#include <algorithm>

#include "linalg/cholesky_below.hpp"
#include "linalg/refinement.hpp"

Integer f01acc(Integer n, double a[], Integer tda, double b[], Integer tdb, Integer *iterations)
{
    using namespace kor::linalg;
    enum { kDone, kNotPositiveDefinite, kIllConditioned, kBadArgument, kNoMemory };
    if (n < 1 || tda < n || tdb < n) return kBadArgument;
    // A as a whole, the unit matrix, the residuals, p and what the residuals need.
    const kor::Workspace<double> memory{(kor::Count{n} * n + n) * 3};
    if (!memory) return kNoMemory;
    const std::ptrdiff_t square = std::ptrdiff_t{n} * n;
    double *const whole = memory.data(), *const unit = whole + square, *const rest = unit + square,
                  *const p = rest + square, *const work = p + n;

    Determinant<double> determinant;
    if (cholesky_below(n, a, tda, p, determinant) != 0) return kNotPositiveDefinite;
    complete_symmetric(n, a, tda, whole, n);
    std::fill(unit, unit + square, 0.0);
    for (Integer i = 0; i < n; ++i) unit[i * (std::ptrdiff_t{n} + 1)] = 1.0;
    const auto solve = [=](double *r, Integer tdr) { cholesky_below_solve(n, n, a, tda, p, r, tdr); };
    if (!refine(n, n, whole, n, solve, unit, n, b, tdb, rest, n, *iterations, work)) return kIllConditioned;
    reflect_upper(n, b, tdb, b, tdb);
    return kDone;
}
