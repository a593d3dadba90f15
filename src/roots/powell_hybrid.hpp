// Powell's hybrid method for n equations in n unknowns, behind c05nbc, c05pbc and their twins.
#pragma once

#include "frame/function_ref.hpp"
#include "frame/report.hpp"
#include "frame/views.hpp"

namespace kor::roots {

// The user's functions, in the form that the core calls them; both may set the flag negative to stop.
using SystemFunction = FunctionRef<void(const double *x, double *fvec, Integer *userflag)>;
using SystemWithJacobian = FunctionRef<void(const double *x, double *fvec, RowMajor<double> fjac, Integer *userflag)>;

// What a user function of the second form is asked for.
inline constexpr Integer kWantsFunction = 1;
inline constexpr Integer kWantsJacobian = 2;

// The whole of c05nbc and c05tbc: checks, work space, iteration, reports.
void solve_by_differences(const Report &report, Integer n, SystemFunction f, double *x, double *fvec, double xtol);

// The whole of c05pbc and c05ubc. On exit `fjac` holds the orthogonal factor Q of the last approximation of the Jacobian.
void solve_with_jacobian(const Report &report, Integer n, SystemWithJacobian f, double *x, double *fvec, double *fjac,
                         Integer tdfjac, double xtol);

} // namespace kor::roots
