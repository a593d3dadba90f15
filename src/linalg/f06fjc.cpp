// f06fjc: takes a real vector into a scaled sum of squares.
#include <kor/f06.h>

#include "linalg/norm.hpp"

void f06fjc(Integer n, const double x[], Integer incx, double *scale, double *sumsq)
{
    kor::linalg::ScaledSquares squares{*scale, *sumsq};
    kor::linalg::add_squares(squares, n, x, incx);
    *scale = squares.scale;
    *sumsq = squares.sumsq;
}
