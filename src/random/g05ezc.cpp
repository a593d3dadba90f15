// g05ezc: a vector from a multivariate normal law, by its reference vector.
#include <kor/g05.h>

#include <algorithm>

#include "frame/report.hpp"
#include "random/standard_normal.hpp"

namespace {

constexpr double kMostVariables = 65535.0; // the elements of more would not fit the length of a vector

bool is_normal_reference(const double r[])
{
    return r[0] >= 1.5 && r[0] <= kMostVariables && r[0] - static_cast<double>(static_cast<Integer>(r[0])) == 0.5;
}

[[gnu::cold]] void refuse()
{
    KorError fail{};
    fail.print = 1; // there is no record to report to: say it, and let the caller's program go on
    kor::Report{"g05ezc", &fail}.error<NE_REF_VEC>();
}

} // namespace

void g05ezc(double z[], const double r[])
{
    using namespace kor::random;
    if (!is_normal_reference(r)) return refuse();
    State &state = g05caz();
    const auto n = static_cast<std::ptrdiff_t>(r[0]);
    std::copy(r + 1, r + 1 + n, z);
    const double *factor = r + 1 + n;
    for (std::ptrdiff_t j = 0; j < n; ++j) {
        const double w = standard_normal(state);
        for (std::ptrdiff_t k = j; k < n; ++k) z[k] += w * *factor++;
    }
}
