// g05fec: beta deviates in bulk.
#include <kor/g05.h>

#include <algorithm>

#include "frame/dispatch.hpp"
#include "frame/report.hpp"
#include "random/beta_laws.hpp"
#include "random/rejection.hpp"

namespace {

using namespace kor::random;

constexpr double kLargestParameter = 1e300;

KOR_CLONES void try_above_1(BetaAbove1 law, std::ptrdiff_t trials, const double *u, double *x, double *taken)
{
    trial_loop(law, trials, u, x, taken);
}

KOR_CLONES void try_below_1(BetaBelow1 law, std::ptrdiff_t trials, const double *u, double *x, double *taken)
{
    trial_loop(law, trials, u, x, taken);
}

} // namespace

void g05fec(double a, double b, Integer n, double x[], KorError *fail)
{
    const kor::Report report{"g05fec", fail};
    if (!(a > 0.0)) return report.error<NE_REAL_ARG_LE>("a", "0.0", "a", a);
    if (a > kLargestParameter) return report.error<NE_REAL_ARG_GT>("a", "1.0e300", "a", a);
    if (!(b > 0.0)) return report.error<NE_REAL_ARG_LE>("b", "0.0", "b", b);
    if (b > kLargestParameter) return report.error<NE_REAL_ARG_GT>("b", "1.0e300", "b", b);
    if (n < 1) return report.error<NE_INT_ARG_LE>("n", "0", "n", n);

    State &state = g05caz();
    const auto sample = [&](auto law, auto tries) {
        sample_by_rejection(
            state, [&](auto... arguments) { tries(law, arguments...); }, n, x);
    };
    if (std::min(a, b) > 1.0)
        sample(BetaAbove1{a, b}, try_above_1);
    else
        sample(BetaBelow1{a, b}, try_below_1);
    report.success();
}
