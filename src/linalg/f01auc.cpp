// f01auc: turns the eigenvectors of a balanced matrix into those of the matrix that f01atc balanced.
#include <kor/f01.h>

#include "linalg/balance.hpp"

void f01auc(Integer n, Integer low, Integer high, Integer m, const double d[], double z[], Integer tdz)
{
    if (!kor::linalg::is_range(n, low, high) || tdz < m) return;
    kor::linalg::undo_balance(n, {low - 1, high - 1}, d, m, z, tdz);
}
