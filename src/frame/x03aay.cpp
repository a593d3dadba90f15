// x03aay: inner product accumulated in doubled precision.
//
// T. J. Dekker, A floating-point technique for extending the available precision, Numer. Math. 18 (1971) 224-242. Each
// operation is rounded to double by itself: the error terms are wrong otherwise.
#include "frame/x03aay.hpp"

#include <cmath>
#include <cstddef>

namespace kor {

namespace {

// high + low of a sum whose first term is not the smaller one.
DoubleDouble renormalised(double larger, double smaller)
{
    const double high = store(larger + smaller);
    return {high, store(store(larger - high) + smaller)};
}

// sum + r, where r is a product: the larger of the two high parts leads.
DoubleDouble add_product(DoubleDouble sum, DoubleDouble r)
{
    const double s = store(r.high + sum.high);
    const double t = std::fabs(sum.high) < std::fabs(r.high)
                         ? store(store(store(store(r.high - s) + sum.high) + sum.low) + r.low)
                         : store(store(store(store(sum.high - s) + r.high) + r.low) + sum.low);
    return renormalised(s, t);
}

} // namespace

DoubleDouble x03aay(const double a[], const double b[], Integer n, Integer stepa, Integer stepb, DoubleDouble start)
{
    DoubleDouble sum = renormalised(start.high, start.low);
    for (std::ptrdiff_t i = 0; i < n; ++i) sum = add_product(sum, two_product(a[i * stepa], b[i * stepb]));
    return renormalised(sum.high, sum.low);
}

} // namespace kor
