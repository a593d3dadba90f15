// a02bbc: real part.
#include <kor/a02.h>

double a02bbc(Complex z) { return z.re; }
