// a02bac: complex number from its parts.
#include <kor/a02.h>

Complex a02bac(double x, double y) { return {x, y}; }
