// m01zac: inverts a permutation of the integers from 0 to n-1 in place.
#include <kor/m01.h>

#include "sort/arguments.hpp"
#include "sort/permutation.hpp"

void m01zac(Integer rank[], Integer n, KorError *fail)
{
    using namespace kor::sort;
    const kor::Report report{"m01zac", fail};
    if (!count_is_right(report, n)) return;

    if (invert_permutation(rank, n) != Permuted::done) return report.error<NE_BAD_RANK>("rank");
    report.success();
}
