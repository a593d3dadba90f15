// g05dbc: an exponential deviate, the logarithm of one uniform number.
#include <kor/g05.h>

#include <cmath>

#include "random/elementary.hpp"
#include "random/state.hpp"

double g05dbc(double a)
{
    using namespace kor::random;
    return -std::fabs(a) * lane_log(uniform(g05caz()));
}
