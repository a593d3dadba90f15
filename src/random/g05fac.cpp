// g05fac: uniform numbers in bulk.
#include <kor/g05.h>

#include <algorithm>

#include "frame/dispatch.hpp"
#include "random/between.hpp"
#include "random/state.hpp"

namespace {

using namespace kor::random;

constexpr std::ptrdiff_t kChunk = 1024; // numbers that stay in the first-level cache between the two passes

KOR_CLONES void carry_to(Between range, std::ptrdiff_t n, double *x)
{
    for (std::ptrdiff_t i = 0; i < n; ++i) x[i] = range(x[i]);
}

} // namespace

void g05fac(double a, double b, Integer n, double x[])
{
    State &state = g05caz();
    const Between range{a, b};
    const bool unit = std::min(a, b) == 0.0 && std::max(a, b) == 1.0;
    for (std::ptrdiff_t done = 0; done < n; done += kChunk) {
        const std::ptrdiff_t count = std::min(n - done, kChunk);
        uniforms(state, count, x + done);
        if (!unit) carry_to(range, count, x + done);
    }
}
