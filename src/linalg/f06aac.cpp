// f06aac: chooses the plane rotation that makes the second of two numbers zero (drotg).
#include <kor/f06.h>

#include "linalg/blas.hpp"

void f06aac(double *a, double *b, double *c, double *s) { kor::blas::rotg(a, b, c, s); }
