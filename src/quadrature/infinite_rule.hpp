// The engine on an infinite range. The sub-intervals of the record are those of t in (0, 1).
#pragma once

#include "quadrature/gauss_kronrod.hpp"
#include "quadrature/request.hpp"

namespace kor::quadrature {

inline AdaptiveResult integrate_transformed(Integrand f, Integer boundinf, double bound, ProgressRecord &work,
                                            Tolerance tolerance)
{
    const bool both_ways = boundinf == Kor_Infinite;
    const double direction = boundinf == Kor_LowerSemiInfinite ? -1.0 : 1.0;
    const double from = both_ways ? 0.0 : bound;
    const auto transformed = [&](double t) {
        const double x = from + direction * (1.0 - t) / t;
        const double value = both_ways ? f(x) + f(-x) : f(x);
        return value / t / t;
    };
    const auto rule = [&](double left, double right, Integer) {
        work.evaluations += both_ways ? 2 * kPair15.points : kPair15.points;
        return apply_pair<kPair15>(transformed, left, right);
    };
    return extrapolate_from_one(work.subdivision(), rule, 0.0, 1.0, tolerance);
}

} // namespace kor::quadrature
