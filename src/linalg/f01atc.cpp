// f01atc: balances a real matrix.
#include <kor/f01.h>

#include "linalg/balance.hpp"

void f01atc(Integer n, Integer ib, double a[], Integer tda, Integer *low, Integer *high, double d[])
{
    if (n < 1 || tda < n) return;
    const kor::linalg::BalancedRange range = kor::linalg::balance(n, ib > 1 ? ib : 2, a, tda, d);
    *low = range.low + 1;
    *high = range.high + 1;
}
