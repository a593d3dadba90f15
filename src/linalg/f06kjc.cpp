// f06kjc: takes a complex vector into a scaled sum of squares.
#include <kor/f06.h>

#include "linalg/norm.hpp"

void f06kjc(Integer n, const Complex x[], Integer incx, double *scale, double *sumsq)
{
    kor::linalg::ScaledSquares squares{*scale, *sumsq};
    kor::linalg::add_squares(squares, n, x, incx);
    *scale = squares.scale;
    *sumsq = squares.sumsq;
}
