// The tests of arguments that the routines share, in the order in which they are made.
#pragma once

#include <algorithm>
#include <cstdint>

#include "frame/report.hpp"
#include "sparse/coordinate.hpp"
#include "sparse/factor_storage.hpp"
#include "sparse/preconditioners.hpp"
#include "sparse/solution.hpp"

namespace kor::sparse {

// True, and reported, if the order or the number of elements is impossible.
inline bool reports_size(const Report &report, Integer n, Integer nnz, Triangle triangle)
{
    if (n < 1) {
        report.error<NE_INT_ARG_LT>("n", "1", "n", n);
        return true;
    }
    if (!count_is_possible(n, nnz, triangle)) {
        report.error<NE_INT_2>("n", n, "nnz", nnz,
                               triangle == Triangle::both ? "1 <= nnz <= n * n" : "1 <= nnz <= n*(n+1)/2");
        return true;
    }
    return false;
}

// True, and reported, if the arrays are too short for a matrix and a factor.
inline bool reports_length(const Report &report, Integer la, Integer nnz, const char *least)
{
    const std::int64_t twice = 2 * static_cast<std::int64_t>(nnz);
    if (la >= twice) return false;
    report.error<NE_2_INT_ARG_LT>("la", la, least, twice, "la", least);
    return true;
}

// True, and reported, if the limits of an iteration make no sense.
inline bool reports_limits(const Report &report, Integer maxitn, double tol)
{
    if (maxitn < 1) {
        report.error<NE_INT_ARG_LT>("maxitn", "1", "maxitn", maxitn);
        return true;
    }
    if (!(tol < 1.0)) {
        report.error<NE_REAL_ARG_GE>("tol", "1.0", "tol", tol);
        return true;
    }
    return false;
}

// True, and reported, if the rule for dropping elements of a factor makes no sense.
inline bool reports_drop_rule(const Report &report, Integer lfill, double dtol)
{
    if (lfill >= 0 || dtol >= 0.0) return false;
    report.error<NE_REAL_INT_ARG_CONS>("dtol", dtol, "lfill", lfill, "dtol >= 0.0 if lfill < 0");
    return true;
}

// True, and reported, if a factorisation has failed.
inline bool reports_failure(const Report &report, Factorised outcome)
{
    switch (outcome) {
    case Factorised::done:
        return false;
    case Factorised::no_memory:
        report.error<NE_ALLOC_FAIL>();
        break;
    case Factorised::too_large:
        report.error<NE_LA_TOO_SMALL>();
        break;
    }
    return true;
}

// The same if no preconditioner can be made of the diagonal.
inline bool reports_failure(const Report &report, Diagonal::Found found)
{
    switch (found) {
    case Diagonal::Found::all:
        return false;
    case Diagonal::Found::zero:
        report.error<NE_ZERO_DIAGONAL_ELEM>();
        break;
    case Diagonal::Found::no_memory:
        report.error<NE_ALLOC_FAIL>();
        break;
    }
    return true;
}

// The report at the end of an iteration.
inline void report_outcome(const Report &report, Solved outcome)
{
    switch (outcome) {
    case Solved::converged:
        return report.success();
    case Solved::accuracy_limit:
        return report.error<NE_ACC_LIMIT>();
    case Solved::not_converged:
        return report.error<NE_NOT_REQ_ACC>();
    case Solved::not_definite:
        return report.error<NE_COEFF_NOT_POS_DEF>();
    case Solved::preconditioner_not_definite:
        return report.error<NE_PRECOND_NOT_POS_DEF>();
    case Solved::no_memory:
        return report.error<NE_ALLOC_FAIL>();
    }
}

} // namespace kor::sparse
