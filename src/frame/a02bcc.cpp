// a02bcc: imaginary part.
#include <kor/a02.h>

double a02bcc(Complex z) { return z.im; }
