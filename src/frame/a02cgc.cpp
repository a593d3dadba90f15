// a02cgc: whether two complex numbers are equal.
#include <kor/a02.h>

Integer a02cgc(Complex z1, Complex z2) { return z1.re == z2.re && z1.im == z2.im; }
