// The distributions as other chapters ask for them: with a letter for the tail and an integer status.
//
// `tail` is L (lower), U (upper), S (two-sided significance) or C (two-sided confidence), in either case. `ifail` asks for print
// as p01abf_f() tells, and returns the status: 0 for success. After a failure the result is 0 unless told otherwise.
#pragma once

#include <kor.h>

namespace kor::stats {

// The normal deviate of a lower tail; 0 < p < 1 is up to the caller.
double g01faz_f(double p);

// Chi-squared. 1: bad tail (L and U are allowed), 2: x < 0, 3: df <= 0.
double g01ecf_f(char tail, double x, double df, Integer &ifail);

// Beta tails and density. 1: x not in [0, 1], 2: a or b not in (0, 1e6], 4: the smaller tail underflows; p and q are 0 and 1.
void g01eef_f(double x, double a, double b, double &p, double &q, double &pdf, Integer &ifail);

// The beta deviate. 1: p not in [0, 1], 2: a or b not in (0, 1e6], 4: not converged, and the value kept.
double g01fef_f(double p, double a, double b, Integer &ifail);

// The gamma deviate. 1: p not in [0, 1), 2: a not in (0, 1e6], or b <= 0, 3: too close to a tail, 4: not converged, and the
// value kept.
double g01fff_f(double p, double a, double b, Integer &ifail);

// The studentized range of `ir` variables over `v` degrees of freedom, lower tail. 1: q < 0, v < 1 or ir < 2.
double g01emf_f(double q, double v, Integer ir, Integer &ifail);

// Its deviate. 1: p not in (0, 1), v < 1 or ir < 2; 2: not converged, and the value kept.
double g01fmf_f(double p, double v, Integer ir, Integer &ifail);

} // namespace kor::stats
