// g05ffc: gamma deviates in bulk.
#include <kor/g05.h>

#include <algorithm>

#include "frame/dispatch.hpp"
#include "frame/report.hpp"
#include "random/gamma_laws.hpp"
#include "random/rejection.hpp"

namespace {

using namespace kor::random;

constexpr double kLargestShape = 1e300;
constexpr std::ptrdiff_t kChunk = 1024; // numbers that stay in the first-level cache between two passes

KOR_CLONES void try_above_1(GammaAbove1 law, std::ptrdiff_t trials, const double *u, double *x, double *taken)
{
    trial_loop(law, trials, u, x, taken);
}

KOR_CLONES void try_below_1(GammaBelow1 law, std::ptrdiff_t trials, const double *u, double *x, double *taken)
{
    trial_loop(law, trials, u, x, taken);
}

KOR_CLONES void to_exponential(std::ptrdiff_t n, double scale, double *x) { exponential_loop(n, scale, x); }

void exponential(State &state, double scale, std::ptrdiff_t n, double *x)
{
    for (; n > 0; n -= kChunk, x += kChunk) {
        const std::ptrdiff_t count = std::min(n, kChunk);
        uniforms(state, count, x);
        to_exponential(count, scale, x);
    }
}

void scale_by(double factor, std::ptrdiff_t n, double *x)
{
    for (std::ptrdiff_t i = 0; i < n; ++i) x[i] *= factor;
}

} // namespace

void g05ffc(double a, double b, Integer n, double x[], KorError *fail)
{
    const kor::Report report{"g05ffc", fail};
    if (!(a > 0.0)) return report.error<NE_REAL_ARG_LE>("a", "0.0", "a", a);
    if (a > kLargestShape) return report.error<NE_REAL_ARG_GT>("a", "1.0e300", "a", a);
    if (!(b > 0.0)) return report.error<NE_REAL_ARG_LE>("b", "0.0", "b", b);
    if (n < 1) return report.error<NE_INT_ARG_LE>("n", "0", "n", n);

    State &state = g05caz();
    if (a == 1.0) {
        exponential(state, b, n, x);
    } else {
        const auto sample = [&](auto law, auto tries) {
            sample_by_rejection(
                state, [&](auto... arguments) { tries(law, arguments...); }, n, x);
        };
        if (a < 1.0)
            sample(GammaBelow1{a}, try_below_1);
        else
            sample(GammaAbove1{a}, try_above_1);
        scale_by(b, n, x);
    }
    report.success();
}
