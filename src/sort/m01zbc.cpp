// m01zbc: inverts a permutation of the integers from m1 to m2 in place, with an integer status.
#include <kor/m01.h>

#include <cstdio>

#include "frame/kernel_report.hpp"
#include "sort/permutation.hpp"

namespace {

constexpr Integer kBadBounds = 1;

Integer status_of(kor::sort::Permuted outcome)
{
    switch (outcome) {
    case kor::sort::Permuted::done:
        return 0;
    case kor::sort::Permuted::out_of_range:
        return 2;
    case kor::sort::Permuted::repeated:
        return 3;
    }
    return 3;
}

void describe(Integer status, Integer m1, Integer m2, char *text, std::size_t room)
{
    const long low = m1, high = m2;
    switch (status) {
    case kBadBounds:
        std::snprintf(text, room, " ** On entry, M1 = %16ld and M2 = %16ld: 1 <= M1 <= M2 is required", low, high);
        break;
    case 2:
        std::snprintf(text, room, " ** RANK holds a value that is not between M1 = %16ld and M2 = %16ld", low, high);
        break;
    default:
        std::snprintf(text, room, " ** RANK holds a value more than once");
        break;
    }
}

} // namespace

void m01zbc(Integer rank[], Integer m1, Integer m2, Integer *ifail)
{
    const Integer status =
        m1 < 1 || m2 < m1 ? kBadBounds : status_of(kor::sort::invert_permutation(rank + (m1 - 1), m2 - m1 + 1, m1));
    char text[120];
    describe(status, m1, m2, text, sizeof text);
    *ifail = kor::p01abf_f(*ifail, status, "M01ZBC", 1, text);
}
