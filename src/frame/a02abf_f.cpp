// a02abf_f: modulus of a complex number in two doubles.
#include "frame/complex_parts.hpp"

#include "frame/complex.hpp"

namespace kor {

double a02abf_f(double x, double y) { return modulus(x, y); }

} // namespace kor
