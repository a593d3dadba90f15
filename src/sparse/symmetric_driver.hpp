// A symmetric system whose matrix is at hand, solved from arguments that have been checked: what f11jcc and f11jec share.
#pragma once

#include "frame/function_ref.hpp"
#include "frame/report.hpp"
#include "sparse/coordinate.hpp"

namespace kor::sparse {

struct SymmetricSystem {
    Matrix a; // the lower triangle
    const Integer *start;
    Integer method; // an enumerator
    bool preconditioned;
    FunctionRef<void(const double[], double[])> precondition;
    const double *b;
    double tol;
    Integer limit;
};

inline bool is_symmetric_method(Integer method)
{
    return method == Kor_SparseSym_CG || method == Kor_SparseSym_Lanczos;
}

// `anorm`: infinity norm of the matrix, 0 if it is to be computed; on return what was used.
void solve_and_report(const Report &, const SymmetricSystem &, double x[], double *rnorm, Integer *itn, double *anorm);

} // namespace kor::sparse
