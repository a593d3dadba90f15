// f06vkc: permutes the rows or columns of a complex matrix by a sequence of interchanges, given as real numbers.
#include <kor/f06.h>

#include "linalg/matrix.hpp"

void f06vkc(Integer side, Integer trans, Integer n, const double perm[], Integer k, Complex b[], Integer tdb)
{
    kor::linalg::permute("f06vkc", side, trans, n, perm, 1.0, k, b, tdb);
}
