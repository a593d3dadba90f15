// f01akc: reduces a balanced real matrix to upper Hessenberg form by elimination with interchanges.
#include <kor/f01.h>

#include "linalg/hessenberg.hpp"

void f01akc(Integer n, Integer low, Integer high, double a[], Integer tda, Integer intger[])
{
    if (!kor::linalg::is_range(n, low, high) || tda < n) return;
    kor::linalg::eliminate_to_hessenberg(n, {low - 1, high - 1}, a, tda, intger);
}
