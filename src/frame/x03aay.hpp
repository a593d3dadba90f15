// Inner products accumulated in doubled precision.
#pragma once

#include <kor.h>

#include "frame/exact.hpp"

namespace kor {

// start + the sum of a[i stepa] b[i stepb], i = 0 to n - 1, as a high and a low part: products are exact, and their sum
// carries a second double along. Where it overflows, high is infinite or NaN.
DoubleDouble x03aay(const double a[], const double b[], Integer n, Integer stepa, Integer stepb, DoubleDouble start);

} // namespace kor
