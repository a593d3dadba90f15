// f01apc: the matrix by which f01akc reduced a matrix to upper Hessenberg form.
#include <kor/f01.h>

#include "linalg/hessenberg.hpp"

void f01apc(Integer n, Integer low, Integer high, const Integer intger[], const double h[], Integer tdh, double v[],
            Integer tdv)
{
    if (!kor::linalg::is_range(n, low, high) || tdh < n || tdv < n) return;
    kor::linalg::accumulate_elimination(n, {low - 1, high - 1}, intger, h, tdh, v, tdv);
}
