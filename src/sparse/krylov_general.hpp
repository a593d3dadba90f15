// Iterative methods for nonsymmetric systems A x = b, preconditioned from the right: restarted GMRES, CGS, BiCGSTAB(l).
#pragma once

#include <kor.h>

#include "frame/function_ref.hpp"
#include "sparse/solution.hpp"

namespace kor::sparse {

enum class GeneralMethod { gmres, cgs, bicgstab };

struct GeneralSystem {
    Integer n;
    FunctionRef<void(const double[], double[])> multiply;     // v := A u
    FunctionRef<void(const double[], double[])> precondition; // v := M^-1 u
    const double *b;
    double matrix_norm; // infinity norm of A
};

struct Iteration {
    Solved outcome;
    double residual_norm; // infinity norm of b - A x, computed from x
    Integer count;
};

// x holds a first estimate, and on return the best iterate that is known. `m`: the basis vectors of GMRES, the degree of
// BiCGSTAB's polynomials; CGS has no use for it. Norms are infinity norms. After no_memory x is untouched.
Iteration solve_general(const GeneralSystem &, GeneralMethod, Integer m, double tol, Integer limit, double x[]);

} // namespace kor::sparse
