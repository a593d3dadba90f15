// a02chc: whether two complex numbers differ.
#include <kor/a02.h>

Integer a02chc(Complex z1, Complex z2) { return !(z1.re == z2.re && z1.im == z2.im); }
