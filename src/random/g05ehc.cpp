// g05ehc: puts integers into random order. R. Durstenfeld, Comm. ACM 7 (1964) 420.
#include <kor/g05.h>

#include <utility>

#include "frame/report.hpp"
#include "random/state.hpp"

void g05ehc(Integer index[], Integer n, KorError *fail)
{
    using namespace kor::random;
    const kor::Report report{"G05EHC", fail}; // in capitals: callers know it so
    if (n < 1) return report.error<NE_INT_ARG_LT>("n", "1", "n", n);
    State &state = g05caz();
    for (Integer i = 1; i < n; ++i) {
        const auto j = static_cast<Integer>((i + 1.0) * uniform(state));
        std::swap(index[i], index[j]);
    }
    report.success();
}
