// f06bnc: length of the hypotenuse: the Euclidean norm of two numbers.
#include <kor/f06.h>

#include <cmath>

double f06bnc(double a, double b) { return std::hypot(a, b); }
