// f06qkc: permutes the rows or columns of a real matrix by a sequence of interchanges, given as real numbers.
#include <kor/f06.h>

#include "linalg/matrix.hpp"

void f06qkc(Integer side, Integer trans, Integer n, const double perm[], Integer k, double b[], Integer tdb)
{
    kor::linalg::permute("f06qkc", side, trans, n, perm, 1.0, k, b, tdb);
}
