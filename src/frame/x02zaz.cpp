// x02zaz: the machine constants that the quadratic programming kernels take as an array.
#include <cmath>

#include "frame/constants.hpp"

namespace kor {

void x02zaz(double wmach[kMachineArraySize])
{
    constexpr double radix = 2.0;
    constexpr double digits = 53.0;

    wmach[0] = radix;
    wmach[1] = digits;
    wmach[2] = kPrecision;
    wmach[3] = std::sqrt(kPrecision);
    wmach[4] = kSafeSmall;
    wmach[5] = std::sqrt(kSafeSmall);
    wmach[6] = 1.0 / kSafeSmall;
    wmach[7] = std::sqrt(1.0 / kSafeSmall);
    wmach[8] = 0.0;
}

} // namespace kor
