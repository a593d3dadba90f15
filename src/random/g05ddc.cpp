// g05ddc: a normal deviate.
#include <kor/g05.h>

#include "random/standard_normal.hpp"

double g05ddc(double a, double b)
{
    using namespace kor::random;
    return a + b * standard_normal(g05caz());
}
