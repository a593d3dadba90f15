// f11zac: brings the elements of a nonsymmetric matrix into coordinate storage.
#include <kor/f11.h>

#include "sparse/sort_elements.hpp"

void f11zac(Integer n, Integer *nnz, double a[], Integer irow[], Integer icol[], Integer dup, Integer zero,
            Integer istr[], KorError *fail)
{
    using namespace kor::sparse;
    constexpr SortChoices choices{.keep_first = Kor_SparseNsym_RemoveDups,
                                  .add = Kor_SparseNsym_SumDups,
                                  .remove_zeros = Kor_SparseNsym_RemoveZeros,
                                  .keep_zeros = Kor_SparseNsym_KeepZeros};
    sort_and_report({"f11zac", fail}, choices, Triangle::both, n, nnz, a, irow, icol, dup, zero, istr);
}
