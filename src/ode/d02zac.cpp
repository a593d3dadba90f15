// d02zac: the weighted root mean square norm of a vector.
#include <kor/d02.h>

#include <algorithm>
#include <cmath>

#include "frame/constants.hpp"
#include "ode/bdf.hpp"

namespace {

// Squares that leave the range of doubles on the way: the largest quotient comes out of the root.
double scaled_norm(Integer n, const double *v, const double *w)
{
    double largest = 0.0;
    for (Integer i = 0; i < n; ++i) {
        const double q = v[i] == 0.0 ? 0.0 : std::fabs(v[i] / w[i]);
        if (!(q <= kor::kLargest)) return q;
        largest = std::max(largest, q);
    }
    if (largest == 0.0) return 0.0;
    double sum = 0.0;
    for (Integer i = 0; i < n; ++i) {
        const double q = v[i] == 0.0 ? 0.0 : v[i] / w[i] / largest;
        sum += q * q;
    }
    return largest * std::sqrt(sum / n);
}

} // namespace

double d02zac(Integer neq, const double v[], const double w[], Integer *status)
{
    *status = neq < 1;
    if (*status != 0) return 0.0;
    const double plain = kor::ode::weighted_norm(neq, v, w);
    const double low = std::sqrt(kor::kSmallest) / kor::kPrecision;
    return plain >= low && plain <= kor::kLargest ? plain : scaled_norm(neq, v, w);
}
