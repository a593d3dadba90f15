// f06clc: quotient of two complex numbers, guarded against overflow and underflow.
#include <kor/f06.h>

#include "linalg/rotation.hpp"

Complex f06clc(Complex a, Complex b, Boolean *fail)
{
    bool overflow;
    const Complex quotient = kor::linalg::guarded_quotient(a, b, overflow);
    *fail = overflow;
    return quotient;
}
