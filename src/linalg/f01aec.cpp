// f01aec: reduces A x = lambda B x, A symmetric, B symmetric positive-definite, to the standard problem.
#include <kor/f01.h>

#include "linalg/eigen_report.hpp"

Integer f01aec(Integer n, double a[], Integer tda, double b[], Integer tdb, double dl[])
{
    if (n < 1) return NE_INT_ARG_LT;
    if (tda < n || tdb < n) return NE_2_INT_ARG_LT;
    return kor::linalg::reduce_to_standard(n, a, tda, b, tdb, dl) == 0 ? NE_NOERROR : NE_NOT_POS_DEF;
}
