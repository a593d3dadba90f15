// g05dac: a uniform number between two ends.
#include <kor/g05.h>

#include "random/between.hpp"
#include "random/state.hpp"

double g05dac(double a, double b)
{
    using namespace kor::random;
    return Between{a, b}(uniform(g05caz()));
}
