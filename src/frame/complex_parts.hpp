// Modulus and quotient of complex numbers in pairs of doubles.
#pragma once

namespace kor {

double a02abf_f(double x, double y);                                             // |x + iy|
void a02acf(double xr, double xi, double yr, double yi, double &zr, double &zi); // z = x / y

} // namespace kor
