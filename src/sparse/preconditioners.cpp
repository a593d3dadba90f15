// Preconditioners: forward and backward substitution with incomplete factors and with the triangles of the matrix itself.
#include "sparse/preconditioners.hpp"

#include "sparse/vectors.hpp"

namespace kor::sparse {

namespace {

// Rows one after the other from behind the matrix to within the arrays, each of at least its diagonal.
bool rows_follow_each_other(Integer n, Integer nnz, Integer length, const Integer row_start[])
{
    if (row_start[0] != nnz + 1) return false;
    for (Integer i = 0; i < n; ++i)
        if (row_start[i + 1] <= row_start[i] || row_start[i + 1] - 1 > length) return false;
    return true;
}

// Row i, from 0: its places are p = first..last, from 1, and its columns increase from 1 or more to at most `greatest`.
bool row_is_sound(const Integer row[], const Integer column[], Integer i, Integer first, Integer last, Integer greatest)
{
    Integer previous = 0;
    for (Integer p = first - 1; p < last; ++p) {
        if (row[p] != i + 1 || column[p] <= previous || column[p] > greatest) return false;
        previous = column[p];
    }
    return true;
}

} // namespace

bool LuFactor::is_sound(Integer nnz, Integer length, Integer work[]) const
{
    if (!invert_order(n, row_order, work) || !invert_order(n, column_order, work)) return false;
    if (!rows_follow_each_other(n, nnz, length, row_start)) return false;
    for (Integer i = 0; i < n; ++i) {
        if (diagonal[i] < row_start[i] || diagonal[i] >= row_start[i + 1] || column[diagonal[i] - 1] != i + 1)
            return false;
        if (!row_is_sound(row, column, i, row_start[i], row_start[i + 1] - 1, n)) return false;
    }
    return true;
}

bool LuSolver::prepare(const LuFactor &factor)
{
    n_ = factor.n;
    row_order_ = factor.row_order;
    column_order_ = factor.column_order;
    natural_order_ = is_identity(n_, row_order_) && is_identity(n_, column_order_);
    const Integer off_diagonal = factor.row_start[n_] - factor.row_start[0] - n_;
    const Count n{n_};
    if (!value_.allocate(off_diagonal) || !column_.allocate(off_diagonal) || !reciprocal_.allocate(n) ||
        !lower_.allocate(n + 1) || !upper_.allocate(n + 1) || !work_.allocate(n))
        return false;
    Integer next = 0;
    const auto take = [&](Integer begin, Integer end) {
        for (Integer p = begin; p < end; ++p, ++next) {
            value_[next] = factor.value[p];
            column_[next] = factor.column[p] - 1;
        }
    };
    for (Integer i = 0; i < n_; ++i) {
        lower_[i] = next;
        take(factor.row_start[i] - 1, factor.diagonal[i] - 1);
        reciprocal_[i] = factor.value[factor.diagonal[i] - 1];
    }
    lower_[n_] = next;
    for (Integer i = 0; i < n_; ++i) {
        upper_[i] = next;
        take(factor.diagonal[i], factor.row_start[i + 1] - 1);
    }
    upper_[n_] = next;
    return true;
}

void LuSolver::solve(const double y[], double x[]) const
{
    // In the order of the factor, which may be that of the unknowns.
    double *const t = natural_order_ ? x : work_.data();
    const double *const value = value_.data();
    const Integer *const column = column_.data();
    for (Integer i = 0; i < n_; ++i) {
        double sum = natural_order_ ? y[i] : y[row_order_[i] - 1];
        for (Integer p = lower_[i], end = lower_[i + 1]; p < end; ++p) sum -= value[p] * t[column[p]];
        t[i] = sum;
    }
    for (Integer i = n_ - 1; i >= 0; --i) {
        double sum = t[i];
        for (Integer p = upper_[i], end = upper_[i + 1]; p < end; ++p) sum -= value[p] * t[column[p]];
        t[i] = sum * reciprocal_[i];
    }
    if (natural_order_) return;
    for (Integer i = 0; i < n_; ++i) x[column_order_[i] - 1] = t[i];
}

bool CholeskyFactor::is_sound(Integer nnz, Integer length, Integer work[]) const
{
    if (!invert_order(n, order, work) || !rows_follow_each_other(n, nnz, length, row_start)) return false;
    for (Integer i = 0; i < n; ++i) {
        const Integer last = row_start[i + 1] - 1;
        if (column[last - 1] != i + 1 || !row_is_sound(row, column, i, row_start[i], last, i + 1)) return false;
    }
    return true;
}

void CholeskyFactor::solve(const double y[], double x[], double work[]) const
{
    // D^-1 of the solution of the first triangle, in the order of the factor, which may be that of the unknowns. Elsewhere x
    // may not be written before all of y has been read.
    double *const t = natural_order ? x : work;
    for (Integer i = 0; i < n; ++i) {
        const Integer last = row_start[i + 1] - 2;
        double sum = natural_order ? y[i] : y[order[i] - 1];
        for (Integer p = row_start[i] - 1; p < last; ++p) sum -= value[p] * work[column[p] - 1];
        work[i] = sum;
        if (natural_order) x[i] = sum * value[last];
    }
    if (!natural_order)
        for (Integer i = 0; i < n; ++i) work[i] *= value[row_start[i + 1] - 2];
    // By columns of L': each unknown that is found is taken out of those before it.
    for (Integer i = n - 1; i >= 0; --i) {
        const double found = t[i];
        for (Integer p = row_start[i] - 1; p < row_start[i + 1] - 2; ++p) t[column[p] - 1] -= value[p] * found;
        if (!natural_order) x[order[i] - 1] = found;
    }
}

Diagonal::Found Diagonal::find(const Matrix &a, const Integer start[])
{
    if (!reciprocal_.allocate(a.n) || !place_.allocate(a.n)) return Found::no_memory;
    for (Integer i = 0; i < a.n; ++i) {
        Integer p = start[i];
        while (p < start[i + 1] && a.column[p] < i + 1) ++p;
        if (p == start[i + 1] || a.column[p] != i + 1 || a.value[p] == 0.0) return Found::zero;
        place_[i] = p;
        reciprocal_[i] = 1.0 / a.value[p];
    }
    return Found::all;
}

void Diagonal::jacobi(Integer n, const double y[], double x[]) const
{
    for (Integer i = 0; i < n; ++i) x[i] = reciprocal_[i] * y[i];
}

void Diagonal::over_relax(const Matrix &a, const Integer start[], double omega, const double y[], double x[]) const
{
    for (Integer i = 0; i < a.n; ++i) {
        double sum = 0.0;
        for (Integer p = start[i]; p < place_[i]; ++p) sum += a.value[p] * x[a.column[p] - 1];
        x[i] = (y[i] - omega * sum) * reciprocal_[i];
    }
    for (Integer i = a.n - 1; i >= 0; --i) {
        double sum = 0.0;
        for (Integer p = place_[i] + 1; p < start[i + 1]; ++p) sum += a.value[p] * x[a.column[p] - 1];
        x[i] -= omega * sum * reciprocal_[i];
    }
}

void Diagonal::over_relax_symmetric(const Matrix &a, const Integer start[], double omega, const double y[],
                                    double x[]) const
{
    for (Integer i = 0; i < a.n; ++i) {
        double sum = 0.0;
        for (Integer p = start[i]; p < place_[i]; ++p) sum += a.value[p] * x[a.column[p] - 1];
        x[i] = (y[i] - omega * sum) * reciprocal_[i];
    }
    for (Integer i = a.n - 1; i >= 0; --i) {
        const double found = omega * x[i];
        for (Integer p = start[i]; p < place_[i]; ++p) {
            const Integer j = a.column[p] - 1;
            x[j] -= a.value[p] * found * reciprocal_[j];
        }
    }
}

} // namespace kor::sparse
