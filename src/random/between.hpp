// Uniform numbers of (0, 1) carried to the range between a and b, whichever is the lower end.
#pragma once

#include "random/elementary.hpp"

namespace kor::random {

class Between {
  public:
    Between(double a, double b) : low_{a < b ? a : b}, high_{a < b ? b : a} {}

    // Where one end is 0 the other's product stands alone and keeps all digits. Rounding never leads out of the range.
    KOR_LANE double operator()(double u) const
    {
        const double x = low_ * (1.0 - u) + high_ * u;
        const double not_below = x < low_ ? low_ : x;
        return not_below > high_ ? high_ : not_below;
    }

  private:
    double low_, high_;
};

} // namespace kor::random
