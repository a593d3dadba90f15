// Norms and largest elements of vectors, the Euclidean norm without spurious overflow or underflow.
#pragma once

#include <cstddef>

#include <kor.h>

namespace kor::linalg {

// scale sqrt(sumsq): a norm that is held so that it cannot overflow. It starts as scale 0, sumsq 1.
struct ScaledSquares {
    double scale = 0.0;
    double sumsq = 1.0;
};

// Takes the elements of x in: scale becomes the greatest of |x| and the old scale, and scale^2 sumsq grows by x' x.
// Zeros change nothing; a NaN makes sumsq NaN; with an infinity scale becomes infinite.
void add_squares(ScaledSquares &norm, Integer n, const double *x, Integer incx);
void add_squares(ScaledSquares &norm, Integer n, const Complex *x, Integer incx);

// scale sqrt(sumsq), or 1/x02amc in its place if that is not greater than it; NaN and infinity pass.
double length_of(const ScaledSquares &norm);

// sqrt(x' x), to about 1 ulp. 0 for an empty vector.
double euclidean_norm(Integer n, const double *x, Integer incx);
double euclidean_norm(Integer n, const Complex *x, Integer incx);

// Sum of |x|, of |re| + |im| if complex.
double sum_of_moduli(Integer n, const double *x, Integer incx);
double sum_of_moduli(Integer n, const Complex *x, Integer incx);

// Index from 0 of the first element of greatest |x|, or of greatest |re| + |im|; -1 for an empty vector. A NaN in front
// is the greatest, elsewhere it is passed over: the rule of the comparison x[i] > x[greatest].
Integer index_of_greatest(Integer n, const double *x, Integer incx);
Integer index_of_greatest(Integer n, const Complex *x, Integer incx);

} // namespace kor::linalg
