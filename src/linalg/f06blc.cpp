// f06blc: quotient of two real numbers, guarded against overflow and underflow.
#include <kor/f06.h>

#include "linalg/rotation.hpp"

double f06blc(double a, double b, Boolean *fail)
{
    bool overflow;
    const double quotient = kor::linalg::guarded_quotient(a, b, overflow);
    *fail = overflow;
    return quotient;
}
