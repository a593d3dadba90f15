// f11zbc: brings the elements of the lower triangle of a symmetric matrix into coordinate storage.
#include <kor/f11.h>

#include "sparse/sort_elements.hpp"

void f11zbc(Integer n, Integer *nnz, double a[], Integer irow[], Integer icol[], Integer dup, Integer zero,
            Integer istr[], KorError *fail)
{
    using namespace kor::sparse;
    constexpr SortChoices choices{.keep_first = Kor_SparseSym_RemoveDups,
                                  .add = Kor_SparseSym_SumDups,
                                  .remove_zeros = Kor_SparseSym_RemoveZeros,
                                  .keep_zeros = Kor_SparseSym_KeepZeros};
    sort_and_report({"f11zbc", fail}, choices, Triangle::lower, n, nnz, a, irow, icol, dup, zero, istr);
}
