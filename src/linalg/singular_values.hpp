// Singular value decompositions, A = Q S conj(P)', of rectangular matrices.
#pragma once

#include <kor.h>

namespace kor::linalg {

// Steps after which the iteration on n values is given up.
inline constexpr Integer kStepsPerValue = 50;
constexpr Integer step_limit(Integer n) { return n <= 0x7fffffff / kStepsPerValue ? kStepsPerValue * n : 0x7fffffff; }

enum class SingularOutcome { success, no_memory, no_convergence };

// Where the vectors go: null for none. With r = min(m, n) the array q is m by r, pt, which holds conj(P)', r by n.
template <class T>
struct SingularVectors {
    T *q;
    Integer tdq;
    T *pt;
    Integer tdpt;
};

// What the iteration tells beside the values: its steps (0 where LAPACK did the work), what is left of the superdiagonal,
// r - 1 elements (e may be null), and the number of values that have not converged.
struct IterationRecord {
    double *e;
    Integer steps = 0;
    Integer failures = 0;
};

// Singular values descending; b, m by ncolb, becomes conj(Q)' b, Q taken as square. The array a is destroyed, unless it is
// one of those that receive vectors, which it may be.
SingularOutcome singular_decomposition(Integer m, Integer n, double *a, Integer tda, Integer ncolb, double *b,
                                       Integer tdb, double *values, const SingularVectors<double> &vectors,
                                       IterationRecord &record);
SingularOutcome singular_decomposition(Integer m, Integer n, Complex *a, Integer tda, Integer ncolb, Complex *b,
                                       Integer tdb, double *values, const SingularVectors<Complex> &vectors,
                                       IterationRecord &record);

} // namespace kor::linalg
