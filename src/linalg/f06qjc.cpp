// f06qjc: permutes the rows or columns of a real matrix by a sequence of interchanges, given as integers.
#include <kor/f06.h>

#include "linalg/matrix.hpp"

void f06qjc(Integer side, Integer trans, Integer n, const Integer perm[], Integer k, double b[], Integer tdb)
{
    kor::linalg::permute("f06qjc", side, trans, n, perm, 0, k, b, tdb);
}
