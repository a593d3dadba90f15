// g05dfc: a Cauchy deviate, the ratio of the coordinates of a point in a half disc.
#include <kor/g05.h>

#include "random/state.hpp"

double g05dfc(double a, double b)
{
    using namespace kor::random;
    State &state = g05caz();
    double u, v;
    do {
        u = 2.0 * uniform(state) - 1.0;
        v = uniform(state);
    } while (u * u + v * v > 1.0);
    return a + b * u / v;
}
