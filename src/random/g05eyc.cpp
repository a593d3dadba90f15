// g05eyc: an integer from a discrete law, by its reference vector.
#include <kor/g05.h>

#include <cstdint>

#include "frame/report.hpp"
#include "random/reference_vector.hpp"
#include "random/state.hpp"

namespace {

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
    while (r[position - 1] < u) ++position;
    return static_cast<Integer>(position + static_cast<std::int64_t>(r[1]));
}
