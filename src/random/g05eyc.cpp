// g05eyc: an integer from a discrete law, by its reference vector.
#include <kor/g05.h>

#include <cstdint>

#include "frame/report.hpp"
#include "random/reference_vector.hpp"
#include "random/state.hpp"

namespace {

constexpr int kAtATime = 1 + kor::random::kReferenceTail;

[[gnu::cold]] void refuse()
{
    KorError fail{};
    fail.print = 1; // there is no record to report to: say it, and let the caller's program go on
    kor::Report{"g05eyc", &fail}.error<NE_REF_VEC>();
}

} // namespace

Integer g05eyc(const double r[])
{
    using namespace kor::random;
    if (!is_discrete_reference(r)) {
        refuse();
        return 0;
    }
    const double u = uniform(g05caz());
    auto position = static_cast<std::ptrdiff_t>(r[kReferenceHead + static_cast<std::ptrdiff_t>(u * r[0])]);
    // Entries never fall, so the number below u among three in a row tells how far to go, without a branch for each.
    for (const double *entry = r + position - 1;; entry += kAtATime) {
        const int below = (entry[0] < u) + (entry[1] < u) + (entry[2] < u);
        position += below;
        if (below < kAtATime) break;
    }
    return static_cast<Integer>(position + static_cast<std::int64_t>(r[1]));
}
