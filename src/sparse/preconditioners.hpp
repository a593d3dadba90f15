// Preconditioners: incomplete factors as the factorisations leave them, and the sweeps that need no factor.
#pragma once

#include "frame/workspace.hpp"
#include "sparse/coordinate.hpp"

namespace kor::sparse {

// P A Q about L U, of which `value` holds, behind the matrix, L below its unit diagonal, U above its diagonal, and the
// reciprocals of U's diagonal. Starts are places from 1.
struct LuFactor {
    Integer n;
    const double *value;
    const Integer *row, *column, *row_start, *diagonal;
    const Integer *row_order, *column_order;

    // May this be what the factorisation of a matrix of `nnz` elements left in arrays of length `length`? `work`: n elements.
    bool is_sound(Integer nnz, Integer length, Integer work[]) const;
};

// The same ready for use: L and U apart, so that each of the two sweeps reads only what it needs.
class LuSolver {
  public:
    bool prepare(const LuFactor &); // false if the memory cannot be had
    // x := M^-1 y; x may be y.
    void solve(const double y[], double x[]) const;

  private:
    Integer n_ = 0;
    const Integer *row_order_ = nullptr, *column_order_ = nullptr;
    bool natural_order_ = false;                // both orders are 1, 2, 3, ...
    Workspace<double> value_, reciprocal_;      // L row by row, then U row by row; of U's diagonal
    Workspace<Integer> column_, lower_, upper_; // columns from 0; where the rows of L and of U start
    Workspace<double> work_;
};

// P A P' about L D L', of which `value` holds, behind the matrix, L below its unit diagonal and the reciprocals of D.
struct CholeskyFactor {
    Integer n;
    const double *value;
    const Integer *row, *column, *row_start, *order;
    bool natural_order; // 1, 2, 3, ...: a shorter way is open

    bool is_sound(Integer nnz, Integer length, Integer work[]) const;
    // x := M^-1 y; n elements of work; x may be y.
    void solve(const double y[], double x[], double work[]) const;
};

// The diagonal of a matrix; for Jacobi and for successive over-relaxation.
class Diagonal {
  public:
    enum class Found { all, no_memory, zero };
    Found find(const Matrix &a, const Integer start[]);

    void jacobi(Integer n, const double y[], double x[]) const;
    // M = (D + omega L) D^-1 (D + omega U), up to a factor that no method notices; x may be y.
    void over_relax(const Matrix &a, const Integer start[], double omega, const double y[], double x[]) const;
    // The same with the upper triangle the transpose of the lower, which is stored.
    void over_relax_symmetric(const Matrix &a, const Integer start[], double omega, const double y[], double x[]) const;

  private:
    Workspace<double> reciprocal_;
    Workspace<Integer> place_;
};

} // namespace kor::sparse
