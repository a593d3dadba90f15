// A nonsymmetric system whose matrix is at hand: what f11dcc and f11dec share.
#pragma once

#include "frame/function_ref.hpp"
#include "frame/report.hpp"
#include "sparse/coordinate.hpp"

namespace kor::sparse {

inline bool is_general_method(Integer method)
{
    return method == Kor_SparseNsym_RGMRES || method == Kor_SparseNsym_CGS || method == Kor_SparseNsym_BiCGSTAB;
}

// The two texts about `m`, which differ from one routine to the other.
struct DegreeTexts {
    const char *gmres, *bicgstab;
};
bool reports_degree(const Report &, Integer method, Integer n, Integer m, const DegreeTexts &);

struct DrivenSystem {
    Matrix a;
    const Integer *start;
    Integer method; // an enumerator
    Integer m;
    FunctionRef<void(const double[], double[])> precondition;
    const double *b;
    double tol;
    Integer limit;
};

void solve_and_report(const Report &, const DrivenSystem &, double x[], double *rnorm, Integer *itn);

} // namespace kor::sparse
