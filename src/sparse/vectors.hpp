// Operations on vectors, in one pass each and eight elements at a time. Results are the same, bit for bit, on every
// processor: sums are formed in eight interleaved parts, whatever the width of its registers.
#pragma once

#include <kor.h>

namespace kor::sparse {

enum class Norm { one, two, infinity };

double dot(Integer n, const double x[], const double y[]);

// A norm of W x, W the diagonal matrix of the weights; null stands for weights of 1. The 2-norm neither overflows nor
// underflows on its way. A NaN in x makes the norm a NaN.
double norm_of(Norm norm, Integer n, const double x[], const double weight[] = nullptr);

bool all_zero(Integer n, const double x[]);

// The power of 2 next to the greatest modulus, for divisions that lose no digits; 1 for a vector of zeros and for one that
// is not finite.
double scale_of(Integer n, const double x[]);

void scale(Integer n, double factor, double x[]);                                             // x := factor x
void subtract(Integer n, const double x[], const double y[], double z[]);                     // z := x - y
void add_multiple(Integer n, double a, const double x[], double y[]);                         // y := y + a x
void multiple_plus(Integer n, const double x[], double b, double y[]);                        // y := x + b y
void set_multiple(Integer n, double a, const double x[], double y[]);                         // y := a x
double add_multiple_dot(Integer n, double a, const double x[], double y[], const double z[]); // y := y + a x, then y'z

// Makes w orthogonal to the orthonormal vectors v[0..count-1], in groups of four; h receives its components, and h[count] the
// norm of what is left.
void orthogonalise(Integer n, Integer count, const double *const v[], double w[], double h[]);

// One step along the direction p, with q = A p: x := x + a s p, r := r - a q.
struct AfterStep {
    double solution;         // the greatest modulus in x
    double residual;         // the greatest modulus in r
    double residual_squared; // r'r
};
AfterStep step_along(Integer n, double a, double s, const double p[], const double q[], double x[], double r[]);

} // namespace kor::sparse
