// f06bmc: Euclidean norm from a scaled sum of squares.
#include <kor/f06.h>

#include "linalg/norm.hpp"

double f06bmc(double scale, double ssq) { return kor::linalg::length_of({scale, ssq}); }
